// Text and numeric input fields: not built yet. Every call is accepted and changes nothing: the
// creators create nothing and return -1 (as for an unknown window); the other
// calls return what they return for an unknown id.
#include "views/viewmanage.h"

int ViewManage::View_ChangeInputParam(unsigned int, const View_Input*)
{
    return -1;
}

int ViewManage::View_CreateInputText(const View_Input*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreateNumInputText(const View_Input*, unsigned int)
{
    return -1;
}

int ViewManage::View_SetTextCursorFocus(unsigned int)
{
    return 0;
}

int ViewManage::View_SetTextCursorPosition(unsigned int, unsigned int)
{
    return -1;
}

int ViewManage::View_SetTextSelectCursor(unsigned int, unsigned int, unsigned int)
{
    return 0;
}
