import QtQuick 2.15

// One cell of a table's body: its background, an optional image before the
// text, the text in the cell's font, colour and alignment (cut to one line
// when the view asks for single lines), and the grid on its right and bottom.
Rectangle {
    id: cell
    // the cell's roles (absent when the file is loaded on its own)
    readonly property var roles: typeof model !== "undefined" ? model : ({})
    color: roles.backColor !== undefined ? roles.backColor : "white"
    clip: true

    readonly property var view: TableView.view
    readonly property int grid: view ? view.gridWidth : 1

    Image {
        id: picture
        visible: source != ""
        source: cell.roles.image !== undefined ? cell.roles.image : ""
        x: 4
        anchors.verticalCenter: parent.verticalCenter
        height: Math.max(0, parent.height - 8)
        width: visible ? height : 0
        fillMode: Image.PreserveAspectFit
        asynchronous: true
    }

    Text {
        x: picture.visible ? picture.x + picture.width + 4 : 4
        y: 2
        width: parent.width - x - 4 - cell.grid
        height: parent.height - 4 - cell.grid
        text: cell.roles.textVisible && cell.roles.display !== undefined ? cell.roles.display : ""
        color: cell.roles.textColor !== undefined ? cell.roles.textColor : "black"
        font: cell.roles.cellFont !== undefined ? cell.roles.cellFont : Qt.application.font
        horizontalAlignment: (cell.roles.cellAlign & 0x0F) || Text.AlignHCenter
        verticalAlignment: (cell.roles.cellAlign & 0xE0) || Text.AlignVCenter
        wrapMode: cell.view && cell.view.singleLine ? Text.NoWrap : Text.Wrap
        maximumLineCount: cell.view && cell.view.singleLine ? 1 : 100
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
