// The sort and filter menus of a table on a real panel: a tap on a header title
// opens the column's menu, orders are checked and unchecked, the filter dialog
// offers the operators of the column's values, takes its values from the
// keyboard and sends the filter record; the dialog follows the language.
#include "common/eventrecorder.h"
#include "common/guiapptestmain.h"
#include "common/panelfixture.h"
#include "common/testutil.h"

#include "app/xquickview.h"
#include "config/globalconfig.h"
#include "platform/xoverlay.h"
#include "views/qmlwindowmanage.h"
#include "views/viewmanage.h"
#include "views/virtualkeyboardmanager.h"
#include "xcomponents/qquick/xcommontableview.h"
#include "xcomponents/qquick/xquickheadermodel.h"
#include "xcomponents/qquick/xtablefilterdlg.h"
#include "xcomponents/qquick/xtablefiltermenu.h"
#include "xcomponents/qquick/xtableviewcontrol.h"

#include <QQuickItem>

#include <qgui/events.h>

class tst_TableFilter : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void a_title_tap_opens_the_menu_only_while_menus_are_on();
    void orders_are_checked_and_unchecked();
    void each_kind_of_values_has_its_operators_data();
    void each_kind_of_values_has_its_operators();
    void the_dialog_sends_the_typed_conditions_data();
    void the_dialog_sends_the_typed_conditions();
    void dates_and_booleans_commit_their_operators_data();
    void dates_and_booleans_commit_their_operators();
    void clear_and_cancel();
    void operator_names_follow_the_language_and_the_choice_stays();
    void menus_close_with_the_table_and_bad_columns_open_nothing();

private:
    static XTableViewControl* table(unsigned id)
    {
        return qobject_cast<XTableViewControl*>(ViewManage::getInstance()->getItemById(id));
    }
    XTableViewControl* makeTable(unsigned id, bool filter);
    QPoint titleCenter(XTableViewControl* t, int column) const;
    void tap(QQuickItem* root, const char* name);

    PanelFixture m_panel;
    EventRecorder m_rec;
    Font m_font { nullptr, 16, 400, 0, 0, 0, 0, 0xFF000000u, 0 };
    View_ListColumn m_columns[5] = {
        { "Name", 160, 0, COL_STRING, nullptr, 0, 0 },
        { "Value", 0, 0, COL_INT32, nullptr, 0, 0 },
        { "Time", 180, 0, COL_DATETIME, nullptr, 0, 0 },
        { "On", 60, 0, COL_BOOL, nullptr, 0, 0 },
        { "Raw", 60, 0, 99, nullptr, 0, 0 }, // a type code without filter
    };
    const unsigned A = PanelFixture::wid(1, 1);
};

XTableViewControl* tst_TableFilter::makeTable(unsigned id, bool filter)
{
    View_List rec {};
    rec.rect = Rect { 20, 20, 700, 300 };
    rec.id = id;
    rec.columns = m_columns;
    rec.columnCount = 5;
    rec.rowHeight = 30;
    rec.headerHeight = 40;
    rec.headerFont = &m_font;
    rec.contentFont = &m_font;
    rec.flags = filter ? LIST_ENABLE_FILTER : 0;
    if (View_CreateListCtrl(&rec, A) != 0)
        return nullptr;
    TestUtil::waitForFrame(m_panel.view());
    return table(id);
}

QPoint tst_TableFilter::titleCenter(XTableViewControl* t, int column) const
{
    const QVector<qreal> widths = t->getActualColumnWidth();
    qreal x = 0;
    for (int c = 0; c < column; ++c)
        x += widths.at(c);
    return m_panel.scenePoint(t, QPointF(x + widths.at(column) / 2, t->headerHeight() / 2.0));
}

void tst_TableFilter::tap(QQuickItem* root, const char* name)
{
    QQuickItem* item = TestUtil::findItem(root, QString::fromLatin1(name));
    QVERIFY2(item && item->isVisible(), name);
    m_panel.click(m_panel.sceneCenter(item));
}

void tst_TableFilter::init()
{
    QVERIFY(m_panel.start());
    m_rec.install();
    m_rec.setPressPayloadSize(sizeof(View_EvtCell));
    QCOMPARE(m_panel.switchWindow(A, Rect { 0, 0, 800, 480 }, 0xFFFFFFFFu), 0);
    m_rec.clear();
}

void tst_TableFilter::cleanup()
{
    m_columns[1].dataType = COL_INT32;
    GlobalConfig::getInstance()->setLocale(1);
    m_panel.stop();
}

