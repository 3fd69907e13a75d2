// Exports: the cursor of the curve charts.
// Each export writes one log line and forwards to its ViewManage method (views/viewmanage_curvecursor.cpp).
#include "app/layerlog.h"

#include <qgui/view.h>

int View_CurveEnableCursor(unsigned int id, bool enable)
{
    return QGUI_FORWARD(info, "id", View_CurveEnableCursor, id, enable);
}

int View_CurveSampleShowCursor(unsigned int id, const std::string& title,
    const std::vector<std::pair<unsigned short, std::string>>& rows)
{
    return QGUI_FORWARD(info, "id", View_CurveSampleShowCursor, id, title, rows);
}

int View_CurveUpdateCursorContent(
    unsigned int id, const char* title, const std::vector<std::vector<View_ListColData>>& rows)
{
    return QGUI_FORWARD(info, "id", View_CurveUpdateCursorContent, id, title, rows);
}

int View_CurveUpdateCursorParams(
    unsigned int id, const std::vector<View_Text>& heads, const std::vector<Font*>& fonts)
{
    return QGUI_FORWARD(info, "id", View_CurveUpdateCursorParams, id, heads, fonts);
}

int View_CurveUpdateCursorTitle(unsigned int id, const View_Text& title)
{
    return QGUI_FORWARD(info, "id", View_CurveUpdateCursorTitle, id, title);
}
