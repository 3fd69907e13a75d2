// Exports: generic widget operations (delete, show, hide, move, opacity, disable flags, busy icon, input
// flags, rectangle, parent). Each export writes one log line and forwards to its ViewManage method
// (views/viewmanage_generic.cpp).
#include "app/layerlog.h"

#include <qgui/view.h>

int View_ChangeOpacity(unsigned int id, unsigned char percent)
{
    return QGUI_FORWARD(trace, "id", View_ChangeOpacity, id, percent);
}

int View_ClrBusy(unsigned int id)
{
    return QGUI_FORWARD(info, "id", View_ClrBusy, id);
}

int View_ClrDisableFlag(unsigned int id, unsigned int flags)
{
    return QGUI_FORWARD(info, "id", View_ClrDisableFlag, id, flags);
}

int View_ClrInputFlag(unsigned int id)
{
    return QGUI_FORWARD(info, "id", View_ClrInputFlag, id);
}

int View_ClrInputMode(unsigned int id)
{
    return QGUI_FORWARD(info, "id", View_ClrInputMode, id);
}

int View_DeleteWidgets(const std::list<unsigned int>& ids)
{
    return QGUI_FORWARD(info, nullptr, View_DeleteWidgets, ids);
}

int View_GetWgtRect(unsigned int id, Rect& rect)
{
    return QGUI_FORWARD(trace, "id", View_GetWgtRect, id, rect);
}

int View_HideWidget(unsigned int id, ItemSlashType type)
{
    return QGUI_FORWARD(info, "id", View_HideWidget, id, type);
}

int View_MoveWidget(unsigned int id, int x, int y)
{
    return QGUI_FORWARD(trace, "id", View_MoveWidget, id, x, y);
}

int View_SetBusy(unsigned int id)
{
    return QGUI_FORWARD(info, "id", View_SetBusy, id);
}

int View_SetDisableFlag(unsigned int id, unsigned int flags)
{
    return QGUI_FORWARD(info, "id", View_SetDisableFlag, id, flags);
}

int View_SetInputFlag(unsigned int id)
{
    return QGUI_FORWARD(info, "id", View_SetInputFlag, id);
}

int View_SetInputMode(unsigned int id, bool on)
{
    return QGUI_FORWARD(info, "id", View_SetInputMode, id, on);
}

int View_SetWidgetParent(unsigned int id, unsigned int parentId)
{
    return QGUI_FORWARD(info, "id", View_SetWidgetParent, id, parentId);
}

int View_ShowWidget(unsigned int id, unsigned int fromCache, ItemSlashType type)
{
    return QGUI_FORWARD(info, "id", View_ShowWidget, id, fromCache, type);
}
