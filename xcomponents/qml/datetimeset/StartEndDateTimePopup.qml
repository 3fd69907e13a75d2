import QtQuick 2.15
import QtQuick.Controls 2.15
import QQuickHalvex 1.0

// The time-range popup: a "Setting" title row, the "Start DateTime" and "End DateTime" pickers,
// each switched on by its check box, and "Cancel" and "Confirm". confirm(start, end) gives each
// end as "yyyy-MM-dd hh:mm:ss", or an empty string when its check box is off. The popup's height
// follows its content, within the trend chart's height and the screen height given from outside.
XPopup {
    id: popup
    readonly property int topRowHeight: 38
    readonly property int dateSpacing: 12
    readonly property int buttonRowHeight: 52
    readonly property int minListHeight: 100
    readonly property int expandedListHeight: 342
    readonly property int minExpandedContent: 380
    readonly property int otherRowsHeight: 90
    readonly property int bothOnCollapsedHeight: 240
    readonly property int oneOnCollapsedHeight: 70

    /** Heights given from outside; 0 sets no bound. */
    property int chartHeight: 0
    property int screenHeight: 0

    readonly property bool anyExpanded: startPicker.expanded || endPicker.expanded
    readonly property int onCount: (startPicker.checked ? 1 : 0) + (endPicker.checked ? 1 : 0)
    // the list follows its content, at least the height of its state, at most what the bound leaves
    readonly property int stateListHeight: anyExpanded ? expandedListHeight
        : onCount === 2 ? bothOnCollapsedHeight : onCount === 1 ? oneOnCollapsedHeight : 0
    readonly property int wantedListHeight: Math.max(stateListHeight, list.contentHeight)
    readonly property int heightBound: {
        var b = 1 << 30
        if (chartHeight > 0)
            b = Math.min(b, chartHeight)
        if (screenHeight > 0)
            b = Math.min(b, screenHeight)
        return b
    }
    readonly property int listHeight: Math.max(anyExpanded ? expandedListHeight : minListHeight,
        Math.min(wantedListHeight, heightBound - otherRowsHeight))

    signal cancel()
    signal confirm(string start, string end)

    /** Presets both ends from "yyyy-MM-dd hh:mm:ss" texts: an end that parses is shown and switched
     *  on, any other text switches it off. */
    function initDateTime(start, end) {
        initEnd(startPicker, start)
        initEnd(endPicker, end)
    }
    function initEnd(picker, text) {
        var d = Date.fromLocaleString(Qt.locale("C"), String(text), "yyyy-MM-dd hh:mm:ss")
        var valid = d instanceof Date && !isNaN(d.getTime())
        picker.option.checked = valid
        if (valid)
            picker.setDateTime(d)
    }
    function endText(picker) {
        if (!picker.checked)
            return ""
        picker.currentDate = picker.selectDate
        return picker.dateTimeText()
    }

    width: startPicker.width + 2 * dateSpacing
    height: anyExpanded ? Math.max(minExpandedContent, listHeight + otherRowsHeight) : listHeight + otherRowsHeight
    modal: true

    Component.onCompleted: {
        var now = new Date()
        startPicker.setDateTime(now)
        endPicker.setDateTime(now)
    }

    Rectangle {
        anchors.fill: parent
        radius: 6
        color: "#f5f7fa"
        border.color: "#6ea2e2"
        border.width: 2
    }

    Text {
        objectName: "title"
        x: popup.dateSpacing
        width: parent.width - 2 * popup.dateSpacing
        height: popup.topRowHeight
        verticalAlignment: Text.AlignVCenter
        text: qsTr("Setting")
        font.pixelSize: 16
        font.bold: true
        color: "#2b3a4a"
    }

    Flickable {
        id: list
        objectName: "list"
        x: popup.dateSpacing
        y: popup.topRowHeight
        width: startPicker.width
        height: popup.height - popup.otherRowsHeight
        contentHeight: pickers.height
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        Column {
            id: pickers
            spacing: popup.dateSpacing
            XDateTimeComponent {
                id: startPicker
                objectName: "startPicker"
                title: qsTr("Start DateTime")
                onExpandedChanged: if (expanded) endPicker.dateExpanded = endPicker.timeExpanded = false
            }
            XDateTimeComponent {
                id: endPicker
                objectName: "endPicker"
                title: qsTr("End DateTime")
                onExpandedChanged: if (expanded) startPicker.dateExpanded = startPicker.timeExpanded = false
            }
        }
    }

    Row {
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.rightMargin: popup.dateSpacing
        height: popup.buttonRowHeight
        spacing: popup.dateSpacing
        Button {
            objectName: "cancelButton"
            anchors.verticalCenter: parent.verticalCenter
            text: qsTr("Cancel")
            width: 96
            height: 28
            onClicked: {
                popup.cancel()
                popup.close()
            }
        }
        Button {
            id: okButton
            objectName: "okButton"
            anchors.verticalCenter: parent.verticalCenter
            width: 96
            height: 28
            contentItem: Text {
                text: qsTr("Confirm")
                font: okButton.font
                color: "white"
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
            }
            background: Rectangle { color: okButton.down ? Qt.darker("#537bad", 1.2) : "#537bad"; radius: 3 }
            onClicked: {
                popup.confirm(popup.endText(startPicker), popup.endText(endPicker))
                popup.close()
            }
        }
    }
}
