#include "xcomponents/qquick/baseslider.h"

#include "platform/logiclayercaller.h"
#include "xcomponents/qquick/sliderruler.h"

#include <qgui/events.h>

#include <QMouseEvent>
#include <QPainter>

#include <cmath>

BaseSlider::BaseSlider(QQuickItem* parent)
    : XBasePaintedItem(parent)
{
    setAntialiasing(true);
    setAcceptedMouseButtons(Qt::LeftButton);
}

BaseSlider::~BaseSlider() = default;

void BaseSlider::setDirection(Direction direction)
{
    m_direction = direction;
    layoutRuler();
    update();
}

void BaseSlider::setRange(double minimum, double maximum)
{
    if (!std::isfinite(minimum) || !std::isfinite(maximum))
        return;
    m_min = minimum;
    m_max = maximum;
    m_value = snap(m_value);
    if (m_ruler)
        m_ruler->update();
    update();
}

void BaseSlider::setStep(double step)
{
    m_step = std::isfinite(step) && step > 0 ? step : 0;
    m_value = snap(m_value);
    update();
}

void BaseSlider::setLook(const QBrush& groove, const QImage& handle, const QBrush& handleBrush)
{
    m_groove = groove;
    m_handleImage = handle;
    m_handleBrush = handleBrush;
    update();
}

void BaseSlider::setScale(int majorCount, const QFont& font, const QColor& labelColor)
{
    if (majorCount <= 0) {
        delete m_ruler.data();
        layoutRuler();
        return;
    }
    if (!m_ruler)
        m_ruler = new SliderRuler(this);
    m_ruler->setMajorCount(majorCount);
    m_ruler->setFont(font, labelColor);
    layoutRuler();
}

void BaseSlider::setValue(double value)
{
    if (!std::isfinite(value))
        return;
    value = snap(value);
    if (m_dragging) {
        // the finger wins while it is down; the logic's value is shown at the release
        m_logicSpokeLast = true;
        m_logicValue = value;
        return;
    }
    if (value == m_value)
        return;
    m_value = value;
    update();
    Q_EMIT valueChanged();
}

double BaseSlider::snap(double value) const
{
    const double lo = qMin(m_min, m_max);
    const double hi = qMax(m_min, m_max);
    if (m_step > 0) {
        const double steps = std::round((value - m_min) / m_step);
        if (std::isfinite(steps))
            value = m_min + steps * m_step;
    }
    return qBound(lo, value, hi);
}

QRectF BaseSlider::trackArea() const
{
    const qreal strip = m_ruler ? m_ruler->thickness() : 0;
    if (vertical())
        return QRectF(0, 0, qMax<qreal>(0, width() - strip), height());
    return QRectF(0, 0, width(), qMax<qreal>(0, height() - strip));
}

void BaseSlider::layoutRuler()
{
    if (!m_ruler)
        return;
    const QRectF track = trackArea();
    if (vertical()) {
        m_ruler->setPosition(QPointF(track.width(), 0));
        m_ruler->setSize(QSizeF(width() - track.width(), height()));
    } else {
        m_ruler->setPosition(QPointF(0, track.height()));
        m_ruler->setSize(QSizeF(width(), height() - track.height()));
    }
    m_ruler->update();
}

static qreal handleSide(const QRectF& track, bool vertical)
{
    const qreal cross = vertical ? track.width() : track.height();
    return qBound<qreal>(16, cross - 4, 56);
}

QLineF BaseSlider::grooveLine() const
{
    const QRectF track = trackArea();
    const qreal half = handleSide(track, vertical()) / 2;
    const QPointF c = track.center();
    switch (m_direction) {
    case Up:
        return QLineF(c.x(), track.bottom() - half, c.x(), track.top() + half);
    case Down:
        return QLineF(c.x(), track.top() + half, c.x(), track.bottom() - half);
    case Left:
        return QLineF(track.right() - half, c.y(), track.left() + half, c.y());
    case Right:
    default:
        return QLineF(track.left() + half, c.y(), track.right() - half, c.y());
    }
}

