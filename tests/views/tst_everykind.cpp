// The generic calls on every widget kind that exists, and what hostile input does to each: show and
// hide with their picture and slash types, the font colour, enormous sizes (the backing store of a
// painted item stays what can be seen) and megabyte texts (the GUI thread's cycle keeps running).
#include "common/eventrecorder.h"
#include "common/guiapptestmain.h"
#include "common/panelfixture.h"

#include "app/xquickview.h"
#include "utils/utils.h"
#include "views/viewmanage.h"
#include "xcomponents/qquick/xbasepainteditem.h"
#include "xcomponents/qquick/xbutton.h"
#include "xcomponents/qquick/xcausetext.h"
#include "xcomponents/qquick/xdatetimeedit.h"
#include "xcomponents/qquick/xlumodialog.h"
#include "xcomponents/qquick/xquickimage.h"
#include "xcomponents/qquick/xsktextlabel.h"
#include "xcomponents/qquick/xwindowtitile.h"

#include <QElapsedTimer>
#include <QFile>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <QTimer>
#include <QtQuick/private/qquicktext_p.h>

#include <climits>
#include <functional>

namespace {

// The longest stop of the 10 ms cycle accepted: a text laid out whole took seconds. Two tests share
// the two cores of the CI machine, so a stop of a scheduling slice or two is no fault; the
// sanitizers slow every instruction two to three times.
#if defined(__SANITIZE_ADDRESS__)
constexpr qint64 kMaxGap = 500;
#else
constexpr qint64 kMaxGap = 250;
#endif

enum Kind { Text, Button, QrCode, Placeholder, Clock };

/** The largest gap between the ticks of a 10 ms timer (the logic layer's cycle) while \a work
 *  runs, then while the scene renders what it did. */
qint64 longestCycleGap(const std::function<void()>& work)
{
    QElapsedTimer clock;
    qint64 last = 0;
    qint64 longest = 0;
    QTimer cycle;
    cycle.setInterval(10);
    QObject::connect(&cycle, &QTimer::timeout, [&] {
        const qint64 now = clock.elapsed();
        longest = qMax(longest, now - last);
        last = now;
    });
    clock.start();
    cycle.start();
    QTimer::singleShot(30, work);
    QTest::qWait(400); // the render thread lays out and uploads meanwhile
    const qint64 now = clock.elapsed();
    return qMax(longest, now - last);
}

} // namespace

class tst_EveryKind : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void show_and_hide_by_type_data();
    void show_and_hide_by_type();
    void font_colour_recolours_every_kind_that_shows_text_data();
    void font_colour_recolours_every_kind_that_shows_text();
    void enormous_sizes_keep_their_geometry_but_not_their_memory_data();
    void enormous_sizes_keep_their_geometry_but_not_their_memory();
    void megabyte_texts_never_stop_the_cycle_data();
    void megabyte_texts_never_stop_the_cycle();

private:
    int create(Kind kind, unsigned id, Rect r = Rect { 20, 20, 160, 60 }, const char* text = "caption",
        const Font* font = nullptr);

    PanelFixture m_panel;
    EventRecorder m_rec;
    Font m_font { "DejaVu Sans", 18, 400, 0, 0, 0, 0, 0xFF000000u, QGUI_ALIGN_LEFT };
    const unsigned A = PanelFixture::wid(1, 1);
};

void tst_EveryKind::init()
{
    QVERIFY(m_panel.start());
    m_rec.install();
    m_rec.clear();
    Utils::resetAssertCount();
    QCOMPARE(m_panel.switchWindow(A, Rect { 0, 0, 800, 480 }), 0);
}

void tst_EveryKind::cleanup()
{
    m_panel.stop();
}

