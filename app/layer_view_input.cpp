// Exports: input widgets, on-screen keyboard, lists, alarm bars, menus, date and time.
// Each export writes one log line and forwards to ViewManage.
#include "app/layerlog.h"
#include "views/viewmanage.h"

#include <qgui/view.h>

// ---- text and numeric input

int View_ChangeInputParam(unsigned int id, const View_Input* rec)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_ChangeInputParam(id, rec);
}

int View_CreateInputText(const View_Input* rec, unsigned int windowId)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "文本输入元件");
    return ViewManage::getInstance()->View_CreateInputText(rec, windowId);
}

int View_CreateNumInputText(const View_Input* rec, unsigned int windowId)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "数值输入元件");
    return ViewManage::getInstance()->View_CreateNumInputText(rec, windowId);
}

int View_SetTextCursorFocus(unsigned int id)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_SetTextCursorFocus(id);
}

int View_SetTextCursorPosition(unsigned int id, unsigned int position)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_SetTextCursorPosition(id, position);
}

int View_SetTextSelectCursor(unsigned int id, unsigned int start, unsigned int end)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_SetTextSelectCursor(id, start, end);
}

// ---- virtual keyboard and Pinyin candidate bar

int View_ChangeKBoardTextContent(unsigned int windowId, const char* text, const Font* font)
{
    QGUI_LAYER_TRACE("windowId {}", windowId);
    return ViewManage::getInstance()->View_ChangeKBText(windowId, text, font);
}

int View_CloseVirtualKeyboard()
{
    QGUI_LAYER_LOG("");
    return ViewManage::getInstance()->View_CloseVirtualKeyboard();
}

int View_HideKeyBoardWidget()
{
    QGUI_LAYER_LOG("");
    return ViewManage::getInstance()->View_HideKeyBoardWidget();
}

int View_PopupVirtualKeyboard(unsigned int id, int type, const char* text)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_PopupVirtualKeyboard(id, type, text);
}

int View_SetKBoardTextCursorFocus()
{
    QGUI_LAYER_LOG("");
    return ViewManage::getInstance()->View_SetKBoardTextCursorFocus();
}

int View_SetKBoardTextCursorPosition(unsigned int windowId, unsigned int position)
{
    QGUI_LAYER_LOG("windowId {}", windowId);
    return ViewManage::getInstance()->View_SetKBoardTextCursorPosition(windowId, position);
}

int View_SetKBoardTextSelectCursor(unsigned int windowId, unsigned int start, unsigned int end)
{
    QGUI_LAYER_LOG("windowId {}", windowId);
    return ViewManage::getInstance()->View_SetKBoardTextSelectCursor(windowId, start, end);
}

int View_ShowKeyBoardWidget(View_keyBoardData* data)
{
    QGUI_LAYER_LOG("");
    return ViewManage::getInstance()->View_ShowKeyBoardWidget(data);
}

// ---- list controls

int View_AddListCtrlContent(unsigned int id, const std::vector<std::string>& row, int position)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_AddListCtrlContent(id, row, position);
}

int View_ChangeListCtrlBrowseBoxParams(unsigned int id, unsigned int* values)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_ChangeListCtrlBrowseBoxParams(id, values);
}

int View_ChangeListCtrlContent(unsigned int id, const std::vector<std::vector<View_ListColData>>& rows)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_ChangeListCtrlContent(id, rows);
}

int View_ChangeListCtrlEditMode(unsigned int id, int mode)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_ChangeListCtrlEditMode(id, mode);
}

int View_ChangeListCtrlEnableEditCol(unsigned int id, int column, bool enable)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_ChangeListCtrlEnableEditCol(id, column, enable);
}

int View_ChangeListCtrlEnableFilter(unsigned int id, bool enable)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_ChangeListCtrlEnableFilter(id, enable);
}

int View_ChangeListCtrlFont(unsigned int id, const std::vector<Font*>& fonts)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_ChangeListCtrlFont(id, fonts);
}

int View_ChangeListCtrlFontColor(unsigned int id, int column, const Brush& brush)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_ChangeListCtrlFontColor(id, column, brush);
}

int View_ChangeListCtrlHideCol(unsigned int id, const std::list<std::pair<int, bool>>& columns)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_ChangeListCtrlHideCol(id, columns);
}

int View_ChangeListCtrlRowTextVisible(unsigned int id, const std::list<int>& rows, bool visible)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_ChangeListCtrlRowTextVisible(id, rows, visible);
}

int View_ChangeListCtrlSel(unsigned int id, int row, int column)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_ChangeListCtrlSel(id, row, column);
}

int View_ChangeListCtrlTitle(unsigned int id, const std::vector<View_Text>& titles)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_ChangeListCtrlTitle(id, titles);
}