void tst_TableFilter::a_title_tap_opens_the_menu_only_while_menus_are_on()
{
    XTableViewControl* t = makeTable(10, false);
    QVERIFY(t);
    m_panel.click(titleCenter(t, 1));
    QVERIFY(!t->filterMenu() || !t->filterMenu()->isOpened());
    // the press on the header is still reported, outside the cells
    QCOMPARE(m_rec.eventsWithCode(EVT_WIDGET_PRESS).size(), 1);

    QCOMPARE(View_ChangeListCtrlEnableFilter(10, true), 0);
    m_panel.click(titleCenter(t, 1));
    XTableFilterMenu* menu = t->filterMenu();
    QVERIFY(menu && menu->isOpened());
    QCOMPARE(menu->column(), 1);
    QCOMPARE(menu->getFitterTypeStr(), QString("Num Filter"));
    QCOMPARE(menu->widgetId(), 10u);
    // under the column's title, inside the panel
    const QPointF corner = menu->mapToScene(QPointF(0, 0));
    QCOMPARE(corner.y(), m_panel.scenePoint(t, QPointF(0, t->headerHeight())).y());
    QVERIFY(corner.x() >= m_panel.scenePoint(t, QPointF(160, 0)).x() - 1);
    QVERIFY(corner.x() + menu->width() <= 800);

    // a press outside closes it; the table underneath is not pressed
    m_rec.clear();
    m_panel.click(QPoint(780, 460));
    QVERIFY(!menu->isOpened());

    // a title near the right edge keeps the menu inside the panel
    m_panel.click(titleCenter(t, 4));
    QVERIFY(menu->isOpened());
    QVERIFY(menu->mapToScene(QPointF(menu->width(), 0)).x() <= 800);

    // switched off: the open menu goes, taps open nothing
    QCOMPARE(View_ChangeListCtrlEnableFilter(10, false), 0);
    QVERIFY(!menu->isOpened());
    m_panel.click(titleCenter(t, 1));
    QVERIFY(!menu->isOpened());
}

void tst_TableFilter::orders_are_checked_and_unchecked()
{
    XTableViewControl* t = makeTable(11, true);
    QVERIFY(t);
    XQuickHeaderModel* header = t->header()->headerModel();
    auto sortSent = [this] {
        const QList<EventRecorder::Event> sent = m_rec.eventsWithCode(EVT_LIST_SORT);
        if (sent.size() != 1)
            return QString("%1 events").arg(sent.size());
        const auto* s = reinterpret_cast<const View_EvtListSort*>(sent.first().payload.constData());
        return QString("%1,%2").arg(s->order).arg(s->column);
    };

    // the titles are named by their column (scripts find them)
    QQuickItem* title2 = TestUtil::findItem(t->header(), "headerTitle2");
    QVERIFY(title2);
    QCOMPARE(m_panel.sceneCenter(title2), titleCenter(t, 2));
    m_panel.click(titleCenter(t, 2));
    tap(t->filterMenu(), "ascendAction");
    QCOMPARE(sortSent(), QString("0,2"));
    QVERIFY(!t->filterMenu()->isOpened());
    QCOMPARE(header->checkedColumn(), 2);
    QCOMPARE(header->data(header->index(0, 2), XQuickHeaderModel::OrderRole).toInt(), int(ORDER_ASCEND));

    // reopened, the column's order is ticked; touching it again unchecks it
    m_rec.clear();
    m_panel.click(titleCenter(t, 2));
    QCOMPARE(t->filterMenu()->order(), int(ORDER_ASCEND));
    tap(t->filterMenu(), "ascendAction");
    QCOMPARE(sortSent(), QString("1,2"));
    QCOMPARE(header->checkedColumn(), -1);

    // another column's menu starts unsorted; descending moves the mark there
    m_rec.clear();
    m_panel.click(titleCenter(t, 0));
    QCOMPARE(t->filterMenu()->order(), int(ORDER_NONE));
    tap(t->filterMenu(), "descendAction");
    QCOMPARE(sortSent(), QString("2,0"));
    QCOMPARE(header->checkedColumn(), 0);
    m_panel.click(titleCenter(t, 2));
    QCOMPARE(t->filterMenu()->order(), int(ORDER_NONE));
}

