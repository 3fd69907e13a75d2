import QtQuick 2.15
import QQuickHalvex 1.0

// The marquee alarm bar: the bar makes its two runs of cells
// (QmlHAlarmBarComp.qml) and moves them when the logic layer steps it.
XHAlarmBarControl {
    id: bar
}
