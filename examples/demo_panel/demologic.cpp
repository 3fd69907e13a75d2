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

bool g_popupOpen = false;
const unsigned kDesk = 1;
const unsigned kWindow1 = (kDesk << 16) | 1; // window ids: desktop number in the high 16 bits
const unsigned kWindow2 = (kDesk << 16) | 2;
const unsigned kPopup = (kDesk << 16) | 3;
unsigned g_current = 0;

void showWindow(unsigned windowId)
{
    if (g_current && g_current != windowId)
        View_CloseWindow(g_current); // its widgets stay cached for the next visit
    View_Window w{};
    w.id = windowId;
    w.rect = Rect{0, 0, 1024, 600};
    w.background = windowId == kWindow1 ? Brush{BRUSH_LINEAR, 0xFF2B3A4Au, 0xFF4F6D8Au, 90}
                                        : Brush{BRUSH_SOLID, 0xFFECEFF3u, 0, 0};
    View_SwitchWindow(&w);
    g_current = windowId;
    if (windowId == kWindow2) {
        // a camera view is not available on this panel: its placeholder shows where it belongs
        View_CameraIP cam{};
        cam.rect = Rect{620, 60, 360, 240};
        cam.id = 900;
        View_CreateCameraIP(&cam, kWindow2);
    }
}

void openPopup()
{
    View_Window w{};
    w.id = kPopup;
    w.rect = Rect{262, 150, 500, 300};
    w.background = Brush{BRUSH_SOLID, 0xFFFFFFFFu, 0, 0};
    w.border = Pen{0xFF2B3A4Au, 2, PEN_SOLID};
    w.title = "Settings";
    View_Popup p{};
    p.z = 10;
    p.modal = 1;
    p.movable = 1;
    p.buttons = POPUP_BUTTON_CLOSE;
    p.titleHeight = 44;
    View_PopupWindow(&w, kPopup, &p, 0);
    g_popupOpen = true;
}

void closePopup()
{
    if (g_popupOpen)
        View_CloseWindow(kPopup);
    g_popupOpen = false;
}

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
    if (code == EVT_POPUP_CLOSE && id == kPopup)
        closePopup(); // the close button only reports: closing is the logic layer's decision
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
    View_CreateDesktop(Size{1024, 600}, kDesk);
    showWindow(kWindow1);
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
    // the demo's script, one step every half second or so
    switch (g_ticks100) {
    case 10: screenshot("1-window1"); break;
    case 15: showWindow(kWindow2); break;
    case 20: screenshot("2-window2"); break;
    case 25: openPopup(); break;
    case 30: screenshot("3-popup"); break;
    case 40: closePopup(); break; // nobody pressed its close button: close it anyway
    case 42: View_PopupMsg("Batch 42 finished: 1,250 parts", 4); break;
    case 45: screenshot("4-message"); break;
    case 48: View_SetLight(40); break; // dimmed: the next touch only wakes the panel
    case 50: screenshot("5-dimmed"); break;
    case 55: View_SetLight(100); break;
    default:
        if (g_ticks100 > 55 && g_ticks100 % 30 == 0)
            showWindow(g_current == kWindow1 ? kWindow2 : kWindow1);
        break;
    }
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
