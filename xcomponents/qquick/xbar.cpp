#include "xcomponents/qquick/xbar.h"

#include <QFontMetricsF>
#include <QPainter>

#include <cmath>

namespace {
qreal percentOf(qreal p)
{
    return std::isfinite(p) ? qBound<qreal>(0, p, 100) : 0;
}
} // namespace

XBar::XBar(QQuickItem* parent)
    : XBasePaintedItem(parent)
{
    setAntialiasing(true);
}

XBar::~XBar() = default;

void XBar::setDirection(Direction direction)
{
    m_direction = direction;
    update();
}

void XBar::setBarCount(int count)
{
    m_bars.resize(qBound(1, count, kMaxBars));
    update();
}

bool XBar::setValue(int bar, qreal percent, const QBrush& brush)
{
    if (bar < 0 || bar >= m_bars.size())
        return false;
    m_bars[bar].value = percentOf(percent);
    m_bars[bar].brush = brush;
    update();
    return true;
}

bool XBar::setBarBrush(int bar, const QBrush& brush)
{
    if (bar < 0 || bar >= m_bars.size())
        return false;
    m_bars[bar].brush = brush;
    update();
    return true;
}

void XBar::setOrigin(qreal percent)
{
    m_origin = percentOf(percent);
    update();
}

void XBar::setTarget(qreal low, qreal high)
{
    m_targetLow = qMin(percentOf(low), percentOf(high));
    m_targetHigh = qMax(percentOf(low), percentOf(high));
    update();
}

void XBar::setTargetVisible(bool visible)
{
    m_targetVisible = visible;
    update();
}

void XBar::setLook(const QBrush& background, const QPen& border, const QPen& scalePen, const QPen& targetPen)
{
    m_background = background;
    m_border = border;
    m_scalePen = scalePen;
    m_targetPen = targetPen;
    update();
}

void XBar::setScale(bool visible, int majorCount, int minorCount, const QFont& font, const QColor& labelColor)
{
    m_scaleVisible = visible;
    m_majorCount = qBound(1, majorCount, kMaxTicks);
    m_minorCount = qBound(0, minorCount, kMaxTicks / m_majorCount - 1);
    m_font = font;
    m_labelColor = labelColor;
    update();
}

void XBar::setLabels(const QStringList& labels)
{
    m_labels = labels.mid(0, m_majorCount + 1);
    update();
}

QString XBar::labelAt(int index) const
{
    if (index < 0 || index > m_majorCount)
        return QString();
    if (!m_labels.isEmpty())
        return m_labels.value(index);
    return QString::number(100.0 * index / m_majorCount, 'g', 4);
}

QRectF XBar::barArea() const
{
    QRectF area(0, 0, width(), height());
    if (!m_scaleVisible)
        return area;
    const QFontMetricsF fm(m_font);
    if (vertical()) {
        qreal widest = 0;
        for (int i = 0; i <= m_majorCount && i <= 100; ++i)
            widest = qMax(widest, fm.horizontalAdvance(labelAt(i)));
        const qreal strip = qMin(widest + 12, width() / 2); // labels, a gap and the ticks
        const qreal margin = qMin(fm.height() / 2, height() / 4); // room for the end labels
        return area.adjusted(strip, margin, 0, -margin);
    }
    const qreal strip = qMin(fm.height() + 10, height() / 2);
    const qreal margin = qMin(qMax(fm.horizontalAdvance(labelAt(0)), fm.horizontalAdvance(labelAt(m_majorCount))) / 2,
        width() / 4);
    return area.adjusted(margin, 0, -margin, -strip);
}

qreal XBar::along(const QRectF& area, qreal percent) const
{
    const qreal f = percent / 100.0;
    switch (m_direction) {
    case Down:
        return area.top() + f * area.height();
    case Left:
        return area.right() - f * area.width();
    case Right:
        return area.left() + f * area.width();
    case Up:
    default:
        return area.bottom() - f * area.height();
    }
}

