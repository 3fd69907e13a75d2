import QtQuick 2.15

// The chart's two buttons in a row, 8 pixels from the top and the right edge
// of the plot area ("area"), draggable within it. A click is decided by the
// pointer's x against each button; the vertical test compares the row's own
// y with the button's bottom edge.
Item {
    id: group
    property rect area: Qt.rect(0, 0, 0, 0)
    property bool settingShown: true
    property bool restoreShown: false
    signal settingClicked()
    signal restoreClicked()

    // sizes and places known without waiting for the row's layout
    readonly property int buttonSize: 32
    readonly property int restoreX: 0
    readonly property int settingX: restoreShown ? buttonSize + row.spacing : 0
    width: (restoreShown ? buttonSize + row.spacing : 0) + (settingShown ? buttonSize : 0)
    height: buttonSize
    visible: settingShown || restoreShown
    // a drag sets x and y, which ends these bindings: the row stays where it was put
    x: area.x + area.width - width - 8
    y: area.y + 8
    z: 3

    Row {
        id: row
        spacing: 6
        Image {
            id: restoreBtn
            objectName: "restoreBtn"
            signal qmlclicked()
            source: "qrc:/curverestore.png"
            width: group.buttonSize
            height: group.buttonSize
            visible: group.restoreShown
            enabled: group.restoreShown
        }
        Image {
            id: settingBtn
            objectName: "settingBtn"
            signal qmlclicked()
            source: "qrc:/curvesetting.png"
            width: group.buttonSize
            height: group.buttonSize
            visible: group.settingShown
        }
    }

    MouseArea {
        anchors.fill: parent
        drag.target: group
        drag.minimumX: group.area.x
        drag.maximumX: group.area.x + group.area.width - group.width
        drag.minimumY: group.area.y
        drag.maximumY: group.area.y + group.area.height - group.height
        drag.threshold: 8
        onClicked: {
            if (drag.active)
                return
            if (group.restoreShown && mouse.x >= group.restoreX && mouse.x < group.restoreX + group.buttonSize
                    && group.y < group.buttonSize) {
                restoreBtn.qmlclicked()
                group.restoreClicked()
            } else if (group.settingShown && mouse.x >= group.settingX && mouse.x < group.settingX + group.buttonSize
                       && group.y < group.buttonSize) {
                settingBtn.qmlclicked()
                group.settingClicked()
            }
        }
    }
}