int tst_EveryKind::create(Kind kind, unsigned id, Rect r, const char* text, const Font* font)
{
    const Font* f = font ? font : &m_font;
    switch (kind) {
    case Text: {
        View_Text rec { 0, r, id, text, f, nullptr };
        return View_CreateText(&rec, A);
    }
    case Button: {
        View_ImageText rec { 0, r, id, nullptr, text, f, nullptr };
        return View_CreateButton(&rec, A);
    }
    case QrCode: {
        View_QRCode rec { 0, r, id, 1, 0xFF000000u, 0xFFFFFFFFu };
        return View_CreateQRCode(&rec, A);
    }
    case Clock: {
        View_InputClock rec { 0, r, id, nullptr, text, f, 0 };
        return View_CreateInputClock(&rec, A);
    }
    case Placeholder: {
        View_CameraIP rec {};
        rec.rect = r;
        rec.id = id;
        return View_CreateCameraIP(&rec, A);
    }
    }
    return -1;
}

void tst_EveryKind::show_and_hide_by_type_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("hideResult");
    QTest::addColumn<bool>("visibleAfterHide");
    // type 1 hides only a picture: every kind accepts it and stays visible
    // type 2 hides only the slash: texts of the base kind, buttons and inputs take it, others are
    //        refused with the "0" record
    // any other type hides the whole item
    const struct {
        const char* name;
        Kind kind;
    } kinds[] = { { "static text", Text }, { "button", Button }, { "QR code", QrCode },
        { "placeholder", Placeholder }, { "clock field", Clock } };
    for (const auto& k : kinds) {
        QTest::addRow("%s, whole", k.name) << int(k.kind) << 0 << 0 << false;
        QTest::addRow("%s, picture", k.name) << int(k.kind) << 1 << 0 << true;
        QTest::addRow("%s, slash", k.name)
            << int(k.kind) << 2 << (k.kind == Button || k.kind == Clock ? 0 : -1) << true;
        QTest::addRow("%s, unknown type", k.name) << int(k.kind) << 7 << 0 << false;
    }
}

void tst_EveryKind::show_and_hide_by_type()
{
    QFETCH(int, kind);
    QFETCH(int, type);
    QFETCH(int, hideResult);
    QFETCH(bool, visibleAfterHide);
    QCOMPARE(create(Kind(kind), 10), 0);
    QQuickItem* item = ViewManage::getInstance()->getItemById(10);
    QVERIFY(item);

    QCOMPARE(View_HideWidget(10, ItemSlashType(type)), hideResult);
    QCOMPARE(item->isVisible(), visibleAfterHide);
    if (hideResult == -1) {
        QCOMPARE(Utils::assertCount(), 1);
        QVERIFY(Utils::lastAssertLocation().startsWith("\"0\" in file qgui/views/ViewManage, line "));
    } else {
        QCOMPARE(Utils::assertCount(), 0);
    }
    if (kind == Button && type == 1) {
        auto* button = qobject_cast<XButton*>(item);
        QVERIFY(!button->imageItem() || !button->imageItem()->isVisible());
    }

    QCOMPARE(View_ShowWidget(10, 0, ItemSlashType(type)), 0);
    QCOMPARE(View_ShowWidget(10, 0, ITEM_SLASH_WHOLE), 0);
    QVERIFY(item->isVisible());
    QCOMPARE(View_HideWidget(10, ITEM_SLASH_WHOLE), 0);
    QCOMPARE(View_ShowWidget(10, 1, ItemSlashType(type)), 0); // from the cache
    QVERIFY(item->isVisible());
}

void tst_EveryKind::font_colour_recolours_every_kind_that_shows_text_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QColor>("grey");
    QTest::newRow("static text") << int(Text) << QColor("gray");
    QTest::newRow("button") << int(Button) << QColor("gray");
    // the input fields' grey is Qt's own
    QTest::newRow("clock field") << int(Clock) << QColor(Qt::gray);
}

