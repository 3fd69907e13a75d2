// QR codes on a real panel: the rendered symbol read back with a real decoder
// (zbarimg), the SVG document of a known input, levels and colours, fresh
// pictures on every update, and contents beyond the symbol's capacity.
#include "common/guiapptestmain.h"
#include "common/panelfixture.h"
#include "common/testutil.h"

#include "app/xquickview.h"
#include "views/viewmanage.h"
#include "xcomponents/qquick/xqrcode.h"
#include "xcomponents/qquick/xqrcodeimageprovider.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <qrcodegen.hpp>

Q_DECLARE_METATYPE(Rect)

class tst_QRCode : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void rendered_symbol_decodes_to_the_content_data();
    void rendered_symbol_decodes_to_the_content();
    void svg_document_of_a_known_input();
    void level_and_colours_signal_only_on_change();
    void every_update_loads_a_fresh_picture();
    void content_beyond_capacity_keeps_the_previous_symbol();
    void fixed_results_and_bad_records();

private:
    static XQRCode* code(unsigned id)
    {
        return qobject_cast<XQRCode*>(ViewManage::getInstance()->getItemById(id));
    }
    int create(
        unsigned id, Rect r, unsigned ecc = 1, unsigned front = 0xFF000000u, unsigned back = 0xFFFFFFFFu);
    /** What zbarimg reads from the widget's pixels; \a found tells whether it found a symbol. */
    QByteArray decode(const QQuickItem* item, bool* found);

    PanelFixture m_panel;
    QTemporaryDir m_tmp;
    const unsigned A = PanelFixture::wid(1, 1);
};

void tst_QRCode::init()
{
    QVERIFY(m_panel.start());
    QCOMPARE(m_panel.switchWindow(A, Rect { 0, 0, 800, 480 }, 0xFFFFFFFFu), 0);
}

void tst_QRCode::cleanup()
{
    m_panel.stop();
}

int tst_QRCode::create(unsigned id, Rect r, unsigned ecc, unsigned front, unsigned back)
{
    View_QRCode rec { 0, r, id, ecc, front, back };
    return View_CreateQRCode(&rec, A);
}

QByteArray tst_QRCode::decode(const QQuickItem* item, bool* found)
{
    *found = false;
    if (!TestUtil::waitForFrame(m_panel.view()))
        return QByteArray();
    const QImage shot = m_panel.view()->grabWindow();
    const QPoint topLeft = m_panel.scenePoint(item, QPointF(0, 0));
    // the decoder wants a wide quiet zone: the symbol on a white page
    QImage page(int(item->width()) + 80, int(item->height()) + 80, QImage::Format_RGB32);
    page.fill(Qt::white);
    for (int y = 0; y < int(item->height()); ++y)
        for (int x = 0; x < int(item->width()); ++x)
            page.setPixel(x + 40, y + 40, shot.pixel(topLeft + QPoint(x, y)));
    const QString file = m_tmp.filePath("symbol.png");
    page.save(file);
    QProcess zbar;
    zbar.start(QStringLiteral("zbarimg"), { "--raw", "-q", "-Sbinary", file });
    if (!zbar.waitForFinished(30000) || zbar.exitCode() != 0)
        return QByteArray();
    *found = true;
    return zbar.readAllStandardOutput();
}

void tst_QRCode::rendered_symbol_decodes_to_the_content_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<unsigned>("ecc");
    QTest::addColumn<Rect>("box");
    QTest::newRow("short, square") << QByteArray("HMI-42") << 0u << Rect { 20, 20, 200, 200 };
    QTest::newRow("long, high level")
        << QByteArray("https://example.invalid/line/7?").repeated(12) << 3u << Rect { 20, 20, 400, 400 };
    QTest::newRow("utf-8") << QByteArray("温度 25 °C, Überdruck") << 2u << Rect { 20, 20, 240, 240 };
    QTest::newRow("empty") << QByteArray() << 0u << Rect { 20, 20, 120, 120 };
    QTest::newRow("stretched box") << QByteArray("stretch") << 1u << Rect { 20, 20, 300, 180 };
}

