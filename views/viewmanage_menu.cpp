// Menus, tree menus and combo boxes: not built yet. Every call is accepted and changes nothing: the
// creators create nothing and return -1 (as for an unknown window); the other
// calls return what they return for an unknown id.
#include "views/viewmanage.h"

int ViewManage::View_ChangeMenuContent(unsigned int, const std::list<View_Text>&)
{
    return -1;
}

int ViewManage::View_ChangeMenuSelect(unsigned int, int, const View_Image*, const View_Text*)
{
    return -1;
}

int ViewManage::View_ChangeMenuTreeContent(unsigned int, const View_TreeNode*)
{
    return -1;
}

int ViewManage::View_ChangeMenuTreeSelect(unsigned int, int, const View_Text*)
{
    return -1;
}

int ViewManage::View_CreateMenuAlarmLevel(const View_MenuAlarmLevel*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreateMenuConst(const View_MenuConst*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreateMenuNotes(const View_MenuNotes*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreateMenuPermission(const View_MenuPermission*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreateMenuTreeAlarmGrp(const View_MenuTreeAlarmGrp*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreateMenuUser(const View_MenuUser*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreateMenuVar(const View_MenuVar*, unsigned int)
{
    return -1;
}

int ViewManage::View_MenuPopupDropdownBox(unsigned int)
{
    return -1;
}
