// Exports: configuration.
// Each export writes one log line and forwards to its ViewManage method (views/viewmanage_config.cpp).
#include "app/layerlog.h"
#include "config/globalconfig.h"

#include <qgui/view.h>

int View_SetGlobalConfigue(View_GlobalConfig* config)
{
    return QGUI_FORWARD(info, nullptr, View_SetGlobalConfigue, config);
}

int View_SetInterfaceConfigue(View_InterfaceConfigue* config)
{
    return QGUI_FORWARD(info, nullptr, View_SetInterfaceConfigue, config);
}

int View_SetSysWndLang(unsigned int lang)
{
    QGUI_LAYER_LOG("");
    if (!GuiThreadGuard::allows(__func__))
        return -1;
    GlobalConfig::getInstance()->setLocale(lang);
    return 0;
}
