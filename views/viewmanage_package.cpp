// The file dialog; project packages and external devices are not built yet: their calls are accepted and
// change nothing, returning what they return for an unknown id.
#include "views/viewmanage.h"

#include "platform/guiqtadaptcore.h"
#include "views/qmlwindowmanage.h"

int ViewManage::View_ExtDevEject(int)
{
    return -1;
}

int ViewManage::View_PopupExtDevPlugin(unsigned int, int)
{
    return -1;
}

int ViewManage::View_PopupFileDialog(unsigned int id, const char* path)
{
    // id is the window the dialog belongs to; its 770 carries it
    return m_windowManage->popupFileDialog(id, GuiQtAdapt::Core::fromUtf8(path)) ? 0 : -1;
}

int ViewManage::View_PopupPKGDownloadCfm(unsigned int, int, const char*)
{
    return -1;
}

int ViewManage::View_PopupPKGFileExplorer(unsigned int, int)
{
    return -1;
}
