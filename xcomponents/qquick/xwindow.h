#ifndef XWINDOW_H
#define XWINDOW_H

#include "xcomponents/qquick/xbasecontrol.h"

#include <QPointer>

class QQuickItem;

/**
 * A window of a desktop: a full-size page with a background (an image or a
 * coloured rectangle), a content item that receives the widgets, and clipping.
 *
 * Widgets that do not report their own presses hand them to the window that
 * holds them (pressHandler / releaseHandler): the window reports event 2 or 3
 * to the logic layer with the id of the registered item under the finger.
 */
class XWindow : public XBaseControl {
    Q_OBJECT
    Q_PROPERTY(QQuickItem* windowContent READ windowContent CONSTANT)

public:
    explicit XWindow(QQuickItem* parent = nullptr);
    ~XWindow() override;

    int getItemType() const override { return TypeWindow; }

    /** The item the window's widgets are placed in. */
    QQuickItem* windowContent() const { return m_content; }
    /** Replaces the background item (owned by the window from now on). */
    void setBackgroundItem(QQuickItem* item);
    QQuickItem* backgroundItem() const { return m_background.data(); }

    /** A press at \a windowPos (window coordinates) handed over by \a source. Returns the id reported. */
    unsigned pressHandler(const QPointF& windowPos, QQuickItem* source);
    /** The matching release. Returns the id reported. */
    unsigned releaseHandler(const QPointF& windowPos, QQuickItem* source);

    /** The registered item under \a windowPos inside \a content (topmost first), or null. */
    static QQuickItem* registeredItemAt(
        QQuickItem* content, const QPointF& windowPos, const QQuickItem* window);
    /** Reports \a code (press or release) for the registered item under \a windowPos, else for
     *  \a source; returns the id reported. Shared by windows and popup windows. */
    static unsigned reportAt(QQuickItem* content, const QQuickItem* window, const QPointF& windowPos,
        QQuickItem* source, int code);
    /** Makes \a item the \a slot child of \a owner (deleting the previous one), at \a z and owner size. */
    static void adoptLayer(QPointer<QQuickItem>& slot, QQuickItem* item, QQuickItem* owner, qreal z);

protected:
    void geometryChanged(const QRectF& newGeometry, const QRectF& oldGeometry) override;

private:
    QQuickItem* m_content = nullptr; // child item
    QPointer<QQuickItem> m_background;
};

#endif // XWINDOW_H
