#ifndef XKEYBOARDEDIT_H
#define XKEYBOARDEDIT_H

#include "xcomponents/qquick/xbasepainteditem.h"
#include <QColor>

/**
 * The one-line entry of a keyboard window's title bar: it shows the text the
 * logic layer's input method composes, with a cursor and a selection. It does
 * not take keys itself; the logic layer sets its text and cursor.
 */
class XKeyBoardEdit : public XBasePaintedItem {
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)

public:
    explicit XKeyBoardEdit(QQuickItem* parent = nullptr);

    QString text() const { return m_text; }
    Q_INVOKABLE void setText(const QString& text);
    /** Selects \a start .. \a end (character positions, clamped); equal positions clear it. */
    Q_INVOKABLE void select(int start, int end);
    Q_INVOKABLE void setCursorPosition(int position);
    int cursorPosition() const { return m_cursor; }
    int selectionStart() const { return m_selStart; }
    int selectionEnd() const { return m_selEnd; }
    void setSelectionColor(const QColor& c)
    {
        m_selectionColor = c;
        update();
    }
    void setTextColor(const QColor& c)
    {
        m_textColor = c;
        update();
    }
    void setBorder(const QColor& c, int width)
    {
        m_borderColor = c;
        m_borderWidth = qMax(0, width);
        update();
    }
    void setFixedWidth(int w) { setWidth(qMax(0, w)); }
    void setFixedHeight(int h) { setHeight(qMax(0, h)); }

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void textChanged();

private:
    QString m_text;
    int m_cursor = 0;
    int m_selStart = 0;
    int m_selEnd = 0;
    QColor m_selectionColor { 0x6E, 0xA2, 0xE2 };
    QColor m_textColor { Qt::black };
    QColor m_borderColor { 0x6E, 0xA2, 0xE2 };
    int m_borderWidth = 2;
};

#endif // XKEYBOARDEDIT_H
