// The Pinyin candidate bar on a real panel: how the candidate text is split,
// the events of real presses on candidates and page buttons, refilling and
// closing, a list of ten thousand candidates, and Chinese glyphs on screen.
#include "common/eventrecorder.h"
#include "common/guiapptestmain.h"
#include "common/panelfixture.h"
#include "common/testutil.h"

#include "app/xquickview.h"
#include "platform/xoverlay.h"
#include "views/pinyinstate.h"
#include "views/qmlwindowmanage.h"
#include "views/viewmanage.h"
#include "xcomponents/qquick/xpinyinboard.h"
#include "xcomponents/qquick/xpinyindlg.h"

#include <QFontDatabase>
#include <QFontInfo>

#include <qgui/events.h>

class tst_Pinyin : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void candidate_text_is_split_at_every_space_data();
    void candidate_text_is_split_at_every_space();
    void press_on_a_candidate_sends_its_index_among_those_shown_data();
    void press_on_a_candidate_sends_its_index_among_those_shown();
    void page_buttons_page_and_always_report();
    void show_refills_the_one_popup_and_hide_closes_it();
    void ten_thousand_candidates_page_through_every_one();
    void chinese_candidates_render_as_glyphs_not_boxes();

private:
    static XPinyinDlg* dialog() { return ViewManage::getInstance()->pinyinState()->dialog(); }
    static XPinyinBoard* board() { return dialog() ? dialog()->board() : nullptr; }
    int show(const char* text, Rect r = Rect { 20, 400, 0, 0 }, const Font* font = nullptr);
    void pressAt(QRectF local) { m_panel.click(m_panel.scenePoint(board(), local.center())); }
    QList<EventRecorder::Event> pinyinEvents() const;
    QImage grab(QRectF local);

    PanelFixture m_panel;
    EventRecorder m_rec;
    Font m_font { "DejaVu Sans", 20, 400, 0, 0, 0, 0, 0xFF000000u, 0 };
    const unsigned A = PanelFixture::wid(1, 1);
    static constexpr unsigned kBack = 0xFFFFFFFFu;
    static constexpr unsigned kSelect = 0xFF2060C0u;
};

void tst_Pinyin::init()
{
    QVERIFY(m_panel.start());
    QCOMPARE(m_panel.switchWindow(A, Rect { 0, 0, 800, 480 }), 0);
    m_rec.install();
}

void tst_Pinyin::cleanup()
{
    m_panel.stop();
    m_rec.clear();
}

int tst_Pinyin::show(const char* text, Rect r, const Font* font)
{
    View_keyBoardData rec { r, text, font ? font : &m_font, kBack, kSelect };
    return View_ShowKeyBoardWidget(&rec);
}

QList<EventRecorder::Event> tst_Pinyin::pinyinEvents() const
{
    QList<EventRecorder::Event> out;
    for (const auto& e : m_rec.events()) {
        if (e.code >= EVT_PINYIN_NEXT_PAGE && e.code <= EVT_PINYIN_SELECT)
            out << e;
    }
    return out;
}

QImage tst_Pinyin::grab(QRectF local)
{
    if (!TestUtil::waitForFrame(m_panel.view()))
        return QImage();
    const QImage shot = m_panel.view()->grabWindow();
    const QPoint topLeft = m_panel.scenePoint(board(), local.topLeft());
    return shot.copy(QRect(topLeft, local.size().toSize()));
}

void tst_Pinyin::candidate_text_is_split_at_every_space_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("two words") << QByteArray("a b") << QStringList { "a", "b" };
    QTest::newRow("two spaces: empty middle") << QByteArray("a  b") << QStringList { "a", "", "b" };
    QTest::newRow("leading space") << QByteArray(" a") << QStringList { "", "a" };
    QTest::newRow("trailing space") << QByteArray("a ") << QStringList { "a", "" };
    QTest::newRow("spaces only") << QByteArray("  ") << QStringList { "", "", "" };
    QTest::newRow("empty text: no candidates") << QByteArray("") << QStringList {};
    QTest::newRow("chinese") << QByteArray("中国 中文 钟") << QStringList { "中国", "中文", "钟" };
    QTest::newRow("invalid utf-8") << QByteArray("\xff\xfe x")
                                   << QStringList { QString(2, QChar(0xFFFD)), "x" };
    QTest::newRow("tab is not a separator") << QByteArray("a\tb c") << QStringList { "a\tb", "c" };
}

void tst_Pinyin::candidate_text_is_split_at_every_space()
{
    QFETCH(QByteArray, text);
    QFETCH(QStringList, expected);
    QCOMPARE(show("old list of words"), 0);
    QCOMPARE(show(text.constData()), 0);
    QCOMPARE(board()->candidates(), expected);
    // every piece, the empty ones too, gets a rectangle that can be pressed
    QCOMPARE(board()->shownCount(), expected.size());
    for (int i = 0; i < expected.size(); ++i)
        QVERIFY(board()->candidateRect(i).width() > 0);
    QCOMPARE(board()->selectedIndex(), -1);
}

