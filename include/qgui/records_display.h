/*
 * qgui public interface: records of the display widgets (texts, buttons, images,
 * QR codes, shapes, bar, meter, slider, pipeline, groups, pie chart).
 *
 * Every widget record starts with the common header:
 *   U32 header;  opacity word (low byte: transparency in percent; byte 2 bit 0: drag-window flag of buttons)
 *   Rect rect;   position in the window and size, pixels
 *   U32 id;      widget id under which the widget is registered
 * and is passed to View_Create<Kind>(record, windowId). Angles are in degrees,
 * 0 at three o'clock, positive counter-clockwise.
 */
#ifndef QGUI_RECORDS_DISPLAY_H
#define QGUI_RECORDS_DISPLAY_H

#include "types.h"

/** Static text (View_CreateText, View_ChangeTextParam, list titles, menu entries). */
struct View_Text {
    U32 header; /**< opacity word */
    Rect rect; /**< box of the text */
    U32 id; /**< widget id */
    const char* text; /**< the text; null is empty */
    const Font* font; /**< font, line spacing and colour; null keeps / selects the default */
    const View_TextLayout* layout; /**< alignment and margins in the box; null keeps / selects the default */
};

/** Button (View_CreateButton, View_ChangeButtonParam). */
struct View_ImageText {
    U32 header; /**< opacity word; byte 2 bit 0 set: dragging the button moves its window */
    Rect rect; /**< button box */
    U32 id; /**< widget id */
    const char* image; /**< face picture path; null keeps the picture, "" hides it */
    const char* text; /**< caption */
    const Font* font; /**< caption font, line spacing and colour; null leaves caption and layout untouched */
    const View_TextLayout* layout; /**< caption alignment and margins; null leaves them untouched */
};

/** QR code (View_CreateQRCode); the content comes with View_UpdateQRCodeContent. */
struct View_QRCode {
    U32 header; /**< opacity word */
    Rect rect; /**< symbol box; the symbol is stretched to fill it */
    U32 id; /**< widget id */
    U32 ecc; /**< error correction, low two bits used: 0 low, 1 medium, 2 quartile, 3 high */
    U32 frontColor; /**< colour word of the dark modules (alpha ignored) */
    U32 backColor; /**< colour word of the light modules and border (alpha ignored) */
};

/** How an image fills its box. */
enum ImageFillMode : U32 {
    IMAGE_STRETCH = 0, /**< stretched to the box */
    IMAGE_FIT = 1, /**< scaled to fit inside, aspect ratio kept */
    IMAGE_CROP = 2, /**< scaled to cover the box, aspect ratio kept, overflow cut */
    IMAGE_TILE = 3, /**< repeated at its own size */
    IMAGE_ORIGINAL = 4 /**< at its own size, centred */
};

/** Image (View_CreateImage, View_ChangeMenuSelect). */
struct View_Image {
    U32 header; /**< opacity word */
    Rect rect; /**< image box */
    U32 id; /**< widget id */
    const char* path; /**< picture (PNG, JPEG, BMP, SVG): relative to the project's image folder, or absolute;
                           null, "" or a missing file shows nothing */
    U32 fillMode; /**< ImageFillMode; unknown values stretch */
};

/* ---- graphic shapes ---- */

/** Arc (View_CreateGraphArc): part of the ellipse inscribed in `rect`. */
struct View_GraphArc {
    U32 header; /**< opacity word */
    Rect rect; /**< bounding box of the full ellipse */
    U32 id; /**< widget id */
    Pen pen; /**< line */
    int startAngle; /**< start, degrees */
    int spanAngle; /**< extent, degrees (negative: clockwise) */
};

/** Cubic Bézier path (View_CreateGraphBezierCurve). */
struct View_GraphBezierCurve {
    U32 header; /**< opacity word */
    Rect rect; /**< bounding box; the points are relative to its top-left corner */
    U32 id; /**< widget id */
    Pen pen; /**< line */
    const Point* points; /**< start point, then three points (control, control, end) per segment */
    U32 pointCount; /**< number of points: 1 + 3 x segments; other counts ignore the surplus */
};

/** Ellipse (View_CreateGraphEllipse) inscribed in `rect`. */
struct View_GraphEllipse {
    U32 header; /**< opacity word */
    Rect rect; /**< bounding box */
    U32 id; /**< widget id */
    Pen pen; /**< outline */
    Brush brush; /**< fill */
};

/** Grid of equal cells (View_CreateGraphGrid). */
struct View_GraphGrid {
    U32 header; /**< opacity word */
    Rect rect; /**< outer box */
    U32 id; /**< widget id */
    Pen pen; /**< grid and outer lines */
    Brush brush; /**< background fill */
    int rows; /**< number of rows, 1..1000 (values outside are clamped) */
    int columns; /**< number of columns, 1..1000 (values outside are clamped) */
};

