import QtQuick 2.15

// One large row of a file list (the file dialog, the package explorer): an icon
// (the items given inside the row, drawn in a 30 x 26 box), the name, the size
// and the date; shaded while pressed; a touch sends activated().
Rectangle {
    id: row
    property int rowIndex: 0
    property string name
    property string size
    property string date
    default property alias icon: iconBox.data
    signal activated()

    height: 56
    color: area.pressed ? "#d0dcea" : (rowIndex % 2 ? "#ffffff" : "#f0f3f7")
    Item {
        id: iconBox
        x: 12
        width: 30; height: 26
        anchors.verticalCenter: parent.verticalCenter
    }
    Text {
        x: 52
        width: parent.width - 52 - 260
        anchors.verticalCenter: parent.verticalCenter
        elide: Text.ElideMiddle
        font.pixelSize: 18
        color: "#1c2733"
        text: row.name
    }
    Text {
        x: parent.width - 250
        width: 90
        horizontalAlignment: Text.AlignRight
        anchors.verticalCenter: parent.verticalCenter
        font.pixelSize: 15
        color: "#5b6b7b"
        text: row.size
    }
    Text {
        x: parent.width - 150
        anchors.verticalCenter: parent.verticalCenter
        font.pixelSize: 15
        color: "#5b6b7b"
        text: row.date
    }
    MouseArea { id: area; anchors.fill: parent; onClicked: row.activated() }
}
