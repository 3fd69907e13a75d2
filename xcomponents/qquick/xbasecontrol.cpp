#include "xcomponents/qquick/xbasecontrol.h"

#include "platform/logiclayercaller.h"
#include "xcomponents/qquick/xqmlcomponentmanage.h"

#include <QTouchEvent>

#include <qgui/events.h>

XBaseControl::XBaseControl(QQuickItem* parent)
    : QQuickControl(parent)
{
    setAcceptedMouseButtons(Qt::LeftButton);
    setAcceptTouchEvents(true);
}

XBaseControl::~XBaseControl() = default;

void XBaseControl::setId(quint32 id)
{
    if (m_id == id)
        return;
    m_id = id;
    Q_EMIT widgetIdChanged();
}

void XBaseControl::setWindowId(quint32 id)
{
    if (m_windowId == id)
        return;
    m_windowId = id;
    Q_EMIT windowIdChanged();
}

void XBaseControl::setItemBrush(const QBrush& brush)
{
    if (m_itemBrush == brush)
        return;
    m_itemBrush = brush;
    Q_EMIT itemBrushChanged();
}

void XBaseControl::setItemOpacity(qreal opacity)
{
    setOpacity(qBound<qreal>(0.0, opacity, 1.0));
}

void XBaseControl::showDisenableIcon(bool show)
{
    if (!m_disEnableIcon) {
        if (!show)
            return;
        m_disEnableIcon = XQmlComponentManage::getInstance()->createDisEnableIcon(this);
        if (!m_disEnableIcon)
            return;
        m_disEnableIcon->setZ(1000); // above the widget's own content
    }
    m_disEnableIcon->setVisible(show);
}

void XBaseControl::showBusyIcon(bool show)
{
    if (!m_busyIcon) {
        if (!show)
            return;
        m_busyIcon = XQmlComponentManage::getInstance()->createBusyIcon(this);
        if (!m_busyIcon)
            return;
        m_busyIcon->setZ(1001);
    }
    m_busyIcon->setVisible(show);
}

void XBaseControl::setGrayFlag(bool on)
{
    if (m_grayFlag == on)
        return;
    m_grayFlag = on;
    Q_EMIT grayFlagChanged();
}

QRect XBaseControl::getWgtRect() const
{
    return QRect(int(x()), int(y()), int(width()), int(height()));
}

void XBaseControl::mousePressEvent(QMouseEvent* event)
{
    LogicLayerCaller::call(m_id, EVT_WIDGET_PRESS, nullptr);
    event->accept();
}

void XBaseControl::mouseReleaseEvent(QMouseEvent* event)
{
    LogicLayerCaller::call(m_id, EVT_WIDGET_RELEASE, nullptr);
    event->accept();
}

void XBaseControl::touchEvent(QTouchEvent* event)
{
    if (event->type() == QEvent::TouchBegin)
        LogicLayerCaller::call(m_id, EVT_WIDGET_PRESS, nullptr);
    else if (event->type() == QEvent::TouchEnd)
        LogicLayerCaller::call(m_id, EVT_WIDGET_RELEASE, nullptr);
    event->accept();
}
