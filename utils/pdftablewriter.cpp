#include "utils/pdftablewriter.h"

#include <QFontMetricsF>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

#include <numeric>

namespace {
constexpr int kDpi = 96; // page coordinates in pixels of 1/96 inch
constexpr qreal kPad = 4; // space around a cell's text
const QMarginsF kMargins(15, 15, 15, 15); // millimetres
} // namespace

PdfTableWriter::PdfTableWriter()
{
    m_font.setFamilies({ QStringLiteral("DejaVu Sans"), QStringLiteral("Noto Sans CJK SC") });
    m_font.setPixelSize(11);
    m_headFont = m_font;
    m_headFont.setBold(true);
}

PdfTableWriter::~PdfTableWriter()
{
    close();
}

bool PdfTableWriter::open(const QString& path)
{
    close();
    m_file.setFileName(path);
    if (path.isEmpty() || !m_file.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return false;
    m_writer = std::make_unique<QPdfWriter>(&m_file);
    m_writer->setResolution(kDpi);
    m_writer->setCreator(QStringLiteral("qgui"));
    m_writer->setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, kMargins,
        QPageLayout::Millimeter));
    m_pages = 0;
    return true;
}

bool PdfTableWriter::startPage(bool landscape)
{
    // the orientation is set before the page begins: before painting starts, or before the next page
    const QPageLayout::Orientation wanted = landscape ? QPageLayout::Landscape : QPageLayout::Portrait;
    if (m_writer->pageLayout().orientation() != wanted)
        m_writer->setPageOrientation(wanted);
    if (!m_painter) {
        m_painter = std::make_unique<QPainter>();
        if (!m_painter->begin(m_writer.get())) {
            m_painter.reset();
            return false;
        }
    } else {
        m_writer->newPage();
    }
    ++m_pages;
    return true;
}

void PdfTableWriter::drawFooter()
{
    const QRectF page = m_writer->pageLayout().paintRectPixels(kDpi);
    m_painter->setFont(m_font);
    m_painter->setPen(Qt::darkGray);
    const QRectF foot(0, page.height() - QFontMetricsF(m_font).height(), page.width(), QFontMetricsF(m_font).height());
    m_painter->drawText(foot, Qt::AlignCenter, QStringLiteral("Page %1").arg(m_pages));
}

void PdfTableWriter::drawRow(const QStringList& cells, const QVector<qreal>& widths, qreal y, qreal height, bool head)
{
    const QFont& font = head ? m_headFont : m_font;
    m_painter->setFont(font);
    qreal x = 0;
    const qreal total = std::accumulate(widths.begin(), widths.end(), qreal(0));
    if (head)
        m_painter->fillRect(QRectF(0, y, total, height), QColor(0xE4, 0xE9, 0xEF));
    m_painter->setPen(QPen(QColor(0x9A, 0xA5, 0xB1), 0.5));
    m_painter->drawLine(QLineF(0, y + height, total, y + height));
    m_painter->setPen(Qt::black);
    for (int c = 0; c < widths.size(); ++c) {
        const QRectF box(x + kPad, y, widths[c] - 2 * kPad, height);
        QString text = cells.value(c);
        if (text.contains(QLatin1Char('\n')) || text.contains(QLatin1Char('\r')))
            text = text.simplified(); // one line per cell
        // most texts fit: only those wider than their column are cut (texts repeat, their widths are kept)
        if (textWidth(text, head) <= box.width())
            m_painter->drawText(box, Qt::AlignLeft | Qt::AlignVCenter, text);
        else
            m_painter->drawText(box, Qt::AlignLeft | Qt::AlignVCenter,
                QFontMetricsF(font).elidedText(text, Qt::ElideRight, qMax<qreal>(0, box.width())));
        x += widths[c];
    }
}

qreal PdfTableWriter::textWidth(const QString& text, bool head)
{
    if (text.isEmpty())
        return 0;
    QHash<QString, qreal>& cache = head ? m_headWidths : m_widths;
    auto it = cache.constFind(text);
    if (it != cache.constEnd())
        return it.value();
    const qreal w = QFontMetricsF(head ? m_headFont : m_font).horizontalAdvance(text);
    if (cache.size() < 100000)
        cache.insert(text, w);
    return w;
}

bool PdfTableWriter::writeTable(const QStringList& heads, const QVector<QStringList>& rows, bool landscape)
{
    if (!m_writer || !startPage(landscape))
        return false;
    const QRectF page = m_writer->pageLayout().paintRectPixels(kDpi);
    // columns: as many as the widest of the head and the rows, each as wide as its widest text
    int columns = qMin(heads.size(), kMaxColumns);
    const int rowCount = qMin(rows.size(), kMaxRows);
    for (int r = 0; r < rowCount; ++r)
        columns = qMax(columns, qMin(rows[r].size(), kMaxColumns));
    QVector<qreal> widths(columns, 0);
    const QFontMetricsF fm(m_font);
    const QFontMetricsF hm(m_headFont);
    for (int c = 0; c < columns; ++c)
        widths[c] = textWidth(heads.value(c), true) + 2 * kPad;
    const int sample = qMin(rowCount, 2000); // enough rows to know the columns, without measuring them all
    for (int r = 0; r < sample; ++r)
        for (int c = 0; c < columns; ++c)
            widths[c] = qMax(widths[c], qMin<qreal>(textWidth(rows[r].value(c), false) + 2 * kPad, page.width()));
    // then to the page: when they fit, every column widens in proportion; when they do not, the
    // columns narrower than an even share keep their width and the wide ones share what is left
    const qreal total = std::accumulate(widths.begin(), widths.end(), qreal(0));
    if (total > 0 && total <= page.width()) {
        for (qreal& w : widths)
            w *= page.width() / total;
    } else if (total > 0) {
        QVector<bool> fixed(columns, false);
        qreal left = page.width();
        int open = columns;
        for (bool changed = true; changed && open > 0;) {
            changed = false;
            const qreal share = left / open;
            for (int c = 0; c < columns; ++c) {
                if (!fixed[c] && widths[c] <= share) {
                    fixed[c] = true;
                    left -= widths[c];
                    --open;
                    changed = true;
                }
            }
        }
        for (int c = 0; c < columns; ++c) {
            if (!fixed[c])
                widths[c] = qMax<qreal>(0, left / open);
        }
    }
    const qreal rowHeight = fm.height() + 2 * kPad;
    const qreal bottom = page.height() - fm.height() - kPad; // above the footer
    qreal y = 0;
    auto head = [&] {
        drawRow(heads, widths, 0, hm.height() + 2 * kPad, true);
        y = hm.height() + 2 * kPad;
    };
    head();
    for (int r = 0; r < rowCount; ++r) {
        if (y + rowHeight > bottom) {
            drawFooter();
            if (!startPage(landscape))
                return false;
            head();
        }
        drawRow(rows[r], widths, y, rowHeight, false);
        y += rowHeight;
    }
    drawFooter();
    return true;
}

bool PdfTableWriter::close()
{
    if (!m_writer)
        return false;
    if (!m_painter)
        startPage(false); // nothing written: the file still holds one blank page
    if (m_painter)
        m_painter->end();
    m_painter.reset();
    m_writer.reset();
    m_file.close();
    return true;
}
