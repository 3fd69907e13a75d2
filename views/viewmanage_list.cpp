// List controls (tables): not built yet. Every call is accepted and changes nothing: the
// creators create nothing and return -1 (as for an unknown window); the other
// calls return what they return for an unknown id.
#include "views/viewmanage.h"

int ViewManage::View_AddListCtrlContent(unsigned int, const std::vector<std::string>&, int)
{
    return -1;
}

int ViewManage::View_ChangeListCtrlBrowseBoxParams(unsigned int, unsigned int*)
{
    return -1;
}

int ViewManage::View_ChangeListCtrlContent(unsigned int, const std::vector<std::vector<View_ListColData>>&)
{
    return -1;
}

int ViewManage::View_ChangeListCtrlEditMode(unsigned int, int)
{
    return -1;
}

int ViewManage::View_ChangeListCtrlEnableEditCol(unsigned int, int, bool)
{
    return -1;
}

int ViewManage::View_ChangeListCtrlEnableFilter(unsigned int, bool)
{
    return -1;
}

int ViewManage::View_ChangeListCtrlFont(unsigned int, const std::vector<Font*>&)
{
    return -1;
}

int ViewManage::View_ChangeListCtrlFontColor(unsigned int, int, const Brush&)
{
    return -1;
}

int ViewManage::View_ChangeListCtrlHideCol(unsigned int, const std::list<std::pair<int, bool>>&)
{
    return -1;
}

int ViewManage::View_ChangeListCtrlRowTextVisible(unsigned int, const std::list<int>&, bool)
{
    return -1;
}

int ViewManage::View_ChangeListCtrlSel(unsigned int, int, int)
{
    return 0;
}

int ViewManage::View_ChangeListCtrlTitle(unsigned int, const std::vector<View_Text>&)
{
    return -1;
}

int ViewManage::View_CreateListAlarm(const View_listAlarm*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreateListAlarmStat(const View_listAlarmStat*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreateListComErr(const View_listComErr*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreateListCtrl(const View_List*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreateListDbView(const View_listDbView*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreateListEvent(const View_listEvent*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreateListPermission(const View_listPermission*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreateListRecipe(const View_listRecipe*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreateListSample(const View_listSample*, unsigned int)
{
    return -1;
}

int ViewManage::View_GetListCtrlContent(unsigned int, int, int, std::vector<std::string>&)
{
    return -1;
}
