#include "xcomponents/qquick/xtextedit.h"

#include "config/globalconfig.h"
#include "platform/guiqtadaptcore.h"
#include "xcomponents/qquick/xquicktextedit.h"

XTextEdit::XTextEdit(QQuickItem* parent)
    : XBaseTextInputControl(parent)
{
    connect(this, &QQuickControl::fontChanged, this, [this] {
        if (m_textItem)
            m_textItem->setFont(font());
    });
}

XTextEdit::~XTextEdit() = default;

XQuickTextEdit* XTextEdit::textItem() const
{
    return m_textItem.data();
}

void XTextEdit::setTextItem(XQuickTextEdit* item)
{
    if (m_textItem == item)
        return;
    disconnect(m_textConnection);
    m_textItem = item;
    if (item) {
        item->setSelectionColor(GlobalConfig::getInstance()->selectionColor());
        item->setSelectedTextColor(Qt::white);
        item->setCursorVisible(false);
        item->setColor(grayFlag() ? QColor(Qt::gray) : itemPen());
        m_textConnection = connect(item, &QQuickTextEdit::textChanged, this, &XBaseTextInputControl::textChanged);
    }
    Q_EMIT textItemChanged();
}

void XTextEdit::setText(const QString& text)
{
    if (m_textItem)
        m_textItem->setText(GuiQtAdapt::Core::cutText(text, kMaxFieldText));
}

QString XTextEdit::text() const
{
    return m_textItem ? m_textItem->text() : QString();
}

void XTextEdit::select(int start, int end)
{
    if (!m_textItem)
        return;
    const int n = m_textItem->length();
    m_textItem->select(qBound(0, start, n), qBound(0, end, n));
}

void XTextEdit::setCursorPosition(int position)
{
    if (m_textItem)
        m_textItem->setCursorPosition(qBound(0, position, m_textItem->length()));
}

void XTextEdit::showSlashItem()
{
    if (m_textItem)
        m_textItem->setText(slashText());
}

void XTextEdit::hideSlashItem()
{
    if (m_textItem)
        m_textItem->setText(QString());
}

bool XTextEdit::cursorShown() const
{
    return m_textItem && m_textItem->isCursorVisible();
}

void XTextEdit::setCursorShown(bool shown)
{
    if (m_textItem)
        m_textItem->setCursorVisible(shown);
}

void XTextEdit::applyTextColor(const QColor& color)
{
    if (m_textItem)
        m_textItem->setColor(color);
}

void XTextEdit::setHeightSpacing(int pixels)
{
    if (m_textItem)
        m_textItem->setHeightSpacing(pixels);
}

void XTextEdit::setAlignment(int flags)
{
    if (!m_textItem)
        return;
    switch (flags & 0x1E0) {
    case 0x40:
        m_textItem->setVAlign(QQuickTextEdit::AlignBottom);
        break;
    case 0x80:
        m_textItem->setVAlign(QQuickTextEdit::AlignVCenter);
        break;
    default:
        m_textItem->setVAlign(QQuickTextEdit::AlignTop);
        break;
    }
    setFontAlignment(flags);
}

void XTextEdit::setFontAlignment(int flags)
{
    if (!m_textItem)
        return;
    switch (flags & 0x1F) {
    case 0x02:
        m_textItem->setHAlign(QQuickTextEdit::AlignRight);
        break;
    case 0x04:
        m_textItem->setHAlign(QQuickTextEdit::AlignHCenter);
        break;
    case 0x08:
        m_textItem->setHAlign(QQuickTextEdit::AlignJustify);
        break;
    default:
        m_textItem->setHAlign(QQuickTextEdit::AlignLeft);
        break;
    }
}

void XTextEdit::setPadding(int left, int top, int right, int bottom)
{
    if (!m_textItem)
        return;
    m_textItem->setLeftPadding(qMax(0, left));
    m_textItem->setTopPadding(qMax(0, top));
    m_textItem->setRightPadding(qMax(0, right));
    m_textItem->setBottomPadding(qMax(0, bottom));
}

void XTextEdit::setLineNumber(int n)
{
    if (m_textItem)
        m_textItem->setLineNumber(n);
}

void XTextEdit::setTotalLine(int n)
{
    if (m_textItem)
        m_textItem->setTotalLine(n);
}
