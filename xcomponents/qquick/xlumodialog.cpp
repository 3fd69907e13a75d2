#include "xcomponents/qquick/xlumodialog.h"

#include "platform/gid.h"
#include "platform/logiclayercaller.h"
#include "xcomponents/qquick/xwindow.h"

#include <qgui/events.h>

XLumoDialog::XLumoDialog(QQuickItem* parent)
    : XQuickDialog(parent)
{
    setClip(true);
    contentItem()->setZ(1);
}

XLumoDialog::~XLumoDialog() = default;

void XLumoDialog::setBackgroundItem(QQuickItem* item)
{
    if (m_background == item)
        return;
    delete m_background.data();
    m_background = item;
    if (item) {
        item->setParentItem(this);
        item->setParent(this);
        item->setZ(0);
        item->setSize(size());
    }
}

void XLumoDialog::setBorderItem(QQuickItem* item)
{
    if (m_border == item)
        return;
    delete m_border.data();
    m_border = item;
    if (item) {
        item->setParentItem(this);
        item->setParent(this);
        item->setZ(3); // the frame is drawn over title and content
        item->setSize(size());
    }
}

void XLumoDialog::moveBy(const QPoint& offset)
{
    if (!m_movable)
        return;
    setPosition(position() + QPointF(offset));
}

void XLumoDialog::geometryChanged(const QRectF& newGeometry, const QRectF& oldGeometry)
{
    XQuickDialog::geometryChanged(newGeometry, oldGeometry);
    if (m_background)
        m_background->setSize(newGeometry.size());
    if (m_border)
        m_border->setSize(newGeometry.size());
}

unsigned XLumoDialog::pressHandler(const QPointF& windowPos, QQuickItem* source)
{
    QQuickItem* hit = XWindow::registeredItemAt(contentItem(), windowPos, this);
    const unsigned id = GId::id(hit ? hit : source);
    LogicLayerCaller::call(id, EVT_WIDGET_PRESS, nullptr);
    return id;
}

unsigned XLumoDialog::releaseHandler(const QPointF& windowPos, QQuickItem* source)
{
    QQuickItem* hit = XWindow::registeredItemAt(contentItem(), windowPos, this);
    const unsigned id = GId::id(hit ? hit : source);
    LogicLayerCaller::call(id, EVT_WIDGET_RELEASE, nullptr);
    return id;
}
