// Alarm bars on a real panel: the direction chooses the bar, steps move the
// two copies as an endless band that swaps seamlessly, short alarm lists are
// filled with empty rows, and the marquee's cells are as wide as their texts.
#include "common/eventrecorder.h"
#include "common/guiapptestmain.h"
#include "common/panelfixture.h"
#include "common/testutil.h"

#include "app/xquickview.h"
#include "views/viewmanage.h"
#include "xcomponents/qquick/xalarmbarcontrol.h"
#include "xcomponents/qquick/xalarmbarmodel.h"
#include "xcomponents/qquick/xhalarmbarcontrol.h"
#include "xcomponents/qquick/xhalarmbarrepeater.h"
#include "xcomponents/qquick/xquickheadermodel.h"
#include "xcomponents/qquick/xalarmtablebarheader.h"
#include "xcomponents/qquick/xqmlcomponentmanage.h"
#include "views/qmlwindowmanage.h"

#include <QFontMetricsF>
#include <QQuickItem>

#include <qgui/events.h>

class tst_AlarmBar : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void the_direction_chooses_the_bar_data();
    void the_direction_chooses_the_bar();
    void table_bar_band_is_seamless_data();
    void table_bar_band_is_seamless();
    void short_alarm_lists_are_filled_with_empty_rows();
    void marquee_cells_fit_their_texts_and_run_endlessly_data();
    void marquee_cells_fit_their_texts_and_run_endlessly();
    void list_calls_change_a_bar();

private:
    XAlarmBar* bar(unsigned id) const { return qobject_cast<XAlarmBar*>(ViewManage::getInstance()->getItemById(id)); }
    int create(unsigned id, int direction, bool header = true, Rect r = Rect { 20, 20, 600, 120 });
    void sendAlarms(unsigned id, int rows);
    /** Pixels of the window's own colour showing through the bar: gaps in the band. */
    int gapPixels(QQuickItem* bar);

    PanelFixture m_panel;
    EventRecorder m_rec;
    Font m_font { nullptr, 16, 400, 0, 0, 0, 0, 0xFF000000u, 0 };
    View_ListColumn m_columns[3] = {
        { "Time", 160, 0, COL_DATETIME, nullptr, 0, 0 },
        { "Alarm", 0, 0, COL_STRING, nullptr, 0, 0 },
        { "State", 90, 0, COL_STRING, nullptr, 0, 0 },
    };
    std::vector<std::string> m_texts;
    const unsigned A = PanelFixture::wid(1, 1);
};

int tst_AlarmBar::create(unsigned id, int direction, bool header, Rect r)
{
    View_listAlarmBar rec {};
    rec.list.rect = r;
    rec.list.id = id;
    rec.list.columns = m_columns;
    rec.list.columnCount = 3;
    rec.list.flags = (unsigned(direction) << CAROUSE_DIR_SHIFT) | (header ? 0 : LIST_HIDE_HEADER);
    rec.list.rowHeight = 30;
    rec.list.headerHeight = 28;
    rec.list.headerFont = &m_font;
    rec.list.contentFont = &m_font;
    rec.list.backColor = 0xFFFFFFFFu;
    rec.colSpace = 6;
    return View_CreateListAlarmBar(&rec, A);
}

void tst_AlarmBar::sendAlarms(unsigned id, int rows)
{
    m_texts.clear();
    m_texts.reserve(size_t(rows) * 3);
    std::vector<std::vector<View_ListColData>> page;
    for (int r = 0; r < rows; ++r) {
        std::vector<View_ListColData> row;
        for (const std::string& t : { "2026-11-23 14:0" + std::to_string(r % 10), "Alarm number " + std::to_string(r),
                 std::string(r % 2 ? "came" : "went") }) {
            m_texts.push_back(t);
            row.push_back(View_ListColData { m_texts.back().c_str(), nullptr, nullptr, 0, 0 });
        }
        page.push_back(row);
    }
    QCOMPARE(View_ChangeListCtrlContent(id, page), 0);
}

