// Exports: HMI connection and system settings: accepted without effect.
#include "app/layerlog.h"

#include <qgui/view.h>

int View_HmiConnectResponse()
{
    QGUI_LAYER_LOG("");
    return -1; // accepted, without effect
}

int View_HmiDisConnect()
{
    QGUI_LAYER_LOG("");
    return -1; // accepted, without effect
}

int View_PopupSystemSet()
{
    QGUI_LAYER_LOG("");
    return -1; // accepted, without effect
}