void tst_Pinyin::press_on_a_candidate_sends_its_index_among_those_shown_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<int>("shown");
    QTest::newRow("page 1, first") << 0 << 0;
    QTest::newRow("page 1, second") << 0 << 1;
    QTest::newRow("page 2, first") << 1 << 0;
    QTest::newRow("page 2, second") << 1 << 1;
}

void tst_Pinyin::press_on_a_candidate_sends_its_index_among_those_shown()
{
    QFETCH(int, page);
    QFETCH(int, shown);
    QByteArray words;
    for (int i = 0; i < 40; ++i)
        words += (i ? " w" : "w") + QByteArray::number(i);
    QCOMPARE(show(words.constData(), Rect { 10, 400, 400, 44 }), 0);
    for (int p = 0; p < page; ++p)
        pressAt(board()->nextButtonRect());
    QVERIFY(board()->shownCount() >= 2);
    QCOMPARE(board()->pageStart() > 0, page > 0);
    m_rec.clear();

    const QRectF r = board()->candidateRect(shown);
    pressAt(r);
    const auto events = pinyinEvents();
    QCOMPARE(events.size(), 1);
    QCOMPARE(events[0].id, 0u);
    QCOMPARE(events[0].code, int(EVT_PINYIN_SELECT));
    QCOMPARE(events[0].intAt(0), shown);
    QCOMPARE(board()->selectedIndex(), shown);
    // the pressed candidate is highlighted; its neighbour is not
    const QImage pressed = grab(r);
    QCOMPARE(QColor(pressed.pixel(2, 2)), QColor(QRgb(kSelect)));
    const QImage other = grab(board()->candidateRect(1 - shown));
    QCOMPARE(QColor(other.pixel(2, 2)), QColor(QRgb(kBack)));
}

void tst_Pinyin::page_buttons_page_and_always_report()
{
    QCOMPARE(show("aa bb cc dd ee ff gg hh ii jj kk ll", Rect { 10, 400, 300, 40 }), 0);
    XPinyinBoard* b = board();
    const int first = b->shownCount();
    QVERIFY(first > 0 && first < 12);
    QVERIFY(!b->hasPrevPage());

    pressAt(b->prevButtonRect()); // nothing before the first page: reported, no paging
    QCOMPARE(b->pageStart(), 0);
    pressAt(b->nextButtonRect());
    QCOMPARE(b->pageStart(), first);
    QCOMPARE(b->candidateRect(0).left(), 0.0);
    while (b->hasNextPage())
        b->nextPage();
    const int last = b->pageStart();
    QCOMPARE(last + b->shownCount(), 12);
    m_rec.clear();
    pressAt(b->nextButtonRect()); // the logic layer may have more candidates to give
    QCOMPARE(b->pageStart(), last);
    pressAt(b->candidateRect(0));
    pressAt(b->prevButtonRect());
    QVERIFY(b->pageStart() < last);
    QCOMPARE(b->selectedIndex(), -1); // paging drops the selection

    const auto events = pinyinEvents();
    QCOMPARE(events.size(), 3);
    QCOMPARE(events[0].code, int(EVT_PINYIN_NEXT_PAGE));
    QCOMPARE(events[1].code, int(EVT_PINYIN_SELECT));
    QCOMPARE(events[2].code, int(EVT_PINYIN_PREV_PAGE));
    for (const auto& e : events)
        QCOMPARE(e.id, 0u);
    QVERIFY(events[0].nullData);
    QVERIFY(events[2].nullData);
}

