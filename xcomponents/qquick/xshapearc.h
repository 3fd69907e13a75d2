#ifndef XSHAPEARC_H
#define XSHAPEARC_H

#include "xcomponents/qquick/xshapeitem.h"

/**
 * An arc or a pie slice of the ellipse inscribed in the item: from startAngle
 * over spanAngle degrees (0 at three o'clock, counter-clockwise positive,
 * negative spans clockwise). The start angle is taken modulo 360 and the span
 * is clamped to -360 .. 360; a non-finite angle keeps the previous one. An arc
 * is an open line; a pie slice is closed through the centre and takes a brush
 * and a fill.
 */
class XShapeArc : public XShapeItem {
    Q_OBJECT
    Q_PROPERTY(qreal startAngle READ startAngle WRITE setStartAngle NOTIFY anglesChanged)
    Q_PROPERTY(qreal spanAngle READ spanAngle WRITE setSpanAngle NOTIFY anglesChanged)
    Q_PROPERTY(bool pie READ isPie WRITE setPie NOTIFY anglesChanged)

public:
    explicit XShapeArc(QQuickItem* parent = nullptr);
    ~XShapeArc() override;

    qreal startAngle() const { return m_start; }
    void setStartAngle(qreal degrees);
    qreal spanAngle() const { return m_span; }
    void setSpanAngle(qreal degrees);
    bool isPie() const { return m_pie; }
    void setPie(bool pie);

Q_SIGNALS:
    void anglesChanged();

protected:
    /* inherits documentation from base class */
    void geometryChanged(const QRectF& newGeometry, const QRectF& oldGeometry) override;

private:
    void rebuild();

    qreal m_start = 0;
    qreal m_span = 90;
    bool m_pie = false;
};

#endif // XSHAPEARC_H
