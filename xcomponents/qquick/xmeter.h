#ifndef XMETER_H
#define XMETER_H

#include "xcomponents/qquick/xbasepainteditem.h"

#include <qgui/scale.h>

#include <QBrush>
#include <QFont>
#include <QImage>
#include <QPen>
#include <QPointer>
#include <QStringList>

class QVariantAnimation;
class XShapeItem;

/**
 * A round gauge: a dial (a picture or a brush) in the largest circle that
 * fits the box, a scale arc on a ScaleCircle with major and minor ticks and a
 * label at every major tick, a coloured alarm arc, and a needle.
 *
 * The needle is an item of its own, turned by the scene graph: a new value
 * never repaints the dial. It swings to the new value in kSwingMs; a value
 * arriving during a swing starts the next swing from where the needle is, so
 * an animation never delays an update. value() is always the latest value.
 */
class XMeter : public XBasePaintedItem {
    Q_OBJECT
    Q_PROPERTY(qreal needleValue READ needleValue NOTIFY needleValueChanged)

public:
    /** Length of a needle swing, milliseconds. */
    static constexpr int kSwingMs = 300;

    explicit XMeter(QQuickItem* parent = nullptr);
    ~XMeter() override;

    /** The scale: range, angles, tick counts, number labels. Call scaleChanged() after changing it. */
    ScaleCircle& scale() { return m_scale; }
    const ScaleCircle& scale() const { return m_scale; }
    void scaleChanged();

    void setDial(const QImage& picture, const QBrush& brush);
    void setPens(const QPen& scalePen, const QPen& needlePen);
    void setFont(const QFont& font, const QColor& color);
    /** Labels of the major ticks from the minimum on; empty: the scale's numbers. */
    void setLabels(const QStringList& labels);
    QString labelAt(int index) const;
    /** The alarm arc from \a low to \a high (either order, clamped to the range); equal ends: none. */
    void setAlarmRange(double low, double high);
    void setAlarmColor(const QColor& color);
    bool hasAlarmRange() const { return m_alarmHigh > m_alarmLow; }

    /** Moves the needle to \a value (clamped to the range; NaN: ignored), swinging when \a animate. */
    void setValue(double value, bool animate = true);
    double value() const { return m_value; }
    /** Where the needle points now (during a swing: between the old and the new value). */
    qreal needleValue() const { return m_needleValue; }
    /** The needle's angle now, degrees, 0 at three o'clock, counter-clockwise positive. */
    qreal needleAngle() const { return m_scale.angleOf(m_needleValue); }
    /** The centre and radius of the dial, item coordinates. */
    QPointF centre() const { return QPointF(width() / 2, height() / 2); }
    qreal radius() const { return qMax<qreal>(0, qMin(width(), height()) / 2 - 2); }

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void needleValueChanged();

protected:
    /* inherits documentation from base class */
    void geometryChanged(const QRectF& newGeometry, const QRectF& oldGeometry) override;

private:
    void placeNeedle(qreal value);
    void rebuildNeedle();

    ScaleCircle m_scale;
    QImage m_dial;
    QBrush m_dialBrush { QColor(0xF4, 0xF6, 0xF8) };
    QPen m_scalePen { Qt::black, 2 };
    QPen m_needlePen { Qt::red, 3 };
    QFont m_font;
    QColor m_labelColor { Qt::black };
    QStringList m_labels;
    double m_alarmLow = 0;
    double m_alarmHigh = 0;
    QColor m_alarmColor { Qt::red };
    double m_value = 0;
    qreal m_needleValue = 0;
    QPointer<XShapeItem> m_needle;
    QVariantAnimation* m_swing = nullptr;
};

#endif // XMETER_H
