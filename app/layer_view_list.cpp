// Exports: list controls (tables).
// Each export writes one log line and forwards to its ViewManage method (views/viewmanage_list.cpp).
#include "app/layerlog.h"

#include <qgui/view.h>

int View_AddListCtrlContent(unsigned int id, const std::vector<std::string>& row, int position)
{
    return QGUI_FORWARD(info, "id", View_AddListCtrlContent, id, row, position);
}

int View_ChangeListCtrlBrowseBoxParams(unsigned int id, unsigned int* values)
{
    return QGUI_FORWARD(trace, "id", View_ChangeListCtrlBrowseBoxParams, id, values);
}

int View_ChangeListCtrlContent(unsigned int id, const std::vector<std::vector<View_ListColData>>& rows)
{
    return QGUI_FORWARD(trace, "id", View_ChangeListCtrlContent, id, rows);
}

int View_ChangeListCtrlEditMode(unsigned int id, int mode)
{
    return QGUI_FORWARD(trace, "id", View_ChangeListCtrlEditMode, id, mode);
}

int View_ChangeListCtrlEnableEditCol(unsigned int id, int column, bool enable)
{
    return QGUI_FORWARD(trace, "id", View_ChangeListCtrlEnableEditCol, id, column, enable);
}

int View_ChangeListCtrlEnableFilter(unsigned int id, bool enable)
{
    return QGUI_FORWARD(trace, "id", View_ChangeListCtrlEnableFilter, id, enable);
}

int View_ChangeListCtrlFont(unsigned int id, const std::vector<Font*>& fonts)
{
    return QGUI_FORWARD(trace, "id", View_ChangeListCtrlFont, id, fonts);
}

int View_ChangeListCtrlFontColor(unsigned int id, int column, const Brush& brush)
{
    return QGUI_FORWARD(trace, "id", View_ChangeListCtrlFontColor, id, column, brush);
}

int View_ChangeListCtrlHideCol(unsigned int id, const std::list<std::pair<int, bool>>& columns)
{
    return QGUI_FORWARD(trace, "id", View_ChangeListCtrlHideCol, id, columns);
}

int View_ChangeListCtrlRowTextVisible(unsigned int id, const std::list<int>& rows, bool visible)
{
    return QGUI_FORWARD(trace, "id", View_ChangeListCtrlRowTextVisible, id, rows, visible);
}

int View_ChangeListCtrlSel(unsigned int id, int row, int column)
{
    return QGUI_FORWARD(trace, "id", View_ChangeListCtrlSel, id, row, column);
}

int View_ChangeListCtrlTitle(unsigned int id, const std::vector<View_Text>& titles)
{
    return QGUI_FORWARD(trace, "id", View_ChangeListCtrlTitle, id, titles);
}

int View_CreateListAlarm(const View_listAlarm* rec, unsigned int windowId)
{
    return QGUI_CREATE("报警列表元件", View_CreateListAlarm, rec, windowId);
}

int View_CreateListAlarmStat(const View_listAlarmStat* rec, unsigned int windowId)
{
    return QGUI_CREATE("报警统计列表元件", View_CreateListAlarmStat, rec, windowId);
}

int View_CreateListComErr(const View_listComErr* rec, unsigned int windowId)
{
    return QGUI_CREATE("通信错误列表元件", View_CreateListComErr, rec, windowId);
}

int View_CreateListCtrl(const View_List* rec, unsigned int windowId)
{
    return QGUI_CREATE("列表控件", View_CreateListCtrl, rec, windowId);
}

int View_CreateListDbView(const View_listDbView* rec, unsigned int windowId)
{
    return QGUI_CREATE("数据库视图元件", View_CreateListDbView, rec, windowId);
}

int View_CreateListEvent(const View_listEvent* rec, unsigned int windowId)
{
    return QGUI_CREATE("事件列表元件", View_CreateListEvent, rec, windowId);
}

int View_CreateListPermission(const View_listPermission* rec, unsigned int windowId)
{
    return QGUI_CREATE("权限列表元件", View_CreateListPermission, rec, windowId);
}

int View_CreateListRecipe(const View_listRecipe* rec, unsigned int windowId)
{
    return QGUI_CREATE("配方列表元件", View_CreateListRecipe, rec, windowId);
}

int View_CreateListSample(const View_listSample* rec, unsigned int windowId)
{
    return QGUI_CREATE("采样列表元件", View_CreateListSample, rec, windowId);
}

int View_GetListCtrlContent(unsigned int id, int row, int column, std::vector<std::string>& out)
{
    return QGUI_FORWARD(info, "id", View_GetListCtrlContent, id, row, column, out);
}
