#include "xcomponents/qquick/xwindowlocator.h"

namespace {
XWindowLocator* g_locator = nullptr; // GUI thread only
}

XWindowLocator* XWindowLocator::getInstance()
{
    return g_locator;
}

void XWindowLocator::install(XWindowLocator* locator)
{
    g_locator = locator;
}

void XWindowLocator::uninstall(XWindowLocator* locator)
{
    if (g_locator == locator)
        g_locator = nullptr;
}
