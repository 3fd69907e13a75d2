// The platform stand-ins: record conversions, id tags, the event channel, and
// popups on their overlay driven by real presses.
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QtTest>

#include "common/eventrecorder.h"
#include "common/testutil.h"
#include "platform/gid.h"
#include "platform/guiqtadaptcore.h"
#include "platform/logiclayercaller.h"
#include "platform/xoverlay.h"
#include "platform/xpopup.h"

using GuiQtAdapt::Core;

class tst_PlatformCore : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void opacity_words_data();
    void opacity_words();
    void alignment_words_drop_unknown_bits_data();
    void alignment_words_drop_unknown_bits();
    void fonts_are_clamped_and_null_safe_data();
    void fonts_are_clamped_and_null_safe();
    void colours_brushes_and_pens();
    void text_and_rectangles();
    void id_tags_on_any_object();
    void event_channel_without_a_call_back();
    void modal_popup_blocks_presses_below_data();
    void modal_popup_blocks_presses_below();
};

void tst_PlatformCore::opacity_words_data()
{
    QTest::addColumn<uint>("word");
    QTest::addColumn<double>("opacity");
    QTest::addColumn<bool>("drag");
    QTest::newRow("zero is opaque") << 0u << 1.0 << false;
    QTest::newRow("50 percent") << 50u << 0.5 << false;
    QTest::newRow("100 is invisible") << 100u << 0.0 << false;
    QTest::newRow("above 100 clamps") << 250u << 0.0 << false;
    QTest::newRow("drag flag ignored by opacity") << 0x10000u + 20u << 0.8 << true;
    QTest::newRow("other bytes ignored") << 0xFF00FF00u << 1.0 << false;
}

void tst_PlatformCore::opacity_words()
{
    QFETCH(uint, word);
    QFETCH(double, opacity);
    QFETCH(bool, drag);
    QVERIFY(qFuzzyCompare(1.0 + Core::toOpacity(word), 1.0 + opacity));
    QCOMPARE(Core::dragFlag(word), drag);
}

void tst_PlatformCore::alignment_words_drop_unknown_bits_data()
{
    QTest::addColumn<uint>("word");
    QTest::addColumn<int>("expected");
    QTest::newRow("left top") << (0x01u | 0x20u) << int(Qt::AlignLeft | Qt::AlignTop);
    QTest::newRow("centre") << (0x04u | 0x80u) << int(Qt::AlignCenter);
    QTest::newRow("right bottom") << (0x02u | 0x40u) << int(Qt::AlignRight | Qt::AlignBottom);
    QTest::newRow("unknown high bits dropped") << 0xFFFF0E04u << int(Qt::AlignHCenter);
    QTest::newRow("zero") << 0u << 0;
}

void tst_PlatformCore::alignment_words_drop_unknown_bits()
{
    QFETCH(uint, word);
    QFETCH(int, expected);
    QCOMPARE(int(Core::toQAlignment(word)), expected);
    Font f {};
    f.align = word;
    QCOMPARE(Core::toQAlignment(&f), expected);
    QCOMPARE(Core::toQAlignment(static_cast<const Font*>(nullptr)), 0);
}

void tst_PlatformCore::fonts_are_clamped_and_null_safe_data()
{
    QTest::addColumn<int>("pixelSize");
    QTest::addColumn<int>("expected"); // 0: the default size
    QTest::newRow("normal") << 20 << 20;
    QTest::newRow("zero gives the default") << 0 << 0;
    QTest::newRow("negative gives the default") << -5 << 0;
    QTest::newRow("huge is clamped") << 1000000 << 1024;
}

void tst_PlatformCore::fonts_are_clamped_and_null_safe()
{
    QFETCH(int, pixelSize);
    QFETCH(int, expected);
    const QFont def = Core::toQFont(nullptr);
    QVERIFY(def.pixelSize() > 0);
    Font f {};
    f.family = "DejaVu Sans";
    f.pixelSize = pixelSize;
    f.weight = 700;
    f.italic = 1;
    const QFont q = Core::toQFont(&f);
    QCOMPARE(q.pixelSize(), expected ? expected : def.pixelSize());
    QCOMPARE(q.family(), QString("DejaVu Sans"));
    QVERIFY(q.bold());
    QVERIFY(q.italic());
    Font bad {};
    bad.family = "\xff\xfe"; // invalid UTF-8 never crashes
    bad.weight = 999999;
    QVERIFY(Core::toQFont(&bad).weight() <= 99);
}

