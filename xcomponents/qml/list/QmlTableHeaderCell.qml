import QtQuick 2.15

// One title of a table's header row, with the grid between titles; the title of
// the column whose sort or filter is on is underlined.
Rectangle {
    id: cell
    // the title's roles (absent when the file is loaded on its own)
    readonly property var roles: typeof model !== "undefined" ? model : ({})
    color: roles.backColor !== undefined ? roles.backColor : "#537bad"
    clip: true

    readonly property var view: TableView.view
    readonly property int grid: view ? view.gridWidth : 1

    Text {
        x: 4
        width: parent.width - 8 - cell.grid
        height: parent.height
        text: cell.roles.display !== undefined ? cell.roles.display : ""
        color: cell.roles.textColor !== undefined ? cell.roles.textColor : "white"
        font: cell.roles.cellFont !== undefined ? cell.roles.cellFont : Qt.application.font
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
    }
    Rectangle {
        visible: cell.roles.checked === true
        anchors.bottom: parent.bottom
        x: 4
        width: parent.width - 8
        height: 3
        color: "#f0c040"
    }
    Rectangle {
        anchors.right: parent.right
        width: cell.grid
        height: parent.height
        color: cell.view ? cell.view.gridColor : "gray"
    }
}
