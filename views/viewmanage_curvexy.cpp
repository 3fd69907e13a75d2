// XY curves: not built yet. Every call is accepted and changes nothing: the
// creators create nothing and return -1 (as for an unknown window); the other
// calls return what they return for an unknown id.
#include "views/viewmanage.h"

int ViewManage::View_CreateCurveXy(const View_CurveXy*, unsigned int)
{
    return -1;
}

int ViewManage::View_CurveXyClearData(unsigned int, const std::vector<unsigned int>&)
{
    return 0;
}

int ViewManage::View_CurveXyShowCursor()
{
    return 0;
}

int ViewManage::View_CurveXyUpdateData(
    unsigned int, const std::vector<unsigned int>&, const std::vector<std::list<FPoint>>&)
{
    return 0;
}

int ViewManage::View_CurveXyUpdateXLabel(unsigned int, const std::vector<std::string>&)
{
    return 0;
}

int ViewManage::View_CurveXyUpdateYLabel(unsigned int, const std::vector<std::string>&)
{
    return 0;
}

int ViewManage::hideXyCurve(QQuickItem*, unsigned int, bool)
{
    return 0; // an unknown id or another kind ends the call
}
