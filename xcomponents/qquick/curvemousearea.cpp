#include "xcomponents/qquick/curvemousearea.h"

#include "xcomponents/qquick/curvesamplechart.h"
#include "xcomponents/qquick/xcpaxis.h"

#include <QGuiApplication>
#include <QLineF>
#include <QStyleHints>

CurveMouseArea::CurveMouseArea(QQuickItem* parent)
    : QQuickItem(parent)
{
    setAcceptedMouseButtons(Qt::LeftButton);
    setAcceptTouchEvents(true);
}

void CurveMouseArea::setCustomItem(CurveSampleChart* chart)
{
    if (m_chart == chart)
        return;
    m_chart = chart;
    Q_EMIT customItemChanged();
}

void CurveMouseArea::setRectMargin(const QRect& margin)
{
    if (m_margin == margin)
        return;
    m_margin = margin;
    Q_EMIT rectMarginChanged();
}

void CurveMouseArea::onPinchScale(const QPointF& centre, qreal scale)
{
    if (!m_chart)
        return;
    if (m_firstStep && m_pinchScale == 1.0) {
        if (m_chart->xAxis()) {
            m_startX = m_chart->xAxis()->range();
            m_startY = m_chart->yAxis()->range();
        }
        m_firstStep = false;
    }
    if (scale == m_pinchScale)
        return;
    m_chart->routeWheelEvents(centre, scale > m_pinchScale ? 120 : -120);
    m_pinchScale = scale;
}

void CurveMouseArea::endPinch()
{
    m_firstStep = true;
    m_pinchScale = 1.0;
}

QMouseEvent CurveMouseArea::toChart(QEvent::Type type, const QPointF& pos, Qt::MouseButtons buttons) const
{
    const QPointF at = m_chart ? mapToItem(m_chart, pos) : pos;
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    return QMouseEvent(type, at, mapToScene(pos), mapToGlobal(pos), button, buttons, Qt::NoModifier);
}

void CurveMouseArea::mousePressEvent(QMouseEvent* event)
{
    event->accept();
    if (!m_chart)
        return;
    QMouseEvent e = toChart(QEvent::MouseButtonPress, event->localPos(), event->buttons());
    m_chart->pressAt(&e);
}

void CurveMouseArea::mouseMoveEvent(QMouseEvent* event)
{
    event->accept();
    if (!m_chart)
        return;
    QMouseEvent e = toChart(QEvent::MouseMove, event->localPos(), event->buttons());
    m_chart->routeMouseEvents(&e);
}

void CurveMouseArea::mouseReleaseEvent(QMouseEvent* event)
{
    event->accept();
    if (!m_chart)
        return;
    QMouseEvent e = toChart(QEvent::MouseButtonRelease, event->localPos(), event->buttons());
    m_chart->releaseAt(&e);
}

void CurveMouseArea::mouseDoubleClickEvent(QMouseEvent* event)
{
    event->accept();
    if (!m_chart)
        return;
    QMouseEvent e = toChart(QEvent::MouseButtonDblClick, event->localPos(), event->buttons());
    m_chart->doubleClickAt(&e);
}

void CurveMouseArea::wheelEvent(QWheelEvent* event)
{
    event->accept();
    if (!m_chart)
        return;
    const QPointF at = mapToItem(m_chart, event->position());
    m_chart->routeWheelEvents(at, event->angleDelta().y());
}

void CurveMouseArea::touchEvent(QTouchEvent* event)
{
    event->accept();
    if (!m_chart)
        return;
    const QList<QTouchEvent::TouchPoint>& points = event->touchPoints();
    int down = 0;
    for (const QTouchEvent::TouchPoint& p : points)
        down += p.state() != Qt::TouchPointReleased ? 1 : 0;

    if (down >= 2 || (m_pinching && down > 0)) {
        if (!m_pinching) { // a second finger: the one-finger drag ends where it is
            if (m_touchDown) {
                QMouseEvent e = toChart(QEvent::MouseButtonRelease, m_lastTouch, Qt::NoButton);
                m_chart->releaseAt(&e);
                m_touchDown = false;
            }
            m_pinching = true;
            endPinch();
            m_pinchStartDistance = 0;
        }
        if (points.size() >= 2) {
            const QPointF a = points.at(0).pos();
            const QPointF b = points.at(1).pos();
            const qreal distance = QLineF(a, b).length();
            if (m_pinchStartDistance <= 0)
                m_pinchStartDistance = qMax<qreal>(1.0, distance);
            onPinchScale(mapToItem(m_chart, (a + b) / 2), distance / m_pinchStartDistance);
        }
        return;
    }
    if (m_pinching) { // the last finger of a pinch lifted
        if (down == 0) {
            m_pinching = false;
            endPinch();
        }
        return;
    }
    if (points.isEmpty())
        return;
    const QTouchEvent::TouchPoint& p = points.first();
    if (p.state() == Qt::TouchPointPressed && !m_touchDown) {
        m_touchDown = true;
        m_touchId = p.id();
        m_lastTouch = p.pos();
        const bool twice = m_lastTap.isValid()
            && m_lastTap.elapsed() < QGuiApplication::styleHints()->mouseDoubleClickInterval()
            && QLineF(p.pos(), m_lastTapPos).length() < 20;
        QMouseEvent e = toChart(QEvent::MouseButtonPress, p.pos(), Qt::LeftButton);
        m_chart->pressAt(&e);
        if (twice) {
            m_lastTap.invalidate();
            QMouseEvent d = toChart(QEvent::MouseButtonDblClick, p.pos(), Qt::LeftButton);
            m_chart->doubleClickAt(&d);
        }
    } else if (m_touchDown && p.id() == m_touchId && p.state() == Qt::TouchPointMoved) {
        m_lastTouch = p.pos();
        QMouseEvent e = toChart(QEvent::MouseMove, p.pos(), Qt::LeftButton);
        m_chart->routeMouseEvents(&e);
    } else if (m_touchDown && p.id() == m_touchId && p.state() == Qt::TouchPointReleased) {
        m_touchDown = false;
        QMouseEvent e = toChart(QEvent::MouseButtonRelease, p.pos(), Qt::NoButton);
        m_chart->releaseAt(&e);
        m_lastTap.start();
        m_lastTapPos = p.pos();
    }
}
