#include "xcomponents/qquick/monotext.h"

#include "xcomponents/qquick/monosgnode.h"

#include <QFontMetricsF>

MonoText::MonoText(QQuickItem* parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents, true);
}

MonoText::~MonoText() = default;

void MonoText::setText(const QString& text)
{
    if (m_text == text)
        return;
    m_text = text;
    m_dirty = true;
    Q_EMIT textChanged();
    update();
}

void MonoText::setFont(const QFont& font)
{
    if (m_font == font)
        return;
    m_font = font;
    m_dirty = true;
    m_height = QFontMetricsF(font).height();
    Q_EMIT fontChanged();
    update();
}

void MonoText::setColor(const QColor& color)
{
    if (m_color == color)
        return;
    m_color = color;
    m_dirty = true;
    Q_EMIT colorChanged();
    update();
}

void MonoText::setLatin(bool on)
{
    if (m_latin == on)
        return;
    m_latin = on;
    m_dirty = true;
    Q_EMIT latinChanged();
    update();
}

QSGNode* MonoText::updatePaintNode(QSGNode* old, UpdatePaintNodeData*)
{
    if (m_text.trimmed().isEmpty()) {
        delete old;
        return nullptr;
    }
    auto* node = static_cast<MonoSGNode*>(old);
    if (!node) {
        node = new MonoSGNode(this);
        m_dirty = true;
    }
    if (m_dirty) {
        node->setFont(m_font);
        m_width = node->rebuild(m_text, m_color.isValid() ? m_color : QColor(Qt::black), m_latin);
        m_dirty = false;
    }
    return node;
}
