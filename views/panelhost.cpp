#include "views/panelhost.h"

namespace {
PanelHost* g_host = nullptr; // GUI thread only
}

PanelHost* PanelHost::getInstance()
{
    return g_host;
}

void PanelHost::install(PanelHost* host)
{
    g_host = host;
}

void PanelHost::uninstall(PanelHost* host)
{
    if (g_host == host)
        g_host = nullptr;
}
