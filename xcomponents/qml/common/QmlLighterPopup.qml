import QtQuick 2.15
import QQuickHalvex 1.0

// The dimming layer: fills its overlay with the dimming colour.
LighterPopup {
    width: parent ? parent.width : 0
    height: parent ? parent.height : 0
    Rectangle { anchors.fill: parent; color: parent.color }
}
