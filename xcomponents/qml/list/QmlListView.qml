import QtQuick 2.15
import QQuickHalvex 1.0

// Flat list content of a menu: the control hit-tests the rows and scrolls
// (contentY); this file only draws the entries.
XListViewControl {
    id: root

    Rectangle {
        objectName: "listBackground"
        anchors.fill: parent
        color: root.backColor
        border.color: root.frameColor
        border.width: root.borderWidth
    }
    Image {
        anchors.fill: parent
        anchors.margins: root.borderWidth
        source: root.bgImage
        visible: source != ""
        fillMode: Image.Stretch
    }
    XListView {
        id: list
        objectName: "listEntries"
        anchors.fill: parent
        anchors.margins: root.borderWidth
        // rows are made only while the list can be seen (a closed pop-up makes none)
        listModel: root.visible ? root.listModel : null
        offsetY: root.contentY
        delegate: Rectangle {
            objectName: "listEntry" + index
            width: list.width
            height: root.rowHeight
            color: model.current ? root.highlightColor : "transparent"
            Text {
                anchors.fill: parent
                anchors.leftMargin: 4
                anchors.rightMargin: 4
                text: model.display
                font: root.entryFont
                color: root.fontColor
                elide: Text.ElideRight
                verticalAlignment: Text.AlignVCenter
            }
        }
    }
}
