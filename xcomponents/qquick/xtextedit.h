#ifndef XTEXTEDIT_H
#define XTEXTEDIT_H

#include <QPointer>

#include "xcomponents/qquick/xbasetextinputcontrol.h"

class XQuickTextEdit;

/**
 * The multi-line entry field, made from "QmlTextEdit.qml": an XQuickTextEdit
 * with word wrap (the textItem) inside a Flickable with a vertical scroll bar.
 * The Flickable does not take presses, so a press anywhere on the text reaches
 * the field and is reported (events 2 and 3).
 *
 * The slash state writes the substitute text into the text item and the
 * hidden state empties it; the logic layer writes the value back afterwards.
 */
class XTextEdit : public XBaseTextInputControl {
    Q_OBJECT
    Q_PROPERTY(XQuickTextEdit* textItem READ textItem WRITE setTextItem NOTIFY textItemChanged)

public:
    explicit XTextEdit(QQuickItem* parent = nullptr);
    ~XTextEdit() override;

    int getItemType() const override { return TypeTextEdit; }

    XQuickTextEdit* textItem() const;
    void setTextItem(XQuickTextEdit* item);

    /* inherits documentation from base class */
    Q_INVOKABLE void setText(const QString& text) override;
    Q_INVOKABLE QString text() const override;
    Q_INVOKABLE void select(int start, int end) override;
    Q_INVOKABLE void setCursorPosition(int position) override;
    Q_INVOKABLE void showSlashItem() override;
    Q_INVOKABLE void hideSlashItem() override;
    bool cursorShown() const override;

    /** Extra pixels between lines. */
    Q_INVOKABLE void setHeightSpacing(int pixels);
    /** Alignment of the text block in the field (alignment word bits, both directions). */
    Q_INVOKABLE void setAlignment(int flags);
    /** Alignment of the lines inside the text block (horizontal bits of the alignment word). */
    Q_INVOKABLE void setFontAlignment(int flags);
    Q_INVOKABLE void setPadding(int left, int top, int right, int bottom);
    Q_INVOKABLE void setLineNumber(int n);
    Q_INVOKABLE void setTotalLine(int n);

Q_SIGNALS:
    void textItemChanged();

protected:
    void setCursorShown(bool shown) override;
    void applyTextColor(const QColor& color) override;

private:
    QPointer<XQuickTextEdit> m_textItem;
    QMetaObject::Connection m_textConnection;
};

#endif // XTEXTEDIT_H