void tst_EveryKind::font_colour_recolours_every_kind_that_shows_text()
{
    QFETCH(int, kind);
    QFETCH(QColor, grey);
    QCOMPARE(create(Kind(kind), 11), 0);
    QQuickItem* item = ViewManage::getInstance()->getItemById(11);
    std::function<QColor()> colour;
    if (auto* t = qobject_cast<XCauseText*>(item))
        colour = [t] { return t->mainLabel()->color(); };
    else if (auto* b = qobject_cast<XButton*>(item))
        colour = [b] { return b->textItem()->mainLabel()->color(); };
    else if (auto* c = qobject_cast<XDateTimeEdit*>(item))
        colour = [c] { return c->textItem()->color(); };
    QVERIFY(colour);
    const Brush green { BRUSH_SOLID, 0xFF00C000u, 0, 0 };
    QCOMPARE(View_ChangeFontColor(11, &green), 0);
    QCOMPARE(colour(), QColor(0, 0xC0, 0));

    // grey wins while set; the colour comes back with it cleared
    QCOMPARE(View_SetDisableFlag(11, 4), 0);
    const Brush blue { BRUSH_SOLID, 0xFF0000FFu, 0, 0 };
    QCOMPARE(View_ChangeFontColor(11, &blue), 0);
    QCOMPARE(colour(), grey);
    QCOMPARE(View_ClrDisableFlag(11, 4), 0);
    QCOMPARE(colour(), QColor(Qt::blue));
}

void tst_EveryKind::enormous_sizes_keep_their_geometry_but_not_their_memory_data()
{
    QTest::addColumn<int>("side");
    QTest::newRow("20,000") << 20000;
    QTest::newRow("100,000") << 100000;
    QTest::newRow("INT_MAX") << INT_MAX;
}

void tst_EveryKind::enormous_sizes_keep_their_geometry_but_not_their_memory()
{
    QFETCH(int, side);
    QQuickWindow* window = m_panel.view();
    const QSize cap = window->size() * window->effectiveDevicePixelRatio();
    const Rect huge { 0, 0, side, side };

    // every painted kind: the placeholder, a window's background and a popup's title bar
    QCOMPARE(create(Placeholder, 20, huge), 0);
    const unsigned big = PanelFixture::wid(1, 9);
    QCOMPARE(m_panel.switchWindow(big, huge), 0);
    const unsigned pop = PanelFixture::wid(1, 8);
    QCOMPARE(m_panel.popup(pop, huge), 0);
    QCOMPARE(create(Text, 21, huge), 0);
    // a button with a picture and its disabled mark
    QTemporaryDir dir;
    const QString svg = dir.filePath("face.svg");
    QFile f(svg);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write("<svg xmlns='http://www.w3.org/2000/svg' width='32' height='32'><rect width='32' height='32' "
            "fill='#3a6'/></svg>");
    f.close();
    const QByteArray svgPath = svg.toUtf8();
    View_ImageText b { 0, huge, 22, svgPath.constData(), "caption", &m_font, nullptr };
    QCOMPARE(View_CreateButton(&b, A), 0);
    QCOMPARE(View_SetDisableFlag(22, 2), 0);
    QCOMPARE(create(QrCode, 23, huge), 0);
    QCOMPARE(View_UpdateQRCodeContent(23, "enormous"), 0);
    QVERIFY(QTest::qWaitForWindowExposed(window));
    PanelFixture::settle();
    QTest::qWait(100); // a frame is rendered with all of them

    // every painted item in the scene
    QList<XBasePaintedItem*> painted;
    std::function<void(QQuickItem*)> walk = [&](QQuickItem* item) {
        if (auto* p = qobject_cast<XBasePaintedItem*>(item))
            painted << p;
        for (QQuickItem* child : item->childItems())
            walk(child);
    };
    walk(window->contentItem());
    int huges = 0;
    for (XBasePaintedItem* p : qAsConst(painted)) {
        if (p->width() < 10000)
            continue;
        ++huges;
        QVERIFY2(p->textureSize().width() <= cap.width() && p->textureSize().height() <= cap.height(),
            p->metaObject()->className());
    }
    QVERIFY(huges >= 3); // placeholder, window background, disabled mark (and the popup's bar)

    // pictures are decoded at what can be seen, and stretched
    auto* button = qobject_cast<XButton*>(ViewManage::getInstance()->getItemById(22));
    QVERIFY(button->imageItem());
    QVERIFY(button->imageItem()->sourceSize().width() <= cap.width());
    auto* code = qobject_cast<XQuickImage*>(ViewManage::getInstance()->getItemById(23));
    QVERIFY(code);
    QVERIFY(code->sourceSize().width() <= cap.width() && code->sourceSize().height() <= cap.height());
    QCOMPARE(code->width(), qreal(side));

    Rect r {};
    QCOMPARE(View_GetWgtRect(20, r), 0);
    QCOMPARE(r.width, side);
    QCOMPARE(r.height, side);
    QCOMPARE(XBasePaintedItem::cappedTextureSize(QSizeF(side, side), 2.0, QSize()),
        QSize(XBasePaintedItem::kMaxTextureSide, XBasePaintedItem::kMaxTextureSide));
}

