#ifndef XVKBINTERFACE_H
#define XVKBINTERFACE_H

#include <QObject>
#include <QPointF>
#include <QRectF>

class QQmlEngine;
class QQuickItem;

/**
 * What the GUI needs from an on-screen keyboard plug-in. The keyboard types by
 * sending key events to the item that has active focus (an entry line), so it
 * works with any text field. Implementations: the built-in keyboard
 * (XDefaultVkb) or a plug-in found by QVkbPluginLoader.
 *
 * Layout types: 0 decimal, 1 hexadecimal, 2 date and time, 3 date, 4 time,
 * 5 and 6 and any other value free text.
 */
class XVkbInterface {
public:
    virtual ~XVkbInterface() = default;

    /** Creates (once) the keyboard item in \a engine under \a parent and returns it. */
    virtual QQuickItem* createItem(QQmlEngine* engine, QQuickItem* parent) = 0;
    /** The keyboard item, or null before createItem. */
    virtual QQuickItem* item() const = 0;

    virtual void show() = 0;
    virtual void hide() = 0;
    virtual bool isVisible() const = 0;
    /** The keyboard's rectangle in its parent's coordinates. */
    virtual QRectF rect() const = 0;
    /** Moves the keyboard's top-left corner to \a pos (parent coordinates). */
    virtual void move(const QPointF& pos) = 0;
    /** Shows or hides the bar by which the operator drags the keyboard. */
    virtual void showDragBar(bool show) = 0;
    virtual bool isDragBarVisible() const = 0;
    virtual void setLayoutType(int type) = 0;
    virtual int layoutType() const = 0;
    /**
     * Every character the keyboard's keys can show, on all its layouts and pages. The panel
     * draws them once, unseen, before the first opening, so that no glyph has to be made while
     * the operator waits. Empty when the keyboard does not say.
     */
    virtual QString glyphs() const { return QString(); }
};

#define XVkbInterface_iid "org.qgui.XVkbInterface/1.1"
Q_DECLARE_INTERFACE(XVkbInterface, XVkbInterface_iid)

#endif // XVKBINTERFACE_H
