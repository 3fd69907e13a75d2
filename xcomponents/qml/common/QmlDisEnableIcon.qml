import QtQuick 2.15

// The disabled-state look of a widget: a light veil with a "no entry" mark.
Item {
    anchors.fill: parent
    Rectangle { anchors.fill: parent; color: "#80ffffff" }
    Rectangle {
        width: Math.max(12, Math.min(parent.width, parent.height) * 0.5)
        height: width
        radius: width / 2
        anchors.centerIn: parent
        color: "transparent"
        border.color: "#c0392b"
        border.width: Math.max(2, width / 10)
        Rectangle {
            width: parent.width * 0.75
            height: parent.border.width
            anchors.centerIn: parent
            rotation: -45
            color: "#c0392b"
        }
    }
}
