// The demo's screens and cyclic script. Everything here runs on the GUI
// thread, inside the library's call-backs.
#include "demologic.h"

#include "entryscreen.h"
#include "ftpupload.h"
#include "recipescreen.h"
#include "menuscreen.h"
#include "operatortouch.h"
#include "manualscreen.h"
#include "processscreen.h"
#include "storagescreen.h"
#include "trendscreen.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>
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
const unsigned kEntry = (kDesk << 16) | 4; // the entry screen (entryscreen.cpp)
const int kEntryFrom = 122, kEntryEvery = 5; // its script: one step every half second from 7.6 s
int g_entryStep = 0;
bool g_entryDone = false;
const unsigned kRecipes = (kDesk << 16) | 5; // the recipe screen (recipescreen.cpp)
const unsigned kTrend = (kDesk << 16) | 6; // the trend screen (trendscreen.cpp)
const int kTrendFrom = 240; // its script: a step every 300 ms from 24 s
const unsigned kProcess = (kDesk << 16) | 7; // the process screen (processscreen.cpp)
const int kProcessFrom = 298; // its script: a step every 300 ms from 29.8 s
const unsigned kManual = (kDesk << 16) | 8; // the manual screen (manualscreen.cpp)
const int kManualFrom = 340; // its script: a step every 300 ms from 34 s
int g_processStep = 0;
bool g_processDone = false;
int g_manualStep = 0;
bool g_manualDone = false;
int g_storageStep = 0;
bool g_storageDone = false;
int g_trendStep = 0;
bool g_trendDone = false;
int g_recipeStep = 0;
bool g_recipeDone = false;
unsigned g_current = 0;

// widget ids of window 1
const unsigned kTitle = 100, kCarousel = 101, kStart = 110, kGrey = 111, kDisabled = 112, kPicture = 113,
               kQr = 120, kClock = 102;
bool g_window1Built = false;
int g_batch = 41;

// the alarm list of window 1: the newest alarm first, coloured by severity
const unsigned kAlarms = 130;
// the same alarms on two alarm bars: a table bar scrolling up, a marquee running left
const unsigned kAlarmBar = 131, kAlarmLine = 132;
struct Alarm {
    std::string time, severity, text;
};
std::vector<Alarm> g_alarms;
int g_alarmCount = 0;

void showAlarms()
{
    std::vector<std::vector<View_ListColData>> page;
    for (auto it = g_alarms.rbegin(); it != g_alarms.rend(); ++it) {
        const bool high = it->severity == "High";
        const bool medium = it->severity == "Medium";
        const unsigned back = high ? 0xFFFFCDD2u : medium ? 0xFFFFF3C4u : 0;
        const unsigned ink = high ? 0xFFB71C1Cu : 0;
        page.push_back({ { it->time.c_str(), nullptr, nullptr, ink, back },
            { it->severity.c_str(), nullptr, nullptr, ink, back }, { it->text.c_str(), nullptr, nullptr, ink, back } });
    }
    View_ChangeListCtrlContent(kAlarms, page);

    // the bars show the ten newest: time of day, and the alarm (its severity in the marquee's colours)
    std::vector<std::vector<View_ListColData>> bar, line;
    static std::vector<std::string> times;
    times.clear();
    times.reserve(10);
    int n = 0;
    for (auto it = g_alarms.rbegin(); it != g_alarms.rend() && n < 10; ++it, ++n) {
        const bool high = it->severity == "High";
        const unsigned ink = high ? 0xFFB71C1Cu : it->severity == "Medium" ? 0xFF8D6E00u : 0xFF1C2733u;
        times.push_back(it->time.substr(11));
        bar.push_back({ { times.back().c_str(), nullptr, nullptr, ink, 0 }, { it->text.c_str(), nullptr, nullptr, ink, 0 } });
        line.push_back({ { times.back().c_str(), nullptr, nullptr, 0xFFFFFFFFu, high ? 0xFFB71C1Cu : 0xFF37474Fu },
            { it->text.c_str(), nullptr, nullptr, 0xFFFFFFFFu, high ? 0xFFB71C1Cu : 0xFF37474Fu } });
    }
    View_ChangeListCtrlContent(kAlarmBar, bar);
    View_ChangeListCtrlContent(kAlarmLine, line);
}

