// Date and time fields and dialogs: not built yet. Every call is accepted and changes nothing: the
// creators create nothing and return -1 (as for an unknown window); the other
// calls return what they return for an unknown id.
#include "views/viewmanage.h"

int ViewManage::View_CreateInputClock(const View_InputClock*, unsigned int)
{
    return -1;
}

int ViewManage::View_PopupDateTimeDialog(unsigned int, const char*)
{
    return 0;
}