int tst_AlarmBar::gapPixels(QQuickItem* b)
{
    const QImage shot = m_panel.view()->grabWindow();
    const QRect box(m_panel.scenePoint(b, QPointF(1, 1)), m_panel.scenePoint(b, QPointF(b->width() - 2, b->height() - 2)));
    // the control: the window's colour is there beside the bar
    if (shot.pixelColor(m_panel.scenePoint(b, QPointF(-8, b->height() / 2))) != QColor(0xFF, 0x00, 0xFF))
        return -1;
    int gaps = 0;
    for (int y = box.top(); y <= box.bottom(); ++y)
        for (int x = box.left(); x <= box.right(); x += 3)
            gaps += shot.pixelColor(x, y) == QColor(0xFF, 0x00, 0xFF);
    return gaps;
}

void tst_AlarmBar::init()
{
    QVERIFY(m_panel.start());
    m_rec.install();
    QCOMPARE(m_panel.switchWindow(A, Rect { 0, 0, 800, 480 }, 0xFFFF00FFu), 0); // gaps in a band show magenta
}

void tst_AlarmBar::cleanup()
{
    m_panel.stop();
}

void tst_AlarmBar::the_direction_chooses_the_bar_data()
{
    QTest::addColumn<int>("direction");
    QTest::addColumn<bool>("marquee");
    QTest::addColumn<int>("orientation");
    QTest::newRow("upwards") << 0 << false << int(Qt::Vertical);
    QTest::newRow("downwards") << 1 << false << int(Qt::Vertical);
    QTest::newRow("right to left") << 2 << true << int(Qt::Horizontal);
    QTest::newRow("left to right") << 3 << true << int(Qt::Horizontal);
}

void tst_AlarmBar::the_direction_chooses_the_bar()
{
    QFETCH(int, direction);
    QFETCH(bool, marquee);
    QFETCH(int, orientation);
    QCOMPARE(create(10, direction), 0);
    XAlarmBar* b = bar(10);
    QVERIFY(b);
    QCOMPARE(qobject_cast<XHAlarmBarControl*>(b) != nullptr, marquee);
    QCOMPARE(qobject_cast<XAlarmBarControl*>(b) != nullptr, !marquee);
    QCOMPARE(int(b->orientation()), orientation);
    QCOMPARE(b->getWgtRect(), QRect(20, 20, 600, 120));
    if (auto* line = qobject_cast<XHAlarmBarControl*>(b))
        QCOMPARE(line->directionLeftToRight(), direction == 3);
    // the step reaches the bar, and reports -1 as for every moving widget but texts
    QCOMPARE(View_CarouselText(10, -1, -1), -1);
    // records that make nothing
    QCOMPARE(View_CreateListAlarmBar(nullptr, A), -1);
    View_listAlarmBar rec {};
    rec.list.id = 11;
    QCOMPARE(View_CreateListAlarmBar(&rec, PanelFixture::wid(1, 77)), -1);
}

void tst_AlarmBar::table_bar_band_is_seamless_data()
{
    QTest::addColumn<int>("direction");
    QTest::addColumn<bool>("header");
    QTest::addColumn<QPoint>("step");
    QTest::newRow("up, titles") << 0 << true << QPoint(0, -7);
    QTest::newRow("up, no titles") << 0 << false << QPoint(0, -7);
    QTest::newRow("down, titles") << 1 << true << QPoint(0, 5);
    QTest::newRow("down, no titles") << 1 << false << QPoint(0, 5);
    QTest::newRow("left") << 2 << true << QPoint(-9, 0);
    QTest::newRow("right") << 3 << false << QPoint(11, 0);
}