void raiseAlarm(int n)
{
    static const char* const severities[] = { "Low", "Medium", "High" };
    static const char* const texts[] = { "Filler nozzle 3 pressure low", "Capper torque above limit",
        "Conveyor 2 stopped", "Labeller out of labels", "Tank 1 level high", "二号输送带停止" };
    char time[32];
    std::snprintf(time, sizeof(time), "2026-11-23 14:%02d:%02d", 5 + n / 6, (n * 10) % 60);
    g_alarms.push_back(Alarm { time, severities[(n * 7) % 3], texts[n % 6] });
    if (g_alarms.size() > 50)
        g_alarms.erase(g_alarms.begin());
    showAlarms();
}

/** "Export alarms": the alarm list as a PDF table on the USB stick, written by the library; then the
 *  file dialog opens there for the operator to see it. */
void exportAlarms()
{
    const std::string path = std::string("demo-project/") + getStorePath(STORE_USB1) + "alarms.pdf";
    const unsigned kWriter = 1;
    if (View_CreatePdfWriter(kWriter, path.c_str()) != 0) {
        std::printf("demo: cannot write %s\n", path.c_str());
        return;
    }
    std::vector<std::vector<std::string>> rows;
    for (const Alarm& a : g_alarms)
        rows.push_back({ a.time, a.severity, a.text });
    View_Write2Pdf(kWriter, { "Time", "Severity", "Alarm" }, rows, false);
    View_ClosePdfWriter(kWriter);
    std::printf("demo: %zu alarms exported to %s\n", rows.size(), path.c_str());
    View_PopupFileDialog(g_current, "disk/usb1/*.pdf");
}

Font font(int px, unsigned color, int weight = 400)
{
    Font f {};
    f.pixelSize = px;
    f.color = color;
    f.weight = weight;
    return f;
}

void text(unsigned id, Rect r, const char* s, const Font& f, unsigned align)
{
    View_TextLayout layout { align, 8, 0 };
    View_Text t { 0, r, id, s, &f, &layout };
    View_CreateText(&t, kWindow1);
}

void button(unsigned id, Rect r, const char* caption, const char* image, unsigned color)
{
    const Font f = font(22, color, 600);
    View_TextLayout layout { QGUI_ALIGN_HCENTER | QGUI_ALIGN_VCENTER, 0, 0 };
    View_ImageText b { 0, r, id, image, caption, &f, &layout };
    View_CreateButton(&b, kWindow1);
}

/** A picture for the button, written where the panel looks for project images. */
void writeButtonPicture()
{
    std::system("mkdir -p demo-project/tar/image");
    if (FILE* f = std::fopen("demo-project/tar/image/button.svg", "w")) {
        std::fputs("<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 160 56'>"
                   "<defs><linearGradient id='g' x1='0' y1='0' x2='0' y2='1'>"
                   "<stop offset='0' stop-color='#5fb65f'/><stop offset='1' "
                   "stop-color='#2e7d32'/></linearGradient></defs>"
                   "<rect x='1' y='1' width='158' height='54' rx='10' fill='url(#g)' stroke='#1b5e20' "
                   "stroke-width='2'/>"
                   "</svg>",
            f);
        std::fclose(f);
    }
    if (FILE* f = std::fopen("demo-project/tar/image/face.svg", "w")) {
        std::fputs("<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 160 56'>"
                   "<rect x='1' y='1' width='158' height='54' rx='10' fill='#3b5b7e' stroke='#9fb6cf' "
                   "stroke-width='2'/>"
                   "</svg>",
            f);
        std::fclose(f);
    }
}

