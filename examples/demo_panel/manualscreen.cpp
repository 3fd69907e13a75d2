#include "manualscreen.h"

#include "operatortouch.h"

#include <cstdio>
#include <string>
#include <sys/stat.h>
#include <vector>

namespace ManualScreen {

namespace {

const unsigned kView = 850, kTitle = 851, kPrevious = 852, kNext = 853, kZoomIn = 854, kFitPage = 855,
               kContinuous = 856, kPageText = 857;

bool g_built = false;
unsigned g_page = 0;
int g_pages = 0;
unsigned g_zoom = 100;

Font g_label { nullptr, 18, 600, 0, 0, 0, 0, 0xFF1C2733u, 0 };
Font g_value { nullptr, 22, 700, 0, 0, 0, 0, 0xFF1F5FAFu, 0 };

std::string manualPath()
{
    return std::string("demo-project/") + getStorePath(STORE_HMI) + "manual.pdf";
}

void showPage()
{
    char text[48];
    std::snprintf(text, sizeof(text), "Page %u of %d", g_page + 1, g_pages);
    View_ChangeTextContent(kPageText, text, nullptr);
}

void button(unsigned id, int x, const char* text, unsigned windowId)
{
    static const View_TextLayout centred { QGUI_ALIGN_HCENTER | QGUI_ALIGN_VCENTER, 0, 0 };
    View_ImageText b { 0, Rect { x, 540, 150, 50 }, id, "pumpface.svg", text, &g_label, &centred };
    View_CreateButton(&b, windowId);
}

} // namespace

bool writeManual()
{
    ::mkdir("demo-project", 0755);
    ::mkdir("demo-project/disk", 0755);
    ::mkdir("demo-project/disk/hmi", 0755);
    const unsigned kWriter = 2;
    if (View_CreatePdfWriter(kWriter, manualPath().c_str()) != 0)
        return false;
    static const char* const parts[] = { "Filler", "Capper", "Labeller", "Conveyor", "Mixing tank", "Pump" };
    static const char* const actions[] = { "Check the seal for wear", "Clean with warm water",
        "Tighten the clamp to 12 Nm", "Grease the bearing", "检查密封圈", "更换过滤网" };
    static const char* const periods[] = { "每班", "Daily", "Weekly", "Monthly" };
    std::vector<std::vector<std::string>> rows;
    for (int i = 0; i < 240; ++i)
        rows.push_back({ std::to_string(i + 1), parts[i / 40], actions[i % 6], periods[i % 4],
            "Chapter " + std::to_string(i / 40 + 1) + "." + std::to_string(i % 40 / 8 + 1) });
    View_Write2Pdf(kWriter, { "Step", "Part", "Action", "周期 / Period", "Reference" }, rows, false);
    // the spare parts as a wide table, on landscape pages
    rows.clear();
    for (int i = 0; i < 60; ++i)
        rows.push_back({ "SP-" + std::to_string(1000 + i * 7), parts[i % 6], "Seal kit, size " + std::to_string(i % 5 + 1),
            std::to_string(i % 4 + 1), "Stock room B, shelf " + std::to_string(i % 9 + 1), "备件" });
    View_Write2Pdf(kWriter, { "Part no.", "Part", "Description", "Qty", "Where", "备注" }, rows, true);
    return View_ClosePdfWriter(kWriter) == 0;
}

void build(unsigned windowId)
{
    if (g_built) {
        for (unsigned id : { kView, kTitle, kPrevious, kNext, kZoomIn, kFitPage, kContinuous, kPageText })
            View_SetWidgetParent(id, windowId);
        return;
    }
    g_built = true;
    View_Text title { 0, Rect { 24, 10, 600, 36 }, kTitle, "Line 3 - maintenance manual", &g_value, nullptr };
    View_CreateText(&title, windowId);
    View_Text page { 0, Rect { 760, 10, 240, 36 }, kPageText, "Opening...", &g_label, nullptr };
    View_CreateText(&page, windowId);
    const std::string path = manualPath();
    View_Pdf pdf {};
    pdf.rect = Rect { 16, 52, 992, 480 };
    pdf.id = kView;
    pdf.path = path.c_str();
    pdf.displayMode = PDF_FIT_WIDTH;
    pdf.zoom = 100;
    pdf.showToolBar = 1;
    View_CreatePdf(&pdf, windowId); // EVT_PDF_SOURCE follows with the page count
    button(kPrevious, 16, "Previous", windowId);
    button(kNext, 176, "Next", windowId);
    button(kZoomIn, 376, "Zoom +", windowId);
    button(kFitPage, 536, "Whole page", windowId);
    button(kContinuous, 696, "Scroll", windowId);
}

bool onEvent(unsigned id, int code, void* data)
{
    if (id == kView && code == EVT_PDF_SOURCE && data) {
        const auto* source = static_cast<const View_EvtPdfSource*>(data);
        if (source->flagCleared) {
            g_pages = source->value;
            g_page = 0;
            showPage();
        } else {
            View_ChangeTextContent(kPageText, "Manual missing", nullptr);
        }
        std::printf("demo: manual opened: %d (%s)\n", source->value, source->flagCleared ? "pages" : "error");
        return true;
    }
    if (code != EVT_WIDGET_RELEASE)
        return id >= kView && id <= kPageText;
    switch (id) {
    case kPrevious:
    case kNext: {
        const unsigned page = id == kNext ? g_page + 1 : (g_page > 0 ? g_page - 1 : 0);
        if (View_PdfSwitchPage(kView, page) == 0) // -1 beyond the last page: the page stays
            g_page = page;
        showPage();
        return true;
    }
    case kZoomIn:
        g_zoom = g_zoom >= 200 ? 100 : g_zoom + 50;
        View_PdfSetDisplayMode(kView, PDF_SINGLE_PAGE);
        View_PdfZoom(kView, g_zoom);
        return true;
    case kFitPage:
        View_PdfSetDisplayMode(kView, PDF_FIT_PAGE);
        return true;
    case kContinuous:
        View_PdfZoom(kView, 0);
        View_PdfSetDisplayMode(kView, PDF_CONTINUOUS);
        return true;
    default:
        return id >= kView && id <= kPageText;
    }
}

bool scriptStep(int n, void (*shot)(const char* name))
{
    switch (n) {
    case 0:
        shot("30-manual");
        return true;
    case 1: // two pages on with the logic layer's button
        OperatorTouch::touchWidget(kNext, 75, 25);
        return true;
    case 2:
        OperatorTouch::touchWidget(kNext, 75, 25);
        return true;
    case 3:
        OperatorTouch::touchWidget(kFitPage, 75, 25);
        return true;
    case 5:
        shot("31-manual-whole-page-3");
        return true;
    case 6: // scrolling through the pages with a finger
        OperatorTouch::touchWidget(kContinuous, 75, 25);
        return true;
    case 7:
        OperatorTouch::dragWidget(kView, 500, 400, 500, 100);
        return true;
    case 9:
        shot("32-manual-scrolled");
        return true;
    case 10:
        OperatorTouch::touchWidget(kZoomIn, 75, 25);
        return true;
    case 12:
        shot("33-manual-zoomed");
        return true;
    case 4:
    case 8:
    case 11:
        return true;
    default:
        return false;
    }
}

} // namespace ManualScreen
