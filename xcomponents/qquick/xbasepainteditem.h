#ifndef XBASEPAINTEDITEM_H
#define XBASEPAINTEDITEM_H

#include <QQuickPaintedItem>

/**
 * Base of the items drawn with QPainter: widget id, window id, the generic
 * move, and a backing store that never exceeds what can be seen. The texture
 * follows the item's size but is capped, in each direction, at the size of the
 * window showing the item (kMaxTextureSide before it has one); painting still
 * happens in item coordinates and is scaled into the texture. So an item of
 * 100,000 x 100,000 pixels keeps that geometry but costs no more memory than a
 * full-screen one.
 */
class XBasePaintedItem : public QQuickPaintedItem {
    Q_OBJECT
    Q_PROPERTY(quint32 widgetId READ getId WRITE setId NOTIFY widgetIdChanged)

public:
    /** Longest texture side (device pixels) while the item is in no window. */
    static constexpr int kMaxTextureSide = 2048;

    explicit XBasePaintedItem(QQuickItem* parent = nullptr);
    ~XBasePaintedItem() override;

    Q_INVOKABLE quint32 getId() const { return m_id; }
    Q_INVOKABLE void setId(quint32 id)
    {
        if (m_id == id)
            return;
        m_id = id;
        Q_EMIT widgetIdChanged();
    }
    Q_INVOKABLE quint32 getWindowId() const { return m_windowId; }
    Q_INVOKABLE void setWindowId(quint32 id) { m_windowId = id; }
    Q_INVOKABLE virtual void moveTo(int x, int y) { setPosition(QPointF(x, y)); }

    /** The texture size for an item of \a size (item pixels) at \a dpr in a window of \a window
     *  (empty: none): the device-pixel size, each side capped as described above, at least 1. */
    static QSize cappedTextureSize(const QSizeF& size, qreal dpr, const QSize& window);

Q_SIGNALS:
    void widgetIdChanged();

protected:
    /* inherits documentation from base class */
    void geometryChanged(const QRectF& newGeometry, const QRectF& oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData& value) override;

private:
    void updateTextureSize();

    quint32 m_id = 0;
    quint32 m_windowId = 0;
};

#endif // XBASEPAINTEDITEM_H
