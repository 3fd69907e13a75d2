// Configuration: the global and interface configuration records.
#include "views/viewmanage.h"

#include "config/globalconfig.h"

int ViewManage::View_SetGlobalConfigue(View_GlobalConfig* cfg)
{
    return GlobalConfig::getInstance()->setGlobalConfigue(cfg);
}

int ViewManage::View_SetInterfaceConfigue(View_InterfaceConfigue* cfg)
{
    return GlobalConfig::getInstance()->setInterfaceConfigue(cfg);
}
