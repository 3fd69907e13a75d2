// Menus on a real panel: the seven kinds built as drop-down boxes or in place,
// the press/release rules of the box and of the entries, the change calls with
// unknown ids, wrong kinds and bad texts, and what the operator sees.
#include "common/eventrecorder.h"
#include "common/guiapptestmain.h"
#include "common/panelfixture.h"
#include "common/testutil.h"

#include "app/xquickview.h"
#include "platform/xoverlay.h"
#include "platform/xpopup.h"
#include "views/viewmanage.h"
#include "xcomponents/qquick/xbasecontrol.h"
#include "xcomponents/qquick/xlistmodel.h"
#include "xcomponents/qquick/xlistviewcontrol.h"
#include "xcomponents/qquick/xquickcombobox.h"

#include <QImage>
#include <QQuickItem>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <qgui/events.h>
#include <qgui/view.h>

#include <functional>

using Creator = std::function<int(const View_Menu*, unsigned)>;
Q_DECLARE_METATYPE(Creator)

class tst_Menu : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void select_shows_the_chosen_entrys_picture();
    void list_model_announces_only_changed_rows();
    void every_kind_builds_a_closed_box_data();
    void every_kind_builds_a_closed_box();
    void null_record_or_unknown_window_makes_nothing();
    void box_reports_press_and_release_while_closed_data();
    void box_reports_press_and_release_while_closed();
    void press_on_the_open_box_sends_nothing_and_closes_data();
    void press_on_the_open_box_sends_nothing_and_closes();
    void entry_press_and_release_report_the_index_data();
    void entry_press_and_release_report_the_index();
    void in_place_list_reports_with_its_own_id_and_scrolls();
    void change_calls_on_unknown_ids_and_other_kinds_data();
    void change_calls_on_unknown_ids_and_other_kinds();
    void select_sets_the_display_text_data();
    void select_sets_the_display_text();
    void box_and_open_list_are_visible_on_screen();
    void pop_up_height_follows_the_entries_when_unset();
    void content_takes_any_texts_data();
    void content_takes_any_texts();
    void closing_the_window_or_deleting_the_box_closes_the_pop_up_data();
    void closing_the_window_or_deleting_the_box_closes_the_pop_up();

private:
    View_Menu menu(unsigned id, Rect r = Rect { 100, 100, 200, 36 }, unsigned flags = 0) const;
    static XQuickComboBox* box(unsigned id)
    {
        return qobject_cast<XQuickComboBox*>(ViewManage::getInstance()->getItemById(id));
    }
    static XListViewControl* list(unsigned id)
    {
        if (XQuickComboBox* b = box(id))
            return qobject_cast<XListViewControl*>(b->view());
        return qobject_cast<XListViewControl*>(ViewManage::getInstance()->getItemById(id));
    }
    /** Codes 2 and 3 in order, as "code:id" or "code:id:index". */
    QStringList pressEvents() const;
    static void fill(unsigned id, int n);

    PanelFixture m_panel;
    EventRecorder m_rec;
    Font m_font { nullptr, 16, 400, 0, 0, 0, 0, 0xFF000000u, QGUI_ALIGN_LEFT | QGUI_ALIGN_VCENTER };
    const unsigned A = PanelFixture::wid(1, 1);
};

View_Menu tst_Menu::menu(unsigned id, Rect r, unsigned flags) const
{
    View_Menu m {};
    m.rect = r;
    m.id = id;
    m.flags = flags;
    m.font = &m_font;
    m.boxColor = 0xFFFFFFFFu;
    m.backColor = 0xFFFFFFFFu;
    m.highlightColor = 0xFF0000FFu;
    m.frameColor = 0xFF000000u;
    m.borderWidth = 1;
    m.popHeight = 150;
    m.rowHeight = 30;
    return m;
}

void tst_Menu::init()
{
    QVERIFY(m_panel.start());
    m_rec.install();
    QCOMPARE(m_panel.switchWindow(A, Rect { 0, 0, 800, 480 }, 0xFFFFFFFFu), 0);
    m_rec.clear();
}

