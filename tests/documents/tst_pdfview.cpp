// The PDF view on a real panel: a table written by the library's own writer opened and its first
// page's pixels read (the head row's band and dark text where the head is), the page, zoom and
// display-mode calls with their results, files that do not open (corrupt, password, no pages),
// a fast page-through that renders only where it ends, dragging, and the tool bar under presses.
#include "common/eventrecorder.h"
#include "common/guiapptestmain.h"
#include "common/panelfixture.h"
#include "common/testutil.h"

#include "app/xquickview.h"
#include "views/viewmanage.h"
#include "xcomponents/qquick/pdfpagerenderer.h"
#include "xcomponents/qquick/xpdfview.h"

#include <QFile>
#include <QTemporaryDir>
#include <QtTest>

#include <qgui/events.h>
#include <qgui/view.h>

namespace {

/** A PDF made of \a objects (numbered from 1) with a correct cross-reference table. */
QByteArray makePdf(const QList<QByteArray>& objects, const QByteArray& trailerExtra = QByteArray())
{
    QByteArray pdf("%PDF-1.4\n");
    QList<int> offsets;
    for (int i = 0; i < objects.size(); ++i) {
        offsets.append(pdf.size());
        pdf += QByteArray::number(i + 1) + " 0 obj\n" + objects.at(i) + "\nendobj\n";
    }
    const int xref = pdf.size();
    pdf += "xref\n0 " + QByteArray::number(objects.size() + 1) + "\n0000000000 65535 f \n";
    for (int o : offsets)
        pdf += QByteArray::number(o).rightJustified(10, '0') + " 00000 n \n";
    pdf += "trailer\n<< /Size " + QByteArray::number(objects.size() + 1) + " /Root 1 0 R " + trailerExtra
        + " >>\nstartxref\n" + QByteArray::number(xref) + "\n%%EOF\n";
    return pdf;
}

bool near(const QColor& a, const QColor& b, int tolerance)
{
    return qAbs(a.red() - b.red()) <= tolerance && qAbs(a.green() - b.green()) <= tolerance
        && qAbs(a.blue() - b.blue()) <= tolerance;
}

} // namespace

class tst_PdfView : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void a_written_table_shows_its_head_row();
    void display_modes_lay_pages_out_data();
    void display_modes_lay_pages_out();
    void page_zoom_and_mode_results();
    void files_that_do_not_open_data();
    void files_that_do_not_open();
    void a_fast_page_through_renders_only_its_end();
    void dragging_scrolls_and_the_page_follows();
    void the_tool_bar_pages_and_zooms();

private:
    int create(unsigned id, const QString& path, int mode = PDF_FIT_WIDTH, U32 zoom = 100, bool toolBar = false);
    XPdfView* view(unsigned id) const
    {
        return qobject_cast<XPdfView*>(ViewManage::getInstance()->getItemById(id));
    }
    /** Waits for the view's 2561 and returns its payload (value, flag); (-99, -99) when none came. */
    QPair<int, int> waitForSource(unsigned id);
    QString write(const QString& name, int rows, bool landscape = false);

    QTemporaryDir m_dir;
    QString m_table; // a table of several pages, written once
    int m_tablePages = 0;
    PanelFixture m_panel;
    EventRecorder m_rec;
    const unsigned A = PanelFixture::wid(1, 1);
};

QString tst_PdfView::write(const QString& name, int rows, bool landscape)
{
    const QString path = m_dir.filePath(name);
    std::vector<std::vector<std::string>> table;
    for (int r = 0; r < rows; ++r)
        table.push_back({ std::to_string(r + 1), "Boiler pressure " + std::to_string(r % 7), "锅炉压力报警", "1.25 MPa" });
    if (View_CreatePdfWriter(90, path.toUtf8().constData()) != 0
        || View_Write2Pdf(90, { "No.", "Alarm", "报警", "Value" }, table, landscape) != 0 || View_ClosePdfWriter(90) != 0)
        return QString();
    return path;
}

