/*
 * qgui public interface: records of the sample curve chart (trend chart) and the
 * XY curve, with their axis, channel, clock-format and cursor-window parts.
 *
 * Both chart records start with the common widget header (U32 header, Rect
 * rect, U32 id, see records_display.h).
 */
#ifndef QGUI_RECORDS_CURVE_H
#define QGUI_RECORDS_CURVE_H

#include "types.h"

/** Horizontal axis of the sample curve chart. */
enum CurveXAxisMode : U32 {
    CURVE_X_SAMPLE = 0, /**< running sample number */
    CURVE_X_SAMPLE_LABEL = 1, /**< sample number labelled with the text pushed with each sample */
    CURVE_X_TIME = 2 /**< time axis (history search) */
};

/** Date part of a time label. */
enum ClockDateFormat : U8 {
    CLOCK_DATE_NONE = 0, /**< no date */
    CLOCK_DATE_YMD = 1, /**< "yyyy-MM-dd" */
    CLOCK_DATE_MDY = 2, /**< "MM-dd-yyyy" */
    CLOCK_DATE_DMY = 3, /**< "dd-MM-yyyy" */
    CLOCK_DATE_MD = 4 /**< "MM-dd" */
};

/** Time part of a time label. */
enum ClockTimeFormat : U8 {
    CLOCK_TIME_NONE = 0, /**< no time */
    CLOCK_TIME_HMS = 1, /**< "hh:mm:ss" */
    CLOCK_TIME_HM = 2, /**< "hh:mm" */
    CLOCK_TIME_HMS_MS = 3 /**< "hh:mm:ss.zzz" */
};

/** How the x tickers write times. */
struct ClockFormat {
    U8 date; /**< ClockDateFormat */
    U8 time; /**< ClockTimeFormat */
    U8 twoLines; /**< non-zero: date and time on two lines, date first */
};

/** One axis of a chart. */
struct View_CurveAxis {
    Pen basePen; /**< axis line */
    Pen tickPen; /**< major ticks */
    Pen subTickPen; /**< minor ticks */
    int tickLengthIn; /**< major tick length into the plot, pixels */
    int tickLengthOut; /**< major tick length away from the plot, pixels */
    int subTickLengthIn; /**< minor tick length into the plot, pixels */
    int subTickLengthOut; /**< minor tick length away from the plot, pixels */
    const Font* labelFont; /**< tick label font; its colour word is the label colour */
    Pen gridPen; /**< grid lines at the major ticks */
    Pen subGridPen; /**< grid lines at the minor ticks */
    U8 subGridVisible; /**< non-zero: the minor grid is drawn */
    int tickCount; /**< major ticks across the axis (sample chart x axis: its ticker count) */
    int subTickCount; /**< minor ticks between two major ticks, 0..100 (more count as 100) */
    double lower; /**< initial lower bound (sample chart x axis: the range at scale 1.0) */
    double upper; /**< initial upper bound */
};

/** Marks drawn at the points of a channel. */
enum CurveScatterShape : U32 {
    SCATTER_NONE = 0, /**< no marks */
    SCATTER_DOT = 1, /**< one pixel */
    SCATTER_CROSS = 2, /**< x */
    SCATTER_PLUS = 3, /**< + */
    SCATTER_CIRCLE = 4, /**< ring */
    SCATTER_DISC = 5, /**< filled circle */
    SCATTER_SQUARE = 6, /**< square */
    SCATTER_DIAMOND = 7, /**< diamond */
    SCATTER_STAR = 8, /**< star */
    SCATTER_TRIANGLE = 9, /**< triangle pointing up */
    SCATTER_TRIANGLE_INVERTED = 10, /**< triangle pointing down */
    SCATTER_PATH = 11 /**< the channel's own polygon (scatterPath) with scatterPen and scatterBrush */
};

/** How a channel joins its points. */
enum CurveLineStyle : U32 {
    CURVE_LINE_NONE = 0, /**< marks only */
    CURVE_LINE_PLAIN = 1, /**< straight segments (smooth curve when `smooth` is set) */
    CURVE_LINE_STEP_LEFT = 2, /**< steps holding the left point's value */
    CURVE_LINE_STEP_RIGHT = 3, /**< steps holding the right point's value */
    CURVE_LINE_IMPULSE = 4 /**< vertical lines from zero */
};

