import QtQuick 2.15
import QtQuick.Controls 2.15

// The keyboard's entry line, shown just above the keys while the keyboard is
// open. The keys type into "_innerInput", which has the focus; Enter confirms
// (enterText), Clear empties the line, and with backSpaceToBackWard set (masked
// dates and times) Backspace moves the cursor left instead of deleting, so the
// operator overtypes. Closing empties the line and its mask.
//
// `light` is laid over the line and the keys (the panel's dimming colour); it
// takes no input, so the keyboard stays usable on a dimmed panel.
Item {
    id: popup
    objectName: "_popupInput"
    visible: false
    width: 600
    height: 72

    property alias input: field
    property color light: "transparent"
    property Item keyboard: null
    readonly property bool opened: visible

    signal closed()

    function open() {
        visible = true
    }

    function close() {
        if (!visible)
            return
        visible = false
        field.inputMask = ""
        field.text = ""
        closed()
    }

    TextField {
        id: field
        objectName: "_innerInput"
        anchors.fill: parent

        property bool backSpaceToBackWard: false
        signal enterText(string text)

        font.pixelSize: 40
        color: "black"
        selectionColor: "#6EA2E2"
        selectedTextColor: "white"
        selectByMouse: true
        leftPadding: 12
        rightPadding: 12
        verticalAlignment: TextInput.AlignVCenter
        placeholderTextColor: "#8a93a0"
        background: Rectangle {
            color: "white"
            border.width: 2
            border.color: "#6EA2E2"
            radius: 8
        }

        Keys.onPressed: {
            switch (event.key) {
            case Qt.Key_Backspace:
                if (backSpaceToBackWard) {
                    if (cursorPosition > 0)
                        cursorPosition = cursorPosition - 1
                    event.accepted = true
                }
                break
            case Qt.Key_Clear:
                field.clear()
                event.accepted = true
                break
            case Qt.Key_Return:
            case Qt.Key_Enter:
                enterText(text)
                event.accepted = true
                break
            }
        }
    }

    Rectangle {
        anchors.fill: parent
        radius: 8
        color: popup.light
        visible: popup.light.a > 0
    }

    // the same colour over the keys, as a child of the keyboard item
    Rectangle {
        parent: popup.keyboard
        anchors.fill: parent
        z: 1000
        radius: 8
        color: popup.light
        visible: popup.visible && popup.light.a > 0
    }
}
