// Graphic shapes (arc, Bézier curve, ellipse, grid, pie slice, polygon,
// polyline, rectangle, straight scale), their pen and fill, and the turning and
// resizing of any widget about one of its nine points.
#include "views/viewmanage.h"

#include "platform/guiqtadaptcore.h"
#include "views/lifecyclemanager.h"
#include "views/shapesetup.h"
#include "xcomponents/qquick/xshapearc.h"
#include "xcomponents/qquick/xshapescale.h"

#include <qgui/scale.h>

#include <QDateTime>

#include <cmath>

using GuiQtAdapt::Core;

namespace {
/** The nine points of a box, row by row (0 top-left, 4 centre, 8 bottom-right); others: the centre. */
int originOf(int origin)
{
    return origin >= 0 && origin <= 8 ? origin : 4;
}
} // namespace

int ViewManage::View_ChangePen(unsigned int id, const Pen* pen)
{
    auto* shape = qobject_cast<XShapeItem*>(m_lifeCycle->findItemMaybeVisible(id));
    if (!shape || !pen)
        return -1; // unknown id, a widget that is not a shape, or no pen
    shape->setPen(Core::toQPen(*pen));
    return 0;
}

int ViewManage::View_CreateGraphArc(const View_GraphArc* rec, unsigned int windowId)
{
    QQuickItem* window = creationParent(rec, windowId);
    if (!window)
        return -1;
    auto* arc = new XShapeArc(window);
    ShapeSetup::setUp(arc, rec->rect, rec->pen, nullptr);
    arc->setStartAngle(rec->startAngle);
    arc->setSpanAngle(rec->spanAngle);
    placeWidget(arc, rec, windowId);
    return 0;
}

int ViewManage::View_CreateGraphBezierCurve(const View_GraphBezierCurve* rec, unsigned int windowId)
{
    QQuickItem* window = creationParent(rec, windowId);
    if (!window)
        return -1;
    auto* curve = new XShapeItem(window);
    ShapeSetup::setUp(curve, rec->rect, rec->pen, nullptr);
    curve->setPath(ShapeSetup::bezierPath(*rec), false);
    placeWidget(curve, rec, windowId);
    return 0;
}

int ViewManage::View_CreateGraphEllipse(const View_GraphEllipse* rec, unsigned int windowId)
{
    QQuickItem* window = creationParent(rec, windowId);
    if (!window)
        return -1;
    auto* ellipse = new XShapeItem(window);
    ShapeSetup::setUp(ellipse, rec->rect, rec->pen, &rec->brush);
    ellipse->setPath(ShapeSetup::ellipsePath(*rec), true);
    placeWidget(ellipse, rec, windowId);
    return 0;
}

int ViewManage::View_CreateGraphGrid(const View_GraphGrid* rec, unsigned int windowId)
{
    QQuickItem* window = creationParent(rec, windowId);
    if (!window)
        return -1;
    auto* grid = new XShapeItem(window);
    ShapeSetup::setUp(grid, rec->rect, rec->pen, &rec->brush);
    grid->setPath(ShapeSetup::gridPath(*rec), true);
    placeWidget(grid, rec, windowId);
    return 0;
}

int ViewManage::View_CreateGraphPie(const View_GraphPie* rec, unsigned int windowId)
{
    QQuickItem* window = creationParent(rec, windowId);
    if (!window)
        return -1;
    auto* pie = new XShapeArc(window);
    ShapeSetup::setUp(pie, rec->rect, rec->pen, &rec->brush);
    pie->setPie(true);
    pie->setStartAngle(rec->startAngle);
    pie->setSpanAngle(rec->spanAngle);
    placeWidget(pie, rec, windowId);
    return 0;
}

int ViewManage::View_CreateGraphPolygon(const View_GraphPolygon* rec, unsigned int windowId)
{
    QQuickItem* window = creationParent(rec, windowId);
    if (!window)
        return -1;
    auto* polygon = new XShapeItem(window);
    ShapeSetup::setUp(polygon, rec->rect, rec->pen, &rec->brush);
    polygon->setPath(ShapeSetup::pointsPath(rec->points, rec->pointCount, true), true);
    placeWidget(polygon, rec, windowId);
    return 0;
}

