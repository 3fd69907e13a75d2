import QtQuick 2.15
import QQuickHalvex 1.0

// The table alarm bar: the bar makes its title rows and its two copies of the
// alarm rows itself (QmlAlarmBarContent.qml for each cell) and moves them when
// the logic layer steps it.
XAlarmBarControl {
    id: bar
}
