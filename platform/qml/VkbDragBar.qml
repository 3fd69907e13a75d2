import QtQuick 2.15

// The bar at the top of the keyboard by which the operator drags it around. The
// drag keeps `target` inside its parent item.
Rectangle {
    id: bar

    property Item target

    implicitHeight: 40
    radius: 6
    color: drag.active ? "#3f4b5c" : "#2f343c"

    // Grip: three short lines in the middle.
    Column {
        anchors.centerIn: parent
        spacing: 4
        Repeater {
            model: 3
            Rectangle { width: 48; height: 2; radius: 1; color: "#8a93a0" }
        }
    }

    DragHandler {
        id: drag
        target: bar.target
        xAxis.minimum: 0
        xAxis.maximum: bar.target && bar.target.parent ? Math.max(0, bar.target.parent.width - bar.target.width) : 0
        yAxis.minimum: 0
        yAxis.maximum: bar.target && bar.target.parent ? Math.max(0, bar.target.parent.height - bar.target.height) : 0
    }
}
