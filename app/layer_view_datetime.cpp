// Exports: date and time fields and dialogs.
// Each export writes one log line and forwards to its ViewManage method (views/viewmanage_datetime.cpp).
#include "app/layerlog.h"

#include <qgui/view.h>

int View_CreateInputClock(const View_InputClock* rec, unsigned int windowId)
{
    return QGUI_CREATE("日期时间元件", View_CreateInputClock, rec, windowId);
}

int View_PopupDateTimeDialog(unsigned int id, const char* text)
{
    return QGUI_FORWARD(info, "id", View_PopupDateTimeDialog, id, text);
}
