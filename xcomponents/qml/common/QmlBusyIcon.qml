import QtQuick 2.15

// The busy animation of a widget: a turning arc in the widget's centre.
Item {
    anchors.centerIn: parent
    width: Math.max(16, Math.min(parent ? parent.width : 32, parent ? parent.height : 32) * 0.6)
    height: width
    Rectangle {
        anchors.fill: parent
        radius: width / 2
        color: "transparent"
        border.color: "#406ea2e2"
        border.width: Math.max(2, width / 8)
    }
    Rectangle {
        width: Math.max(2, parent.width / 8)
        height: parent.height / 2
        x: (parent.width - width) / 2
        color: "#6ea2e2"
        transformOrigin: Item.Bottom
        RotationAnimation on rotation { from: 0; to: 360; duration: 900; loops: Animation.Infinite; running: visible }
    }
}
