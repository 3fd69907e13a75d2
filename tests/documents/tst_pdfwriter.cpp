// The PDF writer through the interface: real files read back with poppler's pdftotext and pdfinfo
// (Latin and Chinese rows, the head repeated on every page, page numbers, landscape pages), and the
// results of calls on writers that are not open.
#include "common/guiapptestmain.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

#include <qgui/view.h>

#include <string>
#include <vector>

namespace {
QString run(const QString& tool, const QStringList& args)
{
    QProcess p;
    p.start(tool, args);
    if (!p.waitForFinished(30000))
        return QString();
    return QString::fromUtf8(p.readAllStandardOutput());
}

/** The text of \a pdf as a reader extracts it, compatibility forms folded (the "fi" ligature, the
 *  radical forms some CJK glyphs map to) so that it compares with the text written. */
QString text(const QString& pdf)
{
    return run(QStringLiteral("pdftotext"), { QStringLiteral("-layout"), pdf, QStringLiteral("-") })
        .normalized(QString::NormalizationForm_KC);
}

int pages(const QString& pdf)
{
    const QString info = run(QStringLiteral("pdfinfo"), { pdf });
    for (const QString& line : info.split('\n')) {
        if (line.startsWith(QLatin1String("Pages:")))
            return line.mid(6).trimmed().toInt();
    }
    return -1;
}

/** The size of page \a n in points, as "w x h". */
QString pageSize(const QString& pdf, int n)
{
    const QString info = run(QStringLiteral("pdfinfo"),
        { QStringLiteral("-f"), QString::number(n), QStringLiteral("-l"), QString::number(n), pdf });
    for (const QString& line : info.split('\n')) {
        if (line.startsWith(QStringLiteral("Page %1 size:").arg(n, 4)))
            return line.section(':', 1).section("pts", 0, 0).trimmed();
    }
    return QString();
}
} // namespace

class tst_PdfWriter : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void latin_and_chinese_rows_read_back();
    void long_tables_repeat_the_head_on_every_page();
    void landscape_tables_start_landscape_pages();
    void writers_that_are_not_open();

private:
    QTemporaryDir m_dir;
};

void tst_PdfWriter::initTestCase()
{
    if (QStandardPaths::findExecutable(QStringLiteral("pdftotext")).isEmpty())
        QFAIL("pdftotext (poppler-utils) is missing: run scripts/install-deps.sh");
    QVERIFY(m_dir.isValid());
}

void tst_PdfWriter::latin_and_chinese_rows_read_back()
{
    const QByteArray path = m_dir.filePath(QStringLiteral("alarms.pdf")).toUtf8();
    QCOMPARE(View_CreatePdfWriter(1, path.constData()), 0);
    QCOMPARE(View_Write2Pdf(1, { "Time", "Alarm", "Value" },
                 { { "2026-11-23 08:00:01", "Tank level high", "95.2" }, { "2026-11-23 08:00:07", "温度过高", "121.0" },
                     { "2026-11-23 08:01:00", "\xff\xfe broken", "" }, { "two\nlines", "one\r\nrow", "x" } },
                 false),
        0);
    QCOMPARE(View_ClosePdfWriter(1), 0);
    const QString t = text(QString::fromUtf8(path));
    QVERIFY2(t.contains(QStringLiteral("Tank level high")), qPrintable(t));
    QVERIFY2(t.contains(QStringLiteral("温度过高")), qPrintable(t));
    QVERIFY(t.contains(QStringLiteral("121.0")));
    QVERIFY(t.contains(QStringLiteral("broken")));
    QVERIFY(t.contains(QStringLiteral("two lines"))); // a cell stays on its row
    QVERIFY(t.contains(QStringLiteral("one row")));
    QVERIFY(t.contains(QStringLiteral("Page 1")));
    // the head and its row sit on one line, columns in order
    const QStringList lines = t.split('\n');
    const QString head = lines.value(lines.indexOf(QRegularExpression(QStringLiteral(".*Time.*"))));
    QVERIFY(head.indexOf(QLatin1String("Time")) < head.indexOf(QLatin1String("Alarm")));
    QVERIFY(head.indexOf(QLatin1String("Alarm")) < head.indexOf(QLatin1String("Value")));
    QCOMPARE(pages(QString::fromUtf8(path)), 1);
}

