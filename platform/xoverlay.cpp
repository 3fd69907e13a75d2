#include "platform/xoverlay.h"

#include "platform/xpopup.h"

#include <QTouchEvent>

#include <algorithm>

XOverlay::XOverlay(QQuickItem* parent)
    : QQuickItem(parent)
{
    setAcceptedMouseButtons(Qt::NoButton);
    setAcceptTouchEvents(false);
    fitParent();
}

QList<XPopup*> XOverlay::openPopups() const
{
    QList<XPopup*> list;
    for (const auto& p : m_open) {
        if (p)
            list.append(p.data());
    }
    std::stable_sort(list.begin(), list.end(), [](XPopup* a, XPopup* b) { return a->z() < b->z(); });
    return list;
}

XPopup* XOverlay::topModal() const
{
    const QList<XPopup*> list = openPopups();
    for (auto it = list.crbegin(); it != list.crend(); ++it) {
        if ((*it)->isModal())
            return *it;
    }
    return nullptr;
}

void XOverlay::popupOpened(XPopup* popup)
{
    if (!popup)
        return;
    for (const auto& p : m_open) {
        if (p == popup)
            return;
    }
    m_open.append(popup);
    updateInput();
    Q_EMIT openCountChanged();
}

void XOverlay::popupClosed(XPopup* popup)
{
    const int before = m_open.size();
    m_open.erase(std::remove_if(m_open.begin(), m_open.end(),
                     [popup](const QPointer<XPopup>& p) { return !p || p == popup; }),
        m_open.end());
    updateInput();
    if (before != m_open.size())
        Q_EMIT openCountChanged();
}

void XOverlay::updateInput()
{
    bool wants = false;
    for (const auto& p : m_open) {
        if (p && (p->isModal() || (p->closePolicy() & XPopup::CloseOnPressOutside)))
            wants = true;
    }
    setAcceptedMouseButtons(wants ? Qt::AllButtons : Qt::NoButton);
    setAcceptTouchEvents(wants);
}

bool XOverlay::handleOutsidePress(const QPointF& scenePos)
{
    Q_EMIT pressedOutside(scenePos);
    // close the popups that ask for it, topmost first, up to the first modal one
    const QList<XPopup*> list = openPopups();
    for (auto it = list.crbegin(); it != list.crend(); ++it) {
        XPopup* p = *it;
        if (p->closePolicy() & XPopup::CloseOnPressOutside)
            p->close();
        if (p->isModal())
            return true; // consumed: nothing below a modal popup is reached
    }
    return false;
}

void XOverlay::mousePressEvent(QMouseEvent* event)
{
    if (handleOutsidePress(event->windowPos()))
        event->accept();
    else
        event->ignore();
}

void XOverlay::touchEvent(QTouchEvent* event)
{
    if (event->type() == QEvent::TouchBegin && !event->touchPoints().isEmpty()) {
        if (handleOutsidePress(event->touchPoints().first().scenePos())) {
            event->accept();
            return;
        }
    }
    event->ignore();
}

void XOverlay::itemChange(ItemChange change, const ItemChangeData& data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemParentHasChanged)
        fitParent();
}

void XOverlay::fitParent()
{
    disconnect(m_widthConn);
    disconnect(m_heightConn);
    QQuickItem* p = parentItem();
    if (!p)
        return;
    auto fit = [this, p]() { setSize(QSizeF(p->width(), p->height())); };
    fit();
    m_widthConn = connect(p, &QQuickItem::widthChanged, this, fit);
    m_heightConn = connect(p, &QQuickItem::heightChanged, this, fit);
}
