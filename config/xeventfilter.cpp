#include "config/xeventfilter.h"

#include <QCoreApplication>
#include <QLineF>
#include <QMouseEvent>

XEventFilter* XEventFilter::getInstance()
{
    static XEventFilter* instance = new XEventFilter; // lives as long as the process
    return instance;
}

XEventFilter::XEventFilter(QObject* parent)
    : QObject(parent)
{
}

void XEventFilter::clearState()
{
    m_sinceLastPress.invalidate();
    m_lastTarget.clear();
}

bool XEventFilter::eventFilter(QObject* watched, QEvent* event)
{
    if (m_delivering || event->type() != QEvent::MouseButtonPress)
        return QObject::eventFilter(watched, event);
    auto* me = static_cast<QMouseEvent*>(event);
    if (me->button() != Qt::LeftButton)
        return QObject::eventFilter(watched, event);

    const bool second = m_sinceLastPress.isValid() && m_lastTarget == watched
        && m_sinceLastPress.elapsed() <= m_doubleInterval
        && QLineF(m_lastPressPos, me->localPos()).length() <= m_pressDistance;
    if (!second) {
        m_sinceLastPress.start();
        m_lastPressPos = me->localPos();
        m_lastTarget = watched;
        return QObject::eventFilter(watched, event);
    }

    clearState();
    // let the press through first, then the double click, as a mouse would
    m_delivering = true;
    QCoreApplication::sendEvent(watched, event);
    QMouseEvent dbl(QEvent::MouseButtonDblClick, me->localPos(), me->windowPos(), me->screenPos(),
        me->button(), me->buttons(), me->modifiers(), Qt::MouseEventSynthesizedByApplication);
    QCoreApplication::sendEvent(watched, &dbl);
    m_delivering = false;
    Q_EMIT doubleClicked(watched, me->localPos());
    return true; // the press was delivered above
}
