import QtQuick 2.15
import QQuickHalvex 1.0

// Drop-down box of a menu: frame, display text and the arrow strip. The pop-up
// and the events belong to the item class.
XQuickComboBox {
    id: box

    Rectangle {
        objectName: "comboFrame"
        anchors.fill: parent
        radius: 2
        color: box.boxColor
        border.width: 1
        border.color: box.view ? box.view.frameColor : "black" // the list's or the tree's frame
    }
    Image {
        id: picture
        objectName: "comboImage"
        visible: box.displayImage != ""
        source: box.displayImage
        x: box.displayMargin
        y: 3
        height: Math.max(0, box.height - 6)
        width: visible ? height : 0
        fillMode: Image.PreserveAspectFit
        asynchronous: true
    }
    Text {
        objectName: "comboText"
        anchors.fill: parent
        anchors.leftMargin: box.displayMargin + (picture.visible ? picture.width + 4 : 0)
        anchors.rightMargin: arrow.width + box.displayMargin
        text: box.displayText
        font: box.displayFont
        color: box.fontColor
        elide: Text.ElideRight
        horizontalAlignment: box.displayHAlign
        verticalAlignment: box.displayVAlign
    }
    Rectangle {
        id: arrow
        objectName: "comboArrow"
        width: 18
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.bottom: parent.bottom
        color: "#cbcbcb"
        border.width: 2
        border.color: "#888888"
        Image {
            anchors.centerIn: parent
            width: parent.width / 2
            height: width
            sourceSize: Qt.size(width, height)
            source: "qrc:/menu/down.svg"
        }
    }
}