void buildWindow1()
{
    if (g_window1Built) {
        // the widgets stayed cached while the window was closed: bring them back
        for (unsigned id :
            { kTitle, kCarousel, kClock, kStart, kGrey, kDisabled, kPicture, kQr, kAlarms, kAlarmBar, kAlarmLine })
            View_SetWidgetParent(id, kWindow1);
        return;
    }
    g_window1Built = true;
    text(kTitle, Rect { 24, 20, 560, 48 }, "Line 3 \xe2\x80\x93 filling station", font(34, 0xFFFFFFFFu, 700),
        QGUI_ALIGN_LEFT | QGUI_ALIGN_VCENTER);
    text(kClock, Rect { 24, 70, 560, 32 },
        "Pressure 4.2 bar \xc2\xb7 \xe5\x8e\x8b\xe5\x8a\x9b\xe6\xad\xa3\xe5\xb8\xb8", font(22, 0xFFCFD8E3u),
        QGUI_ALIGN_LEFT | QGUI_ALIGN_VCENTER);
    text(kCarousel, Rect { 24, 540, 976, 40 },
        "Notice: shift change at 14:00 \xe2\x80\x94 check the filler nozzles before restarting line 3 "
        "\xe2\x80\x94 ",
        font(24, 0xFFFFD54Fu), QGUI_ALIGN_LEFT | QGUI_ALIGN_VCENTER);
    writeButtonPicture();
    button(kStart, Rect { 24, 140, 180, 64 }, "Start", "face.svg", 0xFFFFFFFFu);
    button(kGrey, Rect { 224, 140, 180, 64 }, "Greyed", "face.svg", 0xFFFFFFFFu);
    View_SetDisableFlag(kGrey, 4);
    button(kDisabled, Rect { 24, 224, 180, 64 }, "Disabled", "face.svg", 0xFFFFFFFFu);
    View_SetDisableFlag(kDisabled, 2);
    button(kPicture, Rect { 224, 224, 180, 64 }, "Picture", "button.svg", 0xFFFFFFFFu);
    View_QRCode qr { 0, Rect { 760, 140, 220, 220 }, kQr, 1, 0xFF1C2733u, 0xFFFFFFFFu };
    View_CreateQRCode(&qr, kWindow1);
    View_UpdateQRCodeContent(kQr, "batch 0041 / line 3");

    static Font headerFont = font(18, 0xFFFFFFFFu, 600);
    static Font cellFont = font(17, 0xFF1C2733u);
    static const View_ListColumn columns[3] = {
        { "Time", 190, QGUI_ALIGN_HCENTER | QGUI_ALIGN_VCENTER, COL_DATETIME, nullptr, 0, 0 },
        { "Severity", 100, QGUI_ALIGN_HCENTER | QGUI_ALIGN_VCENTER, COL_STRING, nullptr, 0, 0 },
        { "Alarm", 0, QGUI_ALIGN_LEFT | QGUI_ALIGN_VCENTER, COL_STRING, nullptr, 0, 0 },
    };
    View_listAlarm alarms {};
    alarms.list.rect = Rect { 24, 304, 716, 182 };
    alarms.list.id = kAlarms;
    alarms.list.columns = columns;
    alarms.list.columnCount = 3;
    alarms.list.flags = LIST_SELECT_ROW | LIST_SINGLE_LINE;
    alarms.list.headerHeight = 32;
    alarms.list.rowHeight = 30;
    alarms.list.headerFont = &headerFont;
    alarms.list.contentFont = &cellFont;
    alarms.list.headerColor = 0xFF1C2733u;
    alarms.list.backColor = 0xFFFFFFFFu;
    alarms.list.altBackColor = 0xFFF1F4F8u;
    alarms.list.gridPen = Pen { 0xFFC8CFD8u, 1, PEN_SOLID };
    View_CreateListAlarm(&alarms, kWindow1);

    // the table bar beside the buttons: its rows scroll up under the titles
    static Font barFont = font(16, 0xFF1C2733u);
    static Font barHeaderFont = font(15, 0xFFFFFFFFu, 600);
    static const View_ListColumn barColumns[2] = {
        { "Time", 80, QGUI_ALIGN_HCENTER | QGUI_ALIGN_VCENTER, COL_TIME, nullptr, 0, 0 },
        { "Active alarms", 0, QGUI_ALIGN_LEFT | QGUI_ALIGN_VCENTER, COL_STRING, nullptr, 0, 0 },
    };
    View_listAlarmBar bar {};
    bar.list.rect = Rect { 424, 140, 316, 148 };
    bar.list.id = kAlarmBar;
    bar.list.columns = barColumns;
    bar.list.columnCount = 2;
    bar.list.flags = CAROUSE_DIR_TOP << CAROUSE_DIR_SHIFT;
    bar.list.headerHeight = 28;
    bar.list.rowHeight = 28;
    bar.list.headerFont = &barHeaderFont;
    bar.list.contentFont = &barFont;
    bar.list.headerColor = 0xFF1C2733u;
    bar.list.backColor = 0xFFFFFFFFu;
    bar.list.altBackColor = 0xFFF1F4F8u;
    bar.list.gridPen = Pen { 0xFFC8CFD8u, 1, PEN_SOLID };
    View_CreateListAlarmBar(&bar, kWindow1);

    // the marquee over the notice: one cell per column of every alarm, running to the left
    static Font lineFont = font(18, 0xFFFFFFFFu, 600);
    static const View_ListColumn lineColumns[2] = {
        { "Time", 0, QGUI_ALIGN_HCENTER | QGUI_ALIGN_VCENTER, COL_TIME, nullptr, 0, 0 },
        { "Alarm", 0, QGUI_ALIGN_LEFT | QGUI_ALIGN_VCENTER, COL_STRING, nullptr, 0, 0 },
    };
    View_listAlarmBar line {};
    line.list.rect = Rect { 24, 494, 976, 36 };
    line.list.id = kAlarmLine;
    line.list.columns = lineColumns;
    line.list.columnCount = 2;
    line.list.flags = (CAROUSE_DIR_LEFT << CAROUSE_DIR_SHIFT) | LIST_HIDE_HEADER;
    line.list.rowHeight = 36;
    line.list.contentFont = &lineFont;
    line.list.backColor = 0xFF37474Fu;
    line.colSpace = 10;
    View_CreateListAlarmBar(&line, kWindow1);
    while (g_alarmCount < 3)
        raiseAlarm(g_alarmCount++);
}

