// Exports: alarm bars.
// Each export writes one log line and forwards to its ViewManage method (views/viewmanage_alarmbar.cpp).
#include "app/layerlog.h"

#include <qgui/view.h>

int View_CreateListAlarmBar(const View_listAlarmBar* rec, unsigned int windowId)
{
    return QGUI_CREATE("报警条元件", View_CreateListAlarmBar, rec, windowId);
}
