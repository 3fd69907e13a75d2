#include "operatortouch.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QQuickItem>
#include <QQuickWindow>
#include <QWheelEvent>

namespace OperatorTouch {

namespace {
QQuickWindow* panelWindow()
{
    for (QWindow* w : QGuiApplication::topLevelWindows()) {
        if (auto* quick = qobject_cast<QQuickWindow*>(w))
            return quick;
    }
    return nullptr;
}

QQuickItem* findVisible(QQuickItem* root, const QString& name, bool (*match)(QQuickItem*, const void*), const void* key)
{
    if (!root || !root->isVisible())
        return nullptr;
    if (match(root, key))
        return root;
    for (QQuickItem* child : root->childItems()) {
        if (QQuickItem* found = findVisible(child, name, match, key))
            return found;
    }
    return nullptr;
}

void touchAt(QQuickWindow* window, const QPointF& scenePos)
{
    static ulong timestamp = 1000;
    const QPointF global = window->mapToGlobal(scenePos.toPoint());
    for (QEvent::Type type : { QEvent::MouseButtonPress, QEvent::MouseButtonRelease }) {
        QMouseEvent event(type, scenePos, scenePos, global, Qt::LeftButton,
            type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
        event.setTimestamp(timestamp += 80);
        QCoreApplication::sendEvent(window, &event);
    }
}
} // namespace

bool touchItem(const char* objectName)
{
    QQuickWindow* window = panelWindow();
    const QString name = QString::fromUtf8(objectName);
    QQuickItem* item = window ? findVisible(window->contentItem(), name,
                           [](QQuickItem* i, const void* k) { return i->objectName() == *static_cast<const QString*>(k); },
                           &name)
                              : nullptr;
    if (!item)
        return false;
    touchAt(window, item->mapToScene(QPointF(item->width() / 2, item->height() / 2)));
    return true;
}

static QQuickItem* widget(QQuickWindow* window, unsigned widgetId)
{
    return window ? findVisible(window->contentItem(), QString(),
               [](QQuickItem* i, const void* k) {
                   const QVariant id = i->property("widgetId");
                   return id.isValid() && id.toUInt() == *static_cast<const unsigned*>(k);
               },
               &widgetId)
                  : nullptr;
}

bool touchWidget(unsigned widgetId, double x, double y)
{
    QQuickWindow* window = panelWindow();
    QQuickItem* item = widget(window, widgetId);
    if (!item)
        return false;
    touchAt(window, item->mapToScene(QPointF(x, y)));
    return true;
}

bool dragWidget(unsigned widgetId, double x0, double y0, double x1, double y1)
{
    QQuickWindow* window = panelWindow();
    QQuickItem* item = widget(window, widgetId);
    if (!item)
        return false;
    const QPointF from = item->mapToScene(QPointF(x0, y0));
    const QPointF to = item->mapToScene(QPointF(x1, y1));
    auto send = [window](QEvent::Type type, const QPointF& at, Qt::MouseButton button, Qt::MouseButtons buttons) {
        QMouseEvent event(type, at, at, window->mapToGlobal(at.toPoint()), button, buttons, Qt::NoModifier);
        QCoreApplication::sendEvent(window, &event);
    };
    send(QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
    for (int step = 1; step <= 10; ++step)
        send(QEvent::MouseMove, from + (to - from) * step / 10.0, Qt::NoButton, Qt::LeftButton);
    send(QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton);
    return true;
}

bool wheelWidget(unsigned widgetId, double x, double y, int notches)
{
    QQuickWindow* window = panelWindow();
    QQuickItem* item = widget(window, widgetId);
    if (!item)
        return false;
    const QPointF at = item->mapToScene(QPointF(x, y));
    const int sign = notches < 0 ? -1 : 1;
    for (int n = 0; n < notches * sign; ++n) { // one event per notch, as a real wheel sends them
        QWheelEvent event(at, window->mapToGlobal(at.toPoint()), QPoint(), QPoint(0, 120 * sign), Qt::NoButton,
            Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(window, &event);
    }
    return true;
}

} // namespace OperatorTouch
