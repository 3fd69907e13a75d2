// Static texts on a real panel: creation and restyle, margins under every
// alignment, the carousel band across a wrap, changes reaching the carousel
// copy, the grey flag, the fixed results, the light text items, and bad input.
#include "common/eventrecorder.h"
#include "common/guiapptestmain.h"
#include "common/panelfixture.h"
#include "common/testutil.h"

#include "app/xquickview.h"
#include "views/qmlwindowmanage.h"
#include "views/viewmanage.h"
#include "xcomponents/qquick/monotext.h"
#include "xcomponents/qquick/xbasetext.h"
#include "xcomponents/qquick/xbutton.h"
#include "xcomponents/qquick/xcausetext.h"
#include "xcomponents/qquick/xsktextlabel.h"

#include <QQuickItem>
#include <QtQuick/private/qquicktext_p.h>

class tst_Texts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void created_text_shows_record_values();
    void margins_follow_the_alignment_data();
    void margins_follow_the_alignment();
    void carousel_band_loops_across_the_wrap_data();
    void carousel_band_loops_across_the_wrap();
    void main_label_changes_reach_the_carousel_copy();
    void grey_flag_restores_the_stored_colour();
    void fixed_results_of_the_text_calls();
    void blank_light_texts_draw_nothing_data();
    void blank_light_texts_draw_nothing();
    void bad_input_is_refused_or_repaired();

private:
    static XCauseText* text(unsigned id)
    {
        return qobject_cast<XCauseText*>(ViewManage::getInstance()->getItemById(id));
    }
    int create(unsigned id, const char* s, Rect r = Rect { 10, 10, 200, 100 },
        const View_TextLayout* layout = nullptr, const Font* font = nullptr);

    PanelFixture m_panel;
    EventRecorder m_rec;
    Font m_font { nullptr, 20, 400, 0, 0, 0, 0, 0xFF102030u, QGUI_ALIGN_LEFT | QGUI_ALIGN_TOP };
    const unsigned A = PanelFixture::wid(1, 1);
};

void tst_Texts::init()
{
    QVERIFY(m_panel.start());
    m_rec.install();
    QCOMPARE(m_panel.switchWindow(A, Rect { 0, 0, 800, 480 }, 0xFFFFFFFFu), 0);
}

void tst_Texts::cleanup()
{
    m_panel.stop();
}

int tst_Texts::create(unsigned id, const char* s, Rect r, const View_TextLayout* layout, const Font* font)
{
    View_Text rec { 0, r, id, s, font ? font : &m_font, layout };
    return View_CreateText(&rec, A);
}

void tst_Texts::created_text_shows_record_values()
{
    const View_TextLayout layout { QGUI_ALIGN_RIGHT | QGUI_ALIGN_BOTTOM, 4, 6 };
    Font font = m_font;
    font.lineSpace = 3;
    font.align = QGUI_ALIGN_HCENTER;
    View_Text rec { 30u, Rect { 15, 25, 180, 60 }, 7, "温度 25 °C", &font, &layout };
    QCOMPARE(View_CreateText(&rec, A), 0);
    XCauseText* t = text(7);
    QVERIFY(t);
    QCOMPARE(t->getId(), 7u);
    QCOMPARE(t->getWindowId(), A);
    QCOMPARE(t->getItemType(), 2);
    QCOMPARE(t->getWgtRect(), QRect(15, 25, 180, 60));
    QCOMPARE(t->opacity(), 0.7);
    QCOMPARE(t->text(), QStringLiteral("温度 25 °C"));
    XskTextLabel* label = t->mainLabel();
    QCOMPARE(label->font().pixelSize(), 20);
    QCOMPARE(label->color(), QColor(0x10, 0x20, 0x30));
    QCOMPARE(label->lineSpace(), 3);
    QCOMPARE(label->horizontalAlignment(), int(Qt::AlignHCenter));
    QCOMPARE(label->alignment(), Qt::AlignRight | Qt::AlignBottom);
    QCOMPARE(label->textHMargin(), 4);
    QCOMPARE(label->textVMargin(), 6);
    QCOMPARE(label->size(), QSizeF(180, 60));
    QVERIFY(!t->carouselLabel()); // made on the first carousel step only
}

void tst_Texts::margins_follow_the_alignment_data()
{
    QTest::addColumn<unsigned>("align");
    QTest::addColumn<QString>("hPlace"); // "left", "right", "centre", "free"
    QTest::addColumn<QString>("vPlace"); // "top", "bottom", "centre", "free"
    QTest::newRow("left top") << 0x21u << "left"
                              << "top";
    QTest::newRow("right bottom") << 0x42u << "right"
                                  << "bottom";
    QTest::newRow("centres ignore margins") << 0x84u << "centre"
                                            << "centre";
    QTest::newRow("justified and no vertical bit are free") << 0x08u << "free"
                                                            << "free";
    QTest::newRow("two horizontal bits are free") << 0x23u << "free"
                                                  << "top";
    QTest::newRow("unknown bits are dropped") << 0xF000u + 0x42u << "right"
                                              << "bottom";
}

