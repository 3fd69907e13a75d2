// Exports: meters.
// Each export writes one log line and forwards to its ViewManage method (views/viewmanage_meter.cpp).
#include "app/layerlog.h"

#include <qgui/view.h>

int View_CreateGroupMeter()
{
    return QGUI_CREATE("组合仪表元件", View_CreateGroupMeter);
}

int View_CreateMeter(const View_Meter* rec, unsigned int windowId)
{
    return QGUI_CREATE("仪表元件", View_CreateMeter, rec, windowId);
}

int View_MeterUpdateAlarmRange(unsigned int id, int low, int high)
{
    return QGUI_FORWARD(trace, "id", View_MeterUpdateAlarmRange, id, low, high);
}

int View_MeterUpdateScaleLabels(unsigned int id, const std::vector<std::string>& labels)
{
    return QGUI_FORWARD(trace, "id", View_MeterUpdateScaleLabels, id, labels);
}

int View_MeterUpdateVal(unsigned int id, int value)
{
    return QGUI_FORWARD(trace, "id", View_MeterUpdateVal, id, value);
}