void tst_Pinyin::show_refills_the_one_popup_and_hide_closes_it()
{
    QCOMPARE(View_HideKeyBoardWidget(), 0); // nothing shown yet
    QCOMPARE(View_ShowKeyBoardWidget(nullptr), 0);
    QVERIFY(!dialog());

    QCOMPARE(show("a b c d e f g h i j k l m", Rect { 30, 410, 0, 0 }), 0);
    XPinyinDlg* dlg = dialog();
    QVERIFY(dlg && dlg->isOpened() && dlg->isVisible());
    QCOMPARE(dlg->z(), 2147483647.0);
    QCOMPARE(dlg->parentItem(), ViewManage::getInstance()->windowManage()->getOverlay(1));
    QCOMPARE(dlg->position(), QPointF(30, 410));
    // a bar that sizes itself: the popup follows the page it shows
    QVERIFY(board()->width() > 0 && board()->height() > 0);
    QCOMPARE(dlg->size(), board()->size());
    board()->nextPage();

    QCOMPARE(show("x y", Rect { 5, 300, 420, 50 }), 0);
    QCOMPARE(dialog(), dlg);
    QCOMPARE(board()->candidates(), (QStringList { "x", "y" }));
    QCOMPARE(board()->pageStart(), 0);
    QCOMPARE(board()->size(), QSizeF(420, 50));
    QCOMPARE(dlg->size(), QSizeF(420, 50));
    QCOMPARE(dlg->position(), QPointF(5, 300));

    QCOMPARE(View_ShowKeyBoardWidget(nullptr), 0); // a null record keeps what is shown
    QCOMPARE(board()->candidates(), (QStringList { "x", "y" }));
    board()->setChinese(2); // not an index of the list: kept
    QCOMPARE(board()->candidates().size(), 2);
    board()->setChinese(1);
    QVERIFY(board()->candidates().isEmpty());
    QCOMPARE(board()->shownCount(), 0);

    QCOMPARE(show("p q"), 0);
    const QRectF p = board()->candidateRect(0);
    QCOMPARE(View_HideKeyBoardWidget(), 0);
    QVERIFY(!dlg->isOpened() && !dlg->isVisible());
    m_rec.clear();
    pressAt(p); // the press reaches the window underneath, not the closed bar
    QVERIFY(pinyinEvents().isEmpty());
    QCOMPARE(View_HideKeyBoardWidget(), 0);
    QCOMPARE(show("r s"), 0);
    QVERIFY(dlg->isOpened());
    pressAt(board()->candidateRect(1));
    QCOMPARE(pinyinEvents().size(), 1);
}

void tst_Pinyin::ten_thousand_candidates_page_through_every_one()
{
    QByteArray words;
    for (int i = 0; i < 10000; ++i)
        words += (i ? " 词" : "词") + QByteArray::number(i);
    QCOMPARE(show(words.constData()), 0);
    XPinyinBoard* b = board();
    QCOMPARE(b->candidates().size(), 10000);
    QVERIFY(b->shownCount() > 0 && b->shownCount() <= XPinyinBoard::kMaxPerPage);
    QVERIFY(b->width() <= m_panel.view()->width());

    pressAt(b->nextButtonRect());
    pressAt(b->nextButtonRect());
    m_rec.clear();
    pressAt(b->candidateRect(1));
    QCOMPARE(pinyinEvents().size(), 1);
    QCOMPARE(pinyinEvents()[0].intAt(0), 1);

    // page to the end and back: every candidate is shown once, in order
    while (b->hasPrevPage())
        b->prevPage();
    int seen = 0;
    int pages = 1;
    for (;;) {
        QCOMPARE(b->pageStart(), seen);
        seen += b->shownCount();
        if (!b->hasNextPage())
            break;
        b->nextPage();
        ++pages;
    }
    QCOMPARE(seen, 10000);
    QCOMPARE(b->candidates().at(b->pageStart() + b->shownCount() - 1), QStringLiteral("词9999"));
    while (b->hasPrevPage()) {
        b->prevPage();
        --pages;
    }
    QCOMPARE(pages, 1);
    QCOMPARE(b->pageStart(), 0);

    // one candidate of a million characters is cut to the bar
    const QByteArray huge(1 << 20, 'z');
    QCOMPARE(show(huge.constData()), 0);
    QCOMPARE(b->shownCount(), 1);
    QVERIFY(b->width() <= m_panel.view()->width());
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
}

void tst_Pinyin::chinese_candidates_render_as_glyphs_not_boxes()
{
    Font font { "DejaVu Sans", 40, 400, 0, 0, 0, 0, 0xFF000000u, 0 };
    QCOMPARE(show("中 国 口", Rect { 20, 300, 0, 0 }, &font), 0);
    // the record's family has no Chinese glyphs: the bar draws in one that has
    const QString used = QFontInfo(board()->candidateFont()).family();
    QVERIFY2(QFontDatabase().writingSystems(used).contains(QFontDatabase::SimplifiedChinese), qPrintable(used));
    QCOMPARE(board()->candidateFont().pixelSize(), 40);

    auto inked = [](const QImage& img) {
        int n = 0;
        for (int y = 0; y < img.height(); ++y)
            for (int x = 0; x < img.width(); ++x)
                n += qGray(img.pixel(x, y)) < 128;
        return n;
    };
    const QImage zhong = grab(board()->candidateRect(0));
    const QImage guo = grab(board()->candidateRect(1));
    const QImage kou = grab(board()->candidateRect(2));
    QVERIFY(!zhong.isNull() && zhong.size() == guo.size() && guo.size() == kou.size());
    QVERIFY(inked(zhong) > 30);
    QVERIFY(inked(guo) > 30);
    // a missing glyph is the same box for every character; real glyphs differ
    QVERIFY(zhong != guo);
    QVERIFY(guo != kou);
    // 国 encloses more strokes than 口, which is its frame
    QVERIFY(inked(guo) > inked(kou));
}

QGUI_GUIAPP_TEST_MAIN(tst_Pinyin)
#include "tst_pinyin.moc"
