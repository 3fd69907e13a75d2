// Exports: menus, tree menus and combo boxes.
// Each export writes one log line and forwards to its ViewManage method (views/viewmanage_menu.cpp).
#include "app/layerlog.h"

#include <qgui/view.h>

int View_ChangeMenuContent(unsigned int id, const std::list<View_Text>& entries)
{
    return QGUI_FORWARD(trace, "id", View_ChangeMenuContent, id, entries);
}

int View_ChangeMenuSelect(unsigned int id, int index, const View_Image* image, const View_Text* text)
{
    return QGUI_FORWARD(trace, "id", View_ChangeMenuSelect, id, index, image, text);
}

int View_ChangeMenuTreeContent(unsigned int id, const View_TreeNode* root)
{
    return QGUI_FORWARD(trace, "id", View_ChangeMenuTreeContent, id, root);
}

int View_ChangeMenuTreeSelect(unsigned int id, int index, const View_Text* text)
{
    return QGUI_FORWARD(trace, "id", View_ChangeMenuTreeSelect, id, index, text);
}

int View_CreateMenuAlarmLevel(const View_MenuAlarmLevel* rec, unsigned int windowId)
{
    return QGUI_CREATE("报警等级菜单元件", View_CreateMenuAlarmLevel, rec, windowId);
}

int View_CreateMenuConst(const View_MenuConst* rec, unsigned int windowId)
{
    return QGUI_CREATE("常量菜单元件", View_CreateMenuConst, rec, windowId);
}

int View_CreateMenuNotes(const View_MenuNotes* rec, unsigned int windowId)
{
    return QGUI_CREATE("注释菜单元件", View_CreateMenuNotes, rec, windowId);
}

int View_CreateMenuPermission(const View_MenuPermission* rec, unsigned int windowId)
{
    return QGUI_CREATE("权限菜单元件", View_CreateMenuPermission, rec, windowId);
}

int View_CreateMenuTreeAlarmGrp(const View_MenuTreeAlarmGrp* rec, unsigned int windowId)
{
    return QGUI_CREATE("报警组树形菜单元件", View_CreateMenuTreeAlarmGrp, rec, windowId);
}

int View_CreateMenuUser(const View_MenuUser* rec, unsigned int windowId)
{
    return QGUI_CREATE("用户菜单元件", View_CreateMenuUser, rec, windowId);
}

int View_CreateMenuVar(const View_MenuVar* rec, unsigned int windowId)
{
    return QGUI_CREATE("变量菜单元件", View_CreateMenuVar, rec, windowId);
}

int View_MenuPopupDropdownBox(unsigned int id)
{
    return QGUI_FORWARD(info, "id", View_MenuPopupDropdownBox, id);
}
