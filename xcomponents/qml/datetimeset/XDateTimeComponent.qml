import QtQuick 2.15
import QtQuick.Controls 2.15

// One date/time picker: an optional check box (shown when the picker has a title) that switches
// the picker on and shows the rest, a date line that opens the calendar and a time line that opens the hour, minute
// and second columns; one of the two is open at a time. Texts are written in the configured locale.
Column {
    id: comp
    property string title: ""
    readonly property bool optionVisible: title !== ""
    property alias option: optionBox
    readonly property bool checked: !optionVisible || optionBox.checked
    property alias selectDate: calendar.selectDate
    property alias currentDate: calendar.currentDate
    readonly property date currentTime: new Date(2000, 0, 1, tumblers.hour, tumblers.minute, tumblers.second)
    property bool dateExpanded: false
    property bool timeExpanded: false
    readonly property bool expanded: checked && (dateExpanded || timeExpanded)
    property var dateLocale: (typeof $GlobalConfig !== "undefined" && $GlobalConfig)
                             ? Qt.locale($GlobalConfig.langToken) : Qt.locale()

    property int baseFontSize: 14
    property int lineFontSize: baseFontSize
    property int tumblerFontSize: Math.round(baseFontSize * 8 / 7)
    property int lineHeight: Math.round(baseFontSize * 18 / 7)
    property int cellHeight: Math.round(baseFontSize * 15 / 7)
    property int cellWidth: Math.round(baseFontSize * 31 / 7)

    /** Shows the moment \a d: its day chosen in its month, its time in the columns. */
    function setDateTime(d) {
        calendar.selectDate = new Date(d.getFullYear(), d.getMonth(), d.getDate())
        calendar.currentDate = new Date(d.getFullYear(), d.getMonth(), 1)
        tumblers.setTime(d.getHours(), d.getMinutes(), d.getSeconds())
    }
    function dateText() { return selectDate.toLocaleDateString(dateLocale, "yyyy-MM-dd") }
    function timeText() { return currentTime.toLocaleTimeString(dateLocale, "hh:mm:ss") }
    /** "yyyy-MM-dd hh:mm:ss" */
    function dateTimeText() { return dateText() + " " + timeText() }

    width: calendar.width
    spacing: 0

    CheckBox {
        id: optionBox
        objectName: "option"
        visible: comp.optionVisible
        height: comp.lineHeight
        text: comp.title
        font.pixelSize: comp.lineFontSize
        padding: 0
    }

    QmlDateTimeLine {
        objectName: "dateLine"
        width: comp.width
        height: comp.lineHeight
        visible: comp.checked
        fontSize: comp.lineFontSize
        label: comp.dateText()
        open: comp.dateExpanded
        onToggled: {
            comp.dateExpanded = !comp.dateExpanded
            if (comp.dateExpanded)
                comp.timeExpanded = false
        }
    }
    QmlCalendar {
        id: calendar
        objectName: "calendar"
        visible: comp.checked && comp.dateExpanded
        cellWidth: comp.cellWidth
        cellHeight: comp.cellHeight
        fontSize: comp.lineFontSize
        dateLocale: comp.dateLocale
    }
    QmlDateTimeLine {
        objectName: "timeLine"
        width: comp.width
        height: comp.lineHeight
        visible: comp.checked
        fontSize: comp.lineFontSize
        label: comp.timeText()
        open: comp.timeExpanded
        onToggled: {
            comp.timeExpanded = !comp.timeExpanded
            if (comp.timeExpanded)
                comp.dateExpanded = false
        }
    }
    Item {
        visible: comp.checked && comp.timeExpanded
        width: comp.width
        height: tumblers.height
        QmlTimeTumbler {
            id: tumblers
            objectName: "tumblers"
            anchors.horizontalCenter: parent.horizontalCenter
            cellWidth: comp.cellWidth
            cellHeight: comp.cellHeight
            fontSize: comp.tumblerFontSize
        }
    }
}
