import QtQuick 2.15
import QQuickHalvex 1.0

// The sort and filter menu of a header title: "Ascend", "Descend" (a tick on the
// chosen order; touching it again unchecks it), "Clear" and the filter submenu.
// The submenu replaces the menu's entries with the operators of the column's
// kind of values and a way back; each operator opens the filter dialog.
XTableFilterMenu {
    id: menu
    property bool subMenu: false
    readonly property int rowHeight: 44
    readonly property int entryCount: subMenu ? operators.length + 1 : 4

    width: 230
    height: entryCount * rowHeight + (subMenu ? 8 : 9)
    onAboutToShow: subMenu = false

    component Entry: Rectangle {
        id: entry
        property string label
        property string mark
        property bool enabledEntry: true
        signal chosen()
        width: menu.width - 8
        height: menu.rowHeight
        color: tap.pressed && enabledEntry ? "#d6e4f5" : "transparent"
        Text {
            x: 10
            width: 22
            height: parent.height
            verticalAlignment: Text.AlignVCenter
            text: entry.mark
            color: "#2f6db5"
            font.pixelSize: 18
        }
        Text {
            x: 36
            width: parent.width - 44
            height: parent.height
            verticalAlignment: Text.AlignVCenter
            elide: Text.ElideRight
            text: entry.label
            color: entry.enabledEntry ? "#1c2733" : "#9aa3ad"
            font.pixelSize: 17
        }
        TapHandler {
            id: tap
            enabled: entry.enabledEntry
            onTapped: entry.chosen()
        }
    }

    Rectangle {
        anchors.fill: parent
        radius: 4
        color: "#f5f7fa"
        border.color: "#8a93a0"
    }

    // entries are placed by their row (no positioner: a hidden page keeps its layout)
    Item {
        objectName: "mainEntries"
        x: 4
        y: 4
        visible: !menu.subMenu
        Entry {
            objectName: "ascendAction"
            label: qsTr("Ascend")
            mark: menu.order === XTableFilterMenu.ORDER_ASCEND ? "\u2713" : "\u2191"
            onChosen: menu.chooseOrder(XTableFilterMenu.ORDER_ASCEND, menu.order !== XTableFilterMenu.ORDER_ASCEND)
        }
        Entry {
            objectName: "descendAction"
            y: menu.rowHeight
            label: qsTr("Descend")
            mark: menu.order === XTableFilterMenu.ORDER_DESCEND ? "\u2713" : "\u2193"
            onChosen: menu.chooseOrder(XTableFilterMenu.ORDER_DESCEND, menu.order !== XTableFilterMenu.ORDER_DESCEND)
        }
        Rectangle { y: 2 * menu.rowHeight; width: menu.width - 8; height: 1; color: "#c8cfd8" }
        Entry {
            objectName: "clearAction"
            y: 2 * menu.rowHeight + 1
            label: qsTr("Clear")
            mark: "\u2715"
            enabledEntry: !menu.filterDisabled
            onChosen: menu.clearFilter()
        }
        Entry {
            objectName: "filterMenu"
            y: 3 * menu.rowHeight + 1
            label: menu.filterTitle.length > 0 ? qsTr(menu.filterTitle) + "  \u25b8" : qsTr("Filter")
            mark: "\u2261"
            enabledEntry: !menu.filterDisabled
            onChosen: menu.subMenu = true
        }
    }

    Item {
        objectName: "subEntries"
        x: 4
        y: 4
        visible: menu.subMenu
        Entry {
            objectName: "subMenuTitle"
            label: qsTr(menu.filterTitle)
            mark: "\u25c2"
            onChosen: menu.subMenu = false
        }
        Repeater {
            model: menu.operators
            Entry {
                objectName: "operator" + modelData
                y: (index + 1) * menu.rowHeight
                label: qsTranslate("XTableFilterDlg", menu.operatorName(modelData)) + "\u2026"
                onChosen: menu.openFilter(modelData)
            }
        }
    }
}