void tst_QRCode::rendered_symbol_decodes_to_the_content()
{
    if (QStandardPaths::findExecutable(QStringLiteral("zbarimg")).isEmpty())
        QSKIP("zbarimg (zbar-tools) is not installed");
    QFETCH(QByteArray, content);
    QFETCH(unsigned, ecc);
    QFETCH(Rect, box);
    QCOMPARE(create(61, box, ecc), 0);
    QCOMPARE(View_UpdateQRCodeContent(61, content.constData()), 0);
    QCOMPARE(code(61)->sourceSize(), QSize(box.width, box.height));
    QCOMPARE(code(61)->status(), QQuickImageBase::Ready);
    bool found = false;
    QByteArray read = decode(code(61), &found);
    QVERIFY(found);
    if (read.endsWith('\n'))
        read.chop(1);
    QCOMPARE(read, content);
}

void tst_QRCode::svg_document_of_a_known_input()
{
    using qrcodegen::QrCode;
    const QrCode symbol = QrCode::encodeText("A", QrCode::Ecc::LOW);
    QCOMPARE(symbol.getSize(), 21);
    // the front colour's alpha is dropped: drawn opaque
    const QByteArray svg = XQRCode::toSvg(symbol, QColor(255, 0, 0, 0), QColor(0x12, 0xAB, 0xCD));
    const QList<QByteArray> lines = svg.split('\n');
    QCOMPARE(lines.size(), 7); // six lines, each ended by a line feed
    QCOMPARE(lines[0], QByteArray("<?xml version=\"1.0\" encoding=\"UTF-8\"?>"));
    QCOMPARE(lines[1],
        QByteArray("<!DOCTYPE svg PUBLIC \"-//W3C//DTD SVG 1.1//EN\" "
                   "\"http://www.w3.org/Graphics/SVG/1.1/DTD/svg11.dtd\">"));
    QCOMPARE(lines[2],
        QByteArray("<svg xmlns=\"http://www.w3.org/2000/svg\" version=\"1.1\" viewBox=\"0 0 23 23\" "
                   "stroke=\"none\">"));
    QCOMPARE(lines[3], QByteArray("\t<rect width=\"23\" height=\"23\" fill=\"#12ABCD\"/>"));
    QVERIFY(lines[4].startsWith("\t<path d=\"M1,1h1v1h-1z M2,1h1v1h-1z M3,1h1v1h-1z"));
    QVERIFY(lines[4].endsWith("\" fill=\"#FF0000\"/>"));
    QCOMPARE(lines[5], QByteArray("</svg>"));
    QCOMPARE(lines[6], QByteArray());
    int dark = 0;
    for (int y = 0; y < 21; ++y)
        for (int x = 0; x < 21; ++x)
            dark += symbol.getModule(x, y);
    QCOMPARE(lines[4].count("h1v1h-1z"), dark);
    QVERIFY(!lines[4].contains("  ")); // one blank between pieces
    // the bottom-right module of the top-left finder
    QVERIFY(lines[4].contains(" M7,7h1v1h-1z "));

    // an empty text is a version-1 symbol too
    QCOMPARE(create(62, Rect { 0, 0, 100, 100 }), 0);
    QCOMPARE(View_UpdateQRCodeContent(62, ""), 0);
    QVERIFY(code(62)->svgDocument().contains("viewBox=\"0 0 23 23\""));
    QCOMPARE(XQRCode::imageProvider()->document(), code(62)->svgDocument());
}

