import QtQuick 2.15
import QQuickHalvex 1.0

// A medium in a storage slot: what it holds, what to download from it, and
// "Download" (2305), "Browse" (2307) or "Cancel".
XUsbPackageDialog {
    id: dialog
    width: 560
    height: 360
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
        text: qsTr("Storage %1").arg(dialog.storageLabel)
        font.pixelSize: 22
        font.bold: true
        color: "#2b3a4a"
    }
    Text {
        objectName: "mediumText"
        x: 20; y: 58
        width: parent.width - 40
        wrapMode: Text.WordWrap
        font.pixelSize: 17
        color: "#1c2733"
        text: dialog.mediumPresent
              ? (dialog.packageCount === 1 ? qsTr("1 package found, %1 free").arg(dialog.freeSpace)
                                            : qsTr("%1 packages found, %2 free").arg(dialog.packageCount).arg(dialog.freeSpace))
              : qsTr("No medium in this slot")
    }
    Column {
        x: 20; y: 110
        spacing: 10
        Repeater {
            model: [ { name: "chooseProject", label: qsTr("Project") }, { name: "chooseData", label: qsTr("Recipes and data") } ]
            delegate: Rectangle {
                objectName: modelData.name
                width: 520; height: 52
                radius: 6
                color: rowArea.pressed ? "#d0dcea" : "#eef2f6"
                readonly property bool checked: dialog[modelData.name]
                Rectangle {
                    x: 12; width: 30; height: 30
                    anchors.verticalCenter: parent.verticalCenter
                    radius: 4
                    color: parent.checked ? "#3a71a8" : "white"
                    border.color: "#4f6d8a"
                    Text { anchors.centerIn: parent; text: "\u2713"; visible: parent.parent.checked; color: "white"; font.pixelSize: 20 }
                }
                Text { x: 56; anchors.verticalCenter: parent.verticalCenter; text: modelData.label; font.pixelSize: 18; color: "#1c2733" }
                MouseArea { id: rowArea; anchors.fill: parent; onClicked: dialog[modelData.name] = !parent.checked }
            }
        }
    }
    Row {
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.margins: 14
        spacing: 10
        QmlUsbButton {
            objectName: "downloadButton"
            text: qsTr("Download")
            primary: true
            active: dialog.mediumPresent && (dialog.chooseProject || dialog.chooseData)
            onClicked: dialog.download()
        }
        QmlUsbButton { objectName: "browseButton"; text: qsTr("Browse"); active: dialog.mediumPresent; onClicked: dialog.browse() }
        QmlUsbButton { objectName: "cancelButton"; text: qsTr("Cancel"); onClicked: dialog.cancel() }
    }
}