void tst_Texts::margins_follow_the_alignment()
{
    QFETCH(unsigned, align);
    QFETCH(QString, hPlace);
    QFETCH(QString, vPlace);
    const int hm = 12;
    const int vm = 7;
    const View_TextLayout layout { align, hm, vm };
    QCOMPARE(create(1, "Abc", Rect { 0, 0, 200, 100 }, &layout), 0);
    // a free text stays where it was put last, so start from a known anchoring
    XskTextLabel* label = text(1)->mainLabel();
    QQuickText* inner = label->textItem();
    const qreal w = inner->width();
    const qreal h = inner->height();
    QVERIFY(w > 0 && h > 0);
    const QMap<QString, qreal> xs { { "left", hm }, { "right", 200 - w - hm }, { "centre", (200 - w) / 2 },
        { "free", 0 } };
    const QMap<QString, qreal> ys { { "top", vm }, { "bottom", 100 - h - vm }, { "centre", (100 - h) / 2 },
        { "free", 0 } };
    // a centred text is snapped to whole pixels
    QVERIFY2(qAbs(inner->x() - xs.value(hPlace)) <= 0.5, qPrintable(QString::number(inner->x())));
    QVERIFY2(qAbs(inner->y() - ys.value(vPlace)) <= 0.5, qPrintable(QString::number(inner->y())));

    // the anchoring follows a later alignment, with the stored margins
    const View_TextLayout leftTop { 0x21u, hm, vm };
    View_Text rec { 0, Rect { 0, 0, 200, 100 }, 1, "Abc", &m_font, &leftTop };
    QCOMPARE(View_ChangeTextParam(1, &rec), 0);
    QCOMPARE(inner->x(), qreal(hm));
    QCOMPARE(inner->y(), qreal(vm));
    // and a box resize keeps an edge-aligned text at its margin
    const View_TextLayout rightBottom { 0x42u, hm, vm };
    rec.layout = &rightBottom;
    QCOMPARE(View_ChangeTextParam(1, &rec), 0);
    text(1)->setSize(QSizeF(300, 150));
    QCOMPARE(inner->x(), 300 - w - hm);
    QCOMPARE(inner->y(), 150 - h - vm);
}

void tst_Texts::carousel_band_loops_across_the_wrap_data()
{
    QTest::addColumn<QPoint>("step");
    QTest::addColumn<QList<QPointF>>("mainAt"); // after each step
    QTest::addColumn<QList<QPointF>>("copyAt");
    // box 100 x 50
    QTest::newRow("right") << QPoint(30, 0)
                           << QList<QPointF> { { 30, 0 }, { 60, 0 }, { 90, 0 }, { 20, 0 }, { 50, 0 } }
                           << QList<QPointF> { { -70, 0 }, { -40, 0 }, { -10, 0 }, { -80, 0 }, { -50, 0 } };
    QTest::newRow("left") << QPoint(-30, 0)
                          << QList<QPointF> { { -30, 0 }, { -60, 0 }, { -90, 0 }, { -20, 0 }, { -50, 0 } }
                          << QList<QPointF> { { 70, 0 }, { 40, 0 }, { 10, 0 }, { 80, 0 }, { 50, 0 } };
    QTest::newRow("down, wrapping exactly")
        << QPoint(0, 25) << QList<QPointF> { { 0, 25 }, { 0, 0 }, { 0, 25 } }
        << QList<QPointF> { { 0, -25 }, { 0, -50 }, { 0, -25 } };
    QTest::newRow("up") << QPoint(0, -20) << QList<QPointF> { { 0, -20 }, { 0, -40 }, { 0, -10 } }
                        << QList<QPointF> { { 0, 30 }, { 0, 10 }, { 0, 40 } };
    QTest::newRow("both set: along x only")
        << QPoint(40, 9) << QList<QPointF> { { 40, 0 }, { 80, 0 }, { 20, 0 } }
        << QList<QPointF> { { -60, 0 }, { -20, 0 }, { -80, 0 } };
    QTest::newRow("steps longer than the box") << QPoint(250, 0) << QList<QPointF> { { 50, 0 }, { 0, 0 } }
                                               << QList<QPointF> { { -50, 0 }, { -100, 0 } };
}