void tst_PdfView::initTestCase()
{
    QVERIFY(m_dir.isValid());
    QVERIFY(m_panel.start());
    m_table = write(QStringLiteral("table.pdf"), 150);
    QVERIFY(!m_table.isEmpty());
    m_panel.stop();
}

void tst_PdfView::init()
{
    QVERIFY(m_panel.start());
    m_rec.install();
    m_rec.clear();
    QCOMPARE(m_panel.switchWindow(A, Rect { 0, 0, 800, 480 }), 0);
}

void tst_PdfView::cleanup()
{
    m_panel.stop();
}

int tst_PdfView::create(unsigned id, const QString& path, int mode, U32 zoom, bool toolBar)
{
    const QByteArray utf8 = path.toUtf8();
    View_Pdf rec {};
    rec.rect = Rect { 20, 10, 600, 440 };
    rec.id = id;
    rec.path = path.isNull() ? nullptr : utf8.constData();
    rec.displayMode = mode;
    rec.zoom = zoom;
    rec.showToolBar = toolBar ? 1 : 0;
    return View_CreatePdf(&rec, A);
}

QPair<int, int> tst_PdfView::waitForSource(unsigned id)
{
    if (!QTest::qWaitFor([this] { return m_rec.count(EVT_PDF_SOURCE) > 0; }, 10000))
        return { -99, -99 };
    const EventRecorder::Event e = m_rec.eventsWithCode(EVT_PDF_SOURCE).constLast();
    m_rec.clear();
    if (e.id != id)
        return { -99, -99 };
    return { e.intAt(0), e.intAt(1) };
}

void tst_PdfView::a_written_table_shows_its_head_row()
{
    QCOMPARE(create(1, m_table), 0);
    const QPair<int, int> source = waitForSource(1);
    QVERIFY2(source.first >= 3, qPrintable(QString::number(source.first)));
    QCOMPARE(source.second, 1);
    XPdfView* v = view(1);
    QCOMPARE(v->pageCount(), source.first);
    QTRY_VERIFY(v->isSettled());
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
    const QRectF page = v->pageRect(0);
    QCOMPARE(page.width(), 600.0); // fit width
    const QImage shot = m_panel.view()->grabWindow().copy(v->mapRectToScene(page).toRect());
    // the page's margin is white; the head row's light band starts right below it
    const int x = shot.width() / 10;
    QVERIFY(near(shot.pixelColor(x, 3), Qt::white, 8));
    int bandTop = -1;
    for (int y = 0; y < shot.height() / 4 && bandTop < 0; ++y) {
        if (near(shot.pixelColor(x, y), QColor(0xE4, 0xE9, 0xEF), 10))
            bandTop = y;
    }
    QVERIFY2(bandTop > shot.height() * 0.03 && bandTop < shot.height() * 0.08, qPrintable(QString::number(bandTop)));
    int bandBottom = bandTop;
    while (bandBottom < shot.height() && near(shot.pixelColor(x, bandBottom), QColor(0xE4, 0xE9, 0xEF), 10))
        ++bandBottom;
    // dark head texts inside the band, none in the margin above it
    int dark = 0, darkAbove = 0;
    for (int y = 0; y < bandBottom; ++y) {
        for (int xx = 0; xx < shot.width(); ++xx) {
            const bool isDark = qGray(shot.pixel(xx, y)) < 90;
            (y < bandTop ? darkAbove : dark) += isDark ? 1 : 0;
        }
    }
    QVERIFY2(dark > 40, qPrintable(QString::number(dark)));
    QCOMPARE(darkAbove, 0);
}

void tst_PdfView::display_modes_lay_pages_out_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<int>("zoom");
    QTest::newRow("fit width") << int(PDF_FIT_WIDTH) << 100;
    QTest::newRow("fit page") << int(PDF_FIT_PAGE) << 100;
    QTest::newRow("single page at 50 %") << int(PDF_SINGLE_PAGE) << 50;
    QTest::newRow("single page, zoom 0 fits the width") << int(PDF_SINGLE_PAGE) << 0;
    QTest::newRow("continuous at 40 %") << int(PDF_CONTINUOUS) << 40;
    QTest::newRow("unknown mode shows a single page") << 9 << 100;
}

