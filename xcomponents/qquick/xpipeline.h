#ifndef XPIPELINE_H
#define XPIPELINE_H

#include <QBrush>
#include <QColor>
#include <QElapsedTimer>
#include <QPen>
#include <QPointer>
#include <QPolygonF>
#include <QQuickItem>

class XShapeItem;

/**
 * A pipeline: a pipe of a given width along a polyline with its bends, and a
 * flow of marks (blocks, arrow heads or dots) moving inside it at a rate in
 * pixels per second, from the first point to the last or back.
 *
 * The pipe is painted once (a shape item under the flow); the flow is a band
 * of the scene graph whose marks the graphics card places from one offset.
 * While the pipeline flows and can be seen, each frame only advances that
 * offset; at rate 0, hidden, fully transparent or out of a window, it asks for
 * no frames at all, and the marks stand where they were.
 */
class XPipeLine : public QQuickItem {
    Q_OBJECT
    Q_PROPERTY(quint32 widgetId READ getId WRITE setId NOTIFY widgetIdChanged)

public:
    /** Most points of a pipe; the rest are dropped. */
    static constexpr int kMaxPoints = 100000;

    explicit XPipeLine(QQuickItem* parent = nullptr);
    ~XPipeLine() override;

    Q_INVOKABLE quint32 getId() const { return m_id; }
    Q_INVOKABLE void setId(quint32 id);
    Q_INVOKABLE quint32 getWindowId() const { return m_windowId; }
    Q_INVOKABLE void setWindowId(quint32 id) { m_windowId = id; }

    /** The centre line, relative to the item's box as designed (\a designSize); non-finite points are dropped. */
    void setPoints(const QPolygonF& points, const QSizeF& designSize);
    QPolygonF points() const { return m_points; }
    /** The pipe's width (at least 1) and look. */
    void setPipe(qreal width, const QBrush& fill, const QPen& border);
    /** 0 blocks, 1 arrow heads, 2 dots; other numbers draw blocks. */
    void setFlowShape(int shape);
    int flowShape() const { return m_shape; }
    void setFlowColor(const QColor& color);
    QColor flowColor() const { return m_flowColor; }
    /** Pixels per second; 0 stops the flow where it is. */
    void setFlowRate(quint32 rate);
    quint32 flowRate() const { return m_rate; }
    void setReverse(bool reverse);
    bool isReverse() const { return m_reverse; }

    /** True while the flow moves and can be seen (frames are being asked for). */
    bool isFlowing() const;
    /** How far the marks have moved, pixels (grows while flowing). */
    qreal flowDistance() const;
    /** The length of the pipe, pixels, as drawn. */
    qreal length() const;

Q_SIGNALS:
    void widgetIdChanged();

protected:
    /* inherits documentation from base class */
    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;
    void geometryChanged(const QRectF& newGeometry, const QRectF& oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData& value) override;

private:
    void rebuildBody();
    /** Keeps the distance moved so far and restarts the clock (before any change of rate). */
    void settleDistance();
    void nextFrame();
    void kick();
    QPolygonF drawnPoints() const;

    quint32 m_id = 0;
    quint32 m_windowId = 0;
    QPolygonF m_points;
    QSizeF m_designSize;
    qreal m_width = 12;
    QBrush m_fill { QColor(0x9A, 0xA5, 0xB1) };
    QPen m_border { QColor(0x4A, 0x55, 0x61), 1 };
    int m_shape = 0;
    QColor m_flowColor { Qt::white };
    quint32 m_rate = 0;
    bool m_reverse = false;
    qreal m_distance = 0;
    QElapsedTimer m_clock;
    bool m_geometryDirty = true;
    QPointer<XShapeItem> m_body;
    QMetaObject::Connection m_frames;
};

#endif // XPIPELINE_H
