#ifndef CURVESAMPLECHARTTIMEMODECONTROLLER_H
#define CURVESAMPLECHARTTIMEMODECONTROLLER_H

#include <QObject>

/**
 * Coordinates the time mode (history queries) of the sample curve charts.
 * Owned by ViewManage; the charts register with it when they are created.
 */
class CurveSampleChartTimeModeController : public QObject {
    Q_OBJECT

public:
    explicit CurveSampleChartTimeModeController(QObject* parent = nullptr)
        : QObject(parent)
    {
    }
};

#endif // CURVESAMPLECHARTTIMEMODECONTROLLER_H
