import QtQuick 2.15

// The built-in on-screen keyboard: a drag bar over the key rows of one layout.
// Its C++ side (XDefaultVkb) sets `emitter`, `layoutType` and `dragBarVisible`
// and places the keyboard; each key goes to the entry line with focus through
// emitter.sendKey(qtKey, text), where a qtKey of 0 means "the key of this text".
//
// Layout types: 0 decimal, 1 hexadecimal, 2 date and time, 3 date, 4 time,
// anything else free text (letters with Shift, and a page of symbols).
// Every key's objectName is "key_" + its name: the character it types on the
// unshifted page ("key_5", "key_q", "key_A" in hexadecimal), or the name of the
// special key ("key_backspace", "key_clear", "key_left", "key_right",
// "key_enter", "key_space", "key_shift", "key_page").
Rectangle {
    id: root
    objectName: "qmlVirtualKeyboard"

    property QtObject emitter: null
    property int layoutType: 0
    property bool dragBarVisible: true

    // Shift: 0 off, 1 for the next letter only, 2 locked (tapped twice).
    property int shiftState: 0
    property bool symbolPage: false

    readonly property bool textLayout: layoutType < 0 || layoutType > 4
    readonly property real unit: textLayout ? 66 : 84 // width of a one-unit key, px
    readonly property real keyHeight: 62
    readonly property real gap: 6

    readonly property var rows: layoutRows(layoutType, symbolPage)
    // Every character a key can show, on all layouts and pages (capitals and Caps Lock included).
    readonly property string glyphs: allGlyphs()

    width: keyArea.width + 2 * gap
    height: keyArea.y + keyArea.height + gap
    radius: 8
    color: "#23272e"
    border.color: "#15181c"

    onLayoutTypeChanged: {
        shiftState = 0
        symbolPage = false
    }

    // --- key descriptions -------------------------------------------------
    // A key: name, text (typed), label (shown; the text when absent), key (Qt key,
    // 0 for characters), w (width in units), action ("shift", "page").
    function ch(t, w) { return { name: t, text: t, key: 0, w: w || 1 } }
    function chars(s) { return s.split("").map(function (t) { return ch(t) }) }
    function special(name, key, label, w) {
        return { name: name, text: "", label: label, key: key, w: w || 1, special: true }
    }
    function backspace(w) { return special("backspace", Qt.Key_Backspace, "\u232b", w) }
    function clearKey(w) { return special("clear", Qt.Key_Clear, "CLR", w) }
    function left() { return special("left", Qt.Key_Left, "\u25c0") }
    function right() { return special("right", Qt.Key_Right, "\u25b6") }
    function enter(w) { return special("enter", Qt.Key_Return, "Enter", w) }
    function space(w) { return { name: "space", text: " ", label: "\u2423", key: Qt.Key_Space, w: w || 1 } }
    function shift(w) { return { name: "shift", label: "\u21e7", action: "shift", w: w, special: true } }
    function page(label, w) { return { name: "page", label: label, action: "page", w: w, special: true } }

    function layoutRows(type, symbols) {
        switch (type) {
        case 0: // decimal
            return [chars("789").concat([ch("-"), backspace()]),
                    chars("456").concat([ch("."), clearKey()]),
                    chars("123").concat([left(), right()]),
                    [ch("0", 3), enter(2)]]
        case 1: // hexadecimal
            return [chars("789AB").concat([backspace()]),
                    chars("456CD").concat([clearKey()]),
                    chars("123EF").concat([ch("-")]),
                    [ch("0", 3), enter(3)]]
        case 2: // date and time
            return [chars("789-").concat([backspace()]),
                    chars("456:").concat([clearKey()]),
                    chars("123").concat([left(), right()]),
                    [ch("0", 2), space(), enter(2)]]
        case 3: // date
            return [chars("789-").concat([backspace()]),
                    chars("456").concat([left(), right()]),
                    chars("123").concat([clearKey(2)]),
                    [ch("0", 3), enter(2)]]
        case 4: // time
            return [chars("789:").concat([backspace()]),
                    chars("456").concat([left(), right()]),
                    chars("123").concat([clearKey(2)]),
                    [ch("0", 3), enter(2)]]
        }
        if (symbols)
            return [chars("1234567890"),
                    chars("!@#$%^&*()"),
                    chars("-_=+/\\:;'\""),
                    chars("[]{}<>?~").concat([backspace(2)]),
                    [page("ABC", 1.5), ch(","), space(5), ch("."), enter(1.5)]]
        return [chars("1234567890"),
                chars("qwertyuiop"),
                chars("asdfghjkl"),
                [shift(1.5)].concat(chars("zxcvbnm"), [backspace(1.5)]),
                [page("?123", 1.5), ch(","), space(5), ch("."), enter(1.5)]]
    }

    function allGlyphs() {
        var seen = {}
        var out = "\u21ea"
        function take(s) {
            for (var i = 0; i < s.length; ++i) {
                if (!seen[s[i]]) {
                    seen[s[i]] = true
                    out += s[i]
                }
            }
        }
        for (var type = 0; type <= 5; ++type) {
            for (var p = 0; p < 2; ++p) {
                layoutRows(type, p === 1).forEach(function (row) {
                    row.forEach(function (k) {
                        var t = k.label !== undefined ? k.label : k.text
                        take(t)
                        take(t.toUpperCase())
                    })
                })
            }
        }
        return out
    }

    function isLetter(t) { return t.length === 1 && t.toUpperCase() !== t.toLowerCase() }
    function typedText(keyDef) {
        return shiftState > 0 && isLetter(keyDef.text) ? keyDef.text.toUpperCase() : keyDef.text
    }

    function activate(keyDef) {
        if (keyDef.action === "shift") {
            shiftState = (shiftState + 1) % 3
            return
        }
        if (keyDef.action === "page") {
            symbolPage = !symbolPage
            shiftState = 0
            return
        }
        if (emitter)
            emitter.sendKey(keyDef.key, typedText(keyDef))
        if (shiftState === 1 && isLetter(keyDef.text))
            shiftState = 0
    }

    // --- drawing ------------------------------------------------------------
    VkbDragBar {
        id: dragBar
        objectName: "dragBar"
        visible: root.dragBarVisible
        target: root
        x: root.gap
        y: root.gap
        width: root.width - 2 * root.gap
        height: visible ? implicitHeight : 0
    }

    Column {
        id: keyArea
        x: root.gap
        y: root.dragBarVisible ? dragBar.y + dragBar.height + root.gap : root.gap
        spacing: root.gap

        Repeater {
            model: root.rows

            Row {
                anchors.horizontalCenter: parent.horizontalCenter
                spacing: root.gap

                Repeater {
                    model: modelData

                    VkbKey {
                        objectName: "key_" + modelData.name
                        width: modelData.w * root.unit + (modelData.w - 1) * root.gap
                        height: root.keyHeight
                        special: modelData.special === true
                        latched: (modelData.action === "shift" && root.shiftState > 0)
                                 || (modelData.action === "page" && root.symbolPage)
                        label: modelData.label !== undefined
                               ? (modelData.action === "shift" && root.shiftState === 2 ? "\u21ea" : modelData.label)
                               : root.typedText(modelData)
                        onActivated: root.activate(modelData)
                    }
                }
            }
        }
    }
}