void tst_Texts::carousel_band_loops_across_the_wrap()
{
    QFETCH(QPoint, step);
    QFETCH(QList<QPointF>, mainAt);
    QFETCH(QList<QPointF>, copyAt);
    QCOMPARE(create(2, "A long line that does not fit", Rect { 5, 5, 100, 50 }), 0);
    XCauseText* t = text(2);
    for (int i = 0; i < mainAt.size(); ++i) {
        QCOMPARE(View_CarouselText(2, step.x(), step.y()), 0);
        QVERIFY(t->carouselLabel());
        QCOMPARE(t->mainLabel()->position(), mainAt.at(i));
        QCOMPARE(t->carouselLabel()->position(), copyAt.at(i));
    }
    QVERIFY(t->getMaskItem()->clip());
    QCOMPARE(View_CarouselText(2, 0, 0), 0); // no step: nothing moves
    QCOMPARE(t->mainLabel()->position(), mainAt.last());
}

void tst_Texts::main_label_changes_reach_the_carousel_copy()
{
    QCOMPARE(create(3, "before"), 0);
    XCauseText* t = text(3);
    QCOMPARE(View_CarouselText(3, 5, 0), 0);
    XskTextLabel* copy = t->carouselLabel();
    QVERIFY(copy);
    QCOMPARE(copy->text(), QStringLiteral("before"));

    Font font { "DejaVu Sans", 31, 700, 1, 0, 0, 4, 0xFF00AA00u, QGUI_ALIGN_RIGHT };
    const View_TextLayout layout { QGUI_ALIGN_HCENTER | QGUI_ALIGN_BOTTOM, 3, 9 };
    View_Text rec { 0, Rect { 10, 10, 200, 100 }, 3, "after", &font, &layout };
    QCOMPARE(View_ChangeTextParam(3, &rec), 0);
    QCOMPARE(copy->text(), QStringLiteral("after"));
    QCOMPARE(copy->font(), t->mainLabel()->font());
    QCOMPARE(copy->font().pixelSize(), 31);
    QVERIFY(copy->font().bold());
    QCOMPARE(copy->color(), QColor(0, 0xAA, 0));
    QCOMPARE(copy->lineSpace(), 4);
    QCOMPARE(copy->fontAlignment(), int(Qt::AlignRight));
    QCOMPARE(copy->alignment(), Qt::AlignHCenter | Qt::AlignBottom);
    QCOMPARE(copy->textVMargin(), 9);
    QCOMPARE(copy->textItem()->y(), t->mainLabel()->textItem()->y());

    QCOMPARE(View_ChangeTextContent(3, "third", nullptr), 0);
    QCOMPARE(copy->text(), QStringLiteral("third"));
    t->setWidth(260);
    QCOMPARE(copy->width(), 260.0);
    const Brush red { BRUSH_SOLID, 0xFFFF0000u, 0, 0 };
    QCOMPARE(View_ChangeFontColor(3, &red), 0);
    QCOMPARE(copy->color(), QColor(Qt::red));
}

void tst_Texts::grey_flag_restores_the_stored_colour()
{
    QCOMPARE(create(4, "grey"), 0);
    XskTextLabel* label = text(4)->mainLabel();
    QCOMPARE(View_SetDisableFlag(4, 4), 0);
    QCOMPARE(label->color(), QColor("gray"));
    const Brush blue { BRUSH_SOLID, 0xFF0000FFu, 0, 0 };
    QCOMPARE(View_ChangeFontColor(4, &blue), 0);
    QCOMPARE(label->color(), QColor("gray")); // stored, not shown while grey
    QCOMPARE(View_ClrDisableFlag(4, 4), 0);
    QCOMPARE(label->color(), QColor(Qt::blue));
}

void tst_Texts::fixed_results_of_the_text_calls()
{
    QCOMPARE(create(5, "text"), 0);
    View_ImageText b { 0, Rect { 300, 10, 60, 30 }, 6, nullptr, "a caption far too long for the button",
        &m_font, nullptr };
    QCOMPARE(View_CreateButton(&b, A), 0);
    auto* button = qobject_cast<XButton*>(ViewManage::getInstance()->getItemById(6));
    QVERIFY(button);

    QCOMPARE(View_CarouselText(5, 3, 0), 0);
    QCOMPARE(View_CarouselText(6, 3, 0), -1); // the caption moved all the same
    QCOMPARE(button->textItem()->mainLabel()->x(), 3.0);
    QCOMPARE(View_CarouselText(999, 3, 0), -1);

    View_ChangeTextContent(5, "a very very very long text that overflows its small box by far", nullptr);
    QCOMPARE(View_IsTextOutOfRange(5, 2), -1); // a text widget never asks for a carousel
    QCOMPARE(View_IsTextOutOfRange(6, 2), 0);
    QCOMPARE(View_IsTextOutOfRange(6, 0), -1); // one line is not taller than 30 pixels
    QCOMPARE(View_IsTextOutOfRange(6, 5), -1);
    QVERIFY(!button->textItem()->carouselLabel()->isVisible()); // an unknown direction hides the copy
    QCOMPARE(View_IsTextOutOfRange(999, 2), -1);

    QCOMPARE(View_ChangeTextContent(999, "x", nullptr), 0);
    QCOMPARE(View_ChangeFontColor(999, nullptr), 0);
    View_Text rec { 0, Rect { 0, 0, 1, 1 }, 999, "x", nullptr, nullptr };
    QCOMPARE(View_ChangeTextParam(999, &rec), -1);
    QCOMPARE(View_ChangeTitle(999, &rec), -1);
    QCOMPARE(View_CreateText(&rec, PanelFixture::wid(1, 77)), -1);
    QCOMPARE(View_CreateText(nullptr, A), -1);
    QVERIFY(!ViewManage::getInstance()->getItemById(999));

    // a title is the caption
    rec.text = "Title";
    QCOMPARE(View_ChangeTitle(6, &rec), 0);
    QCOMPARE(button->text(), QStringLiteral("Title"));
}

