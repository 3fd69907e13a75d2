#include "xcomponents/qquick/basetextsgnode.h"

#include <QFontMetricsF>
#include <QTextLayout>

BaseTextSgNode::BaseTextSgNode(QQuickItem* owner)
    : QQuickTextNode(owner)
{
}

BaseTextSgNode::~BaseTextSgNode() = default;

void BaseTextSgNode::rebuild(const Params& p)
{
    deleteContent();
    QString text = p.text;
    text.replace(QLatin1Char('\n'), QChar::LineSeparator);
    QTextLayout layout(text, p.font);
    QTextOption option(Qt::Alignment(p.fontAlignment & Qt::AlignHorizontal_Mask));
    option.setWrapMode(QTextOption::NoWrap);
    layout.setTextOption(option);
    layout.setCacheEnabled(true);

    const QFontMetricsF fm(p.font);
    qreal y = 0;
    qreal widest = 0;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(1e6);
        widest = qMax(widest, line.naturalTextWidth());
        line.setPosition(QPointF(0, y));
        y += fm.height() + p.lineSpace;
    }
    layout.endLayout();
    const qreal height = qMax<qreal>(0, y - p.lineSpace);
    // lines aligned inside the block: re-lay with the block's width
    for (int i = 0; i < layout.lineCount(); ++i) {
        QTextLine line = layout.lineAt(i);
        const qreal w = line.naturalTextWidth();
        qreal x = 0;
        if (p.fontAlignment & Qt::AlignRight)
            x = widest - w;
        else if (p.fontAlignment & Qt::AlignHCenter)
            x = (widest - w) / 2;
        line.setPosition(QPointF(x, line.position().y()));
    }
    m_block = QSizeF(widest, height);

    qreal bx = 0;
    qreal by = 0;
    const int h = p.alignment & 0x1F;
    const int v = p.alignment & 0x1E0;
    if (h == Qt::AlignRight)
        bx = p.box.width() - widest - p.margin.x();
    else if (h == Qt::AlignHCenter)
        bx = (p.box.width() - widest) / 2;
    else if (h == Qt::AlignLeft)
        bx = p.margin.x();
    if (v == Qt::AlignBottom)
        by = p.box.height() - height - p.margin.y();
    else if (v == Qt::AlignVCenter)
        by = (p.box.height() - height) / 2;
    else if (v == Qt::AlignTop)
        by = p.margin.y();
    addTextLayout(QPointF(bx, by), &layout, p.color);
}
