import QtQuick 2.15

// A line of a date/time picker showing its value; a press opens or closes what it stands for.
Rectangle {
    id: line
    property string label
    property bool open: false
    property int fontSize: 14
    signal toggled()

    color: area.pressed ? "#d0dcea" : "#eef2f7"
    border.color: "#c8d2de"
    Text {
        objectName: "label"
        anchors.left: parent.left
        anchors.leftMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        text: line.label
        font.pixelSize: line.fontSize
        color: "#1c2733"
    }
    Text {
        anchors.right: parent.right
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        text: line.open ? "\u25be" : "\u25b8"
        font.pixelSize: line.fontSize
        color: "#2b3a4a"
    }
    MouseArea { id: area; anchors.fill: parent; onClicked: line.toggled() }
}
