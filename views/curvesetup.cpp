#include "views/curvesetup.h"

#include "platform/guiqtadaptcore.h"
#include "xcomponents/qquick/customplotitem.h"
#include "xcomponents/qquick/xcpaxis.h"
#include "xcomponents/qquick/xcpaxisrect.h"

#include <QPainterPath>

#include <cmath>

using GuiQtAdapt::Core;

namespace CurveSetup {

CurveAxisStyle toAxisStyle(const View_CurveAxis& axis)
{
    CurveAxisStyle style;
    style.basePen = Core::toQPen(axis.basePen);
    style.tickPen = Core::toQPen(axis.tickPen);
    style.subTickPen = Core::toQPen(axis.subTickPen);
    style.tickLengthIn = axis.tickLengthIn;
    style.tickLengthOut = axis.tickLengthOut;
    style.subTickLengthIn = axis.subTickLengthIn;
    style.subTickLengthOut = axis.subTickLengthOut;
    style.labelFont = Core::toQFont(axis.labelFont);
    style.labelColor = axis.labelFont ? Core::toQColor(axis.labelFont->color) : QColor(Qt::black);
    style.gridPen = Core::toQPen(axis.gridPen);
    style.subGridPen = Core::toQPen(axis.subGridPen);
    style.subGridVisible = axis.subGridVisible != 0;
    return style;
}

CurveChannelStyle toChannelStyle(const View_CurveChannel& channel)
{
    CurveChannelStyle style;
    style.pen = Core::toQPen(channel.pen);
    style.brush = channel.brush.style == BRUSH_NONE ? QBrush(Qt::NoBrush)
                                                     : Core::toQBrush(channel.brush, QRectF(0, 0, 100, 100));
    style.lineStyle = channel.lineStyle <= CURVE_LINE_IMPULSE ? int(channel.lineStyle) : int(CURVE_LINE_PLAIN);
    style.smooth = channel.smooth != 0;
    style.hidden = channel.hidden != 0;
    const double size = qBound(1, channel.scatterSize, 256);
    const QColor colour = Core::toQColor(channel.scatterColor);
    static const QCPScatterStyle::ScatterShape shapes[] = { QCPScatterStyle::ssNone, QCPScatterStyle::ssDot,
        QCPScatterStyle::ssCross, QCPScatterStyle::ssPlus, QCPScatterStyle::ssCircle, QCPScatterStyle::ssDisc,
        QCPScatterStyle::ssSquare, QCPScatterStyle::ssDiamond, QCPScatterStyle::ssStar,
        QCPScatterStyle::ssTriangle, QCPScatterStyle::ssTriangleInverted };
    if (channel.scatterShape == SCATTER_PATH && channel.scatterPath && channel.scatterPathCount > 1) {
        QPainterPath path;
        const U32 n = qMin(channel.scatterPathCount, kMaxScatterPath);
        for (U32 i = 0; i < n; ++i) {
            const FPoint& p = channel.scatterPath[i];
            const QPointF at(std::isfinite(p.x) ? p.x * size : 0, std::isfinite(p.y) ? p.y * size : 0);
            if (i == 0)
                path.moveTo(at);
            else
                path.lineTo(at);
        }
        path.closeSubpath();
        style.scatter = QCPScatterStyle(path, Core::toQPen(channel.scatterPen),
            Core::toQBrush(channel.scatterBrush, path.boundingRect()), size);
    } else if (channel.scatterShape < sizeof(shapes) / sizeof(shapes[0])) {
        style.scatter = QCPScatterStyle(shapes[channel.scatterShape], colour, size);
    }
    return style;
}

int toInteractions(U32 bits)
{
    int flags = 0;
    if (bits & (CURVE_DRAG_X | CURVE_DRAG_Y))
        flags |= QCP::iRangeDrag;
    if (bits & (CURVE_ZOOM_X | CURVE_ZOOM_Y))
        flags |= QCP::iRangeZoom;
    return flags;
}

Qt::Orientations toOrientations(U32 bits, bool zoom)
{
    Qt::Orientations o;
    if (bits & (zoom ? CURVE_ZOOM_X : CURVE_DRAG_X))
        o |= Qt::Horizontal;
    if (bits & (zoom ? CURVE_ZOOM_Y : CURVE_DRAG_Y))
        o |= Qt::Vertical;
    return o;
}

void setUpPlot(CustomPlotItem* chart, const Rect& box, U32 interactions, const Brush& background,
    const View_CurveAxis& x, const View_CurveAxis& y)
{
    chart->initCustomPlot(toInteractions(interactions));
    const QRect r = Core::toQRect(box);
    chart->setSize(r.size());
    chart->setOrgPoinsion(QPoint());
    chart->setPlotBrush(background.style == BRUSH_NONE ? QBrush(Qt::NoBrush)
                                                       : Core::toQBrush(background, QRectF(QPointF(), r.size())));
    chart->axisRect()->setRangeDrag(toOrientations(interactions, false));
    chart->axisRect()->setRangeZoom(toOrientations(interactions, true));
    CustomPlotItem::styleAxis(chart->xAxis(), toAxisStyle(x));
    CustomPlotItem::styleAxis(chart->yAxis(), toAxisStyle(y));
}

CurveCursor::Style toCursorStyle(const View_CurveCursorStyle& style)
{
    CurveCursor::Style s;
    if (style.backColor)
        s.back = Core::toQColor(style.backColor);
    if (style.headColor)
        s.head = Core::toQColor(style.headColor);
    if (style.borderColor)
        s.border = Core::toQColor(style.borderColor);
    s.font = Core::toQFont(style.font);
    if (style.font)
        s.text = Core::toQColor(style.font->color);
    if (style.columnWidths) {
        for (U32 i = 0; i < qMin<U32>(style.columnCount, CurveCursor::kMaxColumns); ++i)
            s.columnWidths.append(style.columnWidths[i]);
    }
    if (style.defaultHeight > 0)
        s.defaultHeight = style.defaultHeight;
    s.showHead = style.showTableHead != 0;
    s.showTitle = style.showTitle != 0 || !style.font; // an empty style record still shows the time
    return s;
}

QString toDateTimeFormat(const ClockFormat& clock)
{
    QString date;
    switch (clock.date) {
    case CLOCK_DATE_YMD:
        date = QStringLiteral("yyyy-MM-dd");
        break;
    case CLOCK_DATE_MDY:
        date = QStringLiteral("MM-dd-yyyy");
        break;
    case CLOCK_DATE_DMY:
        date = QStringLiteral("dd-MM-yyyy");
        break;
    case CLOCK_DATE_MD:
        date = QStringLiteral("MM-dd");
        break;
    default:
        break;
    }
    QString time;
    switch (clock.time) {
    case CLOCK_TIME_HMS:
        time = QStringLiteral("hh:mm:ss");
        break;
    case CLOCK_TIME_HM:
        time = QStringLiteral("hh:mm");
        break;
    case CLOCK_TIME_HMS_MS:
        time = QStringLiteral("hh:mm:ss.zzz");
        break;
    default:
        break;
    }
    if (date.isEmpty() || time.isEmpty())
        return date + time;
    return date + (clock.twoLines ? QStringLiteral("\n") : QStringLiteral(" ")) + time;
}

} // namespace CurveSetup
