import QtQuick 2.15

// One title of a table's header row, with the grid between titles; the title of
// the column whose sort or filter is on is underlined.
Rectangle {
    id: cell
    color: backColor
    clip: true

    readonly property var view: TableView.view
    readonly property int grid: view ? view.gridWidth : 1

    Text {
        x: 4
        width: parent.width - 8 - cell.grid
        height: parent.height
        text: display
        color: textColor
        font: cellFont
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
    }
    Rectangle {
        visible: checked
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
