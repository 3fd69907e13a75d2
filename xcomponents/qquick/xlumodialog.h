#ifndef XLUMODIALOG_H
#define XLUMODIALOG_H

#include "xcomponents/qquick/xquickdialog.h"

#include <QPointer>

/**
 * A popup window of a desktop: an XQuickDialog with a background (image or
 * coloured rectangle), a border, and the press handlers that widgets hand their
 * presses to (events 2 and 3 with the id of the registered item under the
 * finger), like XWindow's.
 */
class XLumoDialog : public XQuickDialog {
    Q_OBJECT

public:
    explicit XLumoDialog(QQuickItem* parent = nullptr);
    ~XLumoDialog() override;

    void setBackgroundItem(QQuickItem* item);
    QQuickItem* backgroundItem() const { return m_background.data(); }
    void setBorderItem(QQuickItem* item);
    QQuickItem* borderItem() const { return m_border.data(); }

    /** Whether dragging the title bar moves the dialog. */
    bool isMovable() const { return m_movable; }
    void setMovable(bool movable) { m_movable = movable; }
    /** Moves the dialog by \a offset when it is movable (the title bar's drag). */
    void moveBy(const QPoint& offset);

    /** A press at \a windowPos (dialog coordinates) handed over by \a source. Returns the id reported. */
    unsigned pressHandler(const QPointF& windowPos, QQuickItem* source);
    unsigned releaseHandler(const QPointF& windowPos, QQuickItem* source);

protected:
    void geometryChanged(const QRectF& newGeometry, const QRectF& oldGeometry) override;

private:
    QPointer<QQuickItem> m_background;
    QPointer<QQuickItem> m_border;
    bool m_movable = true;
};

#endif // XLUMODIALOG_H
