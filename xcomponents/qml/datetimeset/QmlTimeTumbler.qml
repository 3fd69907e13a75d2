import QtQuick 2.15
import QtQuick.Controls 2.15
import QQuickHalvex 1.0

// The time columns of the date/time pickers: hours 0..23, minutes and seconds 0..59, shown as
// plain numbers.
Row {
    id: time
    property int cellWidth: 62
    property int cellHeight: 30
    property int fontSize: 16
    readonly property int hour: hourTumbler.currentIndex
    readonly property int minute: minuteTumbler.currentIndex
    readonly property int second: secondTumbler.currentIndex

    function setTime(h, m, s) {
        hourTumbler.currentIndex = h
        minuteTumbler.currentIndex = m
        secondTumbler.currentIndex = s
        centre()
    }
    // a column set while hidden keeps its old place on screen: bring the chosen rows to the middle
    function centre() {
        hourTumbler.positionViewAtIndex(hourTumbler.currentIndex, Tumbler.Center)
        minuteTumbler.positionViewAtIndex(minuteTumbler.currentIndex, Tumbler.Center)
        secondTumbler.positionViewAtIndex(secondTumbler.currentIndex, Tumbler.Center)
    }
    onVisibleChanged: if (visible) centre()

    Component {
        id: cell
        Text {
            text: model.display
            font.pixelSize: time.fontSize
            color: "#1c2733"
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            opacity: 1.0 - Math.abs(Tumbler.displacement) / (Tumbler.tumbler.visibleItemCount / 2 + 0.5)
        }
    }

    Tumbler {
        id: hourTumbler
        objectName: "hourTumbler"
        width: time.cellWidth
        height: time.cellHeight * visibleItemCount
        visibleItemCount: 5
        model: XTumblerTimeModel { size: 24 }
        delegate: cell
    }
    Text { text: ":"; height: hourTumbler.height; verticalAlignment: Text.AlignVCenter; font.pixelSize: time.fontSize }
    Tumbler {
        id: minuteTumbler
        objectName: "minuteTumbler"
        width: time.cellWidth
        height: time.cellHeight * visibleItemCount
        visibleItemCount: 5
        model: XTumblerTimeModel { size: 60 }
        delegate: cell
    }
    Text { text: ":"; height: hourTumbler.height; verticalAlignment: Text.AlignVCenter; font.pixelSize: time.fontSize }
    Tumbler {
        id: secondTumbler
        objectName: "secondTumbler"
        width: time.cellWidth
        height: time.cellHeight * visibleItemCount
        visibleItemCount: 5
        model: XTumblerTimeModel { size: 60 }
        delegate: cell
    }
}
