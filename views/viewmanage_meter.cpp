// Meters: not built yet. Every call is accepted and changes nothing: the
// creators create nothing and return -1 (as for an unknown window); the other
// calls return what they return for an unknown id.
#include "views/viewmanage.h"

int ViewManage::View_CreateGroupMeter()
{
    return -1;
}

int ViewManage::View_CreateMeter(const View_Meter*, unsigned int)
{
    return -1;
}

int ViewManage::View_MeterUpdateAlarmRange(unsigned int, int, int)
{
    return -1;
}

int ViewManage::View_MeterUpdateScaleLabels(unsigned int, const std::vector<std::string>&)
{
    return -1;
}

int ViewManage::View_MeterUpdateVal(unsigned int, int)
{
    return -1;
}
