#include "processscreen.h"

#include "operatortouch.h"

#include <cmath>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <string>
#include <sys/stat.h>

namespace ProcessScreen {

namespace {

const unsigned kTank = 800, kTankScale = 801, kLevelText = 802, kPipe = 803, kPumpGroup = 804, kPumpBody = 805,
               kImpeller = 806, kPumpButton = 807, kMeter = 808, kBars = 809, kSlider = 810, kSpeedText = 811,
               kValve = 812, kReturnPipe = 813, kTitle = 814, kFrame = 815;

bool g_built = false;
bool g_pumpOn = true;
double g_level = 35; // percent
double g_speed = 60; // percent of the pump's speed
int g_angle = 0; // the impeller's turn, degrees
int g_ticks = 0;

Font g_label { nullptr, 16, 400, 0, 0, 0, 0, 0xFF2B3A4Au, 0 };
Font g_small { nullptr, 12, 400, 0, 0, 0, 0, 0xFF33414Fu, 0 };
Font g_value { nullptr, 22, 700, 0, 0, 0, 0, 0xFF1F5FAFu, 0 };

/** Writes the screen's pictures into the project's image folder (once): the valve, so that the
 *  image widget shows a real file, and the face of the pump button. */
void writePictures()
{
    static bool written = false;
    if (written)
        return;
    written = true;
    ::mkdir("demo-project", 0755);
    ::mkdir("demo-project/tar", 0755);
    ::mkdir("demo-project/tar/image", 0755);
    {
        std::ofstream svg("demo-project/tar/image/valve.svg");
        svg << "<svg xmlns='http://www.w3.org/2000/svg' width='120' height='120' viewBox='0 0 120 120'>"
               "<rect x='54' y='10' width='12' height='40' fill='#4a5561'/>"
               "<rect x='30' y='4' width='60' height='12' rx='6' fill='#d03a2f'/>"
               "<polygon points='10,40 60,70 10,100' fill='#8a98a8' stroke='#33414f' stroke-width='3'/>"
               "<polygon points='110,40 60,70 110,100' fill='#8a98a8' stroke='#33414f' stroke-width='3'/>"
               "<circle cx='60' cy='70' r='8' fill='#33414f'/></svg>";
    }
    std::ofstream face("demo-project/tar/image/pumpface.svg");
    face << "<svg xmlns='http://www.w3.org/2000/svg' width='110' height='44' viewBox='0 0 110 44'>"
            "<defs><linearGradient id='g' x1='0' y1='0' x2='0' y2='1'><stop offset='0' stop-color='#fdfefe'/>"
            "<stop offset='1' stop-color='#c9d3dd'/></linearGradient></defs>"
            "<rect x='1' y='1' width='108' height='42' rx='8' fill='url(#g)' stroke='#4a5561' stroke-width='2'/></svg>";
}

void showSpeed()
{
    char text[32];
    std::snprintf(text, sizeof(text), "Speed %.0f %%", g_speed);
    View_ChangeTextContent(kSpeedText, text, nullptr);
}

void switchPump(bool on)
{
    g_pumpOn = on;
    View_PipelineUpdateFlowrate(kPipe, on ? unsigned(g_speed * 1.5) : 0);
    View_PipelineUpdateFlowrate(kReturnPipe, on ? unsigned(g_speed) : 0);
    View_PipelineUpdateFlowShapeColor(kPipe, on ? 0xFFFFFFFFu : 0xFFB0B8C0u);
    View_ChangeTextContent(kPumpButton, on ? "Pump ON" : "Pump OFF", nullptr);
}

} // namespace

void build(unsigned windowId)
{
    if (g_built) {
        for (unsigned id : { kFrame, kTitle, kTank, kTankScale, kLevelText, kPipe, kReturnPipe, kPumpGroup, kPumpButton,
                 kMeter, kBars, kSlider, kSpeedText, kValve })
            View_SetWidgetParent(id, windowId);
        return;
    }
    g_built = true;
    writePictures(); // project pictures are named relative to the image folder
    // a panel frame with rounded corners behind the plant
    View_GraphRect frame { 0, Rect { 16, 56, 600, 520 }, kFrame, Pen { 0xFFB8C2CCu, 2, PEN_SOLID },
        Brush { BRUSH_LINEAR, 0xFFFFFFFFu, 0xFFF0F3F7u, 90 }, 16 };
    View_CreateGraphRect(&frame, windowId);
    View_Text title { 0, Rect { 24, 12, 600, 36 }, kTitle, "Line 3 - mixing tank", &g_value, nullptr };
    View_CreateText(&title, windowId);

    // the tank: a rounded rectangle that fills from the bottom, with its scale on the left
    View_GraphRect tank { 0, Rect { 110, 120, 160, 300 }, kTank, Pen { 0xFF33414Fu, 3, PEN_SOLID },
        Brush { BRUSH_LINEAR, 0xFFE9EEF3u, 0xFFC9D3DDu, 0 }, 18 };
    View_CreateGraphRect(&tank, windowId);
    View_GraphScale scale {};
    scale.rect = Rect { 40, 120, 64, 300 };
    scale.id = kTankScale;
    scale.pen = Pen { 0xFF33414Fu, 1, PEN_SOLID };
    scale.direction = SCALE_LABELS_LEFT;
    scale.majorCount = 5;
    scale.minorCount = 1;
    scale.majorLength = 8;
    scale.minorLength = 4;
    scale.minimum = 0;
    scale.maximum = 100;
    scale.showLabels = 1;
    scale.font = &g_small;
    View_CreateGraphScale(&scale, windowId);
    View_Text level { 0, Rect { 110, 430, 160, 30 }, kLevelText, "", &g_label, nullptr };
    View_CreateText(&level, windowId);

    // the pipe from the tank's bottom to the pump, and the return pipe over the top into the tank
    static const Point out[] = { { 10, 20 }, { 90, 20 }, { 90, 70 }, { 180, 70 } };
    View_Pipeline pipe {};
    pipe.rect = Rect { 260, 360, 200, 100 };
    pipe.id = kPipe;
    pipe.points = out;
    pipe.pointCount = 4;
    pipe.width = 22;
    pipe.pipe = Brush { BRUSH_LINEAR, 0xFF9AA5B1u, 0xFF6C7885u, 90 };
    pipe.border = Pen { 0xFF4A5561u, 1, PEN_SOLID };
    pipe.flowShape = FLOW_ARROW;
    pipe.flowColor = 0xFFFFFFFFu;
    View_CreatePipeline(&pipe, windowId);
    static const Point back[] = { { 310, 325 }, { 310, 20 }, { 10, 20 }, { 10, 70 } };
    View_Pipeline ret = pipe;
    ret.rect = Rect { 180, 60, 340, 340 };
    ret.id = kReturnPipe;
    ret.points = back;
    ret.width = 14;
    ret.flowShape = FLOW_CIRCLE;
    View_CreatePipeline(&ret, windowId);

    // the pump: housing and impeller in one group, so they show, hide and go together
    View_Group group { 0, Rect { 440, 380, 110, 110 }, kPumpGroup, 0, Brush {}, Pen {} };
    View_CreateGroup(&group, windowId);
    View_GraphEllipse body { 0, Rect { 0, 0, 100, 100 }, kPumpBody, Pen { 0xFF33414Fu, 3, PEN_SOLID },
        Brush { BRUSH_RADIAL, 0xFFDDE4EBu, 0xFF9AA5B1u, 0 } };
    View_CreateGraphEllipse(&body, windowId);
    static const Point blades[] = { { 35, 0 }, { 45, 30 }, { 70, 35 }, { 40, 45 }, { 35, 70 }, { 25, 40 }, { 0, 35 },
        { 30, 25 } };
    View_GraphPolygon impeller { 0, Rect { 15, 15, 70, 70 }, kImpeller, Pen { 0xFF1F5FAFu, 2, PEN_SOLID },
        Brush { BRUSH_SOLID, 0xFF5B8FD6u, 0, 0 }, blades, 8 };
    View_CreateGraphPolygon(&impeller, windowId);
    View_SetWidgetParent(kPumpBody, kPumpGroup);
    View_SetWidgetParent(kImpeller, kPumpGroup);
    View_TextLayout centred { QGUI_ALIGN_HCENTER | QGUI_ALIGN_VCENTER, 0, 0 };
    View_ImageText button { 0, Rect { 440, 500, 110, 44 }, kPumpButton, "pumpface.svg", "Pump ON", &g_label, &centred };
    View_CreateButton(&button, windowId);

    // the valve picture on the return pipe
    View_Image valve { 0, Rect { 320, 50, 60, 60 }, kValve, "valve.svg", IMAGE_FIT };
    View_CreateImage(&valve, windowId);

    // pressure meter with its alarm range
    View_Meter meter {};
    meter.rect = Rect { 650, 40, 240, 240 };
    meter.id = kMeter;
    meter.startAngle = 225;
    meter.spanAngle = -270;
    meter.minimum = 0;
    meter.maximum = 10;
    meter.dialBrush = Brush { BRUSH_RADIAL, 0xFFFFFFFFu, 0xFFDCE3EAu, 0 };
    meter.scalePen = Pen { 0xFF33414Fu, 2, PEN_SOLID };
    meter.majorCount = 10;
    meter.minorCount = 4;
    meter.font = &g_small;
    meter.needlePen = Pen { 0xFFD03A2Fu, 4, PEN_SOLID };
    meter.alarmColor = 0xFFE0A020u;
    View_CreateMeter(&meter, windowId);
    View_MeterUpdateAlarmRange(kMeter, 8, 10);

    // flow and level against the target band
    View_Bar bars {};
    bars.rect = Rect { 660, 310, 220, 190 };
    bars.id = kBars;
    bars.direction = BAR_UP;
    bars.barCount = 2;
    bars.showScale = 1;
    bars.showTarget = 1;
    bars.background = Brush { BRUSH_SOLID, 0xFFFFFFFFu, 0, 0 };
    bars.border = Pen { 0xFF8A98A8u, 1, PEN_SOLID };
    bars.scalePen = Pen { 0xFF33414Fu, 1, PEN_SOLID };
    bars.targetPen = Pen { 0xFF2E9E4Fu, 2, PEN_DASH };
    bars.majorCount = 4;
    bars.minorCount = 1;
    bars.font = &g_small;
    View_CreateBar(&bars, windowId);
    View_BarUpdateTarget(kBars, 55, 75);
    View_BarUpdateScaleLabels(kBars, { "0", "25", "50", "75", "100 %" });

    // the speed slider; the logic writes the value it reports into the text beside it
    View_Slider slider {};
    slider.rect = Rect { 640, 520, 250, 64 };
    slider.id = kSlider;
    slider.direction = BAR_RIGHT;
    slider.minimum = 0;
    slider.maximum = 100;
    slider.value = g_speed;
    slider.step = 5;
    slider.groove = Brush { BRUSH_SOLID, 0xFFC8D0D8u, 0, 0 };
    slider.handleBrush = Brush { BRUSH_SOLID, 0xFF2F6FD0u, 0, 0 };
    slider.majorCount = 4;
    slider.font = &g_small;
    View_CreateSlider(&slider, windowId);
    View_Text speed { 0, Rect { 900, 530, 120, 30 }, kSpeedText, "", &g_label, nullptr };
    View_CreateText(&speed, windowId);
    showSpeed();
    switchPump(true);
    cycle();
}

void cycle()
{
    if (!g_built)
        return;
    ++g_ticks;
    // the tank fills while the pump runs and empties slowly through the outlet
    g_level += g_pumpOn ? 0.02 * g_speed * std::sin(g_ticks / 60.0) + 0.4 : -0.6;
    g_level = std::fmin(95, std::fmax(5, g_level));
    View_FillWidget(kTank, BAR_UP, int(g_level * 10), 1000, Brush { BRUSH_LINEAR, 0xFF5B9BE0u, 0xFF1F5FAFu, 90 });
    char text[32];
    std::snprintf(text, sizeof(text), "Level %.0f %%", g_level);
    View_ChangeTextContent(kLevelText, text, nullptr);
    // the impeller turns with the speed, and swells a little at full speed
    if (g_pumpOn) {
        g_angle = (g_angle + int(g_speed / 4) + 1) % 360;
        View_RotateWidget(kImpeller, g_angle, 4);
    }
    const int side = 70 + int(g_speed / 20);
    View_ZoomWidget(kImpeller, side, side, 4);
    // pressure follows the speed; above 8 bar the needle stands in the alarm arc
    const double pressure = g_pumpOn ? 2 + g_speed / 12 + std::sin(g_ticks / 8.0) : 0.5;
    View_MeterUpdateVal(kMeter, int(std::lround(pressure)));
    char flow[16];
    std::snprintf(flow, sizeof(flow), "%.1f", g_pumpOn ? g_speed * 0.9 : 0.0);
    View_BarUpdateVar(kBars, 0, flow, Brush { BRUSH_LINEAR, 0xFF6FB0F0u, 0xFF2F6FD0u, 0 });
    std::snprintf(flow, sizeof(flow), "%.1f", g_level);
    View_BarUpdateVar(kBars, 1, flow, Brush { BRUSH_LINEAR, 0xFF8ED6A0u, 0xFF2E9E4Fu, 0 });
}

bool onEvent(unsigned id, int code, void* data)
{
    if (id == kPumpButton && code == EVT_WIDGET_RELEASE) {
        switchPump(!g_pumpOn);
        return true;
    }
    if (id == kSlider && (code == EVT_SLIDER_DRAG || code == EVT_WIDGET_RELEASE) && data) {
        std::memcpy(&g_speed, data, sizeof(double)); // the value under the operator's finger
        showSpeed();
        switchPump(g_pumpOn);
        return true;
    }
    return id >= kTank && id <= kFrame;
}

bool scriptStep(int n, void (*shot)(const char* name))
{
    switch (n) {
    case 0:
        shot("26-process");
        return true;
    case 1: // the operator drags the speed up to full
        OperatorTouch::dragWidget(kSlider, 160, 20, 250, 20);
        return true;
    case 3:
        shot("27-process-full-speed");
        return true;
    case 4: // and switches the pump off: the flow stops, the tank empties
        OperatorTouch::touchWidget(kPumpButton, 55, 22);
        return true;
    case 7:
        shot("28-process-pump-off");
        return true;
    case 2:
    case 5:
    case 6:
        return true;
    default:
        return false;
    }
}

} // namespace ProcessScreen
