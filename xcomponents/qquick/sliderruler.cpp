#include "xcomponents/qquick/sliderruler.h"

#include "xcomponents/qquick/baseslider.h"

#include <QFontMetricsF>
#include <QMouseEvent>
#include <QPainter>

SliderRuler::SliderRuler(BaseSlider* slider)
    : XBasePaintedItem(slider)
{
    setAntialiasing(true);
    setAcceptedMouseButtons(Qt::LeftButton);
}

SliderRuler::~SliderRuler() = default;

BaseSlider* SliderRuler::slider() const
{
    return qobject_cast<BaseSlider*>(parentItem());
}

void SliderRuler::setMajorCount(int count)
{
    m_majorCount = qBound(1, count, 1000);
    update();
}

void SliderRuler::setFont(const QFont& font, const QColor& color)
{
    m_font = font;
    m_labelColor = color;
    update();
}

void SliderRuler::setLabels(const QStringList& labels)
{
    m_labels = labels.mid(0, m_majorCount + 1);
    update();
}

QString SliderRuler::labelAt(int index) const
{
    if (index < 0 || index > m_majorCount)
        return QString();
    if (!m_labels.isEmpty())
        return m_labels.value(index);
    const BaseSlider* s = slider();
    if (!s)
        return QString();
    return QString::number(s->minimum() + (s->maximum() - s->minimum()) * index / m_majorCount, 'g', 6);
}

qreal SliderRuler::thickness() const
{
    const QFontMetricsF fm(m_font);
    const BaseSlider* s = slider();
    if (s && s->vertical()) {
        qreal widest = 0;
        for (int i = 0; i <= m_majorCount && i <= 100; ++i)
            widest = qMax(widest, fm.horizontalAdvance(labelAt(i)));
        return qMin(widest + 14, s->width() / 2);
    }
    return qMin(fm.height() + 12, s ? s->height() / 2 : fm.height() + 12);
}

void SliderRuler::paint(QPainter* painter)
{
    const BaseSlider* s = slider();
    if (!s)
        return;
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setFont(m_font);
    const QFontMetricsF fm(m_font);
    const QLineF line = s->grooveLine();
    const QPointF offset = position(); // slider coordinates into ruler coordinates
    for (int i = 0; i <= m_majorCount; ++i) {
        const QPointF at = line.pointAt(qreal(i) / m_majorCount) - offset;
        const QString text = labelAt(i);
        painter->setPen(QPen(m_labelColor, 1));
        if (s->vertical()) {
            painter->drawLine(QLineF(0, at.y(), 6, at.y()));
            painter->drawText(QRectF(10, at.y() - fm.height() / 2, width() - 10, fm.height()),
                Qt::AlignLeft | Qt::AlignVCenter, text);
        } else {
            painter->drawLine(QLineF(at.x(), 0, at.x(), 6));
            const qreal w = fm.horizontalAdvance(text) + 2;
            painter->drawText(QRectF(at.x() - w / 2, 8, w, fm.height()), Qt::AlignCenter, text);
        }
    }
}

void SliderRuler::mousePressEvent(QMouseEvent* event)
{
    if (BaseSlider* s = slider())
        s->pointerPressed(mapToItem(s, event->localPos()));
    event->accept();
}

void SliderRuler::mouseMoveEvent(QMouseEvent* event)
{
    if (BaseSlider* s = slider())
        s->pointerMoved(mapToItem(s, event->localPos()));
}

void SliderRuler::mouseReleaseEvent(QMouseEvent* event)
{
    if (BaseSlider* s = slider())
        s->pointerReleased(mapToItem(s, event->localPos()));
}