void tst_TableFilter::each_kind_of_values_has_its_operators_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QVariantList>("operators");
    const QVariantList eq { OPERATOR_EQUAL, OPERATOR_NOT_EQUAL };
    const QVariantList cmp { OPERATOR_LESS, OPERATOR_LESS_EQUAL, OPERATOR_MORE, OPERATOR_MORE_EQUAL };
    QTest::newRow("bool") << int(COL_BOOL) << "Num Filter" << eq;
    QTest::newRow("bit") << int(COL_BIT) << "Num Filter" << eq;
    QTest::newRow("int32") << int(COL_INT32) << "Num Filter" << (eq + cmp);
    QTest::newRow("double") << int(COL_DOUBLE) << "Num Filter" << (eq + cmp);
    QTest::newRow("uint64 alt") << int(COL_UINT64_ALT) << "Num Filter" << (eq + cmp);
    QTest::newRow("string") << int(COL_STRING) << "Text Filter" << (eq + QVariantList { OPERATOR_LIKE });
    QTest::newRow("time") << int(COL_TIME) << "Date Filter" << cmp;
    QTest::newRow("date") << int(COL_DATE) << "Date Filter" << cmp;
    QTest::newRow("datetime alt") << int(COL_DATETIME_ALT) << "Date Filter" << cmp;
    QTest::newRow("unknown code") << 99 << "" << QVariantList();
    QTest::newRow("negative code") << -5 << "" << QVariantList();
}

void tst_TableFilter::each_kind_of_values_has_its_operators()
{
    QFETCH(int, type);
    QFETCH(QString, title);
    QFETCH(QVariantList, operators);
    m_columns[1].dataType = type;
    XTableViewControl* t = makeTable(12, true);
    QVERIFY(t);
    QVERIFY(t->openFilterMenu(1));
    XTableFilterMenu* menu = t->filterMenu();
    QCOMPARE(menu->getFitterTypeStr(), title);
    QCOMPARE(menu->operators(), operators);
    QCOMPARE(menu->filterDisabled(), operators.isEmpty());
    // the submenu lists them; a column without filter has "Clear" and the submenu disabled
    QQuickItem* clear = TestUtil::findItem(menu, "clearAction");
    QVERIFY(clear);
    QCOMPARE(clear->property("enabledEntry").toBool(), !operators.isEmpty());
    if (operators.isEmpty()) {
        tap(menu, "filterMenu");
        QVERIFY(menu->isOpened()); // nothing happened
        QVERIFY(!t->openFilterDlg(1));
        return;
    }
    tap(menu, "filterMenu");
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
    for (const QVariant& op : operators)
        QVERIFY(TestUtil::findItem(menu, "operator" + op.toString()));
    const int last = operators.last().toInt();
    tap(menu, qPrintable("operator" + QString::number(last)));
    XTableFilterDlg* dlg = t->filterDialog();
    QVERIFY(dlg && dlg->isOpened());
    QVERIFY(!menu->isOpened());
    QCOMPARE(dlg->operatorNames().size(), operators.size());
    QCOMPARE(dlg->operatorOf(0), last); // the entry chosen is the first condition's operator
    QCOMPARE(dlg->operatorOf(1), operators.first().toInt());
}

void tst_TableFilter::the_dialog_sends_the_typed_conditions_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QStringList>("keys1");
    QTest::addColumn<int>("op2Index");
    QTest::addColumn<QStringList>("keys2");
    QTest::addColumn<bool>("orJoin");
    QTest::addColumn<QString>("record");
    QTest::newRow("one text condition")
        << 0 << QStringList { "a", "b" } << 0 << QStringList() << false
        << QString("0|ab|%1||0|0").arg(OPERATOR_EQUAL);
    QTest::newRow("two numbers with or")
        << 1 << QStringList { "1", "0" } << 4 << QStringList { "9", "0" } << true
        << QString("1|10|%1|90|%2|%3").arg(OPERATOR_EQUAL).arg(OPERATOR_MORE).arg(OPERATOR_LOGICAL_OR);
    QTest::newRow("two numbers with and")
        << 1 << QStringList { "5" } << 2 << QStringList { "8" } << false
        << QString("1|5|%1|8|%2|%3").arg(OPERATOR_EQUAL).arg(OPERATOR_LESS).arg(OPERATOR_LOGICAL_AND);
}

