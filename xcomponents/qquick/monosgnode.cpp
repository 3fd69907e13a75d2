#include "xcomponents/qquick/monosgnode.h"

#include <QGlyphRun>
#include <QTextLayout>

MonoSGNode::MonoSGNode(QQuickItem* owner)
    : QQuickTextNode(owner)
{
}

MonoSGNode::~MonoSGNode() = default;

void MonoSGNode::setFont(const QFont& font)
{
    if (m_rawFont.isValid() && m_font == font)
        return;
    m_font = font;
    m_rawFont = QRawFont::fromFont(font);
}

qreal MonoSGNode::rebuild(const QString& text, const QColor& color, bool latin)
{
    deleteContent();
    if (latin && m_rawFont.isValid()) {
        QVector<quint32> glyphs = m_rawFont.glyphIndexesForString(text);
        QVector<QPointF> advances = m_rawFont.advancesForGlyphIndexes(glyphs);
        QVector<QPointF> positions(glyphs.size());
        qreal x = 0;
        for (int i = 0; i < glyphs.size(); ++i) {
            positions[i] = QPointF(x, 0);
            x += advances.at(i).x();
        }
        QGlyphRun run;
        run.setRawFont(m_rawFont);
        run.setGlyphIndexes(glyphs);
        run.setPositions(positions);
        addGlyphs(QPointF(0, m_rawFont.ascent()), run, color);
        return x;
    }
    QTextLayout layout(text, m_font);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    if (line.isValid())
        line.setLineWidth(1e6);
    layout.endLayout();
    addTextLayout(QPointF(0, 0), &layout, color);
    return line.isValid() ? line.naturalTextWidth() : 0;
}
