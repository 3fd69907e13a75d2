// Exports: identifier and option helpers.
#include "config/projectmanage.h"

#include <qgui/ids.h>

unsigned int GetDeskNoFromWndId(unsigned int wndId)
{
    return wndId >> 16;
}

unsigned int GetTypeOfOption(unsigned int option)
{
    return option & 3u;
}

bool IsValidStrEncode(int code)
{
    return unsigned(code) <= 3u;
}

const char* getStorePath(unsigned int storeNo)
{
    return ProjectManage::storeFolder(storeNo);
}
