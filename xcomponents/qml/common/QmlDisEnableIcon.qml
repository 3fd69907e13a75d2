import QtQuick 2.15
import QQuickHalvex 1.0

// The disabled-state look of a widget: a light veil and a "no entry" mark
// tinted in the widget's disabled colour.
Item {
    anchors.fill: parent
    Rectangle { anchors.fill: parent; color: "#80ffffff" }
    XDisEnableIcon {
        objectName: "disEnableMark"
        readonly property int side: Math.max(12, Math.min(parent.width, parent.height) * 0.5)
        anchors.centerIn: parent
        iconSource: "qrc:/svg/disabled.svg"
        iconSize: Qt.size(side, side)
        color: "#c0392b"
        disabledColor: "#7f8c8d"
    }
}
