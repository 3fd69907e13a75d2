// A minimal logic layer built against the installed library.
#include <qgui/qgui.h>

#include <cstdio>
#include <cstring>

int main()
{
    const bool ok = GetDeskNoFromWndId(0x00030005u) == 3 && std::strcmp(getStorePath(1), "disk/hmi/") == 0
        && IsValidStrEncode(3) && !IsValidStrEncode(4);
    std::printf("%s\n", ok ? "consumer ok" : "consumer FAILED");
    return ok ? 0 : 1;
}
