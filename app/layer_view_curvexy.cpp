// Exports: XY curves.
// Each export writes one log line and forwards to its ViewManage method (views/viewmanage_curvexy.cpp).
#include "app/layerlog.h"

#include <qgui/view.h>

int View_CreateCurveXy(const View_CurveXy* rec, unsigned int windowId)
{
    return QGUI_CREATE("XY曲线元件", View_CreateCurveXy, rec, windowId);
}

int View_CurveXyClearData(unsigned int id, const std::vector<unsigned int>& channels)
{
    return QGUI_FORWARD(info, "id", View_CurveXyClearData, id, channels);
}

int View_CurveXyShowCursor()
{
    return QGUI_FORWARD(info, nullptr, View_CurveXyShowCursor);
}

int View_CurveXyUpdateData(
    unsigned int id, const std::vector<unsigned int>& channels, const std::vector<std::list<FPoint>>& points)
{
    return QGUI_FORWARD(trace, "id", View_CurveXyUpdateData, id, channels, points);
}

int View_CurveXyUpdateXLabel(unsigned int id, const std::vector<std::string>& labels)
{
    return QGUI_FORWARD(trace, "id", View_CurveXyUpdateXLabel, id, labels);
}

int View_CurveXyUpdateYLabel(unsigned int id, const std::vector<std::string>& labels)
{
    return QGUI_FORWARD(trace, "id", View_CurveXyUpdateYLabel, id, labels);
}