void tst_PdfWriter::long_tables_repeat_the_head_on_every_page()
{
    const QByteArray path = m_dir.filePath(QStringLiteral("log.pdf")).toUtf8();
    std::vector<std::vector<std::string>> rows;
    for (int i = 0; i < 300; ++i)
        rows.push_back({ std::to_string(i), "event " + std::to_string(i), std::string(400, 'x') }); // a text far too wide
    QCOMPARE(View_CreatePdfWriter(2, path.constData()), 0);
    QCOMPARE(View_Write2Pdf(2, { "No", "Event", "Detail" }, rows, false), 0);
    QCOMPARE(View_Write2Pdf(2, { "Summary" }, { { "300 events" } }, false), 0); // a second table: a new page
    QCOMPARE(View_ClosePdfWriter(2), 0);
    const QString file = QString::fromUtf8(path);
    const int n = pages(file);
    QVERIFY2(n >= 5, qPrintable(QString::number(n)));
    const QString t = text(file);
    QCOMPARE(t.count(QStringLiteral("Detail")), n - 1); // the head on every page of the first table
    QVERIFY(t.contains(QStringLiteral("event 299")));
    QVERIFY(t.contains(QStringLiteral("Page %1").arg(n)));
    // the second table starts its own page
    const QStringList byPage = t.split(QChar('\f'));
    QVERIFY(byPage.value(n - 1).contains(QStringLiteral("Summary")));
    QVERIFY(!byPage.value(n - 1).contains(QStringLiteral("event 299")));
    // the wide text was cut to its column: no line is longer than a page holds
    for (const QString& line : t.split('\n'))
        QVERIFY(line.count('x') < 200);
}

void tst_PdfWriter::landscape_tables_start_landscape_pages()
{
    const QByteArray path = m_dir.filePath(QStringLiteral("mixed.pdf")).toUtf8();
    QCOMPARE(View_CreatePdfWriter(3, path.constData()), 0);
    QCOMPARE(View_Write2Pdf(3, { "Wide" }, { { "a" } }, true), 0);
    QCOMPARE(View_Write2Pdf(3, { "Tall" }, { { "b" } }, false), 0);
    QCOMPARE(View_ClosePdfWriter(3), 0);
    const QString file = QString::fromUtf8(path);
    QCOMPARE(pages(file), 2);
    const QStringList first = pageSize(file, 1).split(" x ");
    const QStringList second = pageSize(file, 2).split(" x ");
    QVERIFY2(first.size() == 2 && first[0].toDouble() > first[1].toDouble(), qPrintable(pageSize(file, 1)));
    QVERIFY2(second.size() == 2 && second[0].toDouble() < second[1].toDouble(), qPrintable(pageSize(file, 2)));
}

void tst_PdfWriter::writers_that_are_not_open()
{
    QCOMPARE(View_Write2Pdf(40, { "a" }, {}, false), -1); // never opened
    QCOMPARE(View_ClosePdfWriter(40), -1);
    QCOMPARE(View_CreatePdfWriter(41, nullptr), -1);
    QCOMPARE(View_CreatePdfWriter(41, ""), -1);
    QCOMPARE(View_CreatePdfWriter(41, "/nonexistent-folder/x.pdf"), -1);
    QCOMPARE(View_Write2Pdf(41, { "a" }, {}, false), -1);
    // an empty document holds one blank page; closing twice gives -1 the second time
    const QByteArray path = m_dir.filePath(QStringLiteral("empty.pdf")).toUtf8();
    QCOMPARE(View_CreatePdfWriter(42, path.constData()), 0);
    QCOMPARE(View_ClosePdfWriter(42), 0);
    QCOMPARE(View_ClosePdfWriter(42), -1);
    QCOMPARE(pages(QString::fromUtf8(path)), 1);
    // opening an id again finishes its first file
    const QByteArray a = m_dir.filePath(QStringLiteral("a.pdf")).toUtf8();
    const QByteArray b = m_dir.filePath(QStringLiteral("b.pdf")).toUtf8();
    QCOMPARE(View_CreatePdfWriter(43, a.constData()), 0);
    QCOMPARE(View_Write2Pdf(43, { "first" }, {}, false), 0);
    QCOMPARE(View_CreatePdfWriter(43, b.constData()), 0);
    QCOMPARE(pages(QString::fromUtf8(a)), 1);
    QVERIFY(text(QString::fromUtf8(a)).contains(QStringLiteral("first")));
    QCOMPARE(View_ClosePdfWriter(43), 0);
    // a table with no head and rows of unequal length
    QCOMPARE(View_CreatePdfWriter(44, path.constData()), 0);
    QCOMPARE(View_Write2Pdf(44, {}, { { "one" }, { "two", "three", "four" }, {} }, false), 0);
    QCOMPARE(View_ClosePdfWriter(44), 0);
    QVERIFY(text(QString::fromUtf8(path)).contains(QStringLiteral("four")));
}

QGUI_GUIAPP_TEST_MAIN(tst_PdfWriter)
#include "tst_pdfwriter.moc"