/** One channel (graph or XY curve) of a chart. */
struct View_CurveChannel {
    Pen pen; /**< line */
    Brush brush; /**< fill under the line, BRUSH_NONE for none */
    U32 lineStyle; /**< CurveLineStyle */
    U8 smooth; /**< non-zero with CURVE_LINE_PLAIN: drawn as a smooth curve through the points */
    U8 hidden; /**< non-zero: hidden at creation (View_CurveHideChannel changes it) */
    U32 scatterShape; /**< CurveScatterShape */
    int scatterSize; /**< size of the marks, pixels */
    U32 scatterColor; /**< colour word of the built-in marks */
    const FPoint* scatterPath; /**< SCATTER_PATH: polygon in units of scatterSize, centred on the point */
    U32 scatterPathCount; /**< number of scatterPath points */
    Pen scatterPen; /**< SCATTER_PATH: outline */
    Brush scatterBrush; /**< SCATTER_PATH: fill */
};

/** Bits of a chart's interactions. */
enum CurveInteraction : U32 {
    CURVE_DRAG_X = 0x1, /**< dragging moves the x range */
    CURVE_DRAG_Y = 0x2, /**< dragging moves the y range */
    CURVE_ZOOM_X = 0x4, /**< wheel and pinch zoom the x range */
    CURVE_ZOOM_Y = 0x8 /**< wheel and pinch zoom the y range */
};

/** Look of the sample chart's cursor window (one row per channel at the cursor line). */
struct View_CurveCursorStyle {
    U32 backColor; /**< background colour word */
    U32 headColor; /**< table head background colour word */
    U32 borderColor; /**< border and grid colour word */
    const Font* font; /**< text font and colour */
    const int* columnWidths; /**< width of each column, pixels */
    U32 columnCount; /**< number of columns */
    int defaultHeight; /**< height before content arrives, pixels */
    U8 showTableHead; /**< non-zero: the column titles are shown */
    U8 showTitle; /**< non-zero: the title line (View_CurveUpdateCursorTitle) is shown */
};

/** Sample curve chart (View_CreateCurveSample). */
struct View_CurveSample {
    U32 header; /**< opacity word */
    Rect rect; /**< widget box */
    U32 id; /**< widget id */
    U32 xAxisMode; /**< CurveXAxisMode */
    Brush plotBrush; /**< background of the plot area */
    U32 interactions; /**< CurveInteraction bits */
    View_CurveAxis xAxis; /**< x axis; lower..upper is the range at scale 1.0 */
    View_CurveAxis yAxis; /**< y axis; tickCount is the y ticker's tick count */
    const View_CurveChannel* channels; /**< channels, in order: channel n is graph n */
    U32 channelCount; /**< number of channels */
    U32 disp; /**< samples shown across the visible window (display number) */
    ClockFormat clockFormat; /**< time labels of the x axis */
    Pen cursorPen; /**< the vertical cursor line */
    View_CurveCursorStyle cursor; /**< the cursor window, hidden until enabled */
    U8 settingButton; /**< non-zero: the setting button (search dialog) is shown */
    U8 restoreButton; /**< non-zero: the restore button is shown */
    U8 doubleScale; /**< non-zero: the y scale is repeated on the right of the plot */
};

/** XY curve (View_CreateCurveXy). */
struct View_CurveXy {
    U32 header; /**< opacity word */
    Rect rect; /**< widget box */
    U32 id; /**< widget id */
    Brush plotBrush; /**< background of the plot area */
    U32 interactions; /**< CurveInteraction bits */
    View_CurveAxis xAxis; /**< x axis with its initial range */
    View_CurveAxis yAxis; /**< y axis with its initial range */
    const View_CurveChannel* channels; /**< curves, in order */
    U32 channelCount; /**< number of curves */
    Pen selectPen; /**< outline of the zoom rectangle while it is dragged */
    Brush selectBrush; /**< fill of the zoom rectangle */
};

#endif /* QGUI_RECORDS_CURVE_H */