void showWindow(unsigned windowId)
{
    if (g_current && g_current != windowId)
        View_CloseWindow(g_current); // its widgets stay cached for the next visit
    View_Window w {};
    w.id = windowId;
    w.rect = Rect { 0, 0, 1024, 600 };
    w.background = windowId == kWindow1 ? Brush { BRUSH_LINEAR, 0xFF2B3A4Au, 0xFF4F6D8Au, 90 }
                                        : Brush { BRUSH_SOLID, 0xFFECEFF3u, 0, 0 };
    if (windowId == kEntry)
        w.background = Brush { BRUSH_SOLID, 0xFFE8EDF3u, 0, 0 };
    View_SwitchWindow(&w);
    g_current = windowId;
    if (windowId == kEntry)
        EntryScreen::build(kEntry);
    if (windowId == kRecipes)
        RecipeScreen::build(kRecipes);
    if (windowId == kTrend)
        TrendScreen::build(kTrend);
    if (windowId == kProcess) {
        ProcessScreen::build(kProcess);
        FtpUpload::build(kProcess);
    }
    if (windowId == kManual)
        ManualScreen::build(kManual);
    if (windowId == kWindow1)
        buildWindow1();
    if (windowId == kWindow2) {
        // a camera view is not available on this panel: its placeholder shows where it belongs
        View_CameraIP cam {};
        cam.rect = Rect { 620, 60, 360, 240 };
        cam.id = 900;
        View_CreateCameraIP(&cam, kWindow2);
        MenuScreen::build(kWindow2); // the menu screen (menuscreen.cpp) shares window 2
    }
}

