import QtQuick 2.15
import QtQuick.Controls 2.15
import QQuickHalvex 1.0

// The multi-line entry field: a word-wrapped text in a Flickable with a
// vertical scroll bar. The Flickable does not take presses (interactive:
// false), so a press on the text reaches the field, which reports it; the
// logic layer scrolls by moving the cursor or the selection.
XTextEdit {
    id: control
    width: 300
    height: 200
    textItem: edit

    contentItem: Flickable {
        id: flick
        interactive: false
        clip: true
        contentWidth: width
        contentHeight: edit.height
        boundsBehavior: Flickable.StopAtBounds

        ScrollBar.vertical: ScrollBar {
            policy: flick.contentHeight > flick.height ? ScrollBar.AlwaysOn : ScrollBar.AlwaysOff
        }

        function ensureVisible(r) {
            if (contentY >= r.y)
                contentY = r.y
            else if (contentY + height <= r.y + r.height)
                contentY = r.y + r.height - height
        }

        XQuickTextEdit {
            id: edit
            width: flick.width
            height: Math.max(implicitHeight, flick.height)
            onCursorRectangleChanged: flick.ensureVisible(cursorRectangle)
        }
    }
}
