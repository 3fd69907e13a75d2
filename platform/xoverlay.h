#ifndef XOVERLAY_H
#define XOVERLAY_H

#include <QList>
#include <QPointer>
#include <QQuickItem>

class XPopup;

/**
 * The layer of one desktop that hosts its popups. It fills its parent (the
 * panel area) and lets presses through unless an open popup asks otherwise:
 * while a modal popup is open, presses outside it are consumed; a press outside
 * a popup with CloseOnPressOutside closes that popup.
 */
class XOverlay : public QQuickItem {
    Q_OBJECT
    Q_PROPERTY(int openCount READ openCount NOTIFY openCountChanged)

public:
    explicit XOverlay(QQuickItem* parent = nullptr);

    int openCount() const { return m_open.size(); }
    /** Open popups, lowest first. */
    QList<XPopup*> openPopups() const;
    /** The topmost open modal popup, or null. */
    XPopup* topModal() const;

    // called by XPopup
    void popupOpened(XPopup* popup);
    void popupClosed(XPopup* popup);

Q_SIGNALS:
    void openCountChanged();
    void pressedOutside(const QPointF& scenePos);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void touchEvent(QTouchEvent* event) override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;

private:
    void updateInput();
    void fitParent();
    bool handleOutsidePress(const QPointF& scenePos);

    QList<QPointer<XPopup>> m_open;
    QMetaObject::Connection m_widthConn;
    QMetaObject::Connection m_heightConn;
};

#endif // XOVERLAY_H