QRectF XBar::barRect(int bar) const
{
    if (bar < 0 || bar >= m_bars.size())
        return QRectF();
    const QRectF area = barArea();
    const int n = m_bars.size();
    const qreal a = along(area, m_origin);
    const qreal b = along(area, m_bars.at(bar).value);
    // each bar gets an equal slot across, with a gap of a sixth of it on both sides
    if (vertical()) {
        const qreal slot = area.width() / n;
        const qreal gap = n > 1 ? slot / 6 : slot / 8;
        return QRectF(QPointF(area.left() + bar * slot + gap, qMin(a, b)),
            QPointF(area.left() + (bar + 1) * slot - gap, qMax(a, b)));
    }
    const qreal slot = area.height() / n;
    const qreal gap = n > 1 ? slot / 6 : slot / 8;
    return QRectF(QPointF(qMin(a, b), area.top() + bar * slot + gap),
        QPointF(qMax(a, b), area.top() + (bar + 1) * slot - gap));
}

void XBar::paint(QPainter* painter)
{
    if (width() <= 0 || height() <= 0)
        return;
    painter->setRenderHint(QPainter::Antialiasing);
    const QRectF area = barArea();
    painter->fillRect(area, m_background);
    for (int i = 0; i < m_bars.size(); ++i)
        painter->fillRect(barRect(i), m_bars.at(i).brush);
    if (m_targetVisible && m_targetHigh > m_targetLow) {
        const qreal a = along(area, m_targetLow);
        const qreal b = along(area, m_targetHigh);
        const QRectF band = vertical() ? QRectF(QPointF(area.left(), qMin(a, b)), QPointF(area.right(), qMax(a, b)))
                                       : QRectF(QPointF(qMin(a, b), area.top()), QPointF(qMax(a, b), area.bottom()));
        QColor tint = m_targetPen.color();
        tint.setAlpha(tint.alpha() / 5);
        painter->fillRect(band, tint);
        painter->setPen(m_targetPen);
        if (vertical()) {
            painter->drawLine(QLineF(area.left(), a, area.right(), a));
            painter->drawLine(QLineF(area.left(), b, area.right(), b));
        } else {
            painter->drawLine(QLineF(a, area.top(), a, area.bottom()));
            painter->drawLine(QLineF(b, area.top(), b, area.bottom()));
        }
    }
    if (m_border.style() != Qt::NoPen) {
        painter->setPen(m_border);
        painter->setBrush(Qt::NoBrush);
        const qreal half = m_border.widthF() / 2;
        painter->drawRect(area.adjusted(half, half, -half, -half));
    }
    if (!m_scaleVisible)
        return;
    // the scale along the bar area's left (vertical bars) or bottom edge, from the start of the growth
    painter->setPen(m_scalePen);
    const int steps = m_majorCount * (m_minorCount + 1);
    const QFontMetricsF fm(m_font);
    painter->setFont(m_font);
    for (int i = 0; i <= steps; ++i) {
        const qreal p = 100.0 * i / steps;
        const qreal at = along(area, p);
        const bool major = i % (m_minorCount + 1) == 0;
        const qreal length = major ? 8 : 4;
        painter->setPen(m_scalePen);
        if (vertical())
            painter->drawLine(QLineF(area.left() - length, at, area.left(), at));
        else
            painter->drawLine(QLineF(at, area.bottom(), at, area.bottom() + length));
        if (!major)
            continue;
        const QString text = labelAt(i / (m_minorCount + 1));
        if (text.isEmpty())
            continue;
        painter->setPen(m_labelColor);
        if (vertical())
            painter->drawText(QRectF(0, at - fm.height() / 2, area.left() - 10, fm.height()),
                Qt::AlignRight | Qt::AlignVCenter, text);
        else
            painter->drawText(QRectF(at - 100, area.bottom() + 9, 200, fm.height()), Qt::AlignHCenter | Qt::AlignTop,
                text);
    }
}
