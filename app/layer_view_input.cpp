// Exports: text and numeric input fields.
// Each export writes one log line and forwards to its ViewManage method (views/viewmanage_input.cpp).
#include "app/layerlog.h"

#include <qgui/view.h>

int View_ChangeInputParam(unsigned int id, const View_Input* rec)
{
    return QGUI_FORWARD(trace, "id", View_ChangeInputParam, id, rec);
}

int View_CreateInputText(const View_Input* rec, unsigned int windowId)
{
    return QGUI_CREATE("文本输入元件", View_CreateInputText, rec, windowId);
}

int View_CreateNumInputText(const View_Input* rec, unsigned int windowId)
{
    return QGUI_CREATE("数值输入元件", View_CreateNumInputText, rec, windowId);
}

int View_SetTextCursorFocus(unsigned int id)
{
    return QGUI_FORWARD(info, "id", View_SetTextCursorFocus, id);
}

int View_SetTextCursorPosition(unsigned int id, unsigned int position)
{
    return QGUI_FORWARD(info, "id", View_SetTextCursorPosition, id, position);
}

int View_SetTextSelectCursor(unsigned int id, unsigned int start, unsigned int end)
{
    return QGUI_FORWARD(info, "id", View_SetTextSelectCursor, id, start, end);
}