/** Pie sector (View_CreateGraphPie) of the ellipse inscribed in `rect`. */
struct View_GraphPie {
    U32 header; /**< opacity word */
    Rect rect; /**< bounding box of the full ellipse */
    U32 id; /**< widget id */
    Pen pen; /**< outline */
    Brush brush; /**< fill */
    int startAngle; /**< start, degrees */
    int spanAngle; /**< extent, degrees */
};

/** Closed polygon (View_CreateGraphPolygon). */
struct View_GraphPolygon {
    U32 header; /**< opacity word */
    Rect rect; /**< bounding box; the points are relative to its top-left corner */
    U32 id; /**< widget id */
    Pen pen; /**< outline */
    Brush brush; /**< fill */
    const Point* points; /**< vertices */
    U32 pointCount; /**< number of vertices */
};

/** Open polyline (View_CreateGraphPolyline). */
struct View_GraphPolyline {
    U32 header; /**< opacity word */
    Rect rect; /**< bounding box; the points are relative to its top-left corner */
    U32 id; /**< widget id */
    Pen pen; /**< line */
    const Point* points; /**< vertices in drawing order */
    U32 pointCount; /**< number of vertices */
};

/** Rectangle (View_CreateGraphRect). */
struct View_GraphRect {
    U32 header; /**< opacity word */
    Rect rect; /**< the rectangle */
    U32 id; /**< widget id */
    Pen pen; /**< outline */
    Brush brush; /**< fill */
    int radius; /**< corner radius in pixels, 0 for square corners; at most half the shorter side */
};

/** Where a straight scale puts its ticks and labels. */
enum ScaleDirection : U32 {
    SCALE_LABELS_BELOW = 0, /**< horizontal scale, ticks down, labels below */
    SCALE_LABELS_ABOVE = 1, /**< horizontal scale, ticks up, labels above */
    SCALE_LABELS_LEFT = 2, /**< vertical scale, ticks left, labels left */
    SCALE_LABELS_RIGHT = 3 /**< vertical scale, ticks right, labels right */
};

/** Straight scale with ticks and number labels (View_CreateGraphScale). */
struct View_GraphScale {
    U32 header; /**< opacity word */
    Rect rect; /**< scale box */
    U32 id; /**< widget id */
    Pen pen; /**< base line and ticks */
    U32 direction; /**< ScaleDirection */
    int majorCount; /**< major divisions (labels at both ends and between), 1..1000 */
    int minorCount; /**< minor ticks between two major ticks, 0..100 */
    int majorLength; /**< major tick length, pixels */
    int minorLength; /**< minor tick length, pixels */
    double minimum; /**< value at the start (left or bottom) */
    double maximum; /**< value at the end (right or top) */
    U8 decimals; /**< decimals of the labels */
    U8 showLabels; /**< non-zero: labels drawn */
    const Font* font; /**< label font and colour */
    const char* timeFormat; /**< null or "": number labels; otherwise a time scale: minimum and maximum are
                                 seconds since 1970-01-01 UTC, the major ticks fall on whole clock steps
                                 (1 s ... 12 h, days; majorCount is the most divisions) and are labelled in
                                 this pattern ("yyyy", "MM", "dd", "hh", "mm", "ss", "zzz" replaced) */
};

/* ---- value displays ---- */

/** Growth direction of a bar, a slider or a pipeline flow. */
enum BarDirection : U32 {
    BAR_UP = 0, /**< grows from bottom to top */
    BAR_DOWN = 1, /**< grows from top to bottom */
    BAR_LEFT = 2, /**< grows from right to left */
    BAR_RIGHT = 3 /**< grows from left to right */
};

/** Bar graph (View_CreateBar); values come with View_BarUpdateVar. */
struct View_Bar {
    U32 header; /**< opacity word */
    Rect rect; /**< widget box */
    U32 id; /**< widget id */
    U32 direction; /**< BarDirection */
    U8 barCount; /**< number of bars (variables) side by side; 0 counts as 1 */
    U8 origin; /**< percent of the range where the bars start, 0..100 (View_BarUpdateOrigin changes it);
                    values below it grow towards the start */
    U8 showScale; /**< non-zero: a scale is drawn beside the bars */
    U8 showTarget; /**< non-zero: the target band (View_BarUpdateTarget) is drawn */
    Brush background; /**< fill behind the bars */
    Pen border; /**< frame of the bar area */
    Pen scalePen; /**< scale line and ticks */
    Pen targetPen; /**< target band outline */
    int majorCount; /**< major scale divisions (labels at both ends and between), at least 1 */
    int minorCount; /**< minor ticks between two major ticks */
    const Font* font; /**< scale label font and colour (labels: the numbers 0..100 until View_BarUpdateScaleLabels) */
};

