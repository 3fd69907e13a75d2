#include "xcomponents/qquick/xshapearc.h"

#include <cmath>

XShapeArc::XShapeArc(QQuickItem* parent)
    : XShapeItem(parent)
{
    connect(this, &XShapeItem::designSizeChanged, this, &XShapeArc::rebuild);
    rebuild();
}

XShapeArc::~XShapeArc() = default;

void XShapeArc::setStartAngle(qreal degrees)
{
    if (!std::isfinite(degrees))
        return;
    degrees = std::fmod(degrees, 360.0);
    if (degrees < 0)
        degrees += 360.0;
    if (degrees == m_start)
        return;
    m_start = degrees;
    rebuild();
    Q_EMIT anglesChanged();
}

void XShapeArc::setSpanAngle(qreal degrees)
{
    if (!std::isfinite(degrees))
        return;
    degrees = qBound<qreal>(-360, degrees, 360);
    if (degrees == m_span)
        return;
    m_span = degrees;
    rebuild();
    Q_EMIT anglesChanged();
}

void XShapeArc::setPie(bool pie)
{
    if (pie == m_pie)
        return;
    m_pie = pie;
    rebuild();
    Q_EMIT anglesChanged();
}

void XShapeArc::geometryChanged(const QRectF& newGeometry, const QRectF& oldGeometry)
{
    XShapeItem::geometryChanged(newGeometry, oldGeometry);
    if (designSize().isEmpty() && newGeometry.size() != oldGeometry.size())
        rebuild();
}

void XShapeArc::rebuild()
{
    // the ellipse of the design box (the item's box until one is given)
    const QSizeF box = designSize().isEmpty() ? size() : designSize();
    const QRectF ellipse(QPointF(0, 0), box);
    QPainterPath path;
    if (m_pie) {
        path.moveTo(ellipse.center());
        path.arcTo(ellipse, m_start, m_span);
        path.closeSubpath();
    } else {
        path.arcMoveTo(ellipse, m_start);
        path.arcTo(ellipse, m_start, m_span);
    }
    setPath(path, m_pie);
}
