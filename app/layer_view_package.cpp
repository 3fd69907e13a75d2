// Exports: project packages, external devices and the file dialog.
// Each export writes one log line and forwards to its ViewManage method (views/viewmanage_package.cpp).
#include "app/layerlog.h"

#include <qgui/view.h>

int View_ExtDevEject(int storeNo)
{
    return QGUI_FORWARD(info, nullptr, View_ExtDevEject, storeNo);
}

int View_PopupExtDevPlugin(unsigned int id, int storeNo)
{
    return QGUI_FORWARD(info, "id", View_PopupExtDevPlugin, id, storeNo);
}

int View_PopupFileDialog(unsigned int id, const char* path)
{
    return QGUI_FORWARD(info, "id", View_PopupFileDialog, id, path);
}

int View_PopupPKGDownloadCfm(unsigned int id, int storeNo, const char* path)
{
    return QGUI_FORWARD(info, "id", View_PopupPKGDownloadCfm, id, storeNo, path);
}

int View_PopupPKGFileExplorer(unsigned int id, int storeNo)
{
    return QGUI_FORWARD(info, "id", View_PopupPKGFileExplorer, id, storeNo);
}