void tst_TableFilter::the_dialog_sends_the_typed_conditions()
{
    QFETCH(int, column);
    QFETCH(QStringList, keys1);
    QFETCH(int, op2Index);
    QFETCH(QStringList, keys2);
    QFETCH(bool, orJoin);
    QFETCH(QString, record);
    XTableViewControl* t = makeTable(13, true);
    QVERIFY(t);
    VirtualKeyboardManager* vkb = VirtualKeyboardManager::instance();
    QVERIFY(t->openFilterDlg(column));
    XTableFilterDlg* dlg = t->filterDialog();
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
    QCOMPARE(dlg->columnTitle(), QString::fromLatin1(m_columns[column].title));

    // "Commit" does nothing before the first value is typed
    tap(dlg, "commitButton");
    QVERIFY(dlg->isOpened());
    QCOMPARE(m_rec.eventsWithCode(EVT_LIST_FILTER).size(), 0);

    tap(dlg, "value1");
    QVERIFY(vkb->isShown());
    QVERIFY(m_panel.typeOnKeyboard(keys1 + QStringList { "enter" }));
    QVERIFY(!vkb->isShown());
    QCOMPARE(dlg->value1(), keys1.join(QString()));
    if (!keys2.isEmpty()) {
        // the second operator chosen through its drop-down box
        tap(dlg, "operator2");
        QVERIFY(TestUtil::waitForFrame(m_panel.view()));
        tap(TestUtil::findItem(dlg, "operator2"), qPrintable(QString("operatorEntry%1").arg(op2Index)));
        QCOMPARE(dlg->operator2Index(), op2Index);
        tap(dlg, "value2");
        QVERIFY(m_panel.typeOnKeyboard(keys2 + QStringList { "enter" }));
    }
    tap(dlg, orJoin ? "orButton" : "andButton");
    QCOMPARE(dlg->joinOr(), orJoin);
    // no key press reached the logic layer: the values are the dialog's
    QCOMPARE(m_rec.eventsWithCode(EVT_VKB_ENTER).size(), 0);

    tap(dlg, "commitButton");
    QVERIFY(!dlg->isOpened());
    const QList<EventRecorder::Event> sent = m_rec.eventsWithCode(EVT_LIST_FILTER);
    QCOMPARE(sent.size(), 1);
    QCOMPARE(sent.first().id, 13u);
    QCOMPARE(sent.first().text(), record);
    QVERIFY(t->header()->headerModel()->isColumnFiltered(column));
}

void tst_TableFilter::dates_and_booleans_commit_their_operators_data()
{
    QTest::addColumn<int>("column");
    QTest::addColumn<QString>("value1");
    QTest::addColumn<int>("op1Index");
    QTest::addColumn<QString>("value2");
    QTest::addColumn<int>("op2Index");
    QTest::addColumn<bool>("orJoin");
    QTest::addColumn<QString>("record");
    QTest::newRow("date-time range") << 2 << "2026-11-01 00:00:00" << 3 << "2026-11-02 00:00:00" << 0 << false
                                     << QString("2|2026-11-01 00:00:00|%1|2026-11-02 00:00:00|%2|%3")
                                            .arg(OPERATOR_MORE_EQUAL)
                                            .arg(OPERATOR_LESS)
                                            .arg(OPERATOR_LOGICAL_AND);
    QTest::newRow("date-time before") << 2 << "2026-11-01 06:00:00" << 0 << "" << 2 << true
                                      << QString("2|2026-11-01 06:00:00|%1||0|0").arg(OPERATOR_LESS);
    QTest::newRow("boolean either") << 3 << "1" << 0 << "0" << 1 << true
                                    << QString("3|1|%1|0|%2|%3")
                                           .arg(OPERATOR_EQUAL)
                                           .arg(OPERATOR_NOT_EQUAL)
                                           .arg(OPERATOR_LOGICAL_OR);
    QTest::newRow("text with quotes and multibyte") << 0 << QString::fromUtf8("a'b æ³µ") << 2 << "" << 0
                                                    << false
                                                    << QString::fromUtf8("0|a'b æ³µ|%1||0|0").arg(OPERATOR_LIKE);
}

void tst_TableFilter::dates_and_booleans_commit_their_operators()
{
    QFETCH(int, column);
    QFETCH(QString, value1);
    QFETCH(int, op1Index);
    QFETCH(QString, value2);
    QFETCH(int, op2Index);
    QFETCH(bool, orJoin);
    QFETCH(QString, record);
    XTableViewControl* t = makeTable(17, true);
    QVERIFY(t);
    QVERIFY(t->openFilterDlg(column));
    XTableFilterDlg* dlg = t->filterDialog();
    dlg->setOperator1Index(op1Index);
    dlg->setOperator2Index(op2Index);
    dlg->setValue(0, value1);
    dlg->setValue(1, value2);
    dlg->setJoinOr(orJoin);
    dlg->commit();
    QVERIFY(!dlg->isOpened());
    QCOMPARE(m_rec.eventsWithCode(EVT_LIST_FILTER).value(0).text(), record);
}

