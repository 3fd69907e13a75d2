import QtQuick 2.15
import QtQuick.Controls 2.15
import Qt.labs.calendar 1.0

// The month calendar of the date/time pickers: the shown month with buttons for the previous and
// next year and month, the day names and the month's days. A press on a day chooses it; a day of
// the neighbouring month also turns the page.
Column {
    id: cal
    property date selectDate: new Date()
    property date currentDate: selectDate
    property var dateLocale: Qt.locale()
    property int cellWidth: 62
    property int cellHeight: 30
    property int fontSize: 14
    property color chosenColor: "#537bad"

    signal chosen()

    function choose(year, month, day) {
        selectDate = new Date(year, month, day)
        if (month !== currentDate.getMonth() || year !== currentDate.getFullYear())
            currentDate = new Date(year, month, 1)
        chosen()
    }
    function turn(months) {
        currentDate = new Date(currentDate.getFullYear(), currentDate.getMonth() + months, 1)
    }

    width: cellWidth * 7

    Item {
        width: cal.width
        height: cal.cellHeight
        Row {
            anchors.left: parent.left
            Repeater {
                model: [ { "name": "prevYear", "label": "\u00ab", "step": -12 },
                         { "name": "prevMonth", "label": "\u2039", "step": -1 } ]
                delegate: pageButton
            }
        }
        Text {
            objectName: "monthTitle"
            anchors.centerIn: parent
            font.pixelSize: cal.fontSize
            font.bold: true
            color: "#1c2733"
            text: cal.currentDate.getFullYear() + " "
                  + cal.dateLocale.standaloneMonthName(cal.currentDate.getMonth(), Locale.LongFormat)
        }
        Row {
            anchors.right: parent.right
            Repeater {
                model: [ { "name": "nextMonth", "label": "\u203a", "step": 1 },
                         { "name": "nextYear", "label": "\u00bb", "step": 12 } ]
                delegate: pageButton
            }
        }
    }

    Component {
        id: pageButton
        Rectangle {
            objectName: modelData.name
            width: cal.cellHeight
            height: cal.cellHeight
            radius: 4
            color: pageArea.pressed ? "#d0dcea" : "transparent"
            Text {
                anchors.centerIn: parent
                text: modelData.label
                font.pixelSize: cal.fontSize + 4
                color: "#2b3a4a"
            }
            MouseArea { id: pageArea; anchors.fill: parent; onClicked: cal.turn(modelData.step) }
        }
    }

    DayOfWeekRow {
        width: cal.width
        height: cal.cellHeight
        locale: cal.dateLocale
        spacing: 0
        padding: 0
        delegate: Text {
            text: model.shortName
            font.pixelSize: cal.fontSize - 2
            color: "#6b7785"
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
        }
    }

    MonthGrid {
        id: grid
        objectName: "monthGrid"
        width: cal.width
        height: cal.cellHeight * 6
        month: cal.currentDate.getMonth()
        year: cal.currentDate.getFullYear()
        locale: cal.dateLocale
        spacing: 0
        padding: 0
        // the day, month and year roles, not the date role: they need no time zone
        delegate: Rectangle {
            readonly property bool isChosen: model.day === cal.selectDate.getDate()
                && model.month === cal.selectDate.getMonth() && model.year === cal.selectDate.getFullYear()
            objectName: "day_" + model.year + "_" + (model.month + 1) + "_" + model.day
            radius: 4
            color: isChosen ? cal.chosenColor : "transparent"
            Text {
                anchors.centerIn: parent
                text: model.day
                font.pixelSize: cal.fontSize
                color: parent.isChosen ? "white" : (model.month === grid.month ? "#1c2733" : "#a8b0ba")
            }
            MouseArea { anchors.fill: parent; onClicked: cal.choose(model.year, model.month, model.day) }
        }
    }
}
