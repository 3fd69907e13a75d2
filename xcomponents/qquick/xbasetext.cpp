#include "xcomponents/qquick/xbasetext.h"

#include "xcomponents/qquick/basetextsgnode.h"

XBaseText::XBaseText(QQuickItem* parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents, true);
    setClip(true);
}

XBaseText::~XBaseText() = default;

void XBaseText::setText(const QString& text)
{
    if (m_text == text)
        return;
    m_text = text;
    m_textDirty = true;
    Q_EMIT textChanged();
    update();
}

void XBaseText::setFont(const QFont& font)
{
    if (m_font == font)
        return;
    m_font = font;
    m_fontDirty = true;
    Q_EMIT fontChanged();
    update();
}

void XBaseText::setColor(const QColor& color)
{
    if (m_color == color)
        return;
    m_color = color;
    m_textDirty = true;
    Q_EMIT colorChanged();
    update();
}

void XBaseText::setAlignment(int align)
{
    if (m_alignment == align)
        return;
    m_alignment = align;
    m_textDirty = true;
    update();
}

void XBaseText::setFontAlignment(int align)
{
    if (m_fontAlignment == align)
        return;
    m_fontAlignment = align;
    m_textDirty = true;
    update();
}

void XBaseText::setMargin(const QPoint& margin)
{
    if (m_margin == margin)
        return;
    m_margin = margin;
    m_textDirty = true;
    update();
}

void XBaseText::setLineSpace(int space)
{
    if (m_lineSpace == space)
        return;
    m_lineSpace = space;
    m_textDirty = true;
    update();
}

void XBaseText::moveTo(int x, int y)
{
    setPosition(QPointF(x, y));
}

void XBaseText::zoom(qreal w, qreal h, int origin)
{
    setTransformOrigin(TransformOrigin(qBound(0, origin, int(BottomRight))));
    setSize(QSizeF(qMax<qreal>(0, width() * w), qMax<qreal>(0, height() * h)));
}

void XBaseText::rotate(qreal angle, int origin)
{
    setTransformOrigin(TransformOrigin(qBound(0, origin, int(BottomRight))));
    setRotation(angle);
}

void XBaseText::setGrayFlag(bool on)
{
    if (m_gray == on)
        return;
    m_gray = on;
    m_textDirty = true;
    update();
}

void XBaseText::geometryChanged(const QRectF& newGeometry, const QRectF& oldGeometry)
{
    QQuickItem::geometryChanged(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size()) {
        m_textDirty = true;
        update();
    }
}

void XBaseText::itemChange(ItemChange change, const ItemChangeData& value)
{
    QQuickItem::itemChange(change, value);
    if (change == ItemVisibleHasChanged || change == ItemSceneChange) {
        // the node may have been dropped while hidden: build it again
        m_textDirty = true;
        m_fontDirty = true;
        update();
    }
}

QSGNode* XBaseText::updatePaintNode(QSGNode* old, UpdatePaintNodeData*)
{
    if (m_text.trimmed().isEmpty()) {
        delete old;
        return nullptr;
    }
    auto* node = static_cast<BaseTextSgNode*>(old);
    if (!node) {
        node = new BaseTextSgNode(this);
        m_textDirty = true;
    }
    if (m_textDirty || m_fontDirty) {
        BaseTextSgNode::Params p;
        p.text = m_text;
        p.font = m_font;
        p.color = m_gray ? QColor(QStringLiteral("gray")) : (m_color.isValid() ? m_color : QColor(Qt::black));
        p.box = size();
        p.alignment = m_alignment;
        p.fontAlignment = m_fontAlignment;
        p.margin = m_margin;
        p.lineSpace = m_lineSpace;
        node->rebuild(p);
        m_textDirty = m_fontDirty = false;
    }
    return node;
}
