// Exports: history search of the sample curve charts.
// Each export writes one log line and forwards to its ViewManage method (views/viewmanage_curvesearch.cpp).
#include "app/layerlog.h"

#include <qgui/view.h>

int View_CurveSampleResumeRealMode(unsigned int id)
{
    return QGUI_FORWARD(info, "id", View_CurveSampleResumeRealMode, id);
}

int View_CurveSampleSetSearchMode(unsigned int id, bool on)
{
    return QGUI_FORWARD(info, "id", View_CurveSampleSetSearchMode, id, on);
}

int View_RestoreCurveSampleSearchState(unsigned int id)
{
    return QGUI_FORWARD(info, "id", View_RestoreCurveSampleSearchState, id);
}
