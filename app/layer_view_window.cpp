// Exports: desktops, windows, popup windows, message box, brightness, busy bar.
// Each export writes one log line and forwards to its ViewManage method (views/viewmanage_window.cpp).
#include "app/layerlog.h"

#include <qgui/view.h>

int View_ChangeWindowTitle(unsigned int windowId, const char* title)
{
    return QGUI_FORWARD(trace, "windowId", View_ChangeWindowTitle, windowId, title);
}

int View_CloseDesktop(unsigned int desktopNo)
{
    return QGUI_FORWARD(info, "desktopNo", View_CloseDesktop, desktopNo);
}

int View_CloseWindow(unsigned int windowId)
{
    return QGUI_FORWARD(info, "windowId", View_CloseWindow, windowId);
}

int View_CreateDesktop(const Size& size, unsigned int desktopNo)
{
    return QGUI_CREATE("桌面", View_CreateDesktop, size, desktopNo);
}

int View_GetTitleBarHeight(unsigned int windowId, int& height)
{
    return QGUI_FORWARD(trace, "windowId", View_GetTitleBarHeight, windowId, height);
}

int View_GetWindowRect(unsigned int windowId, Rect& rect)
{
    return QGUI_FORWARD(trace, "windowId", View_GetWindowRect, windowId, rect);
}

int View_HideDesktop(unsigned int desktopNo)
{
    return QGUI_FORWARD(info, "desktopNo", View_HideDesktop, desktopNo);
}

int View_HideProcess(unsigned int id)
{
    return QGUI_FORWARD(info, "id", View_HideProcess, id);
}

int View_HideWindow(unsigned int windowId)
{
    return QGUI_FORWARD(info, "windowId", View_ShowWindow, windowId, false);
}

int View_PopupMsg(const char* text, unsigned int life)
{
    return QGUI_FORWARD(info, nullptr, View_PopupMsg, text, life);
}

int View_PopupWindow(View_Window* window, unsigned int windowId, View_Popup* popup, int flags)
{
    return QGUI_FORWARD(info, nullptr, View_PopupWindow, window, windowId, popup, flags);
}

int View_SetDialogMoveControl(unsigned int windowId, bool movable)
{
    return QGUI_FORWARD(info, "windowId", View_SetDialogMoveControl, windowId, movable);
}

int View_SetLight(int percent)
{
    return QGUI_FORWARD(info, nullptr, View_SetLight, percent);
}

int View_SetWindowParent(unsigned int windowId, unsigned int parentId)
{
    return QGUI_FORWARD(info, "windowId", View_SetWindowParent, windowId, parentId);
}

int View_ShowDesktop(unsigned int desktopNo)
{
    return QGUI_FORWARD(info, "desktopNo", View_ShowDesktop, desktopNo);
}

int View_ShowProcess(unsigned int id, unsigned int modal, unsigned int reserved)
{
    return QGUI_FORWARD(info, "id", View_ShowProcess, id, modal, reserved);
}

int View_ShowWindow(unsigned int windowId, bool show)
{
    return QGUI_FORWARD(info, "windowId", View_ShowWindow, windowId, show);
}

int View_SwitchWindow(View_Window* window)
{
    return QGUI_FORWARD(info, nullptr, View_SwitchWindow, window);
}

int View_WindowShowAndMove(unsigned int windowId, int x, int y)
{
    return QGUI_FORWARD(info, "windowId", View_WindowShowAndMove, windowId, x, y);
}
