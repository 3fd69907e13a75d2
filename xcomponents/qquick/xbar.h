#ifndef XBAR_H
#define XBAR_H

#include "xcomponents/qquick/xbasepainteditem.h"

#include <QBrush>
#include <QFont>
#include <QPen>
#include <QStringList>
#include <QVector>

/**
 * A bar graph: one or more bars side by side in a bar area, each filled from
 * the origin to its value, both in percent of the range (0 at the start of
 * the growth direction, 100 at its end). A value on the other side of the
 * origin fills towards the start: a bar with its origin at 50 % shows
 * negative values below the middle. An optional target band marks the
 * wanted range across all bars, and an optional scale beside the bar area
 * carries ticks and labels (the numbers 0..100 until texts are given).
 */
class XBar : public XBasePaintedItem {
    Q_OBJECT

public:
    /** Growth direction (the interface's bar directions). */
    enum Direction { Up = 0, Down = 1, Left = 2, Right = 3 };
    Q_ENUM(Direction)

    /** Most bars in one graph. */
    static constexpr int kMaxBars = 255;
    /** Most scale divisions (major times minor). */
    static constexpr int kMaxTicks = 10000;

    explicit XBar(QQuickItem* parent = nullptr);
    ~XBar() override;

    void setDirection(Direction direction);
    Direction direction() const { return m_direction; }
    bool vertical() const { return m_direction == Up || m_direction == Down; }
    /** Number of bars, 1 .. kMaxBars; new bars start empty at the origin. */
    void setBarCount(int count);
    int barCount() const { return m_bars.size(); }
    /** Bar \a bar's value in percent (clamped to 0..100) and fill; false for a bar that does not exist. */
    bool setValue(int bar, qreal percent, const QBrush& brush);
    /** Only the fill of bar \a bar; false for a bar that does not exist. */
    bool setBarBrush(int bar, const QBrush& brush);
    qreal value(int bar) const { return bar >= 0 && bar < m_bars.size() ? m_bars.at(bar).value : 0; }
    /** Where the bars start, percent of the range (clamped to 0..100). */
    void setOrigin(qreal percent);
    qreal origin() const { return m_origin; }
    /** The target band from \a low to \a high percent (in either order, clamped). */
    void setTarget(qreal low, qreal high);
    void setTargetVisible(bool visible);
    void setLook(const QBrush& background, const QPen& border, const QPen& scalePen, const QPen& targetPen);
    void setScale(bool visible, int majorCount, int minorCount, const QFont& font, const QColor& labelColor);
    /** Labels of the major ticks from the start of the scale; empty: the numbers 0..100. */
    void setLabels(const QStringList& labels);
    QString labelAt(int index) const;

    /** The bar area (without the scale strip), item coordinates. */
    QRectF barArea() const;
    /** The part of the item filled by bar \a bar (empty when it is at the origin). */
    QRectF barRect(int bar) const;

    void paint(QPainter* painter) override;

private:
    struct Bar {
        qreal value = 0;
        QBrush brush { Qt::darkCyan };
    };
    /** The coordinate along the growth axis of \a percent inside \a area. */
    qreal along(const QRectF& area, qreal percent) const;

    Direction m_direction = Up;
    QVector<Bar> m_bars { Bar() };
    qreal m_origin = 0;
    qreal m_targetLow = 0;
    qreal m_targetHigh = 0;
    bool m_targetVisible = false;
    QBrush m_background { Qt::white };
    QPen m_border { Qt::black, 1 };
    QPen m_scalePen { Qt::black, 1 };
    QPen m_targetPen { Qt::red, 2 };
    bool m_scaleVisible = false;
    int m_majorCount = 4;
    int m_minorCount = 1;
    QFont m_font;
    QColor m_labelColor { Qt::black };
    QStringList m_labels;
};

#endif // XBAR_H
