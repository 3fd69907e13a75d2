#include "platform/xpopup.h"

#include "platform/xoverlay.h"

#include <QKeyEvent>

XPopup::XPopup(QQuickItem* parent)
    : QQuickItem(parent)
    , m_contentItem(new QQuickItem(this))
{
    setVisible(false);
    setAcceptedMouseButtons(Qt::AllButtons);
    setAcceptTouchEvents(true);
    setFlag(ItemIsFocusScope);
}

XPopup::~XPopup()
{
    if (m_opened && m_overlay)
        m_overlay->popupClosed(this);
}

void XPopup::setModal(bool modal)
{
    if (m_modal == modal)
        return;
    m_modal = modal;
    if (m_opened && m_overlay) { // re-evaluate the overlay's input blocking
        m_overlay->popupClosed(this);
        m_overlay->popupOpened(this);
    }
    Q_EMIT modalChanged();
}

void XPopup::setClosePolicy(ClosePolicy policy)
{
    if (m_closePolicy == policy)
        return;
    m_closePolicy = policy;
    Q_EMIT closePolicyChanged();
}

XOverlay* XPopup::overlay() const
{
    return m_overlay.data();
}

void XPopup::setOverlay(XOverlay* overlay)
{
    if (m_overlay == overlay)
        return;
    if (m_opened && m_overlay)
        m_overlay->popupClosed(this);
    m_overlay = overlay;
    if (overlay)
        setParentItem(overlay);
    if (m_opened && m_overlay)
        m_overlay->popupOpened(this);
    Q_EMIT overlayChanged();
}

void XPopup::open()
{
    if (m_opened)
        return;
    Q_EMIT aboutToShow();
    if (m_overlay && parentItem() != m_overlay)
        setParentItem(m_overlay);
    m_opened = true;
    setVisible(true);
    layoutContent();
    if (m_overlay)
        m_overlay->popupOpened(this);
    Q_EMIT openedChanged();
    Q_EMIT opened();
}

void XPopup::close()
{
    if (!m_opened)
        return;
    Q_EMIT aboutToHide();
    m_opened = false;
    setVisible(false);
    if (m_overlay)
        m_overlay->popupClosed(this);
    Q_EMIT openedChanged();
    Q_EMIT closed();
}

void XPopup::mousePressEvent(QMouseEvent* event)
{
    event->accept(); // a press on the popup's own area stays in the popup
}

void XPopup::mouseReleaseEvent(QMouseEvent* event)
{
    event->accept();
}

void XPopup::touchEvent(QTouchEvent* event)
{
    event->accept();
}

void XPopup::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && (m_closePolicy & CloseOnEscape)) {
        close();
        event->accept();
        return;
    }
    QQuickItem::keyPressEvent(event);
}

void XPopup::geometryChanged(const QRectF& newGeometry, const QRectF& oldGeometry)
{
    QQuickItem::geometryChanged(newGeometry, oldGeometry);
    layoutContent();
}

void XPopup::layoutContent()
{
    const qreal top = contentTop();
    m_contentItem->setPosition(QPointF(0, top));
    m_contentItem->setSize(QSizeF(width(), qMax<qreal>(0.0, height() - top)));
}
