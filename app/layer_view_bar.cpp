// Exports: bar graphs.
// Each export writes one log line and forwards to its ViewManage method (views/viewmanage_bar.cpp).
#include "app/layerlog.h"

#include <qgui/view.h>

int View_BarUpdateOrigin(unsigned int id, unsigned char percent)
{
    return QGUI_FORWARD(trace, "id", View_BarUpdateOrigin, id, percent);
}

int View_BarUpdateScaleLabels(unsigned int id, const std::vector<std::string>& labels)
{
    return QGUI_FORWARD(trace, "id", View_BarUpdateScaleLabels, id, labels);
}

int View_BarUpdateTarget(unsigned int id, unsigned char low, unsigned char high)
{
    return QGUI_FORWARD(trace, "id", View_BarUpdateTarget, id, low, high);
}

int View_BarUpdateVar(unsigned int id, unsigned char bar, const char* value, const Brush& brush)
{
    return QGUI_FORWARD(trace, "id", View_BarUpdateVar, id, bar, value, brush);
}

int View_CreateBar(const View_Bar* rec, unsigned int windowId)
{
    return QGUI_CREATE("棒图元件", View_CreateBar, rec, windowId);
}
