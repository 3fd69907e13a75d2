#ifndef MONOSGNODE_H
#define MONOSGNODE_H

#include <QColor>
#include <QFont>
#include <QRawFont>
#include <QString>

#include <QtQuick/private/qquicktextnode_p.h>

/**
 * The glyphs of a MonoText, in one colour. It holds the raw font of the item's
 * font: a Latin text is turned into one glyph run straight from the raw font
 * (no shaping); any other text goes through a full text layout (shaping,
 * bidirectional text, fallback fonts).
 */
class MonoSGNode : public QQuickTextNode {
public:
    explicit MonoSGNode(QQuickItem* owner);
    ~MonoSGNode() override;

    void setFont(const QFont& font);
    /** Rebuilds the glyphs of \a text; returns the advance width. */
    qreal rebuild(const QString& text, const QColor& color, bool latin);

private:
    QFont m_font;
    QRawFont m_rawFont;
};

#endif // MONOSGNODE_H
