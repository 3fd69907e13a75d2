import QtQuick 2.15
import QQuickHalvex 1.0
import "qrc:/" // the file row shared with the file dialog

// The packages of one storage: folders first, then package files; a touched
// package asks for its confirmation, a touched folder opens.
XUsbPackageDialog {
    id: dialog
    width: 640
    height: 460
    modal: true

    Rectangle {
        anchors.fill: parent
        radius: 8
        color: "#f5f7fa"
        border.color: "#4f6d8a"
        border.width: 2
    }
    Text {
        x: 16; y: 12
        text: qsTr("Packages on %1").arg(dialog.storageLabel)
        font.pixelSize: 20
        font.bold: true
        color: "#2b3a4a"
    }
    Rectangle {
        id: pathBar
        x: 12; y: 48
        width: parent.width - 24
        height: 52
        radius: 6
        color: "#e4e9ef"
        QmlUsbButton {
            id: upButton
            objectName: "upButton"
            width: 52
            text: "\u2191"
            active: !dialog.files.atTop && dialog.files.folder !== dialog.storageFolder
            onClicked: dialog.files.up()
        }
        Text {
            objectName: "pathText"
            anchors.left: upButton.right
            anchors.leftMargin: 12
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            elide: Text.ElideLeft
            font.pixelSize: 18
            color: "#1c2733"
            text: dialog.files.shownPath
        }
    }
    ListView {
        id: list
        objectName: "fileList"
        x: 12
        y: pathBar.y + pathBar.height + 8
        width: parent.width - 24
        height: parent.height - y - 72
        clip: true
        model: dialog.files
        delegate: QmlFileRow {
            objectName: "packageRow" + index
            width: list.width
            rowIndex: index
            name: model.name
            size: model.size
            date: model.date
            onActivated: dialog.activate(index)
            Rectangle { // a folder, or a package box
                width: 30; height: 26
                radius: 3
                color: model.isDir ? "#f0c35a" : "#b5835a"
                border.color: model.isDir ? "#c08a20" : "#7d5533"
                Rectangle { visible: !model.isDir; x: 13; width: 4; height: parent.height; color: "#e8d2b0" }
            }
        }
    }
    Text {
        anchors.centerIn: list
        visible: list.count === 0
        text: dialog.mediumPresent ? qsTr("No packages here") : qsTr("No medium in this slot")
        font.pixelSize: 18
        color: "#8a98a8"
    }
    QmlUsbButton {
        objectName: "cancelButton"
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.margins: 12
        text: qsTr("Cancel")
        onClicked: dialog.cancel()
    }
}
