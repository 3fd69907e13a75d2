#ifndef CURVEMOUSEAREA_H
#define CURVEMOUSEAREA_H

#include <qcustomplot.h>

#include <QElapsedTimer>
#include <QPointer>
#include <QQuickItem>
#include <QRect>

#include "xcomponents/qquick/curvesamplechart.h"

/**
 * The pointer area over the plot area of a sample curve chart
 * ("qrc:/chart/QmlCurveSampleChart.qml" places it inside rectMargin).
 *
 * Mouse presses, moves, releases and double clicks go to the chart
 * (pressAt, routeMouseEvents, releaseAt, doubleClickAt), which drags the
 * range and reports events 2, 3 and 5. One finger acts as the mouse; a
 * second tap at the same place within the double-click interval is a double
 * click. A second finger turns the gesture into a pinch: the drag ends where it is,
 * and onPinchScale() zooms at the fingers' centre by wheel steps until the
 * fingers lift.
 */
class CurveMouseArea : public QQuickItem {
    Q_OBJECT
    Q_PROPERTY(CurveSampleChart* customItem READ customItem WRITE setCustomItem NOTIFY customItemChanged)
    Q_PROPERTY(QRect rectMargin READ rectMargin WRITE setRectMargin NOTIFY rectMarginChanged)

public:
    explicit CurveMouseArea(QQuickItem* parent = nullptr);

    CurveSampleChart* customItem() const { return m_chart.data(); }
    void setCustomItem(CurveSampleChart* chart);
    /** Left, top, right and bottom margins of the plot area inside the chart, as x, y, width, height. */
    QRect rectMargin() const { return m_margin; }
    void setRectMargin(const QRect& margin);
    /** The y range at creation. */
    void setYOriginalRange(const QCPRange& range) { m_yOriginal = range; }
    QCPRange yOriginalRange() const { return m_yOriginal; }

    /**
     * One step of a pinch at \a centre (chart coordinates) with the pinch's
     * total \a scale: the first step keeps the x and y ranges as they were;
     * each later step whose scale differs from the last one sends a wheel
     * notch into the plot at the centre, +120 when the scale grew, -120 when
     * it shrank.
     */
    Q_INVOKABLE void onPinchScale(const QPointF& centre, qreal scale);
    /** Ends a pinch: the next step is a first step again. */
    Q_INVOKABLE void endPinch();
    /** The ranges kept at the first step of the pinch under way. */
    QCPRange pinchStartX() const { return m_startX; }
    QCPRange pinchStartY() const { return m_startY; }

Q_SIGNALS:
    void customItemChanged();
    void rectMarginChanged();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void touchEvent(QTouchEvent* event) override;
    /** The wheel zooms the plot at the pointer. */
    void wheelEvent(QWheelEvent* event) override;

private:
    /** \a event moved into the chart's coordinates. */
    QMouseEvent toChart(QEvent::Type type, const QPointF& pos, Qt::MouseButtons buttons) const;

    QPointer<CurveSampleChart> m_chart;
    QRect m_margin;
    QCPRange m_yOriginal;
    QCPRange m_startX;
    QCPRange m_startY;
    qreal m_pinchScale = 1.0;
    bool m_firstStep = true;
    bool m_pinching = false;
    bool m_touchDown = false;
    int m_touchId = -1;
    QPointF m_lastTouch;
    qreal m_pinchStartDistance = 0;
    QElapsedTimer m_lastTap;
    QPointF m_lastTapPos;
};

#endif // CURVEMOUSEAREA_H
