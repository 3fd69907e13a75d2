// Exports: the on-screen keyboard and the Pinyin candidate bar.
// Each export writes one log line and forwards to its ViewManage method (views/viewmanage_vkb.cpp).
#include "app/layerlog.h"

#include <qgui/view.h>

int View_ChangeKBoardTextContent(unsigned int windowId, const char* text, const Font* font)
{
    return QGUI_FORWARD(trace, "windowId", View_ChangeKBText, windowId, text, font);
}

int View_CloseVirtualKeyboard()
{
    return QGUI_FORWARD(info, nullptr, View_CloseVirtualKeyboard);
}

int View_HideKeyBoardWidget()
{
    return QGUI_FORWARD(info, nullptr, View_HideKeyBoardWidget);
}

int View_PopupVirtualKeyboard(unsigned int id, int type, const char* text)
{
    return QGUI_FORWARD(info, "id", View_PopupVirtualKeyboard, id, type, text);
}

int View_SetVirtualKeyboardValidator(int kind)
{
    return QGUI_FORWARD(info, nullptr, View_SetVirtualKeyboardValidator, kind);
}

int View_SetVirtualKeyboardRangeI(long long bottom, long long top)
{
    return QGUI_FORWARD(info, nullptr, View_SetVirtualKeyboardRangeI, bottom, top);
}

int View_SetVirtualKeyboardRangeU(unsigned long long bottom, unsigned long long top)
{
    return QGUI_FORWARD(info, nullptr, View_SetVirtualKeyboardRangeU, bottom, top);
}

int View_SetVirtualKeyboardRangeD(double bottom, double top)
{
    return QGUI_FORWARD(info, nullptr, View_SetVirtualKeyboardRangeD, bottom, top);
}

int View_SetKBoardTextCursorFocus()
{
    return QGUI_FORWARD(info, nullptr, View_SetKBoardTextCursorFocus);
}

int View_SetKBoardTextCursorPosition(unsigned int windowId, unsigned int position)
{
    return QGUI_FORWARD(info, "windowId", View_SetKBoardTextCursorPosition, windowId, position);
}

int View_SetKBoardTextSelectCursor(unsigned int windowId, unsigned int start, unsigned int end)
{
    return QGUI_FORWARD(info, "windowId", View_SetKBoardTextSelectCursor, windowId, start, end);
}

int View_ShowKeyBoardWidget(View_keyBoardData* data)
{
    return QGUI_FORWARD(info, nullptr, View_ShowKeyBoardWidget, data);
}
