import QtQuick 2.15
import QtQuick.Controls 2.15

// The vertical scroll bar of a table's body: wide enough for a finger, shown
// while the body is longer than its view.
ScrollBar {
    objectName: "tableScrollBar"
    policy: ScrollBar.AsNeeded
    minimumSize: 0.08
    contentItem: Rectangle {
        implicitWidth: 12
        radius: 6
        color: parent.pressed ? "#537bad" : "#9aa7b5"
        opacity: parent.policy === ScrollBar.AlwaysOn || parent.size < 1.0 ? 0.9 : 0
    }
}
