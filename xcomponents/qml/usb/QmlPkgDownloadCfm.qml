import QtQuick 2.15
import QQuickHalvex 1.0

// One package asked about: its name, size and date; "Download" (2306) or "Cancel".
XUsbPackageDialog {
    id: dialog
    width: 520
    height: 260
    modal: true

    Rectangle {
        anchors.fill: parent
        radius: 8
        color: "#f5f7fa"
        border.color: "#4f6d8a"
        border.width: 2
    }
    Text {
        x: 20; y: 16
        text: qsTr("Download this package?")
        font.pixelSize: 22
        font.bold: true
        color: "#2b3a4a"
    }
    Text {
        objectName: "packageText"
        x: 20; y: 62
        width: parent.width - 40
        elide: Text.ElideMiddle
        font.pixelSize: 19
        color: "#1c2733"
        text: dialog.storageLabel + "/" + dialog.packageName
    }
    Text {
        x: 20; y: 100
        font.pixelSize: 16
        color: "#5b6b7b"
        text: dialog.packageSize !== "" ? dialog.packageSize + "    " + dialog.packageDate : qsTr("The package is gone")
    }
    Row {
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.margins: 14
        spacing: 10
        QmlUsbButton {
            objectName: "confirmButton"
            text: qsTr("Download")
            primary: true
            active: dialog.packageSize !== ""
            onClicked: dialog.confirm()
        }
        QmlUsbButton { objectName: "cancelButton"; text: qsTr("Cancel"); onClicked: dialog.cancel() }
    }
}