void tst_Menu::cleanup()
{
    m_panel.stop();
}

QStringList tst_Menu::pressEvents() const
{
    QStringList out;
    for (const auto& e : m_rec.events()) {
        if (e.code != EVT_WIDGET_PRESS && e.code != EVT_WIDGET_RELEASE)
            continue;
        QString s = QStringLiteral("%1:%2").arg(e.code).arg(e.id);
        if (!e.nullData)
            s += QStringLiteral(":%1").arg(e.intAt(0));
        out << s;
    }
    return out;
}

void tst_Menu::fill(unsigned id, int n)
{
    std::vector<QByteArray> texts;
    std::list<View_Text> entries;
    for (int i = 0; i < n; ++i)
        texts.push_back(QByteArray("entry ") + QByteArray::number(i));
    for (const QByteArray& t : texts)
        entries.push_back(View_Text { 0, Rect {}, 0, t.constData(), nullptr, nullptr });
    QCOMPARE(View_ChangeMenuContent(id, entries), 0);
}

void tst_Menu::every_kind_builds_a_closed_box_data()
{
    QTest::addColumn<Creator>("create");
    // every kind's record begins with the common part, so one View_Menu stands for all
    QTest::newRow("constants") << Creator([](const View_Menu* m, unsigned w) {
        return View_CreateMenuConst(reinterpret_cast<const View_MenuConst*>(m), w);
    });
    QTest::newRow("users") << Creator([](const View_Menu* m, unsigned w) {
        return View_CreateMenuUser(reinterpret_cast<const View_MenuUser*>(m), w);
    });
    QTest::newRow("notes") << Creator([](const View_Menu* m, unsigned w) {
        return View_CreateMenuNotes(reinterpret_cast<const View_MenuNotes*>(m), w);
    });
    QTest::newRow("variables") << Creator([](const View_Menu* m, unsigned w) {
        return View_CreateMenuVar(reinterpret_cast<const View_MenuVar*>(m), w);
    });
    QTest::newRow("permissions") << Creator([](const View_Menu* m, unsigned w) {
        return View_CreateMenuPermission(reinterpret_cast<const View_MenuPermission*>(m), w);
    });
    QTest::newRow("alarm levels") << Creator([](const View_Menu* m, unsigned w) {
        return View_CreateMenuAlarmLevel(reinterpret_cast<const View_MenuAlarmLevel*>(m), w);
    });
}

void tst_Menu::every_kind_builds_a_closed_box()
{
    QFETCH(Creator, create);
    const View_Menu m = menu(10, Rect { 100, 100, 201, 37 });
    QCOMPARE(create(&m, A), 0);
    XQuickComboBox* b = box(10);
    QVERIFY(b);
    QVERIFY(list(10));
    QVERIFY(!b->isPopupOpen());
    QCOMPARE(View_MenuPopupDropdownBox(10), 0);
    XPopup* p = b->popup();
    QVERIFY(p->isOpened());
    QVERIFY(p->isModal());
    QCOMPARE(p->z(), 2.0);
    QCOMPARE(p->width(), 201.0);
    QCOMPARE(p->height(), 150.0);
    // right under the box, on the overlay
    const QPointF under = p->mapToScene(QPointF(0, 0));
    const QPointF corner = b->mapToScene(QPointF(0, b->height()));
    QCOMPARE(under, corner);
    QCOMPARE(list(10)->getId(), 10u); // entries report with the box's id
}

void tst_Menu::null_record_or_unknown_window_makes_nothing()
{
    QCOMPARE(View_CreateMenuConst(nullptr, A), -1);
    QCOMPARE(View_CreateMenuTreeAlarmGrp(nullptr, A), -1);
    const View_Menu m = menu(11);
    QCOMPARE(View_CreateMenuUser(reinterpret_cast<const View_MenuUser*>(&m), PanelFixture::wid(1, 99)), -1);
    QCOMPARE(View_CreateMenuUser(reinterpret_cast<const View_MenuUser*>(&m), 0), -1);
    QVERIFY(!ViewManage::getInstance()->getItemById(11));
}

