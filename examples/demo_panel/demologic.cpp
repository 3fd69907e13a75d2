// The demo's screens and cyclic script. Everything here runs on the GUI
// thread, inside the library's call-backs.
#include "demologic.h"

#include <csignal>
#include <cstdio>
#include <string>
#include <unistd.h>

namespace DemoLogic {

namespace {
Settings g_settings;
int g_ticks100 = 0; // 100 ms ticks since the event loop started
int g_shots = 0;

const char* eventName(int code)
{
    switch (code) {
    case EVT_PRESS: return "panel press";
    case EVT_WIDGET_PRESS: return "widget pressed";
    case EVT_WIDGET_RELEASE: return "widget released";
    case EVT_POPUP_CLOSE: return "popup close button";
    case EVT_POPUP_TITLE_PRESS: return "popup title pressed";
    case EVT_KEY_PRESS: return "key pressed";
    case EVT_KEY_RELEASE: return "key released";
    case EVT_VKB_ENTER: return "keyboard entry";
    case EVT_VKB_HIDE: return "keyboard hidden";
    case EVT_SCREENSHOT: return "screenshot";
    default: return "event";
    }
}

ErrRet onEvent(unsigned id, int code, void* data)
{
    std::printf("demo: %s (code %d) id %u", eventName(code), code, id);
    if (data) {
        if (code == EVT_PRESS) {
            auto* p = static_cast<View_EvtPoint*>(data);
            std::printf(" at %d,%d", p->x, p->y);
        } else if (code == EVT_KEY_PRESS || code == EVT_KEY_RELEASE) {
            std::printf(" key %d", *static_cast<int*>(data));
        } else if (code == EVT_SCREENSHOT) {
            auto* s = static_cast<View_EvtScreenShot*>(data);
            std::printf(" result %d file %s", s->result, s->path ? s->path : "");
        } else if (code == EVT_VKB_ENTER) {
            std::printf(" text \"%s\"", static_cast<const char*>(data));
        }
    }
    std::printf("\n");
    std::fflush(stdout);
    return 0;
}

void screenshot(const char* step)
{
    if (g_settings.screenshotDir.empty())
        return;
    const std::string path = g_settings.screenshotDir + "/panel-" + step + ".png";
    View_ScreenShotData data{};
    data.mode = SCREENSHOT_GRAB;
    data.windowId = 0; // the whole panel
    data.path = path.c_str();
    View_ScreenShot(++g_shots, &data);
}

int onDeviceInit(unsigned deviceNo, const char*, const char*, const unsigned* words)
{
    std::printf("demo: device %u initialising, option words %u,%u,%u\n", deviceNo, words[0], words[1], words[2]);
    return 0;
}

int onStart()
{
    std::printf("demo: panel starting\n");
    return 0;
}

void every10ms() {}

void every100ms(int)
{
    ++g_ticks100;
    if (g_ticks100 == 10)
        screenshot("start");
    if (g_settings.quitAfterMs > 0 && g_ticks100 * 100 >= g_settings.quitAfterMs)
        ::kill(::getpid(), SIGTERM); // the library quits cleanly on SIGTERM
}
} // namespace

void configure(const Settings& s)
{
    g_settings = s;
}

_Main_CallBacks callBacks()
{
    _Main_CallBacks cb{};
    cb.event = onEvent;
    cb.deviceInit = onDeviceInit;
    cb.start = onStart;
    cb.cycle10ms = every10ms;
    cb.cycle100ms = every100ms;
    return cb;
}

} // namespace DemoLogic
