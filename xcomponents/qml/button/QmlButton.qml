import QtQuick 2.15
import QQuickHalvex 1.0

// A button made in QML: the face picture stretched over the button, loaded at
// the button's size. The caption is the button's own carousel-capable text.
XButton {
    id: control
    property alias source: face.source

    background: XImage {
        id: face
        width: control.width
        height: control.height
        sourceSize.width: control.width
        sourceSize.height: control.height
    }
}