void openPopup()
{
    View_Window w {};
    w.id = kPopup;
    w.rect = Rect { 262, 150, 500, 300 };
    w.background = Brush { BRUSH_SOLID, 0xFFFFFFFFu, 0, 0 };
    w.border = Pen { 0xFF2B3A4Au, 2, PEN_SOLID };
    w.title = "Settings";
    View_Popup p {};
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
    case EVT_PRESS:
        return "panel press";
    case EVT_WIDGET_PRESS:
        return "widget pressed";
    case EVT_WIDGET_RELEASE:
        return "widget released";
    case EVT_POPUP_CLOSE:
        return "popup close button";
    case EVT_POPUP_TITLE_PRESS:
        return "popup title pressed";
    case EVT_KEY_PRESS:
        return "key pressed";
    case EVT_KEY_RELEASE:
        return "key released";
    case EVT_VKB_ENTER:
        return "keyboard entry";
    case EVT_VKB_HIDE:
        return "keyboard hidden";
    case EVT_SCREENSHOT:
        return "screenshot";
    case EVT_PINYIN_SELECT:
        return "candidate chosen";
    case EVT_PINYIN_NEXT_PAGE:
    case EVT_PINYIN_PREV_PAGE:
        return "candidate page";
    case EVT_DATETIME_OK:
        return "date/time chosen";
    case EVT_FTP_STATE:
        return "ftp state";
    case EVT_FTP_RESULT:
        return "ftp result";
    default:
        return "event";
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
        } else if (code == EVT_VKB_ENTER || code == EVT_DATETIME_OK || code == EVT_FILE_DIALOG) {
            std::printf(" text \"%s\"", static_cast<const char*>(data));
        } else if (code == EVT_PINYIN_SELECT) {
            std::printf(" index %d", *static_cast<int*>(data));
        }
    }
    std::printf("\n");
    std::fflush(stdout);
    if (FtpUpload::onEvent(id, code, data))
        return 0;
    if (EntryScreen::onEvent(id, code, data) || RecipeScreen::onEvent(id, code, data)
        || TrendScreen::onEvent(id, code, data) || ProcessScreen::onEvent(id, code, data)
        || ManualScreen::onEvent(id, code, data) || StorageScreen::onEvent(id, code, data))
        return 0;
    if (MenuScreen::onEvent(id, code, data))
        return 0;
    if (code == EVT_POPUP_CLOSE && id == kPopup)
        closePopup(); // the close button only reports: closing is the logic layer's decision
    if (id == kStart && (code == EVT_WIDGET_PRESS || code == EVT_WIDGET_RELEASE)) {
        // the button keeps no state: the logic layer writes what it shows
        const bool pressed = code == EVT_WIDGET_PRESS;
        const Font f = font(22, pressed ? 0xFFFFEB3Bu : 0xFFFFFFFFu, 600);
        View_TextLayout layout { QGUI_ALIGN_HCENTER | QGUI_ALIGN_VCENTER, 0, 0 };
        View_ImageText b { 0, Rect { 24, 140, 180, 64 }, kStart, nullptr, pressed ? "Running" : "Start", &f,
            &layout };
        View_ChangeButtonParam(kStart, &b); // always -1 by design: not a failure
    }
    return 0;
}

void screenshot(const char* step)
{
    if (g_settings.screenshotDir.empty())
        return;
    const std::string path = g_settings.screenshotDir + "/panel-" + step + ".png";
    View_ScreenShotData data {};
    data.mode = SCREENSHOT_GRAB;
    data.windowId = 0; // the whole panel
    data.path = path.c_str();
    View_ScreenShot(++g_shots, &data);
}

int onDeviceInit(unsigned deviceNo, const char*, const char*, const unsigned* words)
{
    std::printf(
        "demo: device %u initialising, option words %u,%u,%u\n", deviceNo, words[0], words[1], words[2]);
    View_CreateDesktop(Size { 1024, 600 }, kDesk);
    if (!ManualScreen::writeManual()) // the line's manual, read on the manual screen
        std::printf("demo: cannot write the manual\n");
    FtpUpload::start(); // the exported alarms are uploaded to the panel's FTP server later
    showWindow(kWindow1);
    return 0;
}

int onStart()
{
    std::printf("demo: panel starting\n");
    return 0;
}

void every10ms()
{
    static int calls = 0;
    if (g_current == kWindow1) {
        View_CarouselText(kCarousel, -2, 0); // the notice scrolls to the left, 2 px per 10 ms
        View_CarouselText(kAlarmLine, -1, 0); // the alarm marquee, 1 px per 10 ms
        if (++calls % 4 == 0)
            View_CarouselText(kAlarmBar, 0, -1); // the table bar, 1 px per 40 ms
    }
}