void tst_Texts::blank_light_texts_draw_nothing_data()
{
    QTest::addColumn<bool>("mono");
    QTest::addColumn<QString>("content");
    QTest::addColumn<bool>("ink");
    QTest::newRow("mono blank") << true << " \t  " << false;
    QTest::newRow("mono latin") << true << "Hello" << true;
    QTest::newRow("base blank") << false << "   " << false;
    QTest::newRow("base two lines") << false << "Hello\nworld" << true;
}

void tst_Texts::blank_light_texts_draw_nothing()
{
    QFETCH(bool, mono);
    QFETCH(QString, content);
    QFETCH(bool, ink);
    QQuickItem* window = ViewManage::getInstance()->windowManage()->getWindow(A);
    QFont font;
    font.setPixelSize(24);
    QQuickItem* item = nullptr;
    if (mono) {
        auto* m = new MonoText(window);
        m->setFont(font);
        m->setColor(Qt::black);
        m->setText(content);
        item = m;
    } else {
        auto* b = new XBaseText(window);
        b->setFont(font);
        b->setColor(Qt::black);
        b->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
        b->setText(content);
        item = b;
    }
    item->setPosition(QPointF(100, 100));
    item->setSize(QSizeF(200, 80));
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
    const QImage shot = m_panel.view()->grabWindow().copy(100, 100, 200, 80);
    int dark = 0;
    for (int y = 0; y < shot.height(); ++y)
        for (int x = 0; x < shot.width(); ++x)
            dark += qGray(shot.pixel(x, y)) < 128;
    QCOMPARE(dark > 0, ink);
    delete item;
}

void tst_Texts::bad_input_is_refused_or_repaired()
{
    // null text and null font: an empty text in the default font
    View_Text rec { 0, Rect { 0, 0, 100, 40 }, 8, nullptr, nullptr, nullptr };
    QCOMPARE(View_CreateText(&rec, A), 0);
    QCOMPARE(text(8)->text(), QString());
    // invalid UTF-8 becomes replacement characters
    QCOMPARE(View_ChangeTextContent(8, "ok\xff\xfe!", nullptr), 0);
    QCOMPARE(text(8)->text(), QString("ok") + QChar(0xFFFD) + QChar(0xFFFD) + "!");
    QCOMPARE(View_ChangeTextContent(8, nullptr, nullptr), 0);
    QCOMPARE(text(8)->text(), QString());
    // a text of 1 MB shows its first 4,095 characters and an ellipsis; a surrogate pair at the cut
    // is never split
    QByteArray big(1 << 20, 'x');
    QCOMPARE(View_ChangeTextContent(8, big.constData(), nullptr), 0);
    QCOMPARE(text(8)->text(), QString(4095, 'x') + QChar(0x2026));
    big = QByteArray(4094, 'x') + "\xF0\x9F\x98\x80" + QByteArray(100, 'y'); // U+1F600 at 4094..4095
    QCOMPARE(View_ChangeTextContent(8, big.constData(), nullptr), 0);
    QCOMPARE(text(8)->text(), QString(4094, 'x') + QChar(0x2026));
    // fonts with zero or huge sizes are clamped
    Font zero = m_font;
    zero.pixelSize = 0;
    rec.font = &zero;
    rec.text = "zero";
    QCOMPARE(View_ChangeTextParam(8, &rec), 0);
    QVERIFY(text(8)->mainLabel()->font().pixelSize() >= 1);
    Font huge = m_font;
    huge.pixelSize = 1 << 30;
    rec.font = &huge;
    QCOMPARE(View_ChangeTextParam(8, &rec), 0);
    QVERIFY(text(8)->mainLabel()->font().pixelSize() <= 1024);
    // a null record changes nothing
    QCOMPARE(View_ChangeTextParam(8, nullptr), -1);
    QCOMPARE(View_ChangeTitle(8, nullptr), -1);
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
}

QGUI_GUIAPP_TEST_MAIN(tst_Texts)
#include "tst_texts.moc"
