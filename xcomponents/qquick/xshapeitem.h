#ifndef XSHAPEITEM_H
#define XSHAPEITEM_H

#include "xcomponents/qquick/xbasepainteditem.h"

#include <QBrush>
#include <QPainterPath>
#include <QPen>

/**
 * A graphic shape: a path drawn antialiased with a brush and a pen, and the
 * dynamic fill that makes a tank fill up.
 *
 * The path is given in design coordinates, those of the box the shape was
 * designed in (designSize). It is stretched to the item's size with half the
 * pen's width kept free on every side, so the outline stays inside the box and
 * a zoomed shape keeps its line width. Open paths (lines, arcs, curves) take
 * no brush and no fill.
 *
 * The fill covers the part of the shape's bounds from the side given by the
 * direction up to the level (0 .. 1), clipped to the shape, drawn over the
 * brush and under the outline.
 *
 * A press inside the shape (on the line, for open shapes) is reported as
 * event 2 with the widget id and its release as event 3, no payload; presses
 * beside the shape reach what lies below it.
 */
class XShapeItem : public XBasePaintedItem {
    Q_OBJECT
    Q_PROPERTY(QPen pen READ pen WRITE setPen NOTIFY penChanged)
    Q_PROPERTY(QBrush brush READ brush WRITE setBrush NOTIFY brushChanged)
    Q_PROPERTY(qreal fillLevel READ fillLevel NOTIFY fillChanged)

public:
    /** Where the fill starts (the order of the interface's bar directions). */
    enum FillDirection {
        FillUp = 0, /**< from the bottom up */
        FillDown = 1, /**< from the top down */
        FillLeft = 2, /**< from the right to the left */
        FillRight = 3 /**< from the left to the right */
    };
    Q_ENUM(FillDirection)

    explicit XShapeItem(QQuickItem* parent = nullptr);
    ~XShapeItem() override;

    QPen pen() const { return m_pen; }
    void setPen(const QPen& pen);
    QBrush brush() const { return m_brush; }
    void setBrush(const QBrush& brush);

    /** The path in design coordinates; \a closed shapes take the brush and the fill. */
    void setPath(const QPainterPath& path, bool closed);
    QPainterPath path() const { return m_path; }
    bool isClosed() const { return m_closed; }
    /** The size of the box the path was designed in; empty: the item's own size. */
    void setDesignSize(const QSizeF& size);
    QSizeF designSize() const { return m_designSize; }

    /** Fills \a level (clamped to 0 .. 1, NaN: 0) of the shape from \a direction with \a brush. */
    void setFill(qreal level, FillDirection direction, const QBrush& brush);
    qreal fillLevel() const { return m_fillLevel; }
    FillDirection fillDirection() const { return m_fillDirection; }
    /** The part of the item covered by the fill (item coordinates), empty without a fill. */
    QRectF fillRect() const;

    /** The design-to-item mapping of the current size and pen. */
    QTransform designTransform() const;
    /** The path as drawn, in item coordinates. */
    QPainterPath itemPath() const { return designTransform().map(m_path); }

    /** Greys the shape out (drawn faint) while the widget is disabled. */
    Q_INVOKABLE void setGrayFlag(bool on);
    bool grayFlag() const { return m_gray; }

    /** Presses count inside a closed shape, or within a finger's reach of a line. */
    bool contains(const QPointF& point) const override;
    void paint(QPainter* painter) override;

Q_SIGNALS:
    void penChanged();
    void brushChanged();
    void fillChanged();
    void designSizeChanged();

protected:
    /** Event 2 with the widget id; the press is taken so that its release comes here. */
    void mousePressEvent(QMouseEvent* event) override;
    /** Event 3 with the widget id. */
    void mouseReleaseEvent(QMouseEvent* event) override;
    /** Draws what a kind adds over the outline (ticks, labels); nothing by default. */
    virtual void paintExtra(QPainter* painter, const QTransform& toItem);

private:
    QPen m_pen { Qt::black, 1 };
    QBrush m_brush;
    QPainterPath m_path;
    bool m_closed = true;
    QSizeF m_designSize;
    qreal m_fillLevel = 0;
    FillDirection m_fillDirection = FillUp;
    QBrush m_fillBrush;
    bool m_gray = false;
};

#endif // XSHAPEITEM_H
