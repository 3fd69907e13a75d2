#ifndef XBASETEXTINPUTCONTROL_H
#define XBASETEXTINPUTCONTROL_H

#include <QColor>
#include <QPointer>
#include <QUrl>

#include "xcomponents/qquick/xbasecontrol.h"

class QTimer;
class XQuickImage;

/**
 * Common base of the text entry fields (single-line XLineInputText, multi-line
 * XTextEdit). A field does not edit text by itself: the logic layer owns the
 * value, opens the on-screen keyboard when the field is pressed (events 2 and
 * 3 of the base control) and writes the accepted value back with setText.
 * The field shows the value, a blinking cursor while it is the target of an
 * entry (setInputFlag / clearInputFlag), a selection, and the grey and slash
 * states.
 *
 * Everything the registry calls is invokable by name: setText, text, select,
 * setCursorPosition, setInputFlag, clearInputFlag, setInputMode, setGrayFlag,
 * showSlashItem, hideSlashItem, setImageVisible, getItemType, getWgtRect.
 */
class XBaseTextInputControl : public XBaseControl {
    Q_OBJECT
    Q_PROPERTY(QColor itemPen READ itemPen WRITE setItemPen NOTIFY itemPenChanged)
    Q_PROPERTY(bool inputMode READ inputMode WRITE setInputMode NOTIFY inputModeChanged)
    Q_PROPERTY(QString slashText READ slashText WRITE setSlashText NOTIFY slashTextChanged)

public:
    explicit XBaseTextInputControl(QQuickItem* parent = nullptr);
    ~XBaseTextInputControl() override;

    /** Item type numbers of the entry fields. */
    enum InputItemType { TypeLineInput = 4, TypeTextEdit = 5 };

    /** The configured text colour (shown unless the grey flag is set). */
    QColor itemPen() const { return m_pen; }
    Q_INVOKABLE void setItemPen(const QColor& color);

    /** Grey: the text is drawn in Qt's standard grey; cleared: the configured colour again. */
    Q_INVOKABLE void setGrayFlag(bool on) override;

    bool inputMode() const { return m_inputMode; }
    /** Shows or hides the cursor; switching the mode off also clears the selection. */
    Q_INVOKABLE virtual void setInputMode(bool on);

    /** Starts (first call: creates) the 500 ms cursor blink timer. */
    Q_INVOKABLE void setInputFlag();
    /** Stops the blink timer and hides the cursor. */
    Q_INVOKABLE void clearInputFlag();
    /** True while the cursor blinks. */
    bool inputFlag() const;
    /** The blink timer; null before the first setInputFlag. */
    QTimer* blinkTimer() const { return m_blink; }

    Q_INVOKABLE virtual void setText(const QString& text) = 0;
    Q_INVOKABLE virtual QString text() const = 0;
    /** Selects the characters from \a start to \a end (clamped to the text). */
    Q_INVOKABLE virtual void select(int start, int end) = 0;
    Q_INVOKABLE virtual void setCursorPosition(int position) = 0;

    QString slashText() const { return m_slashText; }
    void setSlashText(const QString& text);
    /** True when a substitute text is set: only then does the field have a slash state. */
    bool hasSlashAnimation() const override { return !m_slashText.isEmpty(); }

    /** Background picture filling the field; an empty url removes nothing (the image is hidden). */
    Q_INVOKABLE void setSource(const QUrl& url);
    Q_INVOKABLE void setImageVisible(bool visible) override;
    XQuickImage* image() const;

    /** Whether the text item's cursor is drawn now. */
    virtual bool cursorShown() const = 0;

    /** Longest text a field shows (UTF-16 units); longer texts are cut, ending in "…". */
    static constexpr int kMaxFieldText = 32767;

Q_SIGNALS:
    void itemPenChanged();
    void inputModeChanged();
    void slashTextChanged();
    void textChanged();

protected:
    virtual void setCursorShown(bool shown) = 0;
    /** Colour the text item draws its text in. */
    virtual void applyTextColor(const QColor& color) = 0;
    void geometryChanged(const QRectF& newGeometry, const QRectF& oldGeometry) override;

private:
    QColor m_pen { Qt::black };
    bool m_inputMode = false;
    QString m_slashText;
    QTimer* m_blink = nullptr; // child, created by the first setInputFlag
    QPointer<XQuickImage> m_image; // child, created by the first setSource
};

#endif // XBASETEXTINPUTCONTROL_H