void tst_TableFilter::clear_and_cancel()
{
    XTableViewControl* t = makeTable(14, true);
    QVERIFY(t);
    // a filter set, then cleared from the menu
    QVERIFY(t->openFilterDlg(1));
    t->filterDialog()->setValue(0, "3");
    t->filterDialog()->commit();
    QVERIFY(t->header()->headerModel()->isColumnFiltered(1));
    m_rec.clear();
    m_panel.click(titleCenter(t, 1));
    tap(t->filterMenu(), "clearAction");
    QCOMPARE(m_rec.eventsWithCode(EVT_LIST_FILTER).value(0).text(), QString("1||0||0|0"));
    QVERIFY(!t->header()->headerModel()->isColumnFiltered(1));
    QVERIFY(!t->filterMenu()->isOpened());

    // "Cancel" sends nothing, and the keyboard open for a value goes with the dialog
    m_rec.clear();
    QVERIFY(t->openFilterDlg(0));
    tap(t->filterDialog(), "value1");
    VirtualKeyboardManager* vkb = VirtualKeyboardManager::instance();
    QVERIFY(vkb->isShown());
    t->filterDialog()->cancel();
    QVERIFY(!vkb->isShown());
    QCOMPARE(m_rec.eventsWithCode(EVT_LIST_FILTER).size(), 0);
    QVERIFY(!t->header()->headerModel()->isColumnFiltered(0));
}

void tst_TableFilter::operator_names_follow_the_language_and_the_choice_stays()
{
    XTableViewControl* t = makeTable(15, true);
    QVERIFY(t);
    QVERIFY(t->openFilterDlg(1, OPERATOR_LESS_EQUAL));
    XTableFilterDlg* dlg = t->filterDialog();
    dlg->setOperator2Index(5);
    QCOMPARE(dlg->operatorNames().value(3), QString("LessOrEqual"));
    GlobalConfig::getInstance()->setLocale(0); // while it is open
    QCOMPARE(dlg->operatorNames().value(3), QString::fromUtf8("小于等于"));
    QCOMPARE(dlg->operator1Index(), 3);
    QCOMPARE(dlg->operatorOf(1), int(OPERATOR_MORE_EQUAL));
    QQuickItem* commit = TestUtil::findItem(dlg, "commitButton");
    QCOMPARE(commit->property("label").toString(), QString::fromUtf8("提交"));
    GlobalConfig::getInstance()->setLocale(1);
    QCOMPARE(dlg->operatorNames().value(3), QString("LessOrEqual"));
    QCOMPARE(dlg->operator1Index(), 3);
}

void tst_TableFilter::menus_close_with_the_table_and_bad_columns_open_nothing()
{
    XTableViewControl* t = makeTable(16, true);
    QVERIFY(t);
    QVERIFY(!t->openFilterMenu(-1));
    QVERIFY(!t->openFilterMenu(5));
    QVERIFY(!t->openFilterDlg(99));
    QVERIFY(!t->openFilterDlg(4)); // a column whose values have no filter
    QCOMPARE(View_ChangeListCtrlHideCol(16, { { 2, false } }), 0);
    QVERIFY(!t->openFilterMenu(2));

    // the dialog open with the keyboard when its window is hidden: both go, nothing is sent
    QVERIFY(t->openFilterDlg(0));
    tap(t->filterDialog(), "value1");
    QVERIFY(VirtualKeyboardManager::instance()->isShown());
    QPointer<XTableFilterDlg> dlg = t->filterDialog();
    QCOMPARE(View_HideWindow(A), 0);
    QVERIFY(!dlg->isOpened());
    QVERIFY(!VirtualKeyboardManager::instance()->isShown());

    // deleted while its menu is open: the menu goes with it
    QCOMPARE(View_ShowWindow(A, true), 0);
    QVERIFY(t->openFilterMenu(0));
    QPointer<XTableFilterMenu> menu = t->filterMenu();
    XOverlay* overlay = ViewManage::getInstance()->windowManage()->getOverlay(1);
    QCOMPARE(overlay->openCount(), 1);
    QCOMPARE(View_DeleteWidgets({ 16 }), 0);
    QTRY_VERIFY(menu.isNull());
    QCOMPARE(overlay->openCount(), 0);
    QVERIFY(dlg.isNull());
    m_rec.clear();
    m_panel.click(QPoint(400, 300)); // the panel still takes presses
    QCOMPARE(m_rec.eventsWithCode(EVT_LIST_FILTER).size(), 0);
}

QGUI_GUIAPP_TEST_MAIN(tst_TableFilter)
#include "tst_tablefilter.moc"
