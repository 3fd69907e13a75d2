import QtQuick 2.15

// A large button of the package dialogs.
Rectangle {
    id: button
    property string text
    property bool primary: false
    property bool active: true
    signal clicked()
    width: 170; height: 52
    radius: 6
    opacity: active ? 1 : 0.4
    color: area.pressed ? (primary ? "#2c5a86" : "#c9d3dd") : (primary ? "#3a71a8" : "#e4e9ef")
    border.color: "#4f6d8a"
    Text { anchors.centerIn: parent; text: button.text; font.pixelSize: 18; color: button.primary ? "white" : "#2b3a4a" }
    MouseArea { id: area; anchors.fill: parent; enabled: button.active; onClicked: button.clicked() }
}