double BaseSlider::valueAt(const QPointF& point) const
{
    const QLineF line = grooveLine();
    const QPointF d = line.p2() - line.p1();
    const qreal length2 = d.x() * d.x() + d.y() * d.y();
    qreal t = 0;
    if (length2 > 0) {
        const QPointF v = point - line.p1();
        t = qBound<qreal>(0, (v.x() * d.x() + v.y() * d.y()) / length2, 1);
    }
    return snap(m_min + t * (m_max - m_min));
}

QRectF BaseSlider::handleRect() const
{
    const QLineF line = grooveLine();
    const double span = m_max - m_min;
    const qreal t = span != 0 ? qBound(0.0, (m_value - m_min) / span, 1.0) : 0;
    const qreal side = handleSide(trackArea(), vertical());
    const QPointF at = line.pointAt(t);
    return QRectF(at.x() - side / 2, at.y() - side / 2, side, side);
}

void BaseSlider::report(int event, double value)
{
    LogicLayerCaller::call(getId(), event, &value);
}

void BaseSlider::pointerPressed(const QPointF& point)
{
    m_dragging = true;
    m_logicSpokeLast = false;
    m_fingerValue = valueAt(point);
    if (m_fingerValue != m_value) {
        m_value = m_fingerValue;
        update();
        Q_EMIT valueChanged();
    }
    report(EVT_WIDGET_PRESS, m_fingerValue);
}

void BaseSlider::pointerMoved(const QPointF& point)
{
    if (!m_dragging)
        return;
    const double v = valueAt(point);
    if (v == m_fingerValue)
        return; // a move within one step sends nothing
    m_fingerValue = v;
    m_logicSpokeLast = false;
    m_value = v;
    update();
    Q_EMIT valueChanged();
    report(EVT_SLIDER_DRAG, v);
}

void BaseSlider::pointerReleased(const QPointF& point)
{
    if (!m_dragging)
        return;
    pointerMoved(point);
    m_dragging = false;
    const double last = m_fingerValue;
    if (m_logicSpokeLast)
        setValue(m_logicValue);
    report(EVT_WIDGET_RELEASE, last);
}

void BaseSlider::mousePressEvent(QMouseEvent* event)
{
    pointerPressed(event->localPos());
    event->accept();
}

void BaseSlider::mouseMoveEvent(QMouseEvent* event)
{
    pointerMoved(event->localPos());
}

void BaseSlider::mouseReleaseEvent(QMouseEvent* event)
{
    pointerReleased(event->localPos());
}

void BaseSlider::mouseUngrabEvent()
{
    // the finger was taken away (a popup, the window closing): end the drag where the handle is
    if (m_dragging)
        pointerReleased(handleRect().center());
}

void BaseSlider::geometryChanged(const QRectF& newGeometry, const QRectF& oldGeometry)
{
    XBasePaintedItem::geometryChanged(newGeometry, oldGeometry);
    layoutRuler();
}

void BaseSlider::paint(QPainter* painter)
{
    const QRectF track = trackArea();
    if (track.isEmpty())
        return;
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    const QLineF line = grooveLine();
    const QRectF handle = handleRect();
    const qreal thick = qMax<qreal>(4, handle.width() / 4);
    auto bar = [&](const QPointF& a, const QPointF& b) {
        const QRectF r = QRectF(a, b).normalized().adjusted(-thick / 2, -thick / 2, thick / 2, thick / 2);
        return r;
    };
    painter->setPen(Qt::NoPen);
    painter->setBrush(m_groove);
    painter->drawRoundedRect(bar(line.p1(), line.p2()), thick / 2, thick / 2);
    // the part from the minimum to the handle in the handle's colour
    painter->setBrush(m_handleBrush);
    painter->drawRoundedRect(bar(line.p1(), handle.center()), thick / 2, thick / 2);
    if (!m_handleImage.isNull()) {
        painter->drawImage(handle, m_handleImage);
    } else {
        painter->setPen(QPen(Qt::white, 2));
        painter->drawEllipse(handle.adjusted(1, 1, -1, -1));
    }
}
