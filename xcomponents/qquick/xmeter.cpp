#include "xcomponents/qquick/xmeter.h"

#include "xcomponents/qquick/xshapeitem.h"

#include <QEasingCurve>
#include <QFontMetricsF>
#include <QPainter>
#include <QVariantAnimation>
#include <QtMath>

#include <cmath>

namespace {

/* QPainter's arcs are in sixteenths of a degree, as ints: a start of any size is taken round the circle and
 * a sweep of more than a turn is a full turn. */
int arcStart16(qreal degrees)
{
    return qRound(std::fmod(degrees, 360.0) * 16);
}

int arcSpan16(qreal degrees)
{
    return qRound(qBound<qreal>(-360, degrees, 360) * 16);
}

} // namespace

XMeter::XMeter(QQuickItem* parent)
    : XBasePaintedItem(parent)
    , m_needle(new XShapeItem(this))
    , m_swing(new QVariantAnimation(this))
{
    setAntialiasing(true);
    m_scale.setRange(0, 100);
    m_needle->setAcceptedMouseButtons(Qt::NoButton);
    m_needle->setTransformOrigin(QQuickItem::Center);
    m_needle->setZ(1);
    m_swing->setDuration(kSwingMs);
    m_swing->setEasingCurve(QEasingCurve::OutCubic);
    connect(m_swing, &QVariantAnimation::valueChanged, this,
        [this](const QVariant& v) { placeNeedle(v.toReal()); });
    rebuildNeedle();
}

XMeter::~XMeter() = default;

void XMeter::scaleChanged()
{
    m_value = qBound(qMin(m_scale.minimum(), m_scale.maximum()), m_value, qMax(m_scale.minimum(), m_scale.maximum()));
    m_swing->stop();
    placeNeedle(m_value);
    update();
}

void XMeter::setDial(const QImage& picture, const QBrush& brush)
{
    m_dial = picture;
    m_dialBrush = brush;
    update();
}

void XMeter::setPens(const QPen& scalePen, const QPen& needlePen)
{
    m_scalePen = scalePen;
    m_needlePen = needlePen;
    rebuildNeedle();
    update();
}

void XMeter::setFont(const QFont& font, const QColor& color)
{
    m_font = font;
    m_labelColor = color;
    update();
}

void XMeter::setLabels(const QStringList& labels)
{
    m_labels = labels.mid(0, m_scale.majorCount() + 1);
    update();
}

QString XMeter::labelAt(int index) const
{
    if (index < 0 || index > m_scale.majorCount())
        return QString();
    if (!m_labels.isEmpty())
        return m_labels.value(index);
    const std::vector<double> ticks = m_scale.majorTicks();
    return index < int(ticks.size()) ? QString::fromStdString(m_scale.labelText(ticks[size_t(index)])) : QString();
}

void XMeter::setAlarmRange(double low, double high)
{
    const double lo = qMin(m_scale.minimum(), m_scale.maximum());
    const double hi = qMax(m_scale.minimum(), m_scale.maximum());
    m_alarmLow = qBound(lo, qMin(low, high), hi);
    m_alarmHigh = qBound(lo, qMax(low, high), hi);
    update();
}

void XMeter::setAlarmColor(const QColor& color)
{
    m_alarmColor = color;
    update();
}

void XMeter::setValue(double value, bool animate)
{
    if (!std::isfinite(value))
        return;
    value = qBound(qMin(m_scale.minimum(), m_scale.maximum()), value, qMax(m_scale.minimum(), m_scale.maximum()));
    m_value = value;
    m_swing->stop();
    if (!animate || !isVisible() || m_needleValue == value) {
        placeNeedle(value);
        return;
    }
    m_swing->setStartValue(m_needleValue);
    m_swing->setEndValue(value);
    m_swing->start();
}

void XMeter::placeNeedle(qreal value)
{
    m_needleValue = value;
    if (m_needle)
        m_needle->setRotation(-m_scale.angleOf(value)); // items turn clockwise, scale angles run the other way
    Q_EMIT needleValueChanged();
}

