import QtQuick 2.15
import QtQuick.Controls 2.15
import QQuickHalvex 1.0

// The date/time popup of the clock field: a date line with the calendar, a time line with the
// hour, minute and second columns, and "Cancel" and "Confirm". Both buttons write the chosen
// moment as "yyyy-MM-dd hh:mm:ss" in the configured locale: "Confirm" sends it with onOkClicked,
// "Cancel" with reject; either closes the popup. The window manager sets dateTime before the
// popup is completed; without it the popup starts at the current date and time.
XPopup {
    id: picker
    property date dateTime
    property alias selectDate: content.selectDate
    property alias currentDate: content.currentDate
    readonly property date currentTime: content.currentTime

    property int baseFontSize: 14
    readonly property int buttonFontSize: Math.round(baseFontSize * 6 / 7)
    readonly property int dateTimeFontSize: baseFontSize
    readonly property int tumblerFontSize: Math.round(baseFontSize * 8 / 7)
    readonly property int dateTimeLineHeight: Math.round(baseFontSize * 18 / 7)
    readonly property int buttonRowHeight: baseFontSize * 2
    readonly property int cellHeight: Math.round(baseFontSize * 15 / 7)
    readonly property int cellWidth: Math.round(baseFontSize * 31 / 7)
    readonly property int buttonHeight: baseFontSize * 2
    readonly property int margin: 12

    signal onOkClicked(string text)
    signal reject(string text)

    function dateTimeText() { return content.dateTimeText() }

    width: content.width + 2 * margin
    height: content.height + buttonRowHeight + 3 * margin
    modal: true

    Component.onCompleted: content.setDateTime(isNaN(dateTime.getTime()) ? new Date() : dateTime)

    Rectangle {
        anchors.fill: parent
        radius: 6
        color: "#f5f7fa"
        border.color: "#6ea2e2"
        border.width: 2
    }

    XDateTimeComponent {
        id: content
        objectName: "picker"
        x: picker.margin
        y: picker.margin
        baseFontSize: picker.baseFontSize
        lineFontSize: picker.dateTimeFontSize
        tumblerFontSize: picker.tumblerFontSize
        lineHeight: picker.dateTimeLineHeight
        cellHeight: picker.cellHeight
        cellWidth: picker.cellWidth
        dateExpanded: true
    }

    Row {
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.margins: picker.margin
        height: picker.buttonRowHeight
        spacing: picker.margin
        Button {
            objectName: "cancelButton"
            text: qsTr("Cancel")
            height: picker.buttonHeight
            width: 96
            font.pixelSize: picker.buttonFontSize
            onClicked: {
                picker.reject(picker.dateTimeText())
                picker.close()
            }
        }
        Button {
            id: okButton
            objectName: "okButton"
            height: picker.buttonHeight
            width: 96
            font.pixelSize: picker.buttonFontSize
            contentItem: Text {
                text: qsTr("Confirm")
                font: okButton.font
                color: "white"
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
            }
            background: Rectangle { color: okButton.down ? Qt.darker("#537bad", 1.2) : "#537bad"; radius: 3 }
            onClicked: {
                picker.onOkClicked(picker.dateTimeText())
                picker.close()
            }
        }
    }
}
