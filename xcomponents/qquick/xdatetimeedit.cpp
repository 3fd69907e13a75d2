#include "xcomponents/qquick/xdatetimeedit.h"

#include "platform/guiqtadaptcore.h"
#include "platform/logiclayercaller.h"
#include "xcomponents/qquick/picturecachemanage.h"
#include "xcomponents/qquick/xquickimage.h"

#include <QQmlEngine>
#include <QtQuick/private/qquicktext_p.h>

#include <qgui/events.h>

namespace {
constexpr qreal kTextPadding = 12;
} // namespace

XDateTimeEdit::XDateTimeEdit(QQuickItem* parent)
    : XBaseControl(parent)
    , m_text(new QQuickText(this))
{
    // the text is looks only: presses belong to the field
    m_text->setAcceptedMouseButtons(Qt::NoButton);
    m_text->setTextFormat(QQuickText::PlainText);
    m_text->setVAlign(QQuickText::AlignVCenter);
    m_text->setHAlign(QQuickText::AlignHCenter);
    m_text->setElideMode(QQuickText::ElideRight);
    // the text keeps off the field's frame, as in the entry fields
    m_text->setLeftPadding(kTextPadding);
    m_text->setRightPadding(kTextPadding);
    m_text->setZ(1);
    m_text->setColor(m_fontColor);
    connect(this, &QQuickControl::fontChanged, this, [this]() {
        m_text->setFont(font());
        applyLineHeight();
    });
}

XDateTimeEdit::~XDateTimeEdit() = default;

QString XDateTimeEdit::text() const
{
    return m_text->text();
}

/** Shows \a text; a runaway text is cut at GuiQtAdapt::Core::kMaxShownText characters. */
void XDateTimeEdit::setText(const QString& text)
{
    const QString shown = GuiQtAdapt::Core::cutText(text, GuiQtAdapt::Core::kMaxShownText);
    if (m_text->text() == shown)
        return;
    m_text->setText(shown);
    Q_EMIT textChanged();
}

/** Sets the configured text colour (black by default); while grey the text stays "gray". */
void XDateTimeEdit::setFontColor(const QColor& color)
{
    if (m_fontColor == color)
        return;
    m_fontColor = color;
    applyColor();
    Q_EMIT fontColorChanged();
}

void XDateTimeEdit::setItemBrush(const QBrush& brush)
{
    XBaseControl::setItemBrush(brush);
    setFontColor(brush.color());
}

/** Horizontal alignment of the text (Qt::AlignLeft, AlignRight, AlignHCenter; other bits are
 *  ignored, no horizontal bit centres). The text is always centred vertically. */
void XDateTimeEdit::setFontAlignment(int align)
{
    align &= Qt::AlignHorizontal_Mask;
    if (m_fontAlignment == align)
        return;
    m_fontAlignment = align;
    if (align & Qt::AlignRight)
        m_text->setHAlign(QQuickText::AlignRight);
    else if (align & (Qt::AlignHCenter | Qt::AlignJustify) || !(align & Qt::AlignLeft))
        m_text->setHAlign(QQuickText::AlignHCenter);
    else
        m_text->setHAlign(QQuickText::AlignLeft);
    Q_EMIT fontAlignmentChanged();
}

/** Line height of the text in pixels; 0 or less keeps the font's own (the default). */
void XDateTimeEdit::setRowSpace(int space)
{
    space = qBound(0, space, 4096);
    if (m_rowSpace == space)
        return;
    m_rowSpace = space;
    applyLineHeight();
    Q_EMIT rowSpaceChanged();
}

void XDateTimeEdit::applyLineHeight()
{
    if (m_rowSpace > 0) {
        m_text->setLineHeightMode(QQuickText::FixedHeight);
        m_text->setLineHeight(m_rowSpace);
    } else {
        m_text->setLineHeightMode(QQuickText::ProportionalHeight);
        m_text->setLineHeight(1.0);
    }
}

void XDateTimeEdit::setSource(const QUrl& url)
{
    m_image = XQuickImage::showBackground(this, m_image.data(), url);
}

QUrl XDateTimeEdit::source() const
{
    return m_image ? m_image->source() : QUrl();
}

void XDateTimeEdit::setInputFlag(bool on)
{
    if (m_inputFlag == on)
        return;
    m_inputFlag = on;
    Q_EMIT inputFlagChanged();
}

void XDateTimeEdit::setGrayFlag(bool on)
{
    XBaseControl::setGrayFlag(on);
    applyColor();
}

void XDateTimeEdit::applyColor()
{
    m_text->setColor(grayFlag() ? QColor(Qt::gray) : m_fontColor);
}

void XDateTimeEdit::setImageVisible(bool visible)
{
    if (m_image)
        m_image->setVisible(visible);
}

void XDateTimeEdit::showSlashItem()
{
    m_text->setVisible(false);
}

void XDateTimeEdit::hideSlashItem()
{
    m_text->setVisible(true);
}

void XDateTimeEdit::onOkButtonClicked(const QString& text)
{
    QByteArray utf8 = text.toUtf8(); // NUL-terminated; lives until the call returns
    LogicLayerCaller::call(getId(), EVT_DATETIME_OK, utf8.data());
}

void XDateTimeEdit::geometryChanged(const QRectF& newGeometry, const QRectF& oldGeometry)
{
    XBaseControl::geometryChanged(newGeometry, oldGeometry);
    m_text->setSize(newGeometry.size());
    XQuickImage::fit(m_image, newGeometry.size());
}