/** Dial meter (View_CreateMeter); the value comes with View_MeterUpdateVal. */
struct View_Meter {
    U32 header; /**< opacity word */
    Rect rect; /**< widget box */
    U32 id; /**< widget id */
    int startAngle; /**< angle of the minimum, degrees */
    int spanAngle; /**< sweep from minimum to maximum, degrees (negative: clockwise), clamped to -360..360 */
    int minimum; /**< value at the start angle */
    int maximum; /**< value at the end angle */
    const char* dial; /**< dial picture of the project, drawn in the largest circle of the box; null or ""
                           draws `dialBrush` */
    Brush dialBrush; /**< dial fill without an image */
    Pen scalePen; /**< scale arc and ticks */
    int majorCount; /**< major divisions, 1..1000 */
    int minorCount; /**< minor ticks between two major ticks, 0..100 */
    const Font* font; /**< scale label font and colour (labels: the range's numbers until View_MeterUpdateScaleLabels) */
    Pen needlePen; /**< needle colour and width */
    U32 alarmColor; /**< colour word of the alarm arc (View_MeterUpdateAlarmRange) */
};

/** Slider (View_CreateSlider); reports EVT_WIDGET_PRESS/RELEASE and EVT_SLIDER_DRAG with the value. */
struct View_Slider {
    U32 header; /**< opacity word */
    Rect rect; /**< widget box */
    U32 id; /**< widget id */
    U32 direction; /**< BarDirection from minimum to maximum */
    double minimum; /**< value at the start */
    double maximum; /**< value at the end */
    double value; /**< initial handle position (View_ChangeSliderPos moves it) */
    double step; /**< values snap to minimum + multiples of this; <= 0 or NaN is continuous */
    Brush groove; /**< groove fill */
    const char* handle; /**< handle image path; null or "" draws `handleBrush` */
    Brush handleBrush; /**< handle fill without an image */
    int majorCount; /**< major divisions of the ruler beside the groove, 0 for no ruler */
    const Font* font; /**< ruler label font and colour (labels: numbers until View_ChangeSliderLabels) */
};

/** Shapes of the moving marks inside a pipeline. */
enum PipelineFlowShape : U32 {
    FLOW_BLOCK = 0, /**< rectangles */
    FLOW_ARROW = 1, /**< arrow heads */
    FLOW_CIRCLE = 2 /**< dots */
};

/** Pipeline along a polyline with an animated flow (View_CreatePipeline). */
struct View_Pipeline {
    U32 header; /**< opacity word */
    Rect rect; /**< bounding box; the points are relative to its top-left corner */
    U32 id; /**< widget id */
    const Point* points; /**< centre line of the pipe, bends included */
    U32 pointCount; /**< number of points; fewer than 2 make an empty pipe, at most 100,000 are taken */
    int width; /**< pipe width, pixels (the flow marks are 0.6 of it wide) */
    Brush pipe; /**< pipe fill */
    Pen border; /**< pipe outline */
    U32 flowShape; /**< PipelineFlowShape; unknown values draw blocks */
    U32 flowColor; /**< colour word of the flow marks (View_PipelineUpdateFlowShapeColor) */
    U32 flowrate; /**< speed of the flow in pixels per second, 0 still (View_PipelineUpdateFlowrate) */
    U8 reverse; /**< non-zero: the flow runs from the last point to the first (View_PipelineUpdateDirect) */
};

/* ---- groups and pie chart ---- */

/** Group: a container widget; widgets are put into it with View_SetWidgetParent (View_CreateGroup). */
struct View_Group {
    U32 header; /**< opacity word */
    Rect rect; /**< group box; children are placed relative to its top-left corner */
    U32 id; /**< widget id */
    U8 clip; /**< non-zero: members are cut at the box */
    Brush background; /**< fill, BRUSH_NONE for none */
    Pen border; /**< outline */
};

/** Group of input/output rows (View_CreateGroupIOList); handled as a group. */
struct View_GroupIOList {
    View_Group group; /**< the group part; starts with the common header */
    int rowHeight; /**< height of one row, pixels (the designer's layout; the group places nothing itself) */
    int rowSpacing; /**< gap between rows, pixels (as rowHeight) */
    U32 rowCount; /**< number of rows (as rowHeight) */
};

/** Where a chart's legend goes. */
enum LegendPosition : U32 {
    LEGEND_NONE = 0, /**< no legend */
    LEGEND_RIGHT = 1, /**< right of the chart */
    LEGEND_BOTTOM = 2, /**< below the chart */
    LEGEND_LEFT = 3, /**< left of the chart */
    LEGEND_TOP = 4 /**< above the chart */
};

/** Pie chart (View_CreatePieChart); data comes with View_PieChartUpdateData. */
struct View_PieChart {
    U32 header; /**< opacity word */
    Rect rect; /**< widget box */
    U32 id; /**< widget id */
    int startAngle; /**< where the first sector starts, degrees */
    U8 holePercent; /**< inner hole as percent of the radius (0 pie, >0 doughnut) */
    U8 showPercent; /**< non-zero: each sector is labelled with its share */
    U32 legend; /**< LegendPosition */
    Pen border; /**< sector outlines */
    const Font* font; /**< label and legend font */
};

/** One sector of a pie chart (View_PieChartUpdateData). */
struct View_ChartChnData {
    double
        value; /**< the channel's value; sectors are sized by their share of the sum, negatives count as 0 */
    Brush brush; /**< sector fill */
};

#endif /* QGUI_RECORDS_DISPLAY_H */
