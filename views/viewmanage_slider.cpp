// Sliders: not built yet. Every call is accepted and changes nothing: the
// creators create nothing and return -1 (as for an unknown window); the other
// calls return what they return for an unknown id.
#include "views/viewmanage.h"

int ViewManage::View_ChangeSliderLabels(unsigned int, const std::vector<std::string>&)
{
    return -1;
}

int ViewManage::View_ChangeSliderPos(unsigned int, double)
{
    return -1;
}

int ViewManage::View_CreateSlider(const View_Slider*, unsigned int)
{
    return -1;
}
