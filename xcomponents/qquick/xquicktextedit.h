#ifndef XQUICKTEXTEDIT_H
#define XQUICKTEXTEDIT_H

#include <QtQuick/private/qquicktextedit_p.h>

/**
 * The text item of the multi-line field: the Qt Quick text edit with a fixed
 * spacing between lines and the line number and total-line values of the
 * field's record.
 *
 * It never takes presses (they belong to the field, which reports them).
 */
class XQuickTextEdit : public QQuickTextEdit {
    Q_OBJECT
    Q_PROPERTY(int heightSpacing READ heightSpacing WRITE setHeightSpacing NOTIFY heightSpacingChanged)
    Q_PROPERTY(int lineNumber READ lineNumber WRITE setLineNumber NOTIFY lineNumberChanged)
    Q_PROPERTY(int totalLine READ totalLine WRITE setTotalLine NOTIFY totalLineChanged)

public:
    explicit XQuickTextEdit(QQuickItem* parent = nullptr);
    ~XQuickTextEdit() override;

    /** Extra pixels between two lines; 0 keeps the font's line height. Negative values count as 0. */
    int heightSpacing() const { return m_heightSpacing; }
    void setHeightSpacing(int pixels);
    int lineNumber() const { return m_lineNumber; }
    void setLineNumber(int n);
    int totalLine() const { return m_totalLine; }
    void setTotalLine(int n);

Q_SIGNALS:
    void heightSpacingChanged();
    void lineNumberChanged();
    void totalLineChanged();

private:
    void applySpacing();

    int m_heightSpacing = 0;
    int m_lineNumber = 0;
    int m_totalLine = 0;
    bool m_applying = false;
};

#endif // XQUICKTEXTEDIT_H
