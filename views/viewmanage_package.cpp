// Project packages, external devices and the file dialog: not built yet. Every call is accepted and changes
// nothing: the creators create nothing and return -1 (as for an unknown window); the other calls return what
// they return for an unknown id.
#include "views/viewmanage.h"

int ViewManage::View_ExtDevEject(int)
{
    return -1;
}

int ViewManage::View_PopupExtDevPlugin(unsigned int, int)
{
    return -1;
}

int ViewManage::View_PopupFileDialog(unsigned int, const char*)
{
    return -1;
}

int ViewManage::View_PopupPKGDownloadCfm(unsigned int, int, const char*)
{
    return -1;
}

int ViewManage::View_PopupPKGFileExplorer(unsigned int, int)
{
    return -1;
}
