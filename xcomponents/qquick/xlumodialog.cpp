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
    XWindow::adoptLayer(m_background, item, this, 0);
}

void XLumoDialog::setBorderItem(QQuickItem* item)
{
    XWindow::adoptLayer(m_border, item, this, 3); // the frame is drawn over title and content
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
    return XWindow::reportAt(contentItem(), this, windowPos, source, EVT_WIDGET_PRESS);
}

unsigned XLumoDialog::releaseHandler(const QPointF& windowPos, QQuickItem* source)
{
    return XWindow::reportAt(contentItem(), this, windowPos, source, EVT_WIDGET_RELEASE);
}
