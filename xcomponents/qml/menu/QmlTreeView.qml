import QtQuick 2.15
import QQuickHalvex 1.0

// Tree content of a menu: the control takes the presses, the tree view draws
// one row per visible node, indented by its depth, with an expander on nodes
// that have children.
XTreeViewControl {
    id: root
    treeview: tree

    XTreeview {
        id: tree
        objectName: "treeContent"
        anchors.fill: parent
        treeView: rows

        Rectangle {
            anchors.fill: parent
            color: tree.background
            border.color: tree.frameColor
            border.width: tree.borderWidth
        }
        Image {
            anchors.fill: parent
            anchors.margins: tree.borderWidth
            source: tree.bgImage
            visible: source != ""
        }
        NQuickTreeView {
            id: rows
            objectName: "treeRows"
            anchors.fill: parent
            anchors.margins: tree.borderWidth
            clip: true
            interactive: false
            delegate: Rectangle {
                implicitWidth: rows.width
                implicitHeight: rows.rowHeight
                color: model.entryIndex === tree.currentIndex ? tree.highlightColor : "transparent"
                Text {
                    x: model.depth * tree.indent
                    width: tree.indent
                    height: parent.height
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                    visible: model.hasChildren
                    text: model.expanded ? "\u25BE" : "\u25B8"
                    font: tree.defaultFont
                    color: tree.defaultFontColor
                }
                Image {
                    id: icon
                    x: (model.depth + 1) * tree.indent
                    anchors.verticalCenter: parent.verticalCenter
                    height: parent.height - 4
                    width: status === Image.Ready ? height : 0
                    source: model.decoration ? model.decoration : ""
                    sourceSize.height: height
                }
                Text {
                    x: icon.x + icon.width + 2
                    width: parent.width - x - 2
                    height: parent.height
                    verticalAlignment: Text.AlignVCenter
                    elide: Text.ElideRight
                    text: model.display ? model.display : ""
                    font: tree.defaultFont
                    color: tree.defaultFontColor
                }
            }
        }
    }
}
