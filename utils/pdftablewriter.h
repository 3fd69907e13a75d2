#ifndef PDFTABLEWRITER_H
#define PDFTABLEWRITER_H

#include <QFile>
#include <QFont>
#include <QHash>
#include <QStringList>
#include <QVector>

#include <memory>

class QPainter;
class QPdfWriter;

/**
 * Writes tables into one PDF file: A4 pages, the head row repeated at the top
 * of every page, column widths fitted to the texts and then to the page (a
 * text too wide for its column is cut with an ellipsis), and "Page n" at the
 * foot of every page. Texts in any script are drawn with the system's fonts;
 * the glyphs used are embedded, so a reader needs none of them.
 *
 * Each table starts on a new page (the first one on the first page), in
 * portrait or landscape. The file is complete once close() returns; a writer
 * destroyed without close() closes itself.
 */
class PdfTableWriter {
public:
    /** Most rows of one table; the rest are dropped (and logged). */
    static constexpr int kMaxRows = 1000000;
    /** Most columns of one table. */
    static constexpr int kMaxColumns = 200;

    PdfTableWriter();
    ~PdfTableWriter();

    /** Opens \a path for writing (an existing file is replaced); false when it cannot be written. */
    bool open(const QString& path);
    bool isOpen() const { return bool(m_writer); }
    /** Writes one table; false when the writer is not open. */
    bool writeTable(const QStringList& heads, const QVector<QStringList>& rows, bool landscape);
    /** Finishes the file; false when it was not open. */
    bool close();
    /** Pages written so far. */
    int pageCount() const { return m_pages; }

private:
    /** Begins the next page (the first one: begins painting); false when painting cannot begin. */
    bool startPage(bool landscape);
    void drawFooter();
    void drawRow(const QStringList& cells, const QVector<qreal>& widths, qreal y, qreal height, bool head);
    /** The width of \a text in the cell or head font; repeated texts are measured once. */
    qreal textWidth(const QString& text, bool head);

    QFile m_file;
    std::unique_ptr<QPdfWriter> m_writer;
    std::unique_ptr<QPainter> m_painter;
    QFont m_font;
    QFont m_headFont;
    QHash<QString, qreal> m_widths;
    QHash<QString, qreal> m_headWidths;
    int m_pages = 0;
};

#endif // PDFTABLEWRITER_H
