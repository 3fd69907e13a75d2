import QtQuick 2.15

// One cell of a marquee alarm bar: the column's title (while titles are shown)
// over the alarm's text with its optional 20-pixel image, colSpace on both
// sides. The bar sets every property.
Item {
    id: cell
    property int headerHeight: 0
    property color headerColor: "#537bad"
    property int colSpace: 0
    property string titleText
    property color titleColor: "white"
    property font titleFont
    property string contentText
    property font contentFont
    property color contentColor: "black"
    property color backColor: "white"
    property string imageUrl
    property int hAlign: Text.AlignLeft
    property int vAlign: Text.AlignVCenter
    property color gridColor: "#c8ccd2"

    Rectangle {
        visible: cell.headerHeight > 0
        width: parent.width
        height: cell.headerHeight
        color: cell.headerColor
        Text {
            x: cell.colSpace
            width: parent.width - 2 * cell.colSpace
            height: parent.height
            text: cell.titleText
            color: cell.titleColor
            font: cell.titleFont
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            elide: Text.ElideRight
        }
    }
    Rectangle {
        id: body
        y: cell.headerHeight
        width: parent.width
        height: parent.height - cell.headerHeight
        color: cell.backColor
        Image {
            id: picture
            visible: cell.imageUrl !== ""
            source: cell.imageUrl
            x: cell.colSpace
            y: (body.height - 20) / 2
            width: visible ? 20 : 0
            height: 20
            fillMode: Image.PreserveAspectFit
            asynchronous: true
        }
        Text {
            x: picture.visible ? picture.x + 24 : cell.colSpace
            width: parent.width - x - cell.colSpace
            height: parent.height
            text: cell.contentText
            color: cell.contentColor
            font: cell.contentFont
            horizontalAlignment: cell.hAlign || Text.AlignLeft
            verticalAlignment: cell.vAlign || Text.AlignVCenter
            elide: Text.ElideRight
        }
    }
    Rectangle {
        x: cell.width - 1
        width: 1
        height: cell.height
        color: cell.gridColor
    }
}