int View_CreateListAlarm(const View_listAlarm* rec, unsigned int windowId)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "报警列表元件");
    return ViewManage::getInstance()->View_CreateListAlarm(rec, windowId);
}

int View_CreateListAlarmStat(const View_listAlarmStat* rec, unsigned int windowId)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "报警统计列表元件");
    return ViewManage::getInstance()->View_CreateListAlarmStat(rec, windowId);
}

int View_CreateListComErr(const View_listComErr* rec, unsigned int windowId)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "通信错误列表元件");
    return ViewManage::getInstance()->View_CreateListComErr(rec, windowId);
}

int View_CreateListCtrl(const View_List* rec, unsigned int windowId)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "列表控件");
    return ViewManage::getInstance()->View_CreateListCtrl(rec, windowId);
}

int View_CreateListDbView(const View_listDbView* rec, unsigned int windowId)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "数据库视图元件");
    return ViewManage::getInstance()->View_CreateListDbView(rec, windowId);
}

int View_CreateListEvent(const View_listEvent* rec, unsigned int windowId)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "事件列表元件");
    return ViewManage::getInstance()->View_CreateListEvent(rec, windowId);
}

int View_CreateListPermission(const View_listPermission* rec, unsigned int windowId)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "权限列表元件");
    return ViewManage::getInstance()->View_CreateListPermission(rec, windowId);
}

int View_CreateListRecipe(const View_listRecipe* rec, unsigned int windowId)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "配方列表元件");
    return ViewManage::getInstance()->View_CreateListRecipe(rec, windowId);
}

int View_CreateListSample(const View_listSample* rec, unsigned int windowId)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "采样列表元件");
    return ViewManage::getInstance()->View_CreateListSample(rec, windowId);
}

int View_GetListCtrlContent(unsigned int id, int row, int column, std::vector<std::string>& out)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_GetListCtrlContent(id, row, column, out);
}

// ---- alarm bar

int View_CreateListAlarmBar(const View_listAlarmBar* rec, unsigned int windowId)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "报警条元件");
    return ViewManage::getInstance()->View_CreateListAlarmBar(rec, windowId);
}

// ---- menus

int View_ChangeMenuContent(unsigned int id, const std::list<View_Text>& entries)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_ChangeMenuContent(id, entries);
}

int View_ChangeMenuSelect(unsigned int id, int index, const View_Image* image, const View_Text* text)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_ChangeMenuSelect(id, index, image, text);
}

int View_ChangeMenuTreeContent(unsigned int id, const View_TreeNode* root)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_ChangeMenuTreeContent(id, root);
}

int View_ChangeMenuTreeSelect(unsigned int id, int index, const View_Text* text)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_ChangeMenuTreeSelect(id, index, text);
}

int View_CreateMenuAlarmLevel(const View_MenuAlarmLevel* rec, unsigned int windowId)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "报警等级菜单元件");
    return ViewManage::getInstance()->View_CreateMenuAlarmLevel(rec, windowId);
}

int View_CreateMenuConst(const View_MenuConst* rec, unsigned int windowId)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "常量菜单元件");
    return ViewManage::getInstance()->View_CreateMenuConst(rec, windowId);
}

int View_CreateMenuNotes(const View_MenuNotes* rec, unsigned int windowId)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "注释菜单元件");
    return ViewManage::getInstance()->View_CreateMenuNotes(rec, windowId);
}

int View_CreateMenuPermission(const View_MenuPermission* rec, unsigned int windowId)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "权限菜单元件");
    return ViewManage::getInstance()->View_CreateMenuPermission(rec, windowId);
}

int View_CreateMenuTreeAlarmGrp(const View_MenuTreeAlarmGrp* rec, unsigned int windowId)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "报警组树形菜单元件");
    return ViewManage::getInstance()->View_CreateMenuTreeAlarmGrp(rec, windowId);
}

int View_CreateMenuUser(const View_MenuUser* rec, unsigned int windowId)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "用户菜单元件");
    return ViewManage::getInstance()->View_CreateMenuUser(rec, windowId);
}

int View_CreateMenuVar(const View_MenuVar* rec, unsigned int windowId)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "变量菜单元件");
    return ViewManage::getInstance()->View_CreateMenuVar(rec, windowId);
}

int View_MenuPopupDropdownBox(unsigned int id)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_MenuPopupDropdownBox(id);
}

// ---- date and time

int View_CreateInputClock(const View_InputClock* rec, unsigned int windowId)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "日期时间元件");
    return ViewManage::getInstance()->View_CreateInputClock(rec, windowId);
}

int View_PopupDateTimeDialog(unsigned int id, const char* text)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_PopupDateTimeDialog(id, text);
}
