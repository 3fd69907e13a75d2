#include "xcomponents/qquick/xkeyboardedit.h"

#include <QFontMetricsF>
#include <QPainter>

XKeyBoardEdit::XKeyBoardEdit(QQuickItem* parent)
    : XBasePaintedItem(parent)
{
    setAntialiasing(true);
}

void XKeyBoardEdit::setText(const QString& text)
{
    if (m_text == text)
        return;
    m_text = text;
    m_cursor = int(text.size());
    m_selStart = m_selEnd = 0;
    Q_EMIT textChanged();
    update();
}

void XKeyBoardEdit::select(int start, int end)
{
    const int n = int(m_text.size());
    m_selStart = qBound(0, qMin(start, end), n);
    m_selEnd = qBound(0, qMax(start, end), n);
    m_cursor = m_selEnd;
    update();
}

void XKeyBoardEdit::setCursorPosition(int position)
{
    m_cursor = qBound(0, position, int(m_text.size()));
    m_selStart = m_selEnd = 0;
    update();
}

void XKeyBoardEdit::paint(QPainter* painter)
{
    const QRectF r = boundingRect().adjusted(1, 1, -1, -1);
    painter->setPen(m_borderWidth > 0 ? QPen(m_borderColor, m_borderWidth) : Qt::NoPen);
    painter->setBrush(Qt::white);
    painter->drawRoundedRect(r, 4, 4);
    QFont f = painter->font();
    f.setPixelSize(qMax(10, int(height() * 0.6)));
    painter->setFont(f);
    const QFontMetricsF fm(f);
    const qreal x0 = r.left() + 6;
    const qreal baseline = r.center().y() + (fm.ascent() - fm.descent()) / 2;
    if (m_selEnd > m_selStart) {
        const qreal a = x0 + fm.horizontalAdvance(m_text.left(m_selStart));
        const qreal b = x0 + fm.horizontalAdvance(m_text.left(m_selEnd));
        painter->fillRect(QRectF(a, r.top() + 3, b - a, r.height() - 6), m_selectionColor);
    }
    painter->setPen(m_textColor);
    painter->drawText(QPointF(x0, baseline), m_text);
    const qreal cx = x0 + fm.horizontalAdvance(m_text.left(m_cursor));
    painter->drawLine(QPointF(cx, r.top() + 4), QPointF(cx, r.bottom() - 4));
}
