#include "xvkbkeyemitter.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QInputMethodQueryEvent>
#include <QKeyEvent>
#include <QQuickItem>
#include <QQuickWindow>

XVkbKeyEmitter::XVkbKeyEmitter(QObject* parent)
    : QObject(parent)
{
}

void XVkbKeyEmitter::setKeyboardItem(QQuickItem* item)
{
    m_keyboard = item;
}

int XVkbKeyEmitter::keyForText(const QString& text)
{
    if (text.isEmpty())
        return Qt::Key_unknown;
    // Qt::Key_A..Key_Z, the digits and the Latin-1 punctuation keys share their
    // code with the upper-case character.
    return int(text.at(0).toUpper().unicode());
}

QObject* XVkbKeyEmitter::target() const
{
    if (QObject* focus = QGuiApplication::focusObject())
        return focus;
    if (m_keyboard && m_keyboard->window())
        return m_keyboard->window()->activeFocusItem();
    return nullptr;
}

bool XVkbKeyEmitter::deliver(QObject* target, QKeyEvent* event)
{
    event->accept();
    QCoreApplication::sendEvent(target, event);
    // Items ignore the keys they do not handle; QWidget targets propagate by themselves.
    auto* item = qobject_cast<QQuickItem*>(target);
    for (QQuickItem* p = item ? item->parentItem() : nullptr; p && !event->isAccepted();
         p = p->parentItem()) {
        event->accept();
        QCoreApplication::sendEvent(p, event);
    }
    return event->isAccepted();
}

void XVkbKeyEmitter::clearEditor(QObject* target)
{
    QInputMethodQueryEvent query(Qt::ImEnabled | Qt::ImSurroundingText | Qt::ImCursorPosition);
    QCoreApplication::sendEvent(target, &query);
    if (!query.value(Qt::ImEnabled).toBool())
        return;
    const int length = query.value(Qt::ImSurroundingText).toString().length();
    const int cursor = query.value(Qt::ImCursorPosition).toInt();
    if (length == 0)
        return;
    // The replacement range is relative to the cursor: from the start of the text, all of it.
    QInputMethodEvent clear;
    clear.setCommitString(QString(), -cursor, length);
    QCoreApplication::sendEvent(target, &clear);
}

void XVkbKeyEmitter::sendKey(int qtKey, const QString& text)
{
    if (qtKey == 0)
        qtKey = keyForText(text);
    QObject* to = target();
    if (!to || qtKey == Qt::Key_unknown)
        return;
    // A QPointer, since a handler of the press (Return closing a popup) may delete the line.
    QPointer<QObject> guard(to);

    QKeyEvent press(QEvent::KeyPress, qtKey, Qt::NoModifier, 0, 0, 0, text);
    const bool handled = deliver(to, &press);
    if (!handled && qtKey == Qt::Key_Clear && guard)
        clearEditor(to);
    if (guard) {
        QKeyEvent release(QEvent::KeyRelease, qtKey, Qt::NoModifier, 0, 0, 0, text);
        deliver(to, &release);
    }
}
