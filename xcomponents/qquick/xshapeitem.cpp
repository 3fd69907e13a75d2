#include "xcomponents/qquick/xshapeitem.h"

#include "platform/logiclayercaller.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPathStroker>

#include <qgui/events.h>

#include <cmath>

XShapeItem::XShapeItem(QQuickItem* parent)
    : XBasePaintedItem(parent)
{
    setAntialiasing(true);
    setAcceptedMouseButtons(Qt::LeftButton);
}

XShapeItem::~XShapeItem() = default;

void XShapeItem::setPen(const QPen& pen)
{
    if (pen == m_pen)
        return;
    m_pen = pen;
    update();
    Q_EMIT penChanged();
}

void XShapeItem::setBrush(const QBrush& brush)
{
    if (brush == m_brush)
        return;
    m_brush = brush;
    update();
    Q_EMIT brushChanged();
}

void XShapeItem::setPath(const QPainterPath& path, bool closed)
{
    m_path = path;
    m_closed = closed;
    update();
}

void XShapeItem::setDesignSize(const QSizeF& size)
{
    if (size == m_designSize)
        return;
    m_designSize = size;
    update();
    Q_EMIT designSizeChanged();
}

void XShapeItem::setFill(qreal level, FillDirection direction, const QBrush& brush)
{
    level = std::isfinite(level) ? qBound<qreal>(0, level, 1) : 0;
    if (level == m_fillLevel && direction == m_fillDirection && brush == m_fillBrush)
        return;
    m_fillLevel = level;
    m_fillDirection = direction;
    m_fillBrush = brush;
    update();
    Q_EMIT fillChanged();
}

QTransform XShapeItem::designTransform() const
{
    // half the pen on every side; a cosmetic pen (width 0) draws one pixel
    const qreal margin = qMin(qMax<qreal>(m_pen.style() == Qt::NoPen ? 0 : m_pen.widthF(), 1) / 2,
        qMin(width(), height()) / 2);
    const QSizeF design = m_designSize.isEmpty() ? size() : m_designSize;
    const qreal sx = design.width() > 0 ? (width() - 2 * margin) / design.width() : 1;
    const qreal sy = design.height() > 0 ? (height() - 2 * margin) / design.height() : 1;
    return QTransform(sx, 0, 0, sy, margin, margin);
}

QRectF XShapeItem::fillRect() const
{
    if (!m_closed || m_fillLevel <= 0)
        return QRectF();
    const QRectF b = itemPath().boundingRect();
    const qreal w = b.width() * m_fillLevel;
    const qreal h = b.height() * m_fillLevel;
    switch (m_fillDirection) {
    case FillDown:
        return QRectF(b.left(), b.top(), b.width(), h);
    case FillLeft:
        return QRectF(b.right() - w, b.top(), w, b.height());
    case FillRight:
        return QRectF(b.left(), b.top(), w, b.height());
    case FillUp:
    default:
        return QRectF(b.left(), b.bottom() - h, b.width(), h);
    }
}

void XShapeItem::setGrayFlag(bool on)
{
    if (on == m_gray)
        return;
    m_gray = on;
    update();
}

bool XShapeItem::contains(const QPointF& point) const
{
    if (!QRectF(0, 0, width(), height()).contains(point))
        return false;
    const QPainterPath shape = itemPath();
    if (m_closed && shape.contains(point))
        return true;
    QPainterPathStroker reach;
    reach.setWidth(qMax<qreal>(m_pen.widthF(), 16)); // a finger's width around thin lines
    return reach.createStroke(shape).contains(point);
}

void XShapeItem::mousePressEvent(QMouseEvent* event)
{
    LogicLayerCaller::call(getId(), EVT_WIDGET_PRESS, nullptr);
    event->accept();
}

void XShapeItem::mouseReleaseEvent(QMouseEvent* event)
{
    LogicLayerCaller::call(getId(), EVT_WIDGET_RELEASE, nullptr);
    event->accept();
}

void XShapeItem::paint(QPainter* painter)
{
    if (width() <= 0 || height() <= 0)
        return;
    if (m_gray)
        painter->setOpacity(0.4);
    const QTransform toItem = designTransform();
    const QPainterPath shape = toItem.map(m_path);
    painter->setRenderHint(QPainter::Antialiasing);
    if (m_closed) {
        if (m_brush.style() != Qt::NoBrush) {
            painter->save();
            painter->setTransform(toItem, true); // gradients are laid out in design coordinates
            painter->fillPath(m_path, m_brush);
            painter->restore();
        }
        const QRectF fill = fillRect();
        if (!fill.isEmpty() && m_fillBrush.style() != Qt::NoBrush) {
            painter->save();
            painter->setClipRect(fill);
            painter->setTransform(toItem, true);
            painter->fillPath(m_path, m_fillBrush);
            painter->restore();
        }
    }
    if (m_pen.style() != Qt::NoPen) {
        painter->setPen(m_pen);
        painter->setBrush(Qt::NoBrush);
        painter->drawPath(shape);
    }
    paintExtra(painter, toItem);
}

void XShapeItem::paintExtra(QPainter*, const QTransform&)
{
}
