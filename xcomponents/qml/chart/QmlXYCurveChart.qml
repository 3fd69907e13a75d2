import QtQuick 2.15
import QQuickHalvex 1.0

// The XY curve: the plot (drawn by the item) and the rubber-band area over the
// plot area only. The restore button is made by the chart on the first zoom.
XYCurveChart {
    id: chart

    XYMouseArea {
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
}
