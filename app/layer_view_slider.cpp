// Exports: sliders.
// Each export writes one log line and forwards to its ViewManage method (views/viewmanage_slider.cpp).
#include "app/layerlog.h"

#include <qgui/view.h>

int View_ChangeSliderLabels(unsigned int id, const std::vector<std::string>& labels)
{
    return QGUI_FORWARD(trace, "id", View_ChangeSliderLabels, id, labels);
}

int View_ChangeSliderPos(unsigned int id, double value)
{
    return QGUI_FORWARD(trace, "id", View_ChangeSliderPos, id, value);
}

int View_CreateSlider(const View_Slider* rec, unsigned int windowId)
{
    return QGUI_CREATE("滑块元件", View_CreateSlider, rec, windowId);
}
