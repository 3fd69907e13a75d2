#ifndef XPOPUP_H
#define XPOPUP_H

#include <QPointer>
#include <QQuickItem>

class XOverlay;

/**
 * A popup item: hidden until open(), shown on its overlay (XOverlay) above the
 * desktop, stacked by z. A modal popup blocks presses to everything below it;
 * a popup with CloseOnPressOutside closes when the operator presses elsewhere.
 *
 * The popup's own area takes presses that its children do not, so a press on
 * an empty part of a popup never reaches the window underneath.
 */
class XPopup : public QQuickItem {
    Q_OBJECT
    Q_PROPERTY(bool opened READ isOpened NOTIFY openedChanged)
    Q_PROPERTY(bool modal READ isModal WRITE setModal NOTIFY modalChanged)
    Q_PROPERTY(ClosePolicy closePolicy READ closePolicy WRITE setClosePolicy NOTIFY closePolicyChanged)
    Q_PROPERTY(XOverlay* overlay READ overlay WRITE setOverlay NOTIFY overlayChanged)
    Q_PROPERTY(QQuickItem* contentItem READ contentItem CONSTANT)

public:
    explicit XPopup(QQuickItem* parent = nullptr);
    ~XPopup() override;

    enum ClosePolicyFlag { NoAutoClose = 0x0, CloseOnPressOutside = 0x1, CloseOnEscape = 0x2 };
    Q_DECLARE_FLAGS(ClosePolicy, ClosePolicyFlag)
    Q_FLAG(ClosePolicy)

    bool isOpened() const { return m_opened; }

    bool isModal() const { return m_modal; }
    void setModal(bool modal);

    ClosePolicy closePolicy() const { return m_closePolicy; }
    void setClosePolicy(ClosePolicy policy);

    XOverlay* overlay() const;
    /** The overlay that hosts the popup while it is open; the popup becomes its child item. */
    void setOverlay(XOverlay* overlay);

    /** The item that receives the popup's content; it fills the popup below its header. */
    QQuickItem* contentItem() const { return m_contentItem; }

    Q_INVOKABLE void open();
    Q_INVOKABLE void close();

Q_SIGNALS:
    void openedChanged();
    void modalChanged();
    void closePolicyChanged();
    void overlayChanged();
    void aboutToShow();
    void aboutToHide();
    void opened();
    void closed();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void touchEvent(QTouchEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void geometryChanged(const QRectF& newGeometry, const QRectF& oldGeometry) override;
    /** Top offset of the content item (a header's height in dialogs). */
    virtual qreal contentTop() const { return 0.0; }
    void layoutContent();

private:
    bool m_opened = false;
    bool m_modal = false;
    ClosePolicy m_closePolicy = NoAutoClose;
    QPointer<XOverlay> m_overlay;
    QQuickItem* m_contentItem = nullptr; // child item, owned through the item tree
};

Q_DECLARE_OPERATORS_FOR_FLAGS(XPopup::ClosePolicy)

#endif // XPOPUP_H
