// The cursor of the curve charts: not built yet. Every call is accepted and changes nothing: the
// creators create nothing and return -1 (as for an unknown window); the other
// calls return what they return for an unknown id.
#include "views/viewmanage.h"

int ViewManage::View_CurveEnableCursor(unsigned int, bool)
{
    return -1;
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
