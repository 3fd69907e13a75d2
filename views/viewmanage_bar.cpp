// Bar graphs: not built yet. Every call is accepted and changes nothing: the
// creators create nothing and return -1 (as for an unknown window); the other
// calls return what they return for an unknown id.
#include "views/viewmanage.h"

int ViewManage::View_BarUpdateOrigin(unsigned int, unsigned char)
{
    return -1;
}

int ViewManage::View_BarUpdateScaleLabels(unsigned int, const std::vector<std::string>&)
{
    return -1;
}

int ViewManage::View_BarUpdateTarget(unsigned int, unsigned char, unsigned char)
{
    return -1;
}

int ViewManage::View_BarUpdateVar(unsigned int, unsigned char, const char*, const Brush&)
{
    return -1;
}

int ViewManage::View_CreateBar(const View_Bar*, unsigned int)
{
    return -1;
}
