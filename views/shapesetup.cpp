#include "views/shapesetup.h"

#include "platform/guiqtadaptcore.h"
#include "xcomponents/qquick/xshapeitem.h"

using GuiQtAdapt::Core;

namespace ShapeSetup {

namespace {
QRectF designBox(const Rect& box)
{
    return QRectF(0, 0, qMax(0, box.width), qMax(0, box.height));
}
} // namespace

void setUp(XShapeItem* shape, const Rect& box, const Pen& pen, const Brush* brush)
{
    const QRectF design = designBox(box);
    shape->setDesignSize(design.size());
    shape->setPen(Core::toQPen(pen));
    shape->setBrush(brush ? Core::toQBrush(*brush, design) : QBrush());
}

QPainterPath rectPath(const View_GraphRect& rec)
{
    const QRectF box = designBox(rec.rect);
    const qreal radius = qBound<qreal>(0, rec.radius, qMin(box.width(), box.height()) / 2);
    QPainterPath path;
    if (radius > 0)
        path.addRoundedRect(box, radius, radius);
    else
        path.addRect(box);
    return path;
}

QPainterPath ellipsePath(const View_GraphEllipse& rec)
{
    QPainterPath path;
    path.addEllipse(designBox(rec.rect));
    return path;
}

QPainterPath gridPath(const View_GraphGrid& rec)
{
    const QRectF box = designBox(rec.rect);
    const int rows = qBound(1, rec.rows, kMaxGridLines);
    const int columns = qBound(1, rec.columns, kMaxGridLines);
    QPainterPath path;
    path.addRect(box);
    for (int r = 1; r < rows; ++r) {
        const qreal y = box.height() * r / rows;
        path.moveTo(0, y);
        path.lineTo(box.width(), y);
    }
    for (int c = 1; c < columns; ++c) {
        const qreal x = box.width() * c / columns;
        path.moveTo(x, 0);
        path.lineTo(x, box.height());
    }
    return path;
}

QPainterPath pointsPath(const Point* points, U32 count, bool closed)
{
    QPainterPath path;
    if (!points)
        return path;
    count = qMin(count, kMaxPoints);
    path.reserve(int(count) + 1);
    for (U32 i = 0; i < count; ++i) {
        const QPointF p(points[i].x, points[i].y);
        if (i == 0)
            path.moveTo(p);
        else
            path.lineTo(p);
    }
    if (closed && count > 2)
        path.closeSubpath();
    return path;
}

QPainterPath bezierPath(const View_GraphBezierCurve& rec)
{
    QPainterPath path;
    if (!rec.points || rec.pointCount == 0)
        return path;
    const U32 count = qMin(rec.pointCount, kMaxPoints);
    const Point* p = rec.points;
    path.moveTo(p[0].x, p[0].y);
    for (U32 i = 1; i + 2 < count; i += 3)
        path.cubicTo(p[i].x, p[i].y, p[i + 1].x, p[i + 1].y, p[i + 2].x, p[i + 2].y);
    return path;
}

QStringList toLabels(const std::vector<std::string>& labels, int most)
{
    QStringList list;
    for (size_t i = 0; i < labels.size() && int(i) < most; ++i)
        list.append(Core::cutText(Core::fromUtf8(labels[i].c_str()), 256));
    return list;
}

} // namespace ShapeSetup