void tst_EveryKind::megabyte_texts_never_stop_the_cycle_data()
{
    QTest::addColumn<QString>("path");
    const QStringList paths { "text", "text content", "button caption", "window title", "font family",
        "huge text box" };
    const QStringList contents { "ASCII", "UTF-8" };
    for (const QString& p : paths) {
        for (const QString& c : contents)
            QTest::addRow("%s, %s", qPrintable(p), qPrintable(c)) << p + '|' + c;
    }
}

void tst_EveryKind::megabyte_texts_never_stop_the_cycle()
{
    QFETCH(QString, path);
    const QStringList parts = path.split('|');
    const QString what = parts[0];
    // 1 MiB: one long line with a few breaks, ASCII or three-byte CJK characters
    QByteArray big;
    const QByteArray unit = parts[1] == "ASCII" ? QByteArray("overflowing text ") : QByteArray("中文字符");
    while (big.size() < (1 << 20))
        big += unit;
    big[300000] = '\n';
    Font font = m_font;
    const QByteArray family = QByteArray(1 << 20, 'F');
    if (what == "font family")
        font.family = family.constData();
    const Rect box = what == "huge text box" ? Rect { 0, 0, 100000, 100000 } : Rect { 20, 20, 400, 60 };
    // the first CJK text of the process loads its font once, whatever its length: not what is measured
    QCOMPARE(create(Text, 31, Rect { 0, 300, 200, 40 }, "中文 warm", &m_font), 0);
    // so does the first popup window (its components are compiled once)
    QCOMPARE(m_panel.popup(PanelFixture::wid(1, 6), Rect { 500, 300, 200, 100 }, 10, false, 7, "warm"), 0);
    QTest::qWait(100);

    const qint64 gap = longestCycleGap([&] {
        if (what == "text" || what == "font family" || what == "huge text box") {
            QCOMPARE(create(Text, 30, box, big.constData(), &font), 0);
        } else if (what == "text content") {
            QCOMPARE(create(Text, 30, box, "short", &font), 0);
            QCOMPARE(View_ChangeTextContent(30, big.constData(), nullptr), 0);
        } else if (what == "button caption") {
            QCOMPARE(create(Button, 30, box, big.constData(), &font), 0);
        } else if (what == "window title") {
            QCOMPARE(m_panel.popup(
                         PanelFixture::wid(1, 5), Rect { 100, 100, 400, 200 }, 10, false, 7, big.constData()),
                0);
            QCOMPARE(View_ChangeWindowTitle(PanelFixture::wid(1, 5), big.constData()), 0);
        }
    });
    QVERIFY2(gap < kMaxGap, qPrintable(QString("cycle stopped for %1 ms").arg(gap)));

    if (what == "window title")
        return;
    // what is shown is cut, and ends in an ellipsis
    QQuickItem* item = ViewManage::getInstance()->getItemById(30);
    XskTextLabel* label = qobject_cast<XCauseText*>(item)
        ? qobject_cast<XCauseText*>(item)->mainLabel()
        : qobject_cast<XButton*>(item)->textItem()->mainLabel();
    if (what == "font family") {
        QVERIFY(label->font().family().size() <= 256);
    } else {
        QVERIFY(label->text().size() <= 4096);
        QCOMPARE(label->text().back(), QChar(0x2026));
    }
}

QGUI_GUIAPP_TEST_MAIN(tst_EveryKind)
#include "tst_everykind.moc"