void tst_PlatformCore::colours_brushes_and_pens()
{
    QCOMPARE(Core::toQColor(0xFF112233u), QColor(0x11, 0x22, 0x33));
    QCOMPARE(Core::toQColor(0x80112233u).alpha(), 0x80);
    QCOMPARE(Core::toFontColor(nullptr), QColor(Qt::black));
    Brush b { BRUSH_SOLID, 0xFF00FF00u, 0, 0 };
    QCOMPARE(Core::toFontColor(&b), QColor(Qt::green));
    QCOMPARE(Core::toQBrush(b, QRectF(0, 0, 10, 10)).color(), QColor(Qt::green));
    b.style = BRUSH_LINEAR;
    b.color2 = 0xFFFF0000u;
    const QBrush lin = Core::toQBrush(b, QRectF(0, 0, 100, 50));
    QVERIFY(lin.gradient() && lin.gradient()->type() == QGradient::LinearGradient);
    b.style = 77; // unknown style draws solid
    QCOMPARE(Core::toQBrush(b, QRectF()).style(), Qt::SolidPattern);
    b.style = BRUSH_NONE;
    QCOMPARE(Core::toQBrush(b, QRectF()).style(), Qt::NoBrush);
    Pen p { 0xFF0000FFu, 3, PEN_DASH };
    QCOMPARE(Core::toQPen(p).style(), Qt::DashLine);
    QCOMPARE(Core::toQPen(p).width(), 3);
    p.style = 99;
    p.width = -4;
    QCOMPARE(Core::toQPen(p).style(), Qt::SolidLine);
    QCOMPARE(Core::toQPen(p).width(), 0);
}

void tst_PlatformCore::text_and_rectangles()
{
    QCOMPARE(Core::fromUtf8(nullptr), QString());
    QCOMPARE(Core::fromUtf8("\xe4\xb8\xad"), QString::fromUtf8("中"));
    QCOMPARE(Core::fromUtf8("a\xff").size(), 2); // invalid byte -> U+FFFD
    QCOMPARE(Core::fromString(" C:\\img\\a.png "), QString("C:/img/a.png"));
    QCOMPARE(Core::toUtf8StdString(QString::fromUtf8("中")), std::string("\xe4\xb8\xad"));
    QCOMPARE(Core::toQRect(Rect { 1, 2, -3, 4 }), QRect(1, 2, 0, 4));
    View_TextLayout l { QGUI_ALIGN_LEFT | QGUI_ALIGN_BOTTOM, 5, 7 };
    QCOMPARE(Core::textLayoutRect(&l, QRectF(0, 0, 100, 50)), QRectF(5, 0, 95, 43));
    QCOMPARE(Core::textLayoutRect(nullptr, QRectF(0, 0, 100, 50)), QRectF(0, 0, 100, 50));
    QVERIFY(Core::textLayoutSize("a\nb", QFont()).height() > Core::textLayoutSize("a", QFont()).height());
}

void tst_PlatformCore::id_tags_on_any_object()
{
    QObject o;
    QCOMPARE(GId::id(&o), 0u);
    GId::setId(&o, 7);
    GId::setWId(&o, 0x00020001);
    QCOMPARE(GId::id(&o), 7u);
    QCOMPARE(GId::wid(&o), 0x00020001u);
    QCOMPARE(GId::id(nullptr), 0u);
    GId::setId(nullptr, 1); // ignored

    QQmlEngine engine;
    QQmlComponent c(&engine);
    c.setData("import QtQuick 2.15\nItem { function getId() { return 4000000000 } }", QUrl());
    std::unique_ptr<QObject> item(c.create());
    QVERIFY(item);
    QCOMPARE(GId::id(item.get()), 4000000000u); // answered by the QML method
    QVERIFY(Core::getChildByProp(qobject_cast<QQuickItem*>(item.get()), "nonexistent") == nullptr);
}

