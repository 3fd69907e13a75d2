// Exports: generic widget operations, desktops and windows, configuration.
// Each export writes one log line and forwards to ViewManage.
#include "app/guishell.h"
#include "app/layerlog.h"
#include "config/globalconfig.h"
#include "views/viewmanage.h"

#include <qgui/view.h>

// ---- start-up

int View_CreateProPkg()
{
    QGUI_LAYER_LOG("\n\t创建 {}", "工程包");
    if (GuiShell* shell = GuiShell::instance())
        shell->createProPkg();
    return 0;
}

// ---- generic widget operations

int View_ChangeOpacity(unsigned int id, unsigned char percent)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_ChangeOpacity(id, percent);
}

int View_ClrBusy(unsigned int id)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_ClrBusy(id);
}

int View_ClrDisableFlag(unsigned int id, unsigned int flags)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_ClrDisableFlag(id, flags);
}

int View_ClrInputFlag(unsigned int id)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_ClrInputFlag(id);
}

int View_ClrInputMode(unsigned int id)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_ClrInputMode(id);
}

int View_DeleteWidgets(const std::list<unsigned int>& ids)
{
    QGUI_LAYER_LOG("");
    return ViewManage::getInstance()->View_DeleteWidgets(ids);
}

int View_GetWgtRect(unsigned int id, Rect& rect)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_GetWgtRect(id, rect);
}

int View_HideWidget(unsigned int id, ItemSlashType type)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_HideWidget(id, type);
}

int View_MoveWidget(unsigned int id, int x, int y)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_MoveWidget(id, x, y);
}

int View_SetBusy(unsigned int id)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_SetBusy(id);
}

int View_SetDisableFlag(unsigned int id, unsigned int flags)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_SetDisableFlag(id, flags);
}

int View_SetInputFlag(unsigned int id)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_SetInputFlag(id);
}

int View_SetInputMode(unsigned int id, bool on)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_SetInputMode(id, on);
}

int View_SetWidgetParent(unsigned int id, unsigned int parentId)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_SetWidgetParent(id, parentId);
}

int View_ShowWidget(unsigned int id, unsigned int fromCache, ItemSlashType type)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_ShowWidget(id, fromCache, type);
}

// ---- desktops, windows, popups, message box, brightness, busy bar

int View_ChangeWindowTitle(unsigned int windowId, const char* title)
{
    QGUI_LAYER_TRACE("windowId {}", windowId);
    return ViewManage::getInstance()->View_ChangeWindowTitle(windowId, title);
}

int View_CloseDesktop(unsigned int desktopNo)
{
    QGUI_LAYER_LOG("desktopNo {}", desktopNo);
    return ViewManage::getInstance()->View_CloseDesktop(desktopNo);
}

int View_CloseWindow(unsigned int windowId)
{
    QGUI_LAYER_LOG("windowId {}", windowId);
    return ViewManage::getInstance()->View_CloseWindow(windowId);
}

int View_CreateDesktop(const Size& size, unsigned int desktopNo)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "桌面");
    return ViewManage::getInstance()->View_CreateDesktop(size, desktopNo);
}

int View_GetTitleBarHeight(unsigned int windowId, int& height)
{
    QGUI_LAYER_TRACE("windowId {}", windowId);
    return ViewManage::getInstance()->View_GetTitleBarHeight(windowId, height);
}

int View_GetWindowRect(unsigned int windowId, Rect& rect)
{
    QGUI_LAYER_TRACE("windowId {}", windowId);
    return ViewManage::getInstance()->View_GetWindowRect(windowId, rect);
}

int View_HideDesktop(unsigned int desktopNo)
{
    QGUI_LAYER_LOG("desktopNo {}", desktopNo);
    return ViewManage::getInstance()->View_HideDesktop(desktopNo);
}

int View_HideProcess(unsigned int id)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_HideProcess(id);
}

int View_HideWindow(unsigned int windowId)
{
    QGUI_LAYER_LOG("windowId {}", windowId);
    return ViewManage::getInstance()->View_ShowWindow(windowId, false);
}

int View_PopupMsg(const char* text, unsigned int life)
{
    QGUI_LAYER_LOG("");
    return ViewManage::getInstance()->View_PopupMsg(text, life);
}

int View_PopupWindow(View_Window* window, unsigned int windowId, View_Popup* popup, int flags)
{
    QGUI_LAYER_LOG("");
    return ViewManage::getInstance()->View_PopupWindow(window, windowId, popup, flags);
}

int View_SetDialogMoveControl(unsigned int windowId, bool movable)
{
    QGUI_LAYER_LOG("windowId {}", windowId);
    return ViewManage::getInstance()->View_SetDialogMoveControl(windowId, movable);
}

int View_SetLight(int percent)
{
    QGUI_LAYER_LOG("");
    return ViewManage::getInstance()->View_SetLight(percent);
}

int View_SetWindowParent(unsigned int windowId, unsigned int parentId)
{
    QGUI_LAYER_LOG("windowId {}", windowId);
    return ViewManage::getInstance()->View_SetWindowParent(windowId, parentId);
}

int View_ShowDesktop(unsigned int desktopNo)
{
    QGUI_LAYER_LOG("desktopNo {}", desktopNo);
    return ViewManage::getInstance()->View_ShowDesktop(desktopNo);
}

int View_ShowProcess(unsigned int id, unsigned int modal, unsigned int reserved)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_ShowProcess(id, modal, reserved);
}

int View_ShowWindow(unsigned int windowId, bool show)
{
    QGUI_LAYER_LOG("windowId {}", windowId);
    return ViewManage::getInstance()->View_ShowWindow(windowId, show);
}

int View_SwitchWindow(View_Window* window)
{
    QGUI_LAYER_LOG("");
    return ViewManage::getInstance()->View_SwitchWindow(window);
}

int View_WindowShowAndMove(unsigned int windowId, int x, int y)
{
    QGUI_LAYER_LOG("windowId {}", windowId);
    return ViewManage::getInstance()->View_WindowShowAndMove(windowId, x, y);
}

// ---- accepted without effect

int View_HmiConnectResponse()
{
    QGUI_LAYER_LOG("");
    return -1; // accepted, without effect
}

int View_HmiDisConnect()
{
    QGUI_LAYER_LOG("");
    return -1; // accepted, without effect
}

int View_PopupSystemSet()
{
    QGUI_LAYER_LOG("");
    return -1; // accepted, without effect
}

// ---- configuration

int View_SetGlobalConfigue(View_GlobalConfig* config)
{
    QGUI_LAYER_LOG("");
    return ViewManage::getInstance()->View_SetGlobalConfigue(config);
}

int View_SetInterfaceConfigue(View_InterfaceConfigue* config)
{
    QGUI_LAYER_LOG("");
    return ViewManage::getInstance()->View_SetInterfaceConfigue(config);
}

int View_SetSysWndLang(unsigned int lang)
{
    QGUI_LAYER_LOG("");
    GlobalConfig::getInstance()->setLocale(lang);
    return 0;
}