void tst_AlarmBar::table_bar_band_is_seamless()
{
    QFETCH(int, direction);
    QFETCH(bool, header);
    QFETCH(QPoint, step);
    // the creator makes a marquee for the sideways directions: the sideways table bar is made directly
    XAlarmBarControl* b = nullptr;
    QScopedPointer<XAlarmBarControl> owned;
    if (direction < 2) {
        QCOMPARE(create(20, direction, header), 0);
        b = qobject_cast<XAlarmBarControl*>(bar(20));
        sendAlarms(20, 6);
    } else {
        owned.reset(new XAlarmBarControl(ViewManage::getInstance()->windowManage()->getWindow(A)));
        b = owned.data();
        b->setSize(QSizeF(600, 120));
        b->setPosition(QPointF(20, 20));
        XAlarmBar::Setup s;
        for (const char* t : { "Time", "Alarm", "State" }) {
            XTableViewControl::Column c;
            c.title = t;
            c.width = 200;
            s.columns.append(c);
        }
        s.hideHeader = !header;
        s.headerHeight = 28;
        s.rowHeight = 30;
        QVERIFY(b->initialze(s, direction, 0, XQmlComponentManage::getInstance()->engine()));
        QVector<QVector<XTableCell>> rows(6, QVector<XTableCell>(3));
        rows[0][0].text = "first";
        b->updateData(rows);
        QCOMPARE(b->orientation(), Qt::Horizontal);
        QCOMPARE(b->contentWidth(), 600.0);
        // titles and rows together are centred in the bar
        const int titles = header ? 28 : 0;
        QCOMPARE(b->table()->y(), qreal(qFloor((120 - titles - 6 * 30) / 2.0) + titles));
    }
    QVERIFY(b);
    const bool vertical = direction < 2;
    const qreal size = vertical ? b->contentHeight() : b->contentWidth();
    QVERIFY(size > 0);
    XAlarmTableBar* first = b->table();
    XAlarmTableBar* second = b->secondTable();
    const QPointF start = first->position();
    const QPointF startSecond = second->position();
    const qreal expectedGap = (direction == 0 || direction == 2) ? size : -size;
    auto along = [vertical](const QPointF& p) { return vertical ? p.y() : p.x(); };
    QCOMPARE(along(startSecond) - along(start), expectedGap);

    const int move = vertical ? step.y() : step.x();
    const int steps = int(std::ceil(size / std::abs(move)));
    QCOMPARE(gapPixels(b), 0);
    for (int i = 0; i < steps - 1; ++i) {
        if (i == steps / 2)
            QCOMPARE(gapPixels(b), 0); // half way: both copies on screen, joined
        b->setCarouse(step);
        // the band is closed after every step: the follower one copy behind the leader
        QCOMPARE(along(b->secondTable()->position()) - along(b->table()->position()), expectedGap);
        QCOMPARE(b->table(), first);
    }
    b->setCarouse(step); // the leader is now a whole copy away: they swap
    QCOMPARE(gapPixels(b), 0);
    QCOMPARE(b->table(), second);
    QCOMPARE(b->secondTable(), first);
    QCOMPARE(along(b->secondTable()->position()) - along(b->table()->position()), expectedGap);
    // the new leader stands where the band has carried it, less than a copy from the start
    const qreal travelled = steps * move;
    QCOMPARE(along(b->table()->position()), along(start) + travelled + (move < 0 ? size : -size));
    if (vertical && header)
        QCOMPARE(b->tableHeader()->position(), QPointF(0, 0)); // the titles stay
    if (!vertical)
        QCOMPARE(b->tableHeader()->x(), b->table()->x()); // the titles travel with their copy

    // one step of many copies swaps once per copy and keeps the band closed
    b->setCarouse(step * int(3 * size));
    QCOMPARE(along(b->secondTable()->position()) - along(b->table()->position()), expectedGap);
    QCOMPARE(gapPixels(b), 0);
    // a step across the band's direction changes nothing
    const QPointF before = b->table()->position();
    b->setCarouse(vertical ? QPoint(40, 0) : QPoint(0, 40));
    QCOMPARE(b->table()->position(), before);
}

void tst_AlarmBar::short_alarm_lists_are_filled_with_empty_rows()
{
    QCOMPARE(create(30, 0, true, Rect { 20, 20, 600, 200 }), 0);
    auto* b = qobject_cast<XAlarmBarControl*>(bar(30));
    sendAlarms(30, 2);
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
    QCOMPARE(gapPixels(b), 0); // two alarms, and empty rows to the bottom
    QCOMPARE(b->getMinRowCount(), 7); // 200 / 30, rounded up
    QCOMPARE(b->model()->getActualRowCount(), 2);
    QCOMPARE(b->model()->rowCount(), 7);
    QCOMPARE(b->contentHeight(), 7 * 30.0);
    sendAlarms(30, 12); // more alarms than fit: all of them travel
    QCOMPARE(b->model()->rowCount(), 12);
    QCOMPARE(b->contentHeight(), 12 * 30.0);
    // the picture: the bar is covered by rows from edge to edge, titles on top
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
    QCOMPARE(gapPixels(b), 0);
}

void tst_AlarmBar::marquee_cells_fit_their_texts_and_run_endlessly_data()
{
    QTest::addColumn<int>("direction");
    QTest::newRow("right to left") << 2;
    QTest::newRow("left to right") << 3;
}