void tst_QRCode::level_and_colours_signal_only_on_change()
{
    QCOMPARE(create(63, Rect { 0, 0, 100, 100 }, 6u, 0xFF112233u, 0xFF445566u), 0);
    XQRCode* q = code(63);
    QCOMPARE(q->ecc(), 2); // the word AND 3
    QCOMPARE(q->frontColor(), QColor(0x11, 0x22, 0x33));
    QCOMPARE(q->backColor(), QColor(0x44, 0x55, 0x66));
    QSignalSpy ecc(q, &XQRCode::eccChanged);
    QSignalSpy front(q, &XQRCode::frontColorChanged);
    QSignalSpy back(q, &XQRCode::backColorChanged);
    q->setEcc(2);
    q->setFrontColor(QColor(0x11, 0x22, 0x33));
    q->setBackColor(QColor(0x44, 0x55, 0x66));
    QCOMPARE(ecc.count() + front.count() + back.count(), 0);
    q->setEcc(3);
    q->setFrontColor(Qt::red);
    q->setBackColor(Qt::blue);
    QCOMPARE(ecc.count(), 1);
    QCOMPARE(front.count(), 1);
    QCOMPARE(back.count(), 1);
    QVERIFY(q->source().isEmpty()); // nothing drawn before the first content
}

void tst_QRCode::every_update_loads_a_fresh_picture()
{
    QCOMPARE(create(64, Rect { 0, 0, 120, 120 }), 0);
    XQRCode* q = code(64);
    QSignalSpy changed(q, &XQRCode::contentChanged);
    View_UpdateQRCodeContent(64, "same");
    const QUrl first = q->source();
    View_UpdateQRCodeContent(64, "same");
    QVERIFY(first.toString().startsWith("image://xqrcode/"));
    QVERIFY(q->source() != first);
    QCOMPARE(changed.count(), 2);
    QVERIFY(XQRCode::imageProviderInit());
}

void tst_QRCode::content_beyond_capacity_keeps_the_previous_symbol()
{
    QCOMPARE(create(65, Rect { 0, 0, 200, 200 }, 3u), 0);
    XQRCode* q = code(65);
    View_UpdateQRCodeContent(65, "kept");
    const QUrl kept = q->source();
    const QByteArray svg = q->svgDocument();
    QSignalSpy changed(q, &XQRCode::contentChanged);
    const QByteArray tooLong(1300, 'z'); // high level holds at most 1273 bytes
    QCOMPARE(View_UpdateQRCodeContent(65, tooLong.constData()), 0);
    QCOMPARE(q->source(), kept);
    QCOMPARE(q->svgDocument(), svg);
    QCOMPARE(q->content(), QStringLiteral("kept"));
    QCOMPARE(changed.count(), 0);
    const QByteArray megabyte(1 << 20, 'z');
    QCOMPARE(View_UpdateQRCodeContent(65, megabyte.constData()), 0);
    QCOMPARE(q->source(), kept);
}

void tst_QRCode::fixed_results_and_bad_records()
{
    QCOMPARE(View_CreateQRCode(nullptr, A), -1);
    View_QRCode rec { 0, Rect { 0, 0, 50, 50 }, 66, 0, 0, 0 };
    QCOMPARE(View_CreateQRCode(&rec, PanelFixture::wid(1, 99)), -1);
    QVERIFY(!code(66));
    QCOMPARE(View_UpdateQRCodeContent(66, "x"), 0); // unknown id
    View_Text text { 0, Rect { 0, 0, 50, 50 }, 67, "t", nullptr, nullptr };
    QCOMPARE(View_CreateText(&text, A), 0);
    QCOMPARE(View_UpdateQRCodeContent(67, "x"), 0); // not a QR code: nothing happens
    QCOMPARE(View_CreateQRCode(&rec, A), 0);
    QCOMPARE(View_UpdateQRCodeContent(66, nullptr), 0); // null is the empty text
    QCOMPARE(code(66)->content(), QString());
    QVERIFY(code(66)->source().isValid());
    QCOMPARE(View_UpdateQRCodeContent(66, "\xff\xfe invalid utf-8 bytes"), 0); // encoded as bytes
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
}

QGUI_GUIAPP_TEST_MAIN(tst_QRCode)
#include "tst_qrcode.moc"