void tst_Menu::box_reports_press_and_release_while_closed_data()
{
    QTest::addColumn<bool>("touch");
    QTest::newRow("mouse") << false;
    QTest::newRow("touch") << true;
}

void tst_Menu::box_reports_press_and_release_while_closed()
{
    QFETCH(bool, touch);
    const View_Menu m = menu(12);
    QCOMPARE(View_CreateMenuConst(reinterpret_cast<const View_MenuConst*>(&m), A), 0);
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
    m_rec.clear();
    const QPoint at = m_panel.sceneCenter(box(12));
    touch ? m_panel.touch(at) : m_panel.click(at);
    QCOMPARE(pressEvents(), QStringList({ "2:12", "3:12" }));
    QVERIFY(!box(12)->isPopupOpen()); // only the logic layer opens it
}

void tst_Menu::press_on_the_open_box_sends_nothing_and_closes_data()
{
    QTest::addColumn<bool>("touch");
    QTest::newRow("mouse") << false;
    QTest::newRow("touch") << true;
}

void tst_Menu::press_on_the_open_box_sends_nothing_and_closes()
{
    QFETCH(bool, touch);
    const View_Menu m = menu(13);
    QCOMPARE(View_CreateMenuConst(reinterpret_cast<const View_MenuConst*>(&m), A), 0);
    fill(13, 3);
    QCOMPARE(View_MenuPopupDropdownBox(13), 0);
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
    m_rec.clear();
    const QPoint at = m_panel.sceneCenter(box(13));
    if (touch) {
        m_panel.touch(at);
    } else {
        m_panel.press(at);
        QVERIFY(pressEvents().isEmpty());
        m_panel.release(at);
    }
    QVERIFY(pressEvents().isEmpty());
    QVERIFY(!box(13)->isPopupOpen());
    // closed again, the box reports as before
    m_panel.click(at);
    QCOMPARE(pressEvents(), QStringList({ "2:13", "3:13" }));
}

void tst_Menu::entry_press_and_release_report_the_index_data()
{
    QTest::addColumn<bool>("touch");
    QTest::addColumn<int>("y"); // in the pop-up, rows of 30 pixels under a 1-pixel border
    QTest::addColumn<QStringList>("expected");
    QTest::addColumn<bool>("closes");
    QTest::newRow("first entry") << false << 10 << QStringList({ "2:14:0", "3:14:0" }) << true;
    QTest::newRow("third entry, touch") << true << 80 << QStringList({ "2:14:2", "3:14:2" }) << true;
    QTest::newRow("below the last entry") << false << 120 << QStringList() << false;
}

void tst_Menu::entry_press_and_release_report_the_index()
{
    QFETCH(bool, touch);
    QFETCH(int, y);
    QFETCH(QStringList, expected);
    QFETCH(bool, closes);
    const View_Menu m = menu(14);
    QCOMPARE(View_CreateMenuVar(reinterpret_cast<const View_MenuVar*>(&m), A), 0);
    fill(14, 3);
    QCOMPARE(View_MenuPopupDropdownBox(14), 0);
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
    m_rec.clear();
    QSignalSpy clicked(list(14), SIGNAL(itemClicked(int)));
    const QPoint at = m_panel.scenePoint(list(14), QPointF(50, y));
    touch ? m_panel.touch(at) : m_panel.click(at);
    QCOMPARE(pressEvents(), expected);
    QCOMPARE(clicked.count(), expected.isEmpty() ? 0 : 1);
    QCOMPARE(box(14)->isPopupOpen(), !closes);
    QCOMPARE(list(14)->currentIndex(), -1); // the choice is the logic layer's to show
}