void tst_AlarmBar::marquee_cells_fit_their_texts_and_run_endlessly()
{
    QFETCH(int, direction);
    QCOMPARE(create(40, direction), 0);
    auto* b = qobject_cast<XHAlarmBarControl*>(bar(40));
    QVERIFY(b);
    sendAlarms(40, 3);
    XHAlarmBarRepeater* first = b->table();
    QCOMPARE(first->model(), 9); // three alarms of three columns
    QVERIFY(first->allLoaded());
    // widths: the fixed column's least width, or the text with colSpace on both sides
    const QFontMetricsF fm(b->getValue(1, XHAlarmBarControl::ContentFont).value<QFont>());
    QCOMPARE(b->getValue(1, XHAlarmBarControl::ContentFont).value<QFont>().pixelSize(), 16);
    QCOMPARE(first->cellAt(0)->width(), 160.0);
    QCOMPARE(first->cellAt(1)->width(), qreal(qCeil(fm.horizontalAdvance("Alarm number 0") + 12)));
    QCOMPARE(first->cellAt(2)->width(), 90.0);
    QCOMPARE(first->cellAt(1)->property("contentText").toString(), QString("Alarm number 0"));
    QCOMPARE(first->cellAt(4)->property("titleText").toString(), QString("Alarm"));
    QCOMPARE(b->getValue(1, XHAlarmBarControl::ContentText).toString(), QString("Alarm number 0"));
    QVERIFY(!b->getValue(7, XHAlarmBarControl::ContentText).isValid());
    // centred in the bar, the second run one run behind
    QCOMPARE(first->y(), qreal(qFloor((120 - first->height()) / 2)));
    const qreal w = qMax<qreal>(600, first->width());
    const qreal behind = direction == 2 ? w : -w;
    QCOMPARE(b->secondTable()->x() - first->x(), behind);
    // vertical steps are ignored
    b->setCarouse(QPoint(0, -5));
    QCOMPARE(first->x(), 0.0);
    const int dx = direction == 2 ? -8 : 8;
    const int steps = int(std::ceil(w / 8));
    for (int i = 0; i < steps; ++i)
        b->setCarouse(QPoint(dx, 0));
    QVERIFY(b->table() != first); // swapped once the run was a whole run away
    QCOMPARE(b->secondTable()->x() - b->table()->x(), behind);
    QVERIFY(std::abs(b->table()->x()) < w);
    // a bar without alarms has no cells and still takes steps
    sendAlarms(40, 0);
    QCOMPARE(b->table()->model(), 0);
    b->setCarouse(QPoint(dx, 0));
}

void tst_AlarmBar::list_calls_change_a_bar()
{
    QCOMPARE(create(50, 1), 0);
    auto* b = qobject_cast<XAlarmBarControl*>(bar(50));
    sendAlarms(50, 3);
    QCOMPARE(b->model()->cellText(2, 1), QString("Alarm number 2"));
    const std::vector<View_Text> titles { View_Text { 0, Rect {}, 0, "When", nullptr, nullptr },
        View_Text { 0, Rect {}, 0, "What", nullptr, nullptr } };
    QCOMPARE(View_ChangeListCtrlTitle(50, titles), 0);
    QCOMPARE(b->headerModel()->title(1), QString("What"));
    QCOMPARE(b->headerModel()->title(2), QString());
    QCOMPARE(View_ChangeListCtrlHideCol(50, { { 0, false }, { 9, false } }), 0);
    QCOMPARE(b->table()->columnWidthAt(0), 0.0);
    QCOMPARE(b->table()->columnWidthAt(1), 600.0 - 90);
    // table-only calls answer -1 for a bar
    QCOMPARE(View_ChangeListCtrlEnableFilter(50, true), -1);
    QCOMPARE(View_ChangeListCtrlRowTextVisible(50, { 0 }, false), -1);
    // deleted: the steps and the calls find nothing
    QCOMPARE(View_DeleteWidgets({ 50 }), 0);
    QCOMPARE(View_CarouselText(50, 0, 3), -1);
    QCOMPARE(View_ChangeListCtrlContent(50, {}), -1);
}

QGUI_GUIAPP_TEST_MAIN(tst_AlarmBar)
#include "tst_alarmbar.moc"