void tst_PdfView::display_modes_lay_pages_out()
{
    QFETCH(int, mode);
    QFETCH(int, zoom);
    QCOMPARE(create(2, m_table, mode, U32(zoom)), 0);
    QCOMPARE(waitForSource(2).second, 1);
    XPdfView* v = view(2);
    const QSizeF a4(595, 842); // points, as the writer makes them (within a point)
    const QRectF first = v->pageRect(0);
    switch (mode) {
    case PDF_FIT_WIDTH:
        QCOMPARE(first.width(), 600.0);
        QVERIFY(v->pageRect(1).isEmpty()); // one page at a time
        break;
    case PDF_FIT_PAGE:
        QVERIFY(qAbs(first.height() - 440.0) < 0.5);
        QVERIFY(first.left() > 0 && first.right() < 600); // centred, wholly inside
        break;
    case PDF_CONTINUOUS: {
        const QRectF second = v->pageRect(1);
        QVERIFY(qAbs(second.top() - first.bottom() - XPdfView::kPageGap) < 0.5);
        QVERIFY(qAbs(first.width() - a4.width() * 0.4 * 96 / 72) < 2);
        break;
    }
    default:
        if (zoom == 0)
            QCOMPARE(first.width(), 600.0);
        else
            QVERIFY(qAbs(first.width() - a4.width() * zoom / 100.0 * 96 / 72) < 2);
        QVERIFY(v->pageRect(1).isEmpty());
        break;
    }
    QTRY_VERIFY(v->isSettled());
}

void tst_PdfView::page_zoom_and_mode_results()
{
    QCOMPARE(create(3, m_table, PDF_SINGLE_PAGE, 100), 0);
    QCOMPARE(waitForSource(3).second, 1);
    XPdfView* v = view(3);
    const int last = v->pageCount() - 1;
    QCOMPARE(View_PdfSwitchPage(3, unsigned(last)), 0);
    QCOMPARE(v->page(), last);
    QCOMPARE(View_PdfSwitchPage(3, unsigned(last + 1)), -1); // beyond the end: the page stays
    QCOMPARE(View_PdfSwitchPage(3, 0xFFFFFFFFu), -1);
    QCOMPARE(v->page(), last);
    QCOMPARE(View_PdfSwitchPage(999, 0), -1);
    // zoom: kept within 10..800, 0 fits the width
    QCOMPARE(View_PdfZoom(3, 5), 0);
    QCOMPARE(v->zoom(), XPdfView::kMinZoom);
    QCOMPARE(View_PdfZoom(3, 100000), 0);
    QCOMPARE(v->zoom(), XPdfView::kMaxZoom);
    QVERIFY(v->renderer()); // an 800 % page is rendered no larger than the cap, then scaled
    QTRY_VERIFY(v->isSettled());
    QCOMPARE(View_PdfZoom(3, 0), 0);
    QCOMPARE(v->pageRect(last).width(), 600.0);
    QCOMPARE(View_PdfZoom(999, 100), -1);
    // modes
    QCOMPARE(View_PdfSetDisplayMode(3, 4), -1);
    QCOMPARE(View_PdfSetDisplayMode(3, -1), -1);
    QCOMPARE(v->displayMode(), int(XPdfView::SinglePage));
    QCOMPARE(View_PdfSetDisplayMode(3, PDF_CONTINUOUS), 0);
    QCOMPARE(v->page(), last); // the page shown stays in sight
    QVERIFY(v->pageRect(last).intersects(QRectF(0, 0, 600, 440)));
    QCOMPARE(View_PdfSetDisplayMode(999, 0), -1);
    // files: a missing one is refused and the document stays; null empties the view
    QCOMPARE(View_PdfUpdateFile(3, m_dir.filePath(QStringLiteral("none.pdf")).toUtf8().constData()), -1);
    QCOMPARE(v->source(), m_table);
    QCOMPARE(View_PdfUpdateFile(3, nullptr), 0);
    QCOMPARE(waitForSource(3), qMakePair(0, 1));
    QCOMPARE(v->pageCount(), 0);
    QCOMPARE(View_PdfSwitchPage(3, 0), -1);
    QCOMPARE(View_PdfUpdateFile(3, m_table.toUtf8().constData()), 0);
    QCOMPARE(waitForSource(3).first, last + 1);
    QCOMPARE(v->page(), 0);
    QCOMPARE(View_PdfUpdateFile(999, m_table.toUtf8().constData()), -1);
    // creation
    QCOMPARE(View_CreatePdf(nullptr, A), -1);
    QCOMPARE(create(4, QString()), 0); // an empty view
    QCOMPARE(waitForSource(4), qMakePair(0, 1));
}

