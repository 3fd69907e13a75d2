#ifndef XVKBKEYEMITTER_H
#define XVKBKEYEMITTER_H

#include <QObject>
#include <QPointer>
#include <QString>

class QKeyEvent;
class QQuickItem;

/**
 * Sends the on-screen keyboard's keys to the entry line, as key events, so the
 * keyboard works with any text field and with the fields' own key handlers.
 *
 * Each key is a press followed by a release, with native scan code 0: the view
 * treats keys without a scan code as synthesised and does not report them to
 * the logic layer as physical keys. The events go to the application's focus
 * object (the entry line with active focus); a key that the entry line leaves
 * unhandled is offered to its ancestor items, as the window would do for a real
 * key, so that a Keys handler around the field still sees Return.
 */
class XVkbKeyEmitter : public QObject {
    Q_OBJECT

public:
    explicit XVkbKeyEmitter(QObject* parent = nullptr);

    /**
     * The keyboard item. When no window has focus, the keys go to the item with
     * active focus in the keyboard's own window.
     */
    void setKeyboardItem(QQuickItem* item);

    /**
     * Sends \a qtKey (a Qt::Key) with \a text. A \a qtKey of 0 is derived from the
     * first character of \a text (Qt's key codes are the upper-case characters),
     * so the keyboard's character keys need to give only their text.
     *
     * Qt::Key_Clear, when the entry line does not handle it itself, empties the
     * line through an input-method event, so that it works for any editor.
     */
    Q_INVOKABLE void sendKey(int qtKey, const QString& text);

    /** The key code sent for \a text when sendKey is given 0. */
    static int keyForText(const QString& text);

private:
    QObject* target() const;
    static bool deliver(QObject* target, QKeyEvent* event);
    static void clearEditor(QObject* target);

    QPointer<QQuickItem> m_keyboard;
};

#endif // XVKBKEYEMITTER_H