void every100ms(int)
{
    ++g_ticks100;
    if (g_ticks100 == 1)
        TrendScreen::start();
    TrendScreen::sample(); // the history grows from the start, the chart shows it once built
    if (g_current == kProcess)
        ProcessScreen::cycle();
    // the demo's script, one step every half second or so
    switch (g_ticks100) {
    case 10:
        screenshot("1-window1");
        break;
    case 15:
        showWindow(kWindow2);
        break;
    case 20:
        screenshot("2-window2");
        break;
    case 21:
    case 22:
    case 23:
    case 24: {
        const bool more = MenuScreen::scriptStep(g_ticks100 - 21, screenshot);
        (void)more;
        break;
    }
    case 25:
        openPopup();
        break;
    case 30:
        screenshot("3-popup");
        break;
    case 40:
        closePopup();
        break; // nobody pressed its close button: close it anyway
    case 42:
        View_PopupMsg("Batch 42 finished: 1,250 parts", 2); // gone before the recipe screen is touched
        break;
    case 45:
        screenshot("4-message");
        break;
    case 48:
        View_SetLight(40);
        break; // dimmed: the next touch only wakes the panel
    case 50:
        screenshot("5-dimmed");
        break;
    case 55:
        View_SetLight(100);
        break;
    case 8: { // the operator presses Start (simulated when nobody is at the panel)
        ErrRet r = onEvent(kStart, EVT_WIDGET_PRESS, nullptr);
        (void)r;
        break;
    }
    case 9:
        screenshot("0-texts-buttons");
        break;
    case 12: {
        ErrRet r = onEvent(kStart, EVT_WIDGET_RELEASE, nullptr);
        (void)r;
        break;
    }
    default:
        if (g_ticks100 % 10 == 0 && g_window1Built) // an alarm every second: the list grows
            raiseAlarm(g_alarmCount++);
        if (g_ticks100 % 30 == 0) { // a new batch every 3 s: the QR code follows
            char qr[64];
            std::snprintf(qr, sizeof(qr), "batch %04d / line 3", ++g_batch);
            View_UpdateQRCodeContent(kQr, qr); // ignored while window 1 is closed
        }
        if (g_ticks100 == 58)
            showWindow(kRecipes);
        if (g_current == kRecipes && !g_recipeDone && g_ticks100 % 3 == 0) // touches 300 ms apart
            g_recipeDone = !RecipeScreen::scriptStep(g_recipeStep++, screenshot);
        if (g_ticks100 == 120)
            showWindow(kEntry);
        if (!g_entryDone && g_ticks100 >= kEntryFrom && (g_ticks100 - kEntryFrom) % kEntryEvery == 0)
            g_entryDone = !EntryScreen::scriptStep(g_entryStep++, screenshot);
        if (g_entryDone && g_ticks100 % 30 == 0 && g_ticks100 < kTrendFrom - 10)
            showWindow(g_current == kWindow1 ? kWindow2 : kWindow1);
        if (g_ticks100 == kTrendFrom - 5)
            showWindow(kTrend);
        if (!g_trendDone && g_ticks100 >= kTrendFrom && (g_ticks100 - kTrendFrom) % 3 == 0)
            g_trendDone = !TrendScreen::scriptStep(g_trendStep++, screenshot);
        if (g_ticks100 == kProcessFrom - 5)
            showWindow(kProcess);
        if (!g_processDone && g_ticks100 >= kProcessFrom && (g_ticks100 - kProcessFrom) % 3 == 0)
            g_processDone = !ProcessScreen::scriptStep(g_processStep++, screenshot);
        if (g_ticks100 == kProcessFrom + 26) // the operator exports the alarms: the file dialog shows the file
            exportAlarms();
        if (g_ticks100 == kProcessFrom + 30)
            screenshot("29-alarms-exported");
        if (g_ticks100 == kProcessFrom + 32) // and chooses it: it goes to the FTP server too
            OperatorTouch::touchItem("fileRow0");
        if (g_ticks100 == kProcessFrom + 36)
            screenshot("29-alarms-uploaded");
        if (g_ticks100 == kManualFrom - 4)
            showWindow(kManual);
        if (!g_manualDone && g_ticks100 >= kManualFrom && (g_ticks100 - kManualFrom) % 3 == 0)
            g_manualDone = !ManualScreen::scriptStep(g_manualStep++, screenshot);
        if (g_manualDone && !g_storageDone && g_ticks100 % 3 == 0) // then a USB stick arrives
            g_storageDone = !StorageScreen::scriptStep(kManual, g_storageStep++, screenshot);
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
    _Main_CallBacks cb {};
    cb.event = onEvent;
    cb.deviceInit = onDeviceInit;
    cb.start = onStart;
    cb.cycle10ms = every10ms;
    cb.cycle100ms = every100ms;
    return cb;
}

} // namespace DemoLogic
