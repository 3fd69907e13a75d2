import QtQuick 2.15
import QQuickHalvex 1.0

// The file dialog: path bar with the up button, one large row per folder or file
// (folders first), and Cancel. A touched folder opens, a touched file is chosen.
XQuickFileDialog {
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
        text: qsTr("Open file")
        font.pixelSize: 20
        font.bold: true
        color: "#2b3a4a"
    }
    Text {
        objectName: "filterText"
        anchors.right: parent.right
        anchors.rightMargin: 16
        y: 16
        text: dialog.filterText
        font.pixelSize: 16
        color: "#5b6b7b"
    }
    Rectangle {
        id: pathBar
        x: 12; y: 48
        width: parent.width - 24
        height: 52
        radius: 6
        color: "#e4e9ef"
        Rectangle {
            id: upButton
            objectName: "upButton"
            width: 52; height: 52
            radius: 6
            color: upArea.pressed ? "#c9d3dd" : (dialog.files.atTop ? "#e4e9ef" : "#d7dee6")
            opacity: dialog.files.atTop ? 0.4 : 1
            Text { anchors.centerIn: parent; text: "\u2191"; font.pixelSize: 28; color: "#2b3a4a" }
            MouseArea { id: upArea; anchors.fill: parent; enabled: !dialog.files.atTop; onClicked: dialog.files.up() }
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
            text: dialog.files.atTop ? qsTr("Storage") : dialog.files.shownPath
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
            objectName: "fileRow" + index
            width: list.width
            rowIndex: index
            name: model.name
            size: model.size
            date: model.date
            onActivated: dialog.activate(index)
            // a folder (a tab over a box) or a page
            Rectangle { visible: model.isDir; x: 0; y: 0; width: 12; height: 6; radius: 2; color: "#d9a53a" }
            Rectangle { visible: model.isDir; x: 0; y: 4; width: 30; height: 22; radius: 3; color: "#f0c35a"
                        border.color: "#c08a20" }
            Rectangle { visible: !model.isDir; x: 5; y: 0; width: 20; height: 26; radius: 2; color: "white"
                        border.color: "#7a8896" }
            Rectangle { visible: !model.isDir; x: 9; y: 8; width: 12; height: 2; color: "#9aa5b1" }
            Rectangle { visible: !model.isDir; x: 9; y: 13; width: 12; height: 2; color: "#9aa5b1" }
            Rectangle { visible: !model.isDir; x: 9; y: 18; width: 8; height: 2; color: "#9aa5b1" }
        }
    }
    Text {
        anchors.centerIn: list
        visible: list.count === 0
        text: qsTr("No files here")
        font.pixelSize: 18
        color: "#8a98a8"
    }
    Rectangle {
        objectName: "cancelButton"
        width: 160; height: 52
        radius: 6
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.margins: 12
        color: cancelArea.pressed ? "#c9d3dd" : "#e4e9ef"
        border.color: "#4f6d8a"
        Text { anchors.centerIn: parent; text: qsTr("Cancel"); font.pixelSize: 18; color: "#2b3a4a" }
        MouseArea { id: cancelArea; anchors.fill: parent; onClicked: dialog.cancel() }
    }
}
