// The file dialog, and the dialogs about project packages on removable storage with the release of
// a medium; the package dialogs and the storage watcher live in UsbPackageState.
#include "views/viewmanage.h"

#include "platform/guiqtadaptcore.h"
#include "views/qmlwindowmanage.h"
#include "views/usbpackagestate.h"

using GuiQtAdapt::Core;

int ViewManage::View_ExtDevEject(int storeNo)
{
    return m_usbPackages->eject(storeNo);
}

int ViewManage::View_PopupExtDevPlugin(unsigned int id, int storeNo)
{
    return m_usbPackages->plugged(id, storeNo) ? 0 : -1;
}

int ViewManage::View_PopupFileDialog(unsigned int id, const char* path)
{
    // id is the window the dialog belongs to; its 770 carries it
    return m_windowManage->popupFileDialog(id, Core::fromUtf8(path)) ? 0 : -1;
}

int ViewManage::View_PopupPKGDownloadCfm(unsigned int id, int storeNo, const char* path)
{
    return m_usbPackages->confirm(id, storeNo, Core::fromUtf8(path)) ? 0 : -1;
}

int ViewManage::View_PopupPKGFileExplorer(unsigned int id, int storeNo)
{
    return m_usbPackages->explore(id, storeNo) ? 0 : -1;
}
