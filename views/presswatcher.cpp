#include "views/presswatcher.h"

#include "platform/logiclayercaller.h"

#include <QMouseEvent>
#include <QTouchEvent>
#include <QWindow>
#include <QtMath>

#include <qgui/events.h>

PressWatcher::PressWatcher(QObject* parent)
    : QObject(parent)
{
}

bool PressWatcher::eventFilter(QObject* watched, QEvent* event)
{
    if (!qobject_cast<QWindow*>(watched))
        return false;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: {
        auto* me = static_cast<QMouseEvent*>(event);
        // a touch that Qt also turns into a mouse press is reported once, as a touch
        if (me->source() == Qt::MouseEventSynthesizedBySystem
            || me->source() == Qt::MouseEventSynthesizedByQt) {
            if (m_block && !m_passing)
                return true;
            break;
        }
        if (event->type() == QEvent::MouseButtonPress) {
            View_EvtPoint p { qRound(me->windowPos().x()), qRound(me->windowPos().y()) };
            LogicLayerCaller::call(0, EVT_PRESS, &p);
        }
        m_passing = m_block && m_passThrough && m_passThrough(me->windowPos());
        if (m_block && !m_passing) {
            m_swallowing = true;
            return true;
        }
        break;
    }
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
        if (m_passing) {
            if (event->type() == QEvent::MouseButtonRelease)
                m_passing = false;
            break;
        }
        if (m_swallowing || m_block) {
            if (event->type() == QEvent::MouseButtonRelease)
                m_swallowing = false;
            return true;
        }
        break;
    case QEvent::TouchBegin: {
        auto* te = static_cast<QTouchEvent*>(event);
        if (!te->touchPoints().isEmpty()) {
            // at the window, before the scene maps it, the point is in window coordinates
            const QPointF sp = te->touchPoints().first().pos();
            View_EvtPoint p { qRound(sp.x()), qRound(sp.y()) };
            LogicLayerCaller::call(0, EVT_PRESS, &p);
            m_passing = m_block && m_passThrough && m_passThrough(sp);
        }
        if (m_block && !m_passing) {
            m_swallowing = true;
            return true;
        }
        break;
    }
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
        if (m_passing) {
            if (event->type() != QEvent::TouchUpdate)
                m_passing = false;
            break;
        }
        if (m_swallowing || m_block) {
            if (event->type() != QEvent::TouchUpdate)
                m_swallowing = false;
            return true;
        }
        break;
    default:
        break;
    }
    return false;
}
