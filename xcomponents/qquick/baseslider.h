#ifndef BASESLIDER_H
#define BASESLIDER_H

#include "xcomponents/qquick/xbasepainteditem.h"

#include <QBrush>
#include <QImage>
#include <QPointer>

class SliderRuler;

/**
 * A slider: a groove from minimum to maximum in one of four directions, a
 * handle, and (with a scale) a SliderRuler beside the groove.
 *
 * A press anywhere on the slider moves the handle to the value under the
 * finger and sends event 2 with that value (a double); while the finger
 * drags, event 4 with the value at the pointer on every change; the release
 * sends event 3 with the last value. Values snap to multiples of the step
 * (counted from the minimum) and stay within the range.
 *
 * While the finger is down, the handle follows the finger; a position set by
 * the logic meanwhile (setValue) is kept and shown at the release when it came
 * after the finger's last value, so an echo of the dragged values never makes
 * the handle jump back.
 */
class BaseSlider : public XBasePaintedItem {
    Q_OBJECT
    Q_PROPERTY(double value READ value NOTIFY valueChanged)

public:
    /** Direction from minimum to maximum (the interface's bar directions). */
    enum Direction { Up = 0, Down = 1, Left = 2, Right = 3 };
    Q_ENUM(Direction)

    explicit BaseSlider(QQuickItem* parent = nullptr);
    ~BaseSlider() override;

    void setDirection(Direction direction);
    Direction direction() const { return m_direction; }
    bool vertical() const { return m_direction == Up || m_direction == Down; }
    /** The range (minimum may exceed maximum); non-finite ends are ignored. */
    void setRange(double minimum, double maximum);
    double minimum() const { return m_min; }
    double maximum() const { return m_max; }
    /** Snap step; <= 0 or non-finite: continuous. */
    void setStep(double step);
    void setLook(const QBrush& groove, const QImage& handle, const QBrush& handleBrush);
    /** The ruler showing the scale, made on first use; null without a scale. */
    SliderRuler* ruler() const { return m_ruler.data(); }
    /** Shows a scale of \a majorCount divisions (0: none) beside the groove. */
    void setScale(int majorCount, const QFont& font, const QColor& labelColor);

    double value() const { return m_value; }
    /** Moves the handle (clamped, snapped; NaN ignored). */
    void setValue(double value);

    /** The value at \a point (item coordinates), clamped and snapped. */
    double valueAt(const QPointF& point) const;
    /** The groove's centre line from the minimum end to the maximum end, item coordinates. */
    QLineF grooveLine() const;
    /** The handle's box, item coordinates. */
    QRectF handleRect() const;
    bool isDragging() const { return m_dragging; }

    /** The finger on the slider or its ruler (item coordinates of the slider). */
    void pointerPressed(const QPointF& point);
    void pointerMoved(const QPointF& point);
    void pointerReleased(const QPointF& point);

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void valueChanged();

protected:
    /* inherits documentation from base class */
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseUngrabEvent() override;
    void geometryChanged(const QRectF& newGeometry, const QRectF& oldGeometry) override;

private:
    double snap(double value) const;
    /** The box of the groove and handle (the item without the ruler's strip). */
    QRectF trackArea() const;
    void layoutRuler();
    void report(int event, double value);

    Direction m_direction = Right;
    double m_min = 0;
    double m_max = 100;
    double m_step = 0;
    double m_value = 0;
    QBrush m_groove { QColor(0xC8, 0xD0, 0xD8) };
    QImage m_handleImage;
    QBrush m_handleBrush { QColor(0x2F, 0x6F, 0xD0) };
    QPointer<SliderRuler> m_ruler;
    bool m_dragging = false;
    double m_fingerValue = 0;
    bool m_logicSpokeLast = false;
    double m_logicValue = 0;
};

#endif // BASESLIDER_H
