// History search of the sample curve charts: the state changes a logic layer
// asks for. The states and their transitions are described with
// CurveSampleChartTimeModeController.
#include "views/viewmanage.h"

#include "views/curvesamplecharttimemodecontroller.h"
#include "xcomponents/qquick/curvesamplechart.h"

int ViewManage::View_CurveSampleResumeRealMode(unsigned int id)
{
    CurveSampleChart* chart = curveSampleChart(id);
    if (!chart)
        return -1;
    m_timeMode->resumeRealMode(chart);
    return 0;
}

int ViewManage::View_CurveSampleSetSearchMode(unsigned int id, bool on)
{
    CurveSampleChart* chart = curveSampleChart(id);
    if (!chart)
        return -1;
    m_timeMode->setSearchMode(chart, on);
    return 0;
}

int ViewManage::View_RestoreCurveSampleSearchState(unsigned int id)
{
    CurveSampleChart* chart = curveSampleChart(id);
    if (!chart)
        return -1;
    m_timeMode->restoreSearchState(chart);
    return 0;
}
