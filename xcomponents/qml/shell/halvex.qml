import QtQuick 2.15
import QtQuick.Controls 2.15
import QQuickHalvex 1.0

// The panel shell: a centred, zoomable, rotatable panel area ("guirect") that
// receives the desktops; scroll bars appear when the zoomed panel is larger than
// the window.
GuiShell {
    id: shell
    width: 1920
    height: 1080

    Flickable {
        id: flick
        anchors.fill: parent
        interactive: false
        clip: true
        contentWidth: Math.max(width, guiRect.width * guiRect.scale)
        contentHeight: Math.max(height, guiRect.height * guiRect.scale)
        onContentWidthChanged: contentX = (contentWidth - width) / 2
        onContentHeightChanged: contentY = (contentHeight - height) / 2
        onWidthChanged: contentX = (contentWidth - width) / 2
        onHeightChanged: contentY = (contentHeight - height) / 2

        ScrollBar.vertical: ScrollBar {
            policy: ScrollBar.AlwaysOn
            width: flick.contentHeight > flick.height ? 15 : 0
            opacity: active ? 1 : 0.5
        }
        ScrollBar.horizontal: ScrollBar {
            policy: ScrollBar.AlwaysOn
            height: flick.contentWidth > flick.width ? 15 : 0
            opacity: active ? 1 : 0.5
        }

        Control {
            id: guiRect
            objectName: "guirect"
            property bool guirect: true
            // how far the on-screen keyboard moves the panel to keep the field in view
            property real keyboardShift: 0
            width: 1024
            height: 600
            x: (flick.contentWidth - width) / 2
            y: (flick.contentHeight - height) / 2 + keyboardShift
            transformOrigin: Item.Center
            clip: true
            rotation: shell.windowRotation
            padding: 0
            contentItem: Item { objectName: "desktopHost" }
        }
    }

    // the wheel scrolls a panel taller than the window; otherwise it goes on to the
    // widget under the pointer (a chart zooms)
    MouseArea {
        anchors.fill: parent
        acceptedButtons: Qt.MiddleButton
        onWheel: {
            if (flick.contentHeight <= flick.height) {
                wheel.accepted = false
                return
            }
            var maxY = Math.max(0, flick.contentHeight - flick.height)
            flick.contentY = Math.min(maxY, Math.max(0, flick.contentY - wheel.angleDelta.y / 5))
        }
    }

    Component.onCompleted: shell.init()
}
