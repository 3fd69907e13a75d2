#ifndef XBASEPAINTEDITEM_H
#define XBASEPAINTEDITEM_H

#include <QQuickPaintedItem>

/**
 * Base of the widgets drawn with QPainter: widget id, window id and the
 * generic move.
 */
class XBasePaintedItem : public QQuickPaintedItem
{
    Q_OBJECT

public:
    explicit XBasePaintedItem(QQuickItem* parent = nullptr);
    ~XBasePaintedItem() override;

    Q_INVOKABLE quint32 getId() const { return m_id; }
    void setId(quint32 id) { m_id = id; }
    quint32 getWindowId() const { return m_windowId; }
    void setWindowId(quint32 id) { m_windowId = id; }
    Q_INVOKABLE virtual void moveTo(int x, int y) { setPosition(QPointF(x, y)); }

private:
    quint32 m_id = 0;
    quint32 m_windowId = 0;
};

#endif // XBASEPAINTEDITEM_H
