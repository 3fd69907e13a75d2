// The cursor of the sample curve charts: the cursor line is built (a tap on the
// plot moves it to the nearest sample, and the release reports where it stands);
// the cursor window's calls are not built yet and return what they return for an
// unknown id.
#include "views/viewmanage.h"

#include "xcomponents/qquick/curvesamplechart.h"

int ViewManage::View_CurveEnableCursor(unsigned int id, bool enable)
{
    CurveSampleChart* chart = curveSampleChart(id);
    if (!chart)
        return -1;
    chart->setCursorEnabled(enable);
    return 0;
}

int ViewManage::View_CurveSampleShowCursor(
    unsigned int, const std::string&, const std::vector<std::pair<unsigned short, std::string>>&)
{
    return -1;
}

int ViewManage::View_CurveUpdateCursorContent(
    unsigned int, const char*, const std::vector<std::vector<View_ListColData>>&)
{
    return -1;
}

int ViewManage::View_CurveUpdateCursorParams(
    unsigned int, const std::vector<View_Text>&, const std::vector<Font*>&)
{
    return -1;
}

int ViewManage::View_CurveUpdateCursorTitle(unsigned int, const View_Text&)
{
    return -1;
}