void tst_PlatformCore::event_channel_without_a_call_back()
{
    LogicLayerCaller::setCallBack(nullptr);
    QCOMPARE(LogicLayerCaller::call(1, 2, nullptr), 0);
    EventRecorder rec;
    rec.install();
    int payload[2] = { 3, 4 };
    LogicLayerCaller::call(9, 1, payload);
    QCOMPARE(rec.count(), 1);
    QCOMPARE(rec.events().first().id, 9u);
    QCOMPARE(rec.events().first().intAt(1), 4);
}

void tst_PlatformCore::modal_popup_blocks_presses_below_data()
{
    QTest::addColumn<bool>("modal");
    QTest::addColumn<int>("policy");
    QTest::addColumn<bool>("touch");
    QTest::addColumn<int>("belowPresses");
    QTest::addColumn<bool>("stillOpen");
    QTest::newRow("modal blocks, mouse") << true << int(XPopup::NoAutoClose) << false << 0 << true;
    QTest::newRow("modal blocks, touch") << true << int(XPopup::NoAutoClose) << true << 0 << true;
    QTest::newRow("modal closes on outside press")
        << true << int(XPopup::CloseOnPressOutside) << false << 0 << false;
    QTest::newRow("plain popup lets presses through")
        << false << int(XPopup::NoAutoClose) << false << 1 << true;
    QTest::newRow("plain popup closes and passes")
        << false << int(XPopup::CloseOnPressOutside) << true << 1 << false;
}

void tst_PlatformCore::modal_popup_blocks_presses_below()
{
    QFETCH(bool, modal);
    QFETCH(int, policy);
    QFETCH(bool, touch);
    QFETCH(int, belowPresses);
    QFETCH(bool, stillOpen);

    QQuickView view;
    QQmlComponent c(view.engine());
    c.setData("import QtQuick 2.15\nRectangle { width: 400; height: 300; property int presses: 0\n"
              " MouseArea { anchors.fill: parent; onPressed: parent.presses++ } }",
        QUrl());
    auto* below = qobject_cast<QQuickItem*>(c.create());
    QVERIFY(below);
    below->setParentItem(view.contentItem());
    XOverlay overlay(view.contentItem());
    overlay.setZ(10);
    XPopup popup;
    popup.setOverlay(&overlay);
    popup.setModal(modal);
    popup.setClosePolicy(XPopup::ClosePolicy(policy));
    popup.setPosition({ 50, 50 });
    popup.setSize({ 100, 80 });
    view.resize(400, 300);
    QVERIFY(TestUtil::waitForFrame(&view));
    QCOMPARE(overlay.size(), QSizeF(400, 300));
    popup.open();
    QCOMPARE(overlay.openCount(), 1);

    const QPoint inside(60, 60), outside(300, 250);
    static QTouchDevice* device = QTest::createTouchDevice();
    auto press = [&](QPoint p) {
        if (touch) {
            QTest::touchEvent(&view, device).press(0, p, &view);
            QTest::touchEvent(&view, device).release(0, p, &view);
        } else {
            QTest::mouseClick(&view, Qt::LeftButton, Qt::NoModifier, p);
        }
    };
    press(inside); // a press on the popup stays in the popup
    QCOMPARE(below->property("presses").toInt(), 0);
    press(outside);
    QCOMPARE(below->property("presses").toInt(), belowPresses);
    QCOMPARE(popup.isOpened(), stillOpen);
    QCOMPARE(popup.isVisible(), stillOpen);
    popup.close();
    QCOMPARE(overlay.openCount(), 0);
    press(outside); // nothing open: presses reach the scene
    QCOMPARE(below->property("presses").toInt(), belowPresses + 1);
    delete below;
}

QTEST_MAIN(tst_PlatformCore)
#include "tst_platformcore.moc"