int ViewManage::View_CreateGraphPolyline(const View_GraphPolyline* rec, unsigned int windowId)
{
    QQuickItem* window = creationParent(rec, windowId);
    if (!window)
        return -1;
    auto* line = new XShapeItem(window);
    ShapeSetup::setUp(line, rec->rect, rec->pen, nullptr);
    line->setPath(ShapeSetup::pointsPath(rec->points, rec->pointCount, false), false);
    placeWidget(line, rec, windowId);
    return 0;
}

int ViewManage::View_CreateGraphRect(const View_GraphRect* rec, unsigned int windowId)
{
    QQuickItem* window = creationParent(rec, windowId);
    if (!window)
        return -1;
    auto* rect = new XShapeItem(window);
    ShapeSetup::setUp(rect, rec->rect, rec->pen, &rec->brush);
    rect->setPath(ShapeSetup::rectPath(*rec), true);
    placeWidget(rect, rec, windowId);
    return 0;
}

int ViewManage::View_CreateGraphScale(const View_GraphScale* rec, unsigned int windowId)
{
    QQuickItem* window = creationParent(rec, windowId);
    if (!window)
        return -1;
    auto* scale = new XShapeScale(window);
    ShapeSetup::setUp(scale, rec->rect, rec->pen, nullptr);
    const double low = std::isfinite(rec->minimum) ? rec->minimum : 0;
    const double high = std::isfinite(rec->maximum) ? rec->maximum : 0;
    const int majors = qBound(1, rec->majorCount, 1000);
    const int minors = qBound(0, rec->minorCount, 100);
    if (rec->timeFormat && *rec->timeFormat) {
        auto clock = std::make_unique<ScaleTime>();
        clock->setRange(low, high);
        clock->setTickCount(majors, minors);
        clock->setFormat(std::string(rec->timeFormat, qstrnlen(rec->timeFormat, 256)));
        clock->setUtcOffset(QDateTime::currentDateTime().offsetFromUtc()); // labels in the panel's local time
        scale->setScale(std::move(clock));
    } else {
        auto numbers = std::make_unique<ScaleCircle>();
        numbers->setRange(low, high);
        numbers->setTickCount(majors, minors);
        numbers->setDecimals(rec->decimals);
        scale->setScale(std::move(numbers));
    }
    scale->setPlacement(rec->direction <= SCALE_LABELS_RIGHT ? XShapeScale::Placement(rec->direction)
                                                            : XShapeScale::LabelsBelow);
    scale->setTickLengths(rec->majorLength, rec->minorLength);
    scale->setFont(Core::toQFont(rec->font), rec->font ? Core::toQColor(rec->font->color) : QColor(Qt::black));
    scale->setLabelsVisible(rec->showLabels != 0);
    placeWidget(scale, rec, windowId);
    return 0;
}

int ViewManage::View_FillWidget(unsigned int id, int direction, int value, int maximum, Brush brush)
{
    auto* shape = qobject_cast<XShapeItem*>(m_lifeCycle->findItemMaybeVisible(id));
    if (!shape)
        return 0; // unknown ids and widgets that are not shapes are ignored
    const qreal level = maximum > 0 ? qreal(value) / maximum : 0;
    const auto side = direction >= BAR_UP && direction <= BAR_RIGHT ? XShapeItem::FillDirection(direction)
                                                                     : XShapeItem::FillUp;
    const QSizeF design = shape->designSize().isEmpty() ? shape->size() : shape->designSize();
    shape->setFill(level, side, Core::toQBrush(brush, QRectF(QPointF(), design)));
    return 0;
}

int ViewManage::View_RotateWidget(unsigned int id, int angle, int origin)
{
    QQuickItem* item = m_lifeCycle->findItemMaybeVisible(id);
    if (!item)
        return 0;
    item->setTransformOrigin(QQuickItem::TransformOrigin(originOf(origin)));
    item->setRotation(angle % 360);
    return 0;
}

int ViewManage::View_ZoomWidget(unsigned int id, int width, int height, int origin)
{
    QQuickItem* item = m_lifeCycle->findItemMaybeVisible(id);
    if (!item)
        return 0;
    // the chosen point of the box stays where it is
    const int at = originOf(origin);
    const qreal w = qMax(0, width);
    const qreal h = qMax(0, height);
    const qreal dx = (item->width() - w) * (at % 3) / 2.0;
    const qreal dy = (item->height() - h) * (at / 3) / 2.0;
    item->setPosition(item->position() + QPointF(dx, dy));
    item->setSize(QSizeF(w, h));
    return 0;
}