void tst_Menu::in_place_list_reports_with_its_own_id_and_scrolls()
{
    const View_Menu m = menu(15, Rect { 300, 50, 200, 92 }, MENU_IN_PLACE);
    QCOMPARE(View_CreateMenuNotes(reinterpret_cast<const View_MenuNotes*>(&m), A), 0);
    QVERIFY(!box(15));
    XListViewControl* l = list(15);
    QVERIFY(l);
    QCOMPARE(l->position(), QPointF(300, 50));
    fill(15, 20);
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
    m_rec.clear();
    m_panel.click(m_panel.scenePoint(l, QPointF(20, 40)));
    QCOMPARE(pressEvents(), QStringList({ "2:15:1", "3:15:1" }));
    // a drag scrolls the entries; the press is still closed by a release with its index
    m_rec.clear();
    QTest::mousePress(m_panel.view(), Qt::LeftButton, {}, m_panel.scenePoint(l, QPointF(20, 85)));
    for (int y = 80; y >= 25; y -= 5)
        QTest::mouseMove(m_panel.view(), m_panel.scenePoint(l, QPointF(20, y)));
    QTest::mouseRelease(m_panel.view(), Qt::LeftButton, {}, m_panel.scenePoint(l, QPointF(20, 25)));
    QCOMPARE(pressEvents(), QStringList({ "2:15:2", "3:15:2" }));
    QCOMPARE(l->contentY(), 60.0);
    m_rec.clear();
    m_panel.click(m_panel.scenePoint(l, QPointF(20, 10)));
    QCOMPARE(pressEvents(), QStringList({ "2:15:2", "3:15:2" }));
    // the scroll stops at the last entry
    l->setContentY(1e9);
    QCOMPARE(l->contentY(), 20 * 30.0 - 90);
}

void tst_Menu::change_calls_on_unknown_ids_and_other_kinds_data()
{
    QTest::addColumn<unsigned>("id");
    QTest::newRow("unknown id") << 999u;
    QTest::newRow("id 0") << 0u;
    QTest::newRow("a plain control") << 50u;
}

void tst_Menu::change_calls_on_unknown_ids_and_other_kinds()
{
    QFETCH(unsigned, id);
    QVERIFY(PanelFixture::control(50, A));
    const std::list<View_Text> entries { View_Text { 0, Rect {}, 0, "x", nullptr, nullptr } };
    const View_Text text { 0, Rect {}, 0, "x", nullptr, nullptr };
    const View_TreeNode root {};
    QCOMPARE(View_ChangeMenuContent(id, entries), -1);
    QCOMPARE(View_ChangeMenuSelect(id, 0, nullptr, &text), -1);
    QCOMPARE(View_ChangeMenuTreeContent(id, &root), -1);
    QCOMPARE(View_ChangeMenuTreeSelect(id, 0, &text), -1);
    QCOMPARE(View_MenuPopupDropdownBox(id), -1);
}

void tst_Menu::select_sets_the_display_text_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("nullText");
    QTest::addColumn<QString>("shown");
    QTest::newRow("plain") << QByteArray("Level 2") << false << QStringLiteral("Level 2");
    QTest::newRow("chinese") << QByteArray("报警组") << false << QStringLiteral("报警组");
    QTest::newRow("invalid utf-8") << QByteArray("a\xff\xfe" "b") << false
                                   << QString::fromUtf8("a\xff\xfe" "b");
    QTest::newRow("megabyte text is cut") << QByteArray(1 << 20, 'w') << false
                                          << QString(4095, 'w') + QChar(0x2026);
    QTest::newRow("null text keeps the text") << QByteArray() << true << QStringLiteral("before");
}

void tst_Menu::select_sets_the_display_text()
{
    QFETCH(QByteArray, text);
    QFETCH(bool, nullText);
    QFETCH(QString, shown);
    const View_Menu m = menu(16);
    QCOMPARE(View_CreateMenuPermission(reinterpret_cast<const View_MenuPermission*>(&m), A), 0);
    fill(16, 3);
    const View_Text before { 0, Rect {}, 0, "before", nullptr, nullptr };
    QCOMPARE(View_ChangeMenuSelect(16, 0, nullptr, &before), 0);
    const View_Text t { 0, Rect {}, 0, text.constData(), nullptr, nullptr };
    QCOMPARE(View_ChangeMenuSelect(16, 2, nullptr, nullText ? nullptr : &t), 0);
    QCOMPARE(box(16)->displayText(), shown);
    QCOMPARE(list(16)->currentIndex(), 2);
    QVERIFY(TestUtil::waitForFrame(m_panel.view())); // a huge text still draws
}

