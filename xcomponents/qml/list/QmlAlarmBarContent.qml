import QtQuick 2.15

// One cell of a table alarm bar: background, an optional image before the
// text, the text on one line in the cell's font, colour and alignment, and
// the grid on its right and bottom.
Rectangle {
    id: cell
    readonly property var roles: typeof model !== "undefined" ? model : ({})
    readonly property var view: TableView.view
    readonly property int grid: view ? view.gridWidth : 1
    color: roles.backColor !== undefined ? roles.backColor : "white"
    clip: true

    Image {
        id: picture
        visible: source != ""
        source: cell.roles.image !== undefined ? cell.roles.image : ""
        x: 4
        anchors.verticalCenter: parent.verticalCenter
        height: Math.min(20, parent.height - 4)
        width: visible ? 20 : 0
        fillMode: Image.PreserveAspectFit
        asynchronous: true
    }
    Text {
        x: picture.visible ? picture.x + picture.width + 4 : 4
        width: parent.width - x - 4 - cell.grid
        height: parent.height - cell.grid
        text: cell.roles.textVisible && cell.roles.display !== undefined ? cell.roles.display : ""
        color: cell.roles.textColor !== undefined ? cell.roles.textColor : "black"
        font: cell.roles.cellFont !== undefined ? cell.roles.cellFont : Qt.application.font
        horizontalAlignment: (cell.roles.cellAlign & 0x0F) || Text.AlignLeft
        verticalAlignment: (cell.roles.cellAlign & 0xE0) || Text.AlignVCenter
        elide: Text.ElideRight
    }
    Rectangle {
        anchors.right: parent.right
        width: cell.grid
        height: parent.height
        color: cell.view ? cell.view.gridColor : "gray"
    }
    Rectangle {
        anchors.bottom: parent.bottom
        width: parent.width
        height: cell.grid
        color: cell.view ? cell.view.gridColor : "gray"
    }
}
