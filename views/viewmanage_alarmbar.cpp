// Alarm bars: not built yet. Every call is accepted and changes nothing: the
// creators create nothing and return -1 (as for an unknown window); the other
// calls return what they return for an unknown id.
#include "views/viewmanage.h"

int ViewManage::View_CreateListAlarmBar(const View_listAlarmBar*, unsigned int)
{
    return -1;
}
