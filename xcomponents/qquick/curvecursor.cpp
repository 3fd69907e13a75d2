#include "xcomponents/qquick/curvecursor.h"

#include <QFontMetrics>
#include <QPainter>

namespace {
constexpr int kPad = 6; // text inset and mark size, pixels
constexpr int kGap = 10; // distance from the cursor line
} // namespace

CurveCursor::CurveCursor(QQuickItem* parent)
    : QQuickPaintedItem(parent)
{
    setVisible(false);
    setZ(2);
    resize();
}

void CurveCursor::setStyle(const Style& style)
{
    m_style = style;
    if (m_style.columnWidths.size() > kMaxColumns)
        m_style.columnWidths.resize(kMaxColumns);
    for (int& w : m_style.columnWidths)
        w = qBound(8, w, 1000);
    m_style.defaultHeight = qBound(0, m_style.defaultHeight, 1000);
    resize();
}

void CurveCursor::setTitle(const QString& title)
{
    m_title = title;
    resize();
    Q_EMIT contentChanged();
}

void CurveCursor::setHeads(const QStringList& heads)
{
    m_heads = heads.mid(0, kMaxColumns);
    resize();
    Q_EMIT contentChanged();
}

void CurveCursor::setColumnFonts(const QVector<QFont>& fonts)
{
    m_fonts = fonts.mid(0, kMaxColumns);
    resize();
}

void CurveCursor::setRows(const QVector<QVector<XTableCell>>& rows, const QVector<QColor>& marks)
{
    m_rows = rows.mid(0, kMaxRows);
    for (auto& row : m_rows) {
        if (row.size() > kMaxColumns)
            row.resize(kMaxColumns);
    }
    m_marks = marks;
    resize();
    Q_EMIT contentChanged();
}

QString CurveCursor::cellText(int row, int column) const
{
    if (row < 0 || row >= m_rows.size() || column < 0 || column >= m_rows[row].size())
        return QString();
    return m_rows[row][column].text;
}

int CurveCursor::columnWidth(int column) const
{
    return column < m_style.columnWidths.size() ? m_style.columnWidths[column] : 96;
}

int CurveCursor::rowHeight() const
{
    return QFontMetrics(m_style.font).height() + kPad;
}

void CurveCursor::resize()
{
    int columns = m_heads.size();
    for (const auto& row : qAsConst(m_rows))
        columns = qMax(columns, row.size());
    columns = qMax(columns, m_style.columnWidths.size());
    int w = 0;
    for (int c = 0; c < qMax(1, columns); ++c)
        w += columnWidth(c);
    const int lines = (m_style.showTitle ? 1 : 0) + (m_style.showHead && !m_heads.isEmpty() ? 1 : 0) + m_rows.size();
    const int h = lines ? lines * rowHeight() + 2 : m_style.defaultHeight;
    setSize(QSizeF(w + kPad + 2, h));
    update();
}

void CurveCursor::placeBeside(double x, const QRectF& area)
{
    double left = x + kGap;
    if (left + width() > area.right())
        left = x - kGap - width(); // no room on the right: the other side of the line
    setPosition(QPointF(qMax(area.left(), left), area.top() + kGap));
}

void CurveCursor::paint(QPainter* painter)
{
    const int rh = rowHeight();
    painter->setPen(m_style.border);
    painter->setBrush(m_style.back);
    painter->drawRect(QRectF(0.5, 0.5, width() - 1, height() - 1));
    int y = 1;
    auto drawText = [&](const QRectF& r, const QString& text, const QFont& font, const QColor& colour) {
        painter->setFont(font);
        painter->setPen(colour);
        painter->drawText(r.adjusted(kPad / 2, 0, -kPad / 2, 0), Qt::AlignVCenter | Qt::AlignLeft,
            QFontMetrics(font).elidedText(text, Qt::ElideRight, int(r.width()) - kPad));
    };
    if (m_style.showTitle) {
        QFont bold = m_style.font;
        bold.setBold(true);
        drawText(QRectF(kPad / 2, y, width() - kPad, rh), m_title, bold, m_style.text);
        y += rh;
    }
    if (m_style.showHead && !m_heads.isEmpty()) {
        painter->fillRect(QRectF(1, y, width() - 2, rh), m_style.head);
        int x = kPad;
        for (int c = 0; c < m_heads.size(); ++c) {
            drawText(QRectF(x, y, columnWidth(c), rh), m_heads[c], c < m_fonts.size() ? m_fonts[c] : m_style.font,
                m_style.text);
            x += columnWidth(c);
        }
        y += rh;
    }
    for (int r = 0; r < m_rows.size(); ++r) {
        int x = kPad;
        const QColor mark = r < m_marks.size() ? m_marks[r] : QColor();
        for (int c = 0; c < m_rows[r].size(); ++c) {
            const XTableCell& cell = m_rows[r][c];
            QRectF box(x, y, columnWidth(c), rh);
            if (cell.backColor.isValid())
                painter->fillRect(box, cell.backColor);
            if (c == 0 && mark.isValid()) { // the channel's colour before its name
                painter->fillRect(QRectF(x, y + rh / 2.0 - kPad / 2.0, kPad, kPad), mark);
                box.adjust(kPad + 2, 0, 0, 0);
            }
            const QFont font = cell.hasFont ? cell.font : (c < m_fonts.size() ? m_fonts[c] : m_style.font);
            drawText(box, cell.text, font, cell.textColor.isValid() ? cell.textColor : m_style.text);
            x += columnWidth(c);
        }
        y += rh;
    }
}
