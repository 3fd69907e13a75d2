#include "xcomponents/qquick/xsktextlabel.h"

#include "platform/guiqtadaptcore.h"

#include <QFontMetricsF>
#include <QtQuick/private/qquickanchors_p.h>
#include <QtQuick/private/qquickanchors_p_p.h>
#include <QtQuick/private/qquickitem_p.h>
#include <QtQuick/private/qquicktext_p.h>

XskTextLabel::XskTextLabel(QQuickItem* parent)
    : QQuickItem(parent)
    , m_text(new QQuickText(this))
{
    // operator texts are never markup: "<b>" is shown as it stands
    m_text->setTextFormat(QQuickText::PlainText);
}

XskTextLabel::~XskTextLabel() = default;

QString XskTextLabel::text() const
{
    return m_text->text();
}

void XskTextLabel::setText(const QString& text)
{
    // a runaway text (a corrupt file read into it) is cut, so laying it out never stalls the panel
    const QString shown = GuiQtAdapt::Core::cutText(text, GuiQtAdapt::Core::kMaxShownText);
    if (m_text->text() == shown)
        return;
    m_text->setText(shown);
    Q_EMIT textChanged();
}

QFont XskTextLabel::font() const
{
    return m_text->font();
}

void XskTextLabel::setFont(const QFont& font)
{
    if (m_text->font() == font)
        return;
    m_text->setFont(font);
    applyLineHeight();
    Q_EMIT fontChanged();
}

QColor XskTextLabel::color() const
{
    return m_text->color();
}

void XskTextLabel::setColor(const QColor& color)
{
    if (m_text->color() == color)
        return;
    m_text->setColor(color);
    Q_EMIT colorChanged();
}

void XskTextLabel::setHorizontalAlignment(int align)
{
    switch (align) {
    case Qt::AlignLeft:
    case Qt::AlignRight:
    case Qt::AlignHCenter:
    case Qt::AlignJustify:
        break;
    default:
        align = Qt::AlignLeft;
    }
    if (m_hAlign == align)
        return;
    m_hAlign = align;
    m_text->setHAlign(QQuickText::HAlignment(align));
    Q_EMIT horizontalAlignmentChanged();
}

void XskTextLabel::setVerticalAlignment(int align)
{
    switch (align) {
    case Qt::AlignTop:
    case Qt::AlignBottom:
    case Qt::AlignVCenter:
        break;
    default:
        align = Qt::AlignTop;
    }
    if (m_vAlign == align)
        return;
    m_vAlign = align;
    m_text->setVAlign(QQuickText::VAlignment(align));
    Q_EMIT verticalAlignmentChanged();
}

void XskTextLabel::setWrapMode(int mode)
{
    if (m_wrapMode == mode)
        return;
    m_wrapMode = mode;
    m_text->setWrapMode(QQuickText::WrapMode(mode));
    // a wrapping text needs a width to wrap at: the label's
    if (mode != QQuickText::NoWrap)
        m_text->setWidth(width());
    else
        m_text->resetWidth();
    Q_EMIT wrapModeChanged();
}

void XskTextLabel::setFontAlignment(int align)
{
    if (m_fontAlignment == align)
        return;
    m_fontAlignment = align;
    setHorizontalAlignment(align & Qt::AlignHorizontal_Mask);
    setVerticalAlignment(align & Qt::AlignVertical_Mask);
    Q_EMIT fontAligmentChanged();
}

void XskTextLabel::setAlignment(Qt::Alignment align)
{
    if (m_alignment == align)
        return;
    m_alignment = align;
    anchorHorizontally();
    anchorVertically();
    Q_EMIT aligmentChanged();
}

void XskTextLabel::setLineSpace(int space)
{
    if (m_lineSpace == space)
        return;
    m_lineSpace = space;
    applyLineHeight();
    Q_EMIT lineSpaceChanged();
}

/*!
    Sets the distance between the text block and the label's top or bottom edge
    to \a margin pixels, when the block is aligned to that edge.
*/
void XskTextLabel::setTextVMargin(int margin)
{
    const bool changed = m_vMargin != margin;
    m_vMargin = margin;
    anchorVertically();
    if (changed)
        Q_EMIT textVMarginChanged();
}

/*!
    Sets the distance between the text block and the label's left or right edge
    to \a margin pixels, when the block is aligned to that edge.
*/
void XskTextLabel::setTextHMargin(int margin)
{
    const bool changed = m_hMargin != margin;
    m_hMargin = margin;
    anchorHorizontally();
    if (changed)
        Q_EMIT textHMarginChanged();
}

qreal XskTextLabel::contentWidth() const
{
    return m_text->contentWidth();
}

qreal XskTextLabel::contentHeight() const
{
    return m_text->contentHeight();
}

void XskTextLabel::geometryChanged(const QRectF& newGeometry, const QRectF& oldGeometry)
{
    QQuickItem::geometryChanged(newGeometry, oldGeometry);
    if (m_wrapMode != QQuickText::NoWrap && newGeometry.width() != oldGeometry.width())
        m_text->setWidth(newGeometry.width());
}

void XskTextLabel::anchorHorizontally()
{
    QQuickAnchors* a = QQuickItemPrivate::get(m_text)->anchors();
    a->resetLeft();
    a->resetRight();
    a->resetHorizontalCenter();
    switch (int(m_alignment) & 0x1F) {
    case Qt::AlignRight:
        a->setRight(QQuickAnchorLine(this, QQuickAnchors::RightAnchor));
        a->setRightMargin(m_hMargin);
        break;
    case Qt::AlignHCenter:
        a->setHorizontalCenter(QQuickAnchorLine(this, QQuickAnchors::HCenterAnchor));
        break;
    case Qt::AlignLeft:
        a->setLeft(QQuickAnchorLine(this, QQuickAnchors::LeftAnchor));
        a->setLeftMargin(m_hMargin);
        break;
    default:
        m_text->setX(0); // not anchored: back at the label's left edge
        break;
    }
}

void XskTextLabel::anchorVertically()
{
    QQuickAnchors* a = QQuickItemPrivate::get(m_text)->anchors();
    a->resetTop();
    a->resetBottom();
    a->resetVerticalCenter();
    switch (int(m_alignment) & 0x1E0) {
    case Qt::AlignBottom:
        a->setBottom(QQuickAnchorLine(this, QQuickAnchors::BottomAnchor));
        a->setBottomMargin(m_vMargin);
        break;
    case Qt::AlignVCenter:
        a->setVerticalCenter(QQuickAnchorLine(this, QQuickAnchors::VCenterAnchor));
        break;
    case Qt::AlignTop:
        a->setTop(QQuickAnchorLine(this, QQuickAnchors::TopAnchor));
        a->setTopMargin(m_vMargin);
        break;
    default:
        m_text->setY(0);
        break;
    }
}

void XskTextLabel::applyLineHeight()
{
    if (m_lineSpace == 0) {
        if (m_text->lineHeightMode() != QQuickText::ProportionalHeight || m_text->lineHeight() != 1.0) {
            m_text->setLineHeightMode(QQuickText::ProportionalHeight);
            m_text->setLineHeight(1.0);
        }
        return;
    }
    // a line is the font's own height plus the extra spacing
    m_text->setLineHeightMode(QQuickText::FixedHeight);
    m_text->setLineHeight(qMax<qreal>(1.0, QFontMetricsF(m_text->font()).height() + m_lineSpace));
}
