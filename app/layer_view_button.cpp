// Exports: buttons.
// Each export writes one log line and forwards to its ViewManage method (views/viewmanage_button.cpp).
#include "app/layerlog.h"

#include <qgui/view.h>

int View_ChangeButtonParam(unsigned int id, const View_ImageText* rec)
{
    return QGUI_FORWARD(trace, "id", View_ChangeButtonParam, id, rec);
}

int View_CreateButton(const View_ImageText* rec, unsigned int windowId)
{
    return QGUI_CREATE("按钮元件", View_CreateButton, rec, windowId);
}
