#ifndef XDEFAULTVKB_H
#define XDEFAULTVKB_H

#include <memory>

#include <QObject>
#include <QPointer>
#include <QSizeF>

#include "platform/xvkbinterface.h"

class XVkbKeyEmitter;

/**
 * The built-in on-screen keyboard, used when no keyboard plug-in is installed.
 *
 * The keyboard's looks are platform/qml/QmlVirtualKeyboard.qml; its keys go to
 * the entry line through an XVkbKeyEmitter, set on the item as its "emitter"
 * property. Everything that can be set on the keyboard (visibility, position,
 * drag bar, layout type) can be set before the item exists: it is remembered and
 * applied by createItem.
 *
 * Until it is moved (move(), or dragged by the operator), the keyboard sits at
 * the bottom centre of its parent and follows the parent's size.
 */
class XDefaultVkb : public QObject, public XVkbInterface {
    Q_OBJECT
    Q_INTERFACES(XVkbInterface)

public:
    explicit XDefaultVkb(QObject* parent = nullptr);
    ~XDefaultVkb() override;

    /* inherits documentation from base class */
    QQuickItem* createItem(QQmlEngine* engine, QQuickItem* parent) override;
    QQuickItem* item() const override;

    void show() override;
    void hide() override;
    bool isVisible() const override;
    /** Before the item exists: the remembered position with an empty size. */
    QRectF rect() const override;
    /** Kept inside the parent when the parent has a size. */
    void move(const QPointF& pos) override;
    void showDragBar(bool show) override;
    bool isDragBarVisible() const override;
    void setLayoutType(int type) override;
    int layoutType() const override;
    /** The labels of every layout and page, from the keyboard item; empty before createItem. */
    QString glyphs() const override;

    /** The object that sends the keyboard's keys; owned by the keyboard. */
    XVkbKeyEmitter* emitter() const { return m_emitter.get(); }
    /** Why createItem failed (the QML errors), empty when it did not. */
    QString errorString() const { return m_error; }

    static constexpr const char* qmlUrl = "qrc:/platform/QmlVirtualKeyboard.qml";

private:
    QPointF bounded(const QPointF& pos) const;
    void dock();
    void onItemMoved();

    std::unique_ptr<XVkbKeyEmitter> m_emitter;
    QPointer<QQuickItem> m_item;
    QString m_error;

    bool m_visible = false;
    bool m_dragBar = true;
    int m_layoutType = 0;
    QPointF m_pos;
    /** False while the keyboard keeps its docked place at the bottom centre. */
    bool m_placed = false;
    /** True while the keyboard itself moves the item (docking, move()). */
    bool m_moving = false;
};

#endif // XDEFAULTVKB_H
