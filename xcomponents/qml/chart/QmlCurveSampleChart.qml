import QtQuick 2.15
import QQuickHalvex 1.0

// The sample curve chart: the plot (drawn by the item), the pointer area over
// the plot area only (drags, taps, double clicks and pinches), and the
// setting and restore buttons in the plot area's top-right corner.
CurveSampleChart {
    id: chart

    CurveMouseArea {
        id: mouseArea
        objectName: "mouseArea"
        customItem: chart
        rectMargin: Qt.rect(chart.plotArea.x, chart.plotArea.y,
                            chart.width - chart.plotArea.x - chart.plotArea.width,
                            chart.height - chart.plotArea.y - chart.plotArea.height)
        x: rectMargin.x
        y: rectMargin.y
        width: Math.max(0, chart.width - rectMargin.x - rectMargin.width)
        height: Math.max(0, chart.height - rectMargin.y - rectMargin.height)
    }

    QmlSettingButtonCurve {
        id: buttons
        objectName: "curveButtons"
        area: chart.plotArea
        settingShown: chart.settingBtnVisible
        restoreShown: chart.restoreBtnVisible
        onSettingClicked: chart.slotSettingBtnClicked()
        onRestoreClicked: chart.onRestoreBtnClicked()
    }
}
