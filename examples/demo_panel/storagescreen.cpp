#include "storagescreen.h"

#include "operatortouch.h"

#include <cstdio>
#include <fstream>
#include <string>
#include <sys/stat.h>

namespace StorageScreen {

namespace {

unsigned g_window = 0;

std::string stick()
{
    return std::string("demo-project/") + getStorePath(STORE_USB2);
}

/** What a technician brings: a project package and last week's data. */
void writeStick()
{
    ::mkdir("demo-project/disk", 0755);
    ::mkdir(stick().c_str(), 0755);
    ::mkdir((stick() + "archive").c_str(), 0755);
    std::ofstream(stick() + "line3-v2.4.pkg") << std::string(180000, 'p');
    std::ofstream(stick() + "recipes-week47.zip") << std::string(42000, 'r');
    std::ofstream(stick() + "archive/line3-v2.3.pkg") << std::string(176000, 'p');
}

} // namespace

bool onEvent(unsigned id, int code, void* data)
{
    if (id != g_window || !data)
        return false;
    switch (code) {
    case EVT_USB_PKG_DOWNLOAD: {
        const auto* p = static_cast<const View_EvtUsbPackage*>(data);
        std::printf("demo: package download asked, word 0x%x source %u\n", p->word, p->source);
        return true;
    }
    case EVT_USB_PKG_BROWSE: // the operator wants to pick the package: the explorer on that storage
        View_PopupPKGFileExplorer(g_window, int(*static_cast<const U32*>(data) & 0xFFu));
        return true;
    case EVT_USB_PKG_CONFIRM:
        std::printf("demo: package confirmed: %s (the runtime would install it now)\n", static_cast<const char*>(data));
        return true;
    default:
        return false;
    }
}

bool scriptStep(unsigned windowId, int n, void (*shot)(const char* name))
{
    g_window = windowId;
    switch (n) {
    case 0: // a stick arrives in the usb2 slot
        writeStick();
        View_PopupExtDevPlugin(windowId, STORE_USB2);
        return true;
    case 2:
        shot("34-usb-stick-plugged");
        return true;
    case 3: // the operator asks to browse it
        OperatorTouch::touchItem("browseButton");
        return true;
    case 5:
        shot("35-usb-package-explorer");
        return true;
    case 6: // and touches the new package
        OperatorTouch::touchItem("packageRow1");
        return true;
    case 8:
        shot("36-usb-package-confirm");
        return true;
    case 9:
        OperatorTouch::touchItem("confirmButton");
        return true;
    case 10: // done: the stick is released
        std::printf("demo: usb2 released: %d\n", View_ExtDevEject(STORE_USB2));
        return true;
    case 1:
    case 4:
    case 7:
        return true;
    default:
        return false;
    }
}

} // namespace StorageScreen
