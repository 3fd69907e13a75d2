#ifndef CURVESETUP_H
#define CURVESETUP_H

#include "xcomponents/qquick/curvecursor.h"
#include "xcomponents/qquick/curveplotstyle.h"

class CustomPlotItem;

#include <qgui/records_curve.h>

/**
 * The conversions of the chart records into what the chart items are set up
 * with: axis and channel looks, interactions and the time label format.
 */
namespace CurveSetup {

/** Most channels taken from a record; more are dropped. */
constexpr U32 kMaxChannels = 64;
/** Most points of a channel's own scatter polygon. */
constexpr U32 kMaxScatterPath = 1024;

CurveAxisStyle toAxisStyle(const View_CurveAxis& axis);
/** A channel's look; unknown line styles draw plain lines, unknown scatter shapes no marks. */
CurveChannelStyle toChannelStyle(const View_CurveChannel& channel);
/** QCP::Interaction bits of CurveInteraction bits (drags and zooms on either axis). */
int toInteractions(U32 bits);
/** Orientations dragged (\a zoom false) or zoomed (\a zoom true) by CurveInteraction bits. */
Qt::Orientations toOrientations(U32 bits, bool zoom);
/**
 * The common start of both chart kinds: the plot with \a interactions, the item's size from \a box,
 * the plot area's \a background, the drag and zoom orientations, and both axes' looks.
 */
void setUpPlot(CustomPlotItem* chart, const Rect& box, U32 interactions, const Brush& background,
    const View_CurveAxis& x, const View_CurveAxis& y);
/** The look of the cursor window (at most CurveCursor::kMaxColumns column widths). */
CurveCursor::Style toCursorStyle(const View_CurveCursorStyle& style);
/** The QDateTime format of a clock format; "" when it leaves the form to the tick step. */
QString toDateTimeFormat(const ClockFormat& clock);

} // namespace CurveSetup

#endif // CURVESETUP_H
