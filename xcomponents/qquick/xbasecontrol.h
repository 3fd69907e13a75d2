#ifndef XBASECONTROL_H
#define XBASECONTROL_H

#include <QBrush>
#include <QPointer>
#include <QRect>

#include <QtQuickTemplates2/private/qquickcontrol_p.h>

/**
 * Common base of the control-like widgets: widget id, window id, item type
 * number, the disabled icon, the busy icon, the item opacity and brush.
 * A press on the control itself is reported to the logic layer as event 2 and
 * its release as event 3, with the widget id and no payload.
 *
 * Widget state is changed by name (QMetaObject::invokeMethod), so every method
 * the registry calls is invokable: setItemOpacity, setItemBrush, showBusyIcon,
 * showDisenableIcon, setGrayFlag, setImageVisible, showSlashItem,
 * hideSlashItem, getWgtRect, getId.
 */
class XBaseControl : public QQuickControl {
    Q_OBJECT
    Q_PROPERTY(quint32 widgetId READ getId WRITE setId NOTIFY widgetIdChanged)
    Q_PROPERTY(quint32 windowId READ getWindowId WRITE setWindowId NOTIFY windowIdChanged)
    Q_PROPERTY(int itemType READ getItemType CONSTANT)
    Q_PROPERTY(QBrush itemBrush READ itemBrush WRITE setItemBrush NOTIFY itemBrushChanged)
    Q_PROPERTY(bool grayFlag READ grayFlag WRITE setGrayFlag NOTIFY grayFlagChanged)

public:
    explicit XBaseControl(QQuickItem* parent = nullptr);
    ~XBaseControl() override;

    /** Item type numbers of the registry. */
    enum ItemType { TypeBase = 0, TypeWindow = 1, TypeText = 2, TypeButton = 3, TypeInvalidFeature = 99 };
    Q_ENUM(ItemType)

    Q_INVOKABLE quint32 getId() const { return m_id; }
    void setId(quint32 id);
    Q_INVOKABLE quint32 getWindowId() const { return m_windowId; }
    void setWindowId(quint32 id);
    virtual int getItemType() const { return TypeBase; }

    QBrush itemBrush() const { return m_itemBrush; }
    Q_INVOKABLE virtual void setItemBrush(const QBrush& brush);
    Q_INVOKABLE void setItemOpacity(qreal opacity);

    Q_INVOKABLE void showDisenableIcon(bool show);
    Q_INVOKABLE void showBusyIcon(bool show);
    QQuickItem* disEnableIcon() const { return m_disEnableIcon.data(); }
    QQuickItem* busyIcon() const { return m_busyIcon.data(); }

    bool grayFlag() const { return m_grayFlag; }
    Q_INVOKABLE virtual void setGrayFlag(bool on);
    Q_INVOKABLE virtual void setImageVisible(bool visible) { Q_UNUSED(visible) }
    Q_INVOKABLE virtual void showSlashItem() { }
    Q_INVOKABLE virtual void hideSlashItem() { }
    /** True when the widget shows a slash animation (showSlashItem has something to show). */
    virtual bool hasSlashAnimation() const { return false; }
    /** x, y, width and height, truncated to integers. */
    Q_INVOKABLE virtual QRect getWgtRect() const;
    virtual void moveTo(int x, int y) { setPosition(QPointF(x, y)); }

Q_SIGNALS:
    void widgetIdChanged();
    void windowIdChanged();
    void itemBrushChanged();
    void grayFlagChanged();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void touchEvent(QTouchEvent* event) override;

private:
    quint32 m_id = 0;
    quint32 m_windowId = 0;
    QBrush m_itemBrush;
    bool m_grayFlag = false;
    QPointer<QQuickItem> m_disEnableIcon; // child item, created on first use
    QPointer<QQuickItem> m_busyIcon; // child item, created on first use
};

#endif // XBASECONTROL_H
