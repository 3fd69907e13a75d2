import QtQuick 2.15

// One key of the on-screen keyboard. Mouse and touch both press it (TapHandler),
// and several fingers can hold several keys at once. A key never takes focus, so
// the entry line keeps it.
Rectangle {
    id: key

    property string label
    // Keys that act on the text or the keyboard rather than type a character.
    property bool special: false
    // Shown lit while a mode is on (Shift, the symbols page).
    property bool latched: false
    readonly property bool down: tap.pressed

    signal activated()

    radius: 6
    color: down ? "#6ea2e2" : latched ? "#4a6f9e" : special ? "#3a3f48" : "#4d545f"
    border.width: 1
    border.color: down ? "#9cc2f0" : "#1b1e23"
    scale: down ? 0.94 : 1

    Text {
        anchors.centerIn: parent
        text: key.label
        color: "#ffffff"
        font.pixelSize: key.label.length > 2 ? 18 : 26
    }

    TapHandler {
        id: tap
        // Like a button: a press counts when the finger is lifted on the key, however
        // long it was held; sliding off the key cancels it.
        gesturePolicy: TapHandler.ReleaseWithinBounds
        longPressThreshold: 3600
        onTapped: key.activated()
    }
}
