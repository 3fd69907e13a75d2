#ifndef XLINEINPUTTEXT_H
#define XLINEINPUTTEXT_H

#include "xcomponents/qquick/xbasetextinputcontrol.h"

class QQuickText;
class QQuickTextInput;

/**
 * The single-line entry field (numbers and short texts).
 *
 * It holds a text line (a Qt Quick text input that keys never reach: it never
 * takes focus, and presses go to the field, which reports them), a slash item
 * (a second text, hidden until showSlashItem) and an optional background
 * picture. The text line's width follows the field's width and its font the
 * field's font; its selection colour is the configured input selection colour.
 */
class XLineInputText : public XBaseTextInputControl {
    Q_OBJECT

public:
    explicit XLineInputText(QQuickItem* parent = nullptr);
    ~XLineInputText() override;

    int getItemType() const override { return TypeLineInput; }

    /* inherits documentation from base class */
    Q_INVOKABLE void setText(const QString& text) override;
    Q_INVOKABLE QString text() const override;
    Q_INVOKABLE void select(int start, int end) override;
    Q_INVOKABLE void setCursorPosition(int position) override;
    Q_INVOKABLE void showSlashItem() override;
    Q_INVOKABLE void hideSlashItem() override;
    bool cursorShown() const override;

    /**
     * Places the text line in the field. Every anchor of the text line is
     * cleared first; then the horizontal bits (\a flags & 0x1F): Left (1)
     * anchors its left edge with margin \a hMargin, Right (2) its right edge with
     * margin \a hMargin, HCenter (4) its centre without margin; the vertical bits
     * (\a flags & 0x1E0): Top (0x20) with margin \a vMargin, Bottom (0x40) with
     * margin \a vMargin, VCenter (0x80) without margin. Any other value leaves
     * that direction unanchored.
     */
    Q_INVOKABLE void setAlignment(int flags, int hMargin, int vMargin);
    /** Alignment of the characters inside the text line (alignment word bits). */
    Q_INVOKABLE void setFontAlignment(int flags);

    QQuickTextInput* textLine() const { return m_line; }
    /** The slash item, made on first use (hidden until showSlashItem). */
    QQuickText* slashItem();

protected:
    void setCursorShown(bool shown) override;
    void applyTextColor(const QColor& color) override;

private:
    QQuickTextInput* m_line = nullptr;
    QQuickText* m_slash = nullptr;
};

#endif // XLINEINPUTTEXT_H