void XMeter::rebuildNeedle()
{
    if (!m_needle)
        return;
    // the needle drawn pointing at three o'clock in the meter's box; turning it about the centre aims it
    m_needle->setSize(size());
    m_needle->setDesignSize(size());
    m_needle->setPen(QPen(m_needlePen.color(), qMax<qreal>(1, m_needlePen.widthF()), Qt::SolidLine, Qt::RoundCap));
    m_needle->setBrush(QBrush(m_needlePen.color()));
    const QPointF c = centre();
    const qreal r = radius();
    QPainterPath path;
    path.moveTo(c - QPointF(r * 0.12, 0));
    path.lineTo(c + QPointF(r * 0.78, 0));
    path.addEllipse(c, qMax<qreal>(3, r * 0.06), qMax<qreal>(3, r * 0.06));
    m_needle->setPath(path, true);
    placeNeedle(m_needleValue);
}

void XMeter::geometryChanged(const QRectF& newGeometry, const QRectF& oldGeometry)
{
    XBasePaintedItem::geometryChanged(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        rebuildNeedle();
}

void XMeter::paint(QPainter* painter)
{
    const qreal r = radius();
    if (r <= 0)
        return;
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setRenderHint(QPainter::SmoothPixmapTransform);
    const QPointF c = centre();
    const QRectF dial(c.x() - r, c.y() - r, 2 * r, 2 * r);
    if (!m_dial.isNull()) {
        painter->drawImage(dial, m_dial);
    } else {
        painter->setPen(QPen(m_scalePen.color(), 1));
        painter->setBrush(m_dialBrush);
        painter->drawEllipse(dial);
    }
    const qreal start = m_scale.startAngle();
    const qreal span = m_scale.spanAngle();
    const qreal scaleR = r * 0.86;
    const QRectF scaleBox(c.x() - scaleR, c.y() - scaleR, 2 * scaleR, 2 * scaleR);
    // the alarm arc inside the scale line
    if (hasAlarmRange()) {
        const qreal a0 = m_scale.angleOf(m_alarmLow);
        const qreal a1 = m_scale.angleOf(m_alarmHigh);
        const qreal band = qMax<qreal>(3, r * 0.07);
        const qreal ar = scaleR - band / 2;
        painter->setPen(QPen(m_alarmColor, band, Qt::SolidLine, Qt::FlatCap));
        painter->setBrush(Qt::NoBrush);
        painter->drawArc(QRectF(c.x() - ar, c.y() - ar, 2 * ar, 2 * ar), arcStart16(a0), arcSpan16(a1 - a0));
    }
    painter->setPen(m_scalePen);
    painter->setBrush(Qt::NoBrush);
    painter->drawArc(scaleBox, arcStart16(start), arcSpan16(span));
    // ticks pointing inwards from the scale line, labels inside them
    const int majors = qBound(1, m_scale.majorCount(), 1000);
    const int minors = qBound(0, m_scale.minorCount(), 100);
    const int steps = majors * (minors + 1);
    painter->setFont(m_font);
    const QFontMetricsF fm(m_font);
    for (int i = 0; i <= steps; ++i) {
        const qreal angle = qDegreesToRadians(start + span * i / steps);
        const QPointF dir(std::cos(angle), -std::sin(angle));
        const bool major = i % (minors + 1) == 0;
        const qreal length = major ? r * 0.1 : r * 0.05;
        painter->setPen(m_scalePen);
        painter->drawLine(c + dir * scaleR, c + dir * (scaleR - length));
        if (!major)
            continue;
        const QString text = labelAt(i / (minors + 1));
        if (text.isEmpty())
            continue;
        const qreal w = fm.horizontalAdvance(text);
        const QPointF at = c + dir * (scaleR - r * 0.1 - qMax(w, fm.height()) / 2 - 4);
        painter->setPen(m_labelColor);
        painter->drawText(QRectF(at.x() - w / 2 - 1, at.y() - fm.height() / 2, w + 2, fm.height()), Qt::AlignCenter,
            text);
    }
}