void tst_PdfView::files_that_do_not_open_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("flag");
    const QByteArray catalog("<< /Type /Catalog /Pages 2 0 R >>");
    const QByteArray page("<< /Type /Page /Parent 2 0 R /MediaBox [0 0 200 200] >>");
    QTest::newRow("random bytes") << QByteArray(4096, '\x5a') << -4 << 0;
    QTest::newRow("empty file") << QByteArray() << -4 << 0;
    QTest::newRow("cut in the middle") << QByteArray("the first half of a good file") << -1 << 0;
    QTest::newRow("password needed")
        << makePdf({ catalog, "<< /Type /Pages /Kids [3 0 R] /Count 1 >>", page,
                       "<< /Filter /Standard /V 1 /R 2 /P -4 /O <" + QByteArray(64, 'a') + "> /U <"
                           + QByteArray(64, 'b') + "> >>" },
               "/Encrypt 4 0 R /ID [<" + QByteArray(32, '1') + "> <" + QByteArray(32, '1') + ">]")
        << -5 << 0;
    QTest::newRow("no pages") << makePdf({ catalog, "<< /Type /Pages /Kids [] /Count 0 >>" }) << 0 << 1;
}

void tst_PdfView::files_that_do_not_open()
{
    QFETCH(QByteArray, content);
    QFETCH(int, value);
    QFETCH(int, flag);
    if (QByteArray(QTest::currentDataTag()) == "cut in the middle") {
        QFile table(m_table);
        QVERIFY(table.open(QIODevice::ReadOnly));
        content = table.read(table.size() / 2);
    }
    const QString path = m_dir.filePath(QStringLiteral("bad.pdf"));
    QFile f(path);
    QVERIFY(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
    f.write(content);
    f.close();
    QCOMPARE(create(5, m_table), 0);
    QCOMPARE(waitForSource(5).second, 1);
    QCOMPARE(View_PdfUpdateFile(5, path.toUtf8().constData()), 0);
    const QPair<int, int> source = waitForSource(5);
    if (QByteArray(QTest::currentDataTag()) == "cut in the middle") // the reader names it one way or another
        QVERIFY2(source.first < 0, qPrintable(QString::number(source.first)));
    else
        QCOMPARE(source.first, value);
    QCOMPARE(source.second, flag);
    XPdfView* v = view(5);
    QCOMPARE(v->pageCount(), qMax(0, source.first));
    QCOMPARE(View_PdfSwitchPage(5, 0), -1);
    QCOMPARE(View_PdfZoom(5, 150), 0); // calls on an empty view are harmless
    QCOMPARE(View_PdfSetDisplayMode(5, PDF_CONTINUOUS), 0);
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
}

void tst_PdfView::a_fast_page_through_renders_only_its_end()
{
    const QString big = write(QStringLiteral("big.pdf"), 6000);
    QVERIFY(!big.isEmpty());
    QCOMPARE(create(6, big, PDF_FIT_WIDTH), 0);
    const int pages = waitForSource(6).first;
    QVERIFY2(pages >= 100, qPrintable(QString::number(pages)));
    XPdfView* v = view(6);
    QTRY_VERIFY(v->isSettled());
    const int before = v->renderer()->renderedCount();
    for (int p = 1; p < pages; ++p)
        QCOMPARE(View_PdfSwitchPage(6, unsigned(p)), 0);
    QTRY_VERIFY(v->isSettled());
    QCOMPARE(v->page(), pages - 1);
    // the last page and its neighbour, plus what the render thread had started meanwhile
    const int rendered = v->renderer()->renderedCount() - before;
    QVERIFY2(rendered >= 1 && rendered < 12, qPrintable(QString::number(rendered)));
}

void tst_PdfView::dragging_scrolls_and_the_page_follows()
{
    QCOMPARE(create(7, m_table, PDF_CONTINUOUS, 40), 0);
    QCOMPARE(waitForSource(7).second, 1);
    m_rec.setPressPayloadSize(0);
    XPdfView* v = view(7);
    QTRY_VERIFY(v->isSettled());
    const QPoint start = m_panel.sceneCenter(v);
    m_panel.press(start);
    for (int step = 1; step <= 10; ++step)
        QTest::mouseMove(m_panel.view(), start - QPoint(step * 10, step * 40));
    m_panel.release(start - QPoint(100, 400));
    QCOMPARE(v->contentPos().x(), 0.0); // the page is narrower than the view: no sideways move
    QVERIFY2(qAbs(v->contentPos().y() - 400) < 1, qPrintable(QString::number(v->contentPos().y())));
    QCOMPARE(v->page(), 1); // 40 %: a page is about 449 pixels high; the second is under the upper third
    QCOMPARE(m_rec.count(EVT_WIDGET_PRESS), 1);
    QCOMPARE(m_rec.count(EVT_WIDGET_RELEASE), 1);
    QTRY_VERIFY(v->isSettled());
    // dragging back beyond the top stops at the top
    m_panel.press(start);
    QTest::mouseMove(m_panel.view(), start + QPoint(0, 200));
    QTest::mouseMove(m_panel.view(), start + QPoint(0, 600));
    m_panel.release(start + QPoint(0, 600));
    QCOMPARE(v->contentPos().y(), 0.0);
    QCOMPARE(v->page(), 0);
}

void tst_PdfView::the_tool_bar_pages_and_zooms()
{
    QCOMPARE(create(8, m_table, PDF_FIT_PAGE, 100, true), 0);
    QCOMPARE(waitForSource(8).second, 1);
    XPdfView* v = view(8);
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
    QQuickItem* next = TestUtil::findItem(v, QStringLiteral("nextPage"));
    QQuickItem* previous = TestUtil::findItem(v, QStringLiteral("previousPage"));
    QQuickItem* text = TestUtil::findItem(v, QStringLiteral("pageText"));
    QQuickItem* zoomIn = TestUtil::findItem(v, QStringLiteral("zoomIn"));
    QVERIFY(next && previous && text && zoomIn);
    m_panel.click(m_panel.sceneCenter(next));
    m_panel.click(m_panel.sceneCenter(next));
    QCOMPARE(v->page(), 2);
    QCOMPARE(text->property("text").toString(), QStringLiteral("3 / %1").arg(v->pageCount()));
    m_panel.click(m_panel.sceneCenter(previous));
    QCOMPARE(v->page(), 1);
    // zooming leaves the fitted mode for a single page at the zoom
    m_panel.click(m_panel.sceneCenter(zoomIn));
    QCOMPARE(v->displayMode(), int(XPdfView::SinglePage));
    QCOMPARE(v->zoom(), 125);
    QCOMPARE(v->page(), 1);
    QTRY_VERIFY(v->isSettled());
}

QGUI_GUIAPP_TEST_MAIN(tst_PdfView)
#include "tst_pdfview.moc"
