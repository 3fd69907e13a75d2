#include "xcomponents/qquick/xymousearea.h"

#include "platform/logiclayercaller.h"

#include <QPainter>

#include <qgui/events.h>

XYMouseArea::XYMouseArea(QQuickItem* parent)
    : QQuickPaintedItem(parent)
{
    setAcceptedMouseButtons(Qt::LeftButton);
}

void XYMouseArea::setCustomItem(XYCurveChart* chart)
{
    if (m_chart == chart)
        return;
    m_chart = chart;
    Q_EMIT customItemChanged();
}

void XYMouseArea::setRectMargin(const QRect& margin)
{
    if (m_margin == margin)
        return;
    m_margin = margin;
    Q_EMIT rectMarginChanged();
}

void XYMouseArea::setScaleState(bool zoomed)
{
    if (m_scaleState == zoomed)
        return;
    m_scaleState = zoomed;
    Q_EMIT scaleStateChanged();
}

void XYMouseArea::send(int code)
{
    if (!m_chart)
        return;
    int zero = 0;
    LogicLayerCaller::call(m_chart->getId(), code, &zero);
}

void XYMouseArea::paint(QPainter* painter)
{
    if (!m_dragging)
        return;
    painter->setPen(m_pen);
    painter->setBrush(m_brush);
    painter->drawRect(band());
}

void XYMouseArea::mousePressEvent(QMouseEvent* event)
{
    event->accept();
    m_start = event->localPos();
    m_end = m_start;
    m_dragging = true;
    send(EVT_CURVE_XY_PRESS);
}

void XYMouseArea::mouseMoveEvent(QMouseEvent* event)
{
    event->accept();
    if (!m_dragging)
        return;
    m_end = QPointF(qBound<qreal>(0, event->localPos().x(), width()), qBound<qreal>(0, event->localPos().y(), height()));
    update();
}

void XYMouseArea::mouseReleaseEvent(QMouseEvent* event)
{
    event->accept();
    const QRectF selected = band();
    m_dragging = false;
    update();
    send(EVT_CURVE_XY_RELEASE);
    if (m_chart && selected.width() >= kMinSide && selected.height() >= kMinSide)
        m_chart->onSelectedRectChanged(selected);
}

void XYMouseArea::mouseDoubleClickEvent(QMouseEvent* event)
{
    event->accept();
    m_dragging = false;
    update();
    send(EVT_CURVE_XY_RELEASE);
}
