#ifndef BASETEXTSGNODE_H
#define BASETEXTSGNODE_H

#include <QColor>
#include <QFont>
#include <QPointF>
#include <QRectF>
#include <QString>

#include <QtQuick/private/qquicktextnode_p.h>

/**
 * The glyph runs of an XBaseText: the text laid out line by line in its font,
 * the lines aligned by the font alignment, the block placed in the box by the
 * alignment and the margin.
 */
class BaseTextSgNode : public QQuickTextNode {
public:
    explicit BaseTextSgNode(QQuickItem* owner);
    ~BaseTextSgNode() override;

    struct Params {
        QString text;
        QFont font;
        QColor color;
        QSizeF box;
        int alignment = 0;
        int fontAlignment = 0;
        QPointF margin;
        int lineSpace = 0;
    };
    /** Rebuilds the glyph runs. */
    void rebuild(const Params& p);
    /** The laid-out block's size of the last rebuild. */
    QSizeF blockSize() const { return m_block; }

private:
    QSizeF m_block;
};

#endif // BASETEXTSGNODE_H
