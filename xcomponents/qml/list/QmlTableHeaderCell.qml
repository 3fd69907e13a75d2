import QtQuick 2.15

// One title of a table's header row, with the grid between titles. The sorted
// column is underlined with its order's arrow; a filtered column shows a
// filter mark; while the sort and filter menus are on, a small triangle tells
// the operator that the title can be touched.
Rectangle {
    id: cell
    objectName: "headerTitle" + (roles.column !== undefined ? roles.column : "")
    // the title's roles (absent when the file is loaded on its own)
    readonly property var roles: typeof model !== "undefined" ? model : ({})
    color: roles.backColor !== undefined ? roles.backColor : "#537bad"
    clip: true

    readonly property var view: TableView.view
    readonly property int grid: view ? view.gridWidth : 1
    readonly property bool menus: view && view.filterEnabled !== undefined ? view.filterEnabled : false
    readonly property bool sorted: roles.checked === true
    readonly property bool filtered: roles.filtered === true
    readonly property color textColor: roles.textColor !== undefined ? roles.textColor : "white"
    readonly property int marks: (sorted ? 1 : 0) + (filtered ? 1 : 0) + (menus ? 1 : 0)

    Text {
        x: 4 + cell.marks * 7
        width: parent.width - 8 - cell.grid - cell.marks * 14
        height: parent.height
        text: cell.roles.display !== undefined ? cell.roles.display : ""
        color: cell.textColor
        font: cell.roles.cellFont !== undefined ? cell.roles.cellFont : Qt.application.font
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
    }
    Row {
        anchors.right: parent.right
        anchors.rightMargin: 3 + cell.grid
        anchors.verticalCenter: parent.verticalCenter
        spacing: 1
        Text {
            objectName: "sortMark"
            visible: cell.sorted
            text: cell.roles.order === 2 ? "\u25bc" : "\u25b2"
            color: "#f0c040"
            font.pixelSize: 12
        }
        Text {
            objectName: "filterMark"
            visible: cell.filtered
            text: "\u25bd"
            color: "#f0c040"
            font.pixelSize: 13
        }
        Text {
            visible: cell.menus && !cell.sorted && !cell.filtered
            text: "\u25be"
            color: cell.textColor
            opacity: 0.6
            font.pixelSize: 12
        }
    }
    Rectangle {
        visible: cell.sorted
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
