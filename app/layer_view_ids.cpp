// Exports: identifier and option helpers.
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
    static const char* const paths[] = { "disk/tmp/", "disk/hmi/", "disk/sd/", "disk/usb1/", "disk/usb2/" };
    return storeNo < 5 ? paths[storeNo] : "";
}