void tst_Menu::select_shows_the_chosen_entrys_picture()
{
    QTemporaryDir dir;
    QImage green(32, 32, QImage::Format_RGB32);
    green.fill(QColor(0, 200, 0));
    const QByteArray path = (dir.path() + "/green.png").toUtf8();
    QVERIFY(green.save(QString::fromUtf8(path)));
    View_Menu m = menu(18, Rect { 100, 100, 240, 40 });
    QCOMPARE(View_CreateMenuConst(reinterpret_cast<const View_MenuConst*>(&m), A), 0);
    fill(18, 3);
    const View_Text t { 0, Rect {}, 0, "entry 1", nullptr, nullptr };
    const View_Image picture { 0, Rect {}, 0, path.constData(), 0 };
    QCOMPARE(View_ChangeMenuSelect(18, 1, &picture, &t), 0);
    QVERIFY(!box(18)->displayImage().isEmpty());
    // drawn before the text, on the left of the box
    QTRY_COMPARE(QColor(m_panel.view()->grabWindow().pixel(m_panel.scenePoint(box(18), QPointF(12, 20)))),
        QColor(0, 200, 0));
    QCOMPARE(View_ChangeMenuSelect(18, 2, nullptr, &t), 0); // null keeps the picture
    QVERIFY(!box(18)->displayImage().isEmpty());
    const View_Image none { 0, Rect {}, 0, "", 0 };
    QCOMPARE(View_ChangeMenuSelect(18, 2, &none, nullptr), 0); // an empty path takes it away
    QVERIFY(box(18)->displayImage().isEmpty());
}

void tst_Menu::list_model_announces_only_changed_rows()
{
    XListModel model;
    QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
    model.setEntries({ "a", "b", "c" });
    QCOMPARE(resets.size(), 1);
    model.setEntries({ "a", "B", "c" }); // as many entries: only the changed row
    QCOMPARE(resets.size(), 1);
    QCOMPARE(changes.size(), 1);
    QCOMPARE(changes.first().at(0).value<QModelIndex>().row(), 1);
    changes.clear();
    model.setCurrentIndex(2);
    model.setCurrentIndex(0); // the old and the new current row
    QCOMPARE(changes.size(), 3);
    QCOMPARE(model.data(model.index(0), XListModel::CurrentRole).toBool(), true);
    QCOMPARE(model.data(model.index(2), XListModel::CurrentRole).toBool(), false);
    model.setCurrentIndex(99); // no such row: none is current, nothing to announce for it
    QCOMPARE(model.data(model.index(0), XListModel::CurrentRole).toBool(), false);
    QCOMPARE(model.data(model.index(7), Qt::DisplayRole), QVariant());
}

void tst_Menu::box_and_open_list_are_visible_on_screen()
{
    View_Menu m = menu(17, Rect { 100, 100, 200, 36 });
    m.highlightColor = 0xFF00FF00u; // green current entry
    QCOMPARE(View_CreateMenuConst(reinterpret_cast<const View_MenuConst*>(&m), A), 0);
    fill(17, 3);
    const View_Text t { 0, Rect {}, 0, "entry 1", nullptr, nullptr };
    QCOMPARE(View_ChangeMenuSelect(17, 1, nullptr, &t), 0);
    QCOMPARE(View_MenuPopupDropdownBox(17), 0);
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
    const QImage img = m_panel.view()->grabWindow();
    QVERIFY(!img.isNull());
    const auto pixel = [&](const QQuickItem* item, QPointF p) {
        return QColor(img.pixel(m_panel.scenePoint(item, p)));
    };
    // the arrow strip: grey inside a darker 2-pixel border, at the box's right edge
    QCOMPARE(pixel(box(17), QPointF(200 - 9, 5)), QColor("#cbcbcb"));
    QCOMPARE(pixel(box(17), QPointF(200 - 17, 18)), QColor("#888888"));
    // the current entry (second row) is highlighted in the open pop-up, the others are not
    QCOMPARE(pixel(list(17), QPointF(190, 45)), QColor(0, 255, 0));
    QCOMPARE(pixel(list(17), QPointF(190, 15)), QColor(255, 255, 255));
}

