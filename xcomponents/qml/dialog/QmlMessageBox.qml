import QtQuick 2.15
import QQuickHalvex 1.0

// The message box: a list of messages, each shown for its life in seconds
// (0 = until the box is closed), with a count-down when countDown is set.
XPopup {
    id: box
    property int life: 5
    property bool countDown: true
    width: 420
    height: Math.min(360, 56 + list.contentHeight)

    function addInfoItem(text, itemLife) {
        messages.append({ "message": String(text), "remaining": itemLife > 0 ? itemLife : 0 })
        list.positionViewAtEnd()
    }

    ListModel { id: messages }

    Timer {
        interval: 1000
        repeat: true
        running: box.opened && messages.count > 0
        onTriggered: {
            for (var i = messages.count - 1; i >= 0; --i) {
                var r = messages.get(i).remaining
                if (r === 0)
                    continue
                if (r <= 1)
                    messages.remove(i)
                else
                    messages.setProperty(i, "remaining", r - 1)
            }
            if (messages.count === 0)
                box.close()
        }
    }
    onClosed: messages.clear()

    Rectangle {
        anchors.fill: parent
        radius: 8
        color: "#f5f7fa"
        border.color: "#6ea2e2"
        border.width: 2
    }
    Text {
        x: 16; y: 10
        text: qsTr("Message")
        font.pixelSize: 18
        font.bold: true
        color: "#2b3a4a"
    }
    Rectangle {
        objectName: "msgCloseButton"
        width: 40; height: 40
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.margins: 4
        color: closeArea.pressed ? "#d0dcea" : "transparent"
        radius: 4
        Text { anchors.centerIn: parent; text: "\u2715"; font.pixelSize: 20; color: "#2b3a4a" }
        MouseArea { id: closeArea; anchors.fill: parent; onClicked: box.close() }
    }
    ListView {
        id: list
        objectName: "msgList"
        anchors { left: parent.left; right: parent.right; top: parent.top; bottom: parent.bottom
                  leftMargin: 16; rightMargin: 16; topMargin: 48; bottomMargin: 8 }
        clip: true
        model: messages
        spacing: 6
        delegate: Text {
            width: list.width
            wrapMode: Text.Wrap
            font.pixelSize: 18
            color: "#1c2733"
            text: model.message + (box.countDown && model.remaining > 0 ? "  (" + model.remaining + ")" : "")
        }
    }
}
