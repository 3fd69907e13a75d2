#include "xcomponents/qquick/xquicktextedit.h"

#include <QQuickTextDocument>
#include <QTextBlock>
#include <QTextBlockFormat>
#include <QTextCursor>
#include <QTextDocument>

XQuickTextEdit::XQuickTextEdit(QQuickItem* parent)
    : QQuickTextEdit(parent)
{
    setAcceptedMouseButtons(Qt::NoButton);
    setAcceptTouchEvents(false);
    setFocusOnPress(false);
    // not read-only: that switch asks the system clipboard whether pasting is possible, a round
    // trip to the display server for every field; the text never takes focus, so no key reaches it
    setSelectByMouse(false);
    setPersistentSelection(true); // a selection shows without focus
    setWrapMode(QQuickTextEdit::Wrap);
    // a new text comes with fresh block formats: the spacing is applied again
    connect(this, &QQuickTextEdit::textChanged, this, &XQuickTextEdit::applySpacing);
}

XQuickTextEdit::~XQuickTextEdit() = default;

void XQuickTextEdit::setHeightSpacing(int pixels)
{
    pixels = qMax(0, pixels);
    if (m_heightSpacing == pixels)
        return;
    m_heightSpacing = pixels;
    applySpacing();
    Q_EMIT heightSpacingChanged();
}

void XQuickTextEdit::setLineNumber(int n)
{
    if (m_lineNumber == n)
        return;
    m_lineNumber = n;
    Q_EMIT lineNumberChanged();
}

void XQuickTextEdit::setTotalLine(int n)
{
    if (m_totalLine == n)
        return;
    m_totalLine = n;
    Q_EMIT totalLineChanged();
}

void XQuickTextEdit::applySpacing()
{
    QQuickTextDocument* quickDoc = textDocument();
    if (m_applying || !quickDoc || !quickDoc->textDocument())
        return;
    QTextDocument* doc = quickDoc->textDocument();
    if (m_heightSpacing == 0 && doc->firstBlock().blockFormat().lineHeightType() == QTextBlockFormat::SingleHeight)
        return;
    m_applying = true;
    QTextBlockFormat format;
    if (m_heightSpacing > 0)
        format.setLineHeight(m_heightSpacing, QTextBlockFormat::LineDistanceHeight);
    else
        format.setLineHeight(0, QTextBlockFormat::SingleHeight);
    QTextCursor cursor(doc);
    cursor.select(QTextCursor::Document);
    cursor.mergeBlockFormat(format);
    m_applying = false;
}