void tst_Menu::pop_up_height_follows_the_entries_when_unset()
{
    View_Menu m = menu(19);
    m.popHeight = 0;
    QCOMPARE(View_CreateMenuAlarmLevel(reinterpret_cast<const View_MenuAlarmLevel*>(&m), A), 0);
    QCOMPARE(box(19)->popHeight(), 1 * 30 + 2); // room for one row while empty
    fill(19, 3);
    QCOMPARE(box(19)->popHeight(), 3 * 30 + 2);
    fill(19, 50);
    QCOMPARE(box(19)->popHeight(), 8 * 30 + 2); // longer lists scroll
}

void tst_Menu::content_takes_any_texts_data()
{
    QTest::addColumn<QByteArray>("text"); // every entry's text; "<null>" for a null pointer
    QTest::addColumn<int>("count");
    QTest::addColumn<QString>("shown");
    QTest::newRow("empty list") << QByteArray("x") << 0 << QString();
    QTest::newRow("null texts are empty") << QByteArray("<null>") << 2 << QString();
    QTest::newRow("invalid utf-8") << QByteArray("\xc3(\xff") << 2 << QString::fromUtf8("\xc3(\xff");
    QTest::newRow("megabyte texts are cut") << QByteArray(1 << 20, 'm') << 3 << QString(4095, 'm') + QChar(0x2026);
    QTest::newRow("10000 entries") << QByteArray("e") << 10000 << QStringLiteral("e");
}

void tst_Menu::content_takes_any_texts()
{
    QFETCH(QByteArray, text);
    QFETCH(int, count);
    QFETCH(QString, shown);
    const View_Menu m = menu(25);
    QCOMPARE(View_CreateMenuConst(reinterpret_cast<const View_MenuConst*>(&m), A), 0);
    const char* p = text == "<null>" ? nullptr : text.constData();
    const std::list<View_Text> entries(size_t(count), View_Text { 0, Rect {}, 0, p, nullptr, nullptr });
    QCOMPARE(View_ChangeMenuContent(25, entries), 0);
    QCOMPARE(list(25)->count(), count);
    if (count > 0)
        QCOMPARE(list(25)->entries().constLast(), shown);
    QCOMPARE(View_MenuPopupDropdownBox(25), 0);
    XListViewControl* l = list(25);
    l->setContentY(1e12); // scrolled to the end (when the entries need it), the last entry is the last row
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
    const bool scrolls = count * 30 > l->height() - 2;
    QCOMPARE(l->contentY(), scrolls ? count * 30 - (l->height() - 2) : 0.0);
    if (count > 0)
        QCOMPARE(l->indexAt(QPointF(10, scrolls ? l->height() - 5 : 1 + (count - 1) * 30 + 15)), count - 1);
}

void tst_Menu::closing_the_window_or_deleting_the_box_closes_the_pop_up_data()
{
    QTest::addColumn<bool>("deleteBox");
    QTest::newRow("window closed") << false;
    QTest::newRow("box deleted") << true;
}

void tst_Menu::closing_the_window_or_deleting_the_box_closes_the_pop_up()
{
    QFETCH(bool, deleteBox);
    const View_Menu m = menu(18);
    QCOMPARE(View_CreateMenuUser(reinterpret_cast<const View_MenuUser*>(&m), A), 0);
    fill(18, 3);
    QCOMPARE(View_MenuPopupDropdownBox(18), 0);
    XOverlay* overlay = box(18)->popup()->overlay();
    QVERIFY(overlay);
    QCOMPARE(overlay->openCount(), 1);
    if (deleteBox)
        QCOMPARE(View_DeleteWidgets({ 18u }), 0);
    else
        QCOMPARE(View_CloseWindow(A), 0);
    PanelFixture::settle();
    QCOMPARE(overlay->openCount(), 0); // the panel takes presses again
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
}

QGUI_GUIAPP_TEST_MAIN(tst_Menu)
#include "tst_menu.moc"
