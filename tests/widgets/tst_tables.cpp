// Tables on a real panel: creation of every list kind, pages of cells, presses
// reporting the cell under the finger, selection and scrolling, pending edits,
// and the fixed results of the change calls. The cell model is tested directly
// where that is clearer.
#include "common/eventrecorder.h"
#include "common/guiapptestmain.h"
#include "common/panelfixture.h"
#include "common/testutil.h"

#include "app/xquickview.h"
#include "views/viewmanage.h"
#include "views/virtualkeyboardmanager.h"
#include "xcomponents/qquick/xalarmtableviewcontrol.h"
#include "xcomponents/qquick/xheadermodel.h"
#include "xcomponents/qquick/xquickheadermodel.h"
#include "xcomponents/qquick/xtablemodel.h"
#include "xcomponents/qquick/xtableviewcontrol.h"

#include <QImage>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QTemporaryDir>
#include <QSignalSpy>
#include <QtQuick/private/qquicktext_p.h>
#include <QtQuickTemplates2/private/qquickscrollbar_p.h>

#include <qgui/events.h>

class tst_Tables : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void every_kind_is_a_table_data();
    void every_kind_is_a_table();
    void creators_refuse_null_records_and_unknown_windows();
    void pages_fill_the_cells_and_short_pages_keep_empty_rows();
    void press_and_release_report_the_cells_under_the_finger();
    void selection_clears_with_a_negative_row_and_scrolls_a_far_row_into_view();
    void pending_edits_keep_first_edit_order_and_the_latest_text();
    void change_calls_answer_unknown_ids_and_unsupported_calls_data();
    void change_calls_answer_unknown_ids_and_unsupported_calls();
    void hidden_columns_and_rows_without_text();
    void model_announces_only_the_changed_cells();
    void list_header_model_lays_out_its_columns_data();
    void list_header_model_lays_out_its_columns();
    void list_header_drawn_from_qml();
    void paging_bar_reports_and_shows_the_logic_layers_numbers();
    void cells_are_edited_through_the_keyboard_in_edit_mode();
    void data_types_choose_keyboard_and_validator_data();
    void data_types_choose_keyboard_and_validator();
    void table_deleted_while_the_keyboard_edits_a_cell();
    void flicking_reports_moving_and_the_scroll_bar_follows();
    void alarm_list_keeps_the_rows_being_read();
    void bad_pages_are_cut_not_trusted();
    void cell_pictures_show_before_the_text();

private:
    static XTableViewControl* table(unsigned id)
    {
        return qobject_cast<XTableViewControl*>(ViewManage::getInstance()->getItemById(id));
    }
    View_List record(unsigned id, Rect r = Rect { 20, 20, 600, 300 }) const;
    static std::vector<std::vector<View_ListColData>> page(int rows, int columns, const char* tag = "");
    QPoint cellCenter(XTableViewControl* t, int row, int column) const;

    PanelFixture m_panel;
    EventRecorder m_rec;
    Font m_font { nullptr, 16, 400, 0, 0, 0, 0, 0xFF000000u, 0 };
    View_ListColumn m_columns[3] = {
        { "Name", 200, 0, COL_STRING, nullptr, 0, 1 },
        { "Value", 0, 0, COL_INT32, nullptr, 0, 1 },
        { "Unit", 100, 0, COL_STRING, nullptr, 0, 0 },
    };
    std::vector<std::string> m_texts; // keeps the texts of page() alive
    const unsigned A = PanelFixture::wid(1, 1);
};

View_List tst_Tables::record(unsigned id, Rect r) const
{
    View_List rec {};
    rec.rect = r;
    rec.id = id;
    rec.columns = m_columns;
    rec.columnCount = 3;
    rec.rowHeight = 30;
    rec.headerHeight = 32;
    rec.headerFont = &m_font;
    rec.contentFont = &m_font;
    rec.backColor = 0xFFFFFFFFu;
    rec.altBackColor = 0xFFEEEEEEu;
    return rec;
}

std::vector<std::vector<View_ListColData>> tst_Tables::page(int rows, int columns, const char* tag)
{
    static std::vector<std::string> texts;
    texts.clear();
    texts.reserve(size_t(rows * columns));
    std::vector<std::vector<View_ListColData>> out;
    for (int r = 0; r < rows; ++r) {
        std::vector<View_ListColData> row;
        for (int c = 0; c < columns; ++c) {
            texts.push_back(std::string(tag) + char('a' + c) + std::to_string(r));
            row.push_back(View_ListColData { texts.back().c_str(), nullptr, nullptr, 0, 0 });
        }
        out.push_back(row);
    }
    return out;
}

QPoint tst_Tables::cellCenter(XTableViewControl* t, int row, int column) const
{
    XCommonTableView* v = t->view();
    const qreal x = v->columnX(column) + v->columnWidthAt(column) / 2 - (v->contentX() - v->originX());
    const qreal y = row * v->rowHeight() + v->rowHeight() / 2 - (v->contentY() - v->originY());
    return m_panel.scenePoint(v, QPointF(x, y));
}

void tst_Tables::init()
{
    QVERIFY(m_panel.start());
    m_rec.install();
    m_rec.setPressPayloadSize(sizeof(View_EvtCell));
    QCOMPARE(m_panel.switchWindow(A, Rect { 0, 0, 800, 480 }, 0xFFFFFFFFu), 0);
    m_rec.clear();
}

void tst_Tables::cleanup()
{
    m_panel.stop();
}

void tst_Tables::every_kind_is_a_table_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("singleLine");
    const char* names[] = { "list", "alarm", "alarm statistics", "event", "recipe", "sample",
        "communication errors", "permissions", "database view" };
    for (int k = 0; k < 9; ++k)
        QTest::newRow(names[k]) << k << (k == 8);
}

void tst_Tables::every_kind_is_a_table()
{
    QFETCH(int, kind);
    QFETCH(bool, singleLine);
    View_List rec = record(10);
    rec.rowHeight = 100; // room for several lines
    int result = -2;
    switch (kind) {
    case 0: result = View_CreateListCtrl(&rec, A); break;
    case 1: { View_listAlarm r { rec }; result = View_CreateListAlarm(&r, A); break; }
    case 2: { View_listAlarmStat r { rec }; result = View_CreateListAlarmStat(&r, A); break; }
    case 3: { View_listEvent r { rec }; result = View_CreateListEvent(&r, A); break; }
    case 4: { View_listRecipe r { rec }; result = View_CreateListRecipe(&r, A); break; }
    case 5: { View_listSample r { rec }; result = View_CreateListSample(&r, A); break; }
    case 6: { View_listComErr r { rec }; result = View_CreateListComErr(&r, A); break; }
    case 7: { View_listPermission r { rec }; result = View_CreateListPermission(&r, A); break; }
    case 8: { View_listDbView r { rec }; result = View_CreateListDbView(&r, A); break; }
    }
    QCOMPARE(result, 0);
    XTableViewControl* t = table(10);
    QVERIFY(t);
    QCOMPARE(t->getWgtRect(), QRect(20, 20, 600, 300));
    QCOMPARE(t->view()->singleLine(), singleLine);
    QCOMPARE(qobject_cast<XAlarmTableViewControl*>(t) != nullptr, kind == 1);
    // fixed widths kept, the free column takes the rest
    QCOMPARE(t->getActualColumnWidth(), (QVector<qreal> { 200, 300, 100 }));
    QCOMPARE(View_IsTextOutOfRange(10, 0), 0);
    // a long text in the database view stays on one line
    std::string longText(400, 'x');
    for (int i = 40; i < 400; i += 41)
        longText[size_t(i)] = ' ';
    std::vector<std::vector<View_ListColData>> rows { { { longText.c_str(), nullptr, nullptr, 0, 0 } } };
    QCOMPARE(View_ChangeListCtrlContent(10, rows), 0);
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
    QQuickText* shown = nullptr;
    for (QQuickItem* child : t->view()->contentItem()->childItems()) {
        for (QQuickItem* grand : child->childItems()) {
            auto* text = qobject_cast<QQuickText*>(grand);
            if (text && text->text().size() == 400 && text->isVisible())
                shown = text;
        }
    }
    QVERIFY(shown);
    QCOMPARE(shown->lineCount() == 1, singleLine);
}

void tst_Tables::creators_refuse_null_records_and_unknown_windows()
{
    const View_List rec = record(11);
    QCOMPARE(View_CreateListCtrl(nullptr, A), -1);
    QCOMPARE(View_CreateListDbView(nullptr, A), -1);
    QCOMPARE(View_CreateListCtrl(&rec, PanelFixture::wid(1, 77)), -1);
    QVERIFY(!table(11));
    View_List none = record(12);
    none.columns = nullptr; // no columns: an empty table, still a table
    none.columnCount = 5;
    QCOMPARE(View_CreateListCtrl(&none, A), 0);
    QCOMPARE(table(12)->columnCount(), 0);
    QCOMPARE(View_ChangeListCtrlContent(12, page(3, 3)), 0);
}

void tst_Tables::pages_fill_the_cells_and_short_pages_keep_empty_rows()
{
    const View_List rec = record(20);
    QCOMPARE(View_CreateListCtrl(&rec, A), 0);
    XTableViewControl* t = table(20);
    // (300 - 32) / 30 rounded up: the empty body shows nine rows
    QCOMPARE(t->model()->rowCount(), 9);
    QCOMPARE(t->model()->actualRowCount(), 0);
    QCOMPARE(View_ChangeListCtrlContent(20, page(3, 3)), 0);
    QCOMPARE(t->model()->rowCount(), 9);
    QCOMPARE(t->model()->actualRowCount(), 3);
    QCOMPARE(t->model()->cellText(2, 1), QString("b2"));
    QCOMPARE(t->model()->data(t->model()->index(1, 0), XTableModel::BackColorRole).value<QColor>(),
        QColor(0xEE, 0xEE, 0xEE)); // every second row
    QCOMPARE(View_ChangeListCtrlContent(20, page(40, 3)), 0);
    QCOMPARE(t->model()->rowCount(), 40);
    QCOMPARE(View_ChangeListCtrlContent(20, page(0, 3)), 0);
    QCOMPARE(t->model()->rowCount(), 9);
    QCOMPARE(t->model()->cellText(2, 1), QString());
    // the header titles change on their own
    std::vector<View_Text> titles(2);
    titles[0].text = "Recipe";
    titles[1].text = "Amount";
    QCOMPARE(View_ChangeListCtrlTitle(20, titles), 0);
    QCOMPARE(t->header()->headerModel()->title(0), QString("Recipe"));
    QCOMPARE(t->header()->headerModel()->title(2), QString());
}

void tst_Tables::press_and_release_report_the_cells_under_the_finger()
{
    const View_List rec = record(30);
    QCOMPARE(View_CreateListCtrl(&rec, A), 0);
    XTableViewControl* t = table(30);
    QCOMPARE(View_ChangeListCtrlContent(30, page(5, 3)), 0);
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
    m_rec.clear();
    m_panel.press(cellCenter(t, 1, 2));
    m_panel.release(cellCenter(t, 1, 2) + QPoint(0, 2));
    m_panel.click(cellCenter(t, 3, 0));
    m_panel.touch(cellCenter(t, 4, 1));
    const QList<EventRecorder::Event> presses = m_rec.eventsWithCode(EVT_WIDGET_PRESS);
    const QList<EventRecorder::Event> releases = m_rec.eventsWithCode(EVT_WIDGET_RELEASE);
    QCOMPARE(presses.size(), 3);
    QCOMPARE(releases.size(), 3);
    const int expected[3][2] = { { 1, 2 }, { 3, 0 }, { 4, 1 } };
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(presses.at(i).id, 30u);
        QCOMPARE(presses.at(i).intAt(0), expected[i][0]);
        QCOMPARE(presses.at(i).intAt(1), expected[i][1]);
        QCOMPARE(releases.at(i).intAt(0), expected[i][0]);
        QCOMPARE(releases.at(i).intAt(1), expected[i][1]);
    }
    // the header is no cell
    m_rec.clear();
    m_panel.click(m_panel.scenePoint(t, QPointF(100, 10)));
    QCOMPARE(m_rec.eventsWithCode(EVT_WIDGET_PRESS).value(0).intAt(0), -1);
}

void tst_Tables::selection_clears_with_a_negative_row_and_scrolls_a_far_row_into_view()
{
    const View_List rec = record(40);
    QCOMPARE(View_CreateListCtrl(&rec, A), 0);
    XTableViewControl* t = table(40);
    QCOMPARE(View_ChangeListCtrlContent(40, page(500, 3)), 0);
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
    QCOMPARE(View_ChangeListCtrlSel(40, 2, 1), 0);
    QCOMPARE(t->view()->highlightCell(), QPoint(1, 2));
    QCOMPARE(t->model()->data(t->model()->index(2, 1), XTableModel::HighlightRole).toBool(), true);
    const qreal y = t->view()->contentY();
    QCOMPARE(View_ChangeListCtrlSel(40, -1, 0), 0);
    QCOMPARE(t->view()->highlightCell(), QPoint(-1, -1));
    QCOMPARE(t->view()->highlightRow(), -1);
    QCOMPARE(t->view()->contentY(), y); // no scrolling
    QCOMPARE(t->model()->data(t->model()->index(2, 1), XTableModel::HighlightRole).toBool(), false);
    QVERIFY(!t->view()->isLocaltedRow(420));
    QCOMPARE(View_ChangeListCtrlSel(40, 420, 0), 0);
    QVERIFY(t->view()->isLocaltedRow(420));
    QCOMPARE(View_ChangeListCtrlSel(999, 1, 1), 0); // unknown id: still 0
}

void tst_Tables::pending_edits_keep_first_edit_order_and_the_latest_text()
{
    const View_List rec = record(50);
    QCOMPARE(View_CreateListCtrl(&rec, A), 0);
    XTableViewControl* t = table(50);
    QCOMPARE(View_ChangeListCtrlContent(50, page(4, 3)), 0);
    XCommonTableView* v = t->view();
    v->saveEditText(1, 2, "first");
    v->saveEditText(0, 0, "x");
    v->saveEditText(1, 2, "second");
    QCOMPARE(t->model()->cellText(1, 2), QString("second")); // shown at once
    QCOMPARE(v->pendingEdits().size(), 2);
    m_rec.clear();
    QCOMPARE(View_ChangeListCtrlEditMode(50, 1), -1); // -1 although the edits were sent
    const QList<EventRecorder::Event> commits = m_rec.eventsWithCode(EVT_LIST_EDIT_COMMIT);
    QCOMPARE(commits.size(), 1);
    QCOMPARE(commits.first().id, 50u);
    QCOMPARE(commits.first().text(), QString("1,2=second\n0,0=x\n"));
    QVERIFY(v->pendingEdits().isEmpty());
    QCOMPARE(v->editMode(), 1);
    // a cell open for editing blocks the selection; mode 0 forgets it
    v->setEditingCell(QPoint(1, 1));
    QCOMPARE(View_ChangeListCtrlSel(50, 3, 0), 0);
    QCOMPARE(v->highlightCell(), QPoint(-1, -1));
    QSignalSpy modeSpy(v, &XCommonTableView::isEditModeChanged);
    QCOMPARE(View_ChangeListCtrlEditMode(50, 0), -1);
    QCOMPARE(v->editingCell(), QPoint(-1, -1));
    QCOMPARE(v->editMode(), 1); // with a cell open, only the cell goes
    QCOMPARE(View_ChangeListCtrlEditMode(50, 0), -1);
    QCOMPARE(v->editMode(), 0);
    QCOMPARE(modeSpy.count(), 1);
    QCOMPARE(View_ChangeListCtrlEditMode(50, 0), -1);
    QCOMPARE(modeSpy.count(), 1); // unchanged: no signal
}

void tst_Tables::change_calls_answer_unknown_ids_and_unsupported_calls_data()
{
    QTest::addColumn<unsigned>("id");
    QTest::addColumn<int>("expectTitle"); // title, content, font, hide, row text, filter, browse box
    QTest::addColumn<int>("expectEditCol");
    QTest::newRow("a table") << 60u << 0 << 0;
    QTest::newRow("unknown id") << 999u << -1 << -1;
    QTest::newRow("another kind") << 61u << -1 << 0; // the edit-column call only checks the id
}

void tst_Tables::change_calls_answer_unknown_ids_and_unsupported_calls()
{
    QFETCH(unsigned, id);
    QFETCH(int, expectTitle);
    QFETCH(int, expectEditCol);
    const View_List rec = record(60);
    QCOMPARE(View_CreateListCtrl(&rec, A), 0);
    PanelFixture::control(61, A);
    QCOMPARE(View_ChangeListCtrlTitle(id, std::vector<View_Text>(1)), expectTitle);
    QCOMPARE(View_ChangeListCtrlContent(id, page(1, 3)), expectTitle);
    QCOMPARE(View_ChangeListCtrlFont(id, std::vector<Font*> { &m_font, nullptr }), expectTitle);
    QCOMPARE(View_ChangeListCtrlHideCol(id, { { 1, false } }), expectTitle);
    QCOMPARE(View_ChangeListCtrlRowTextVisible(id, { 0 }, false), expectTitle);
    QCOMPARE(View_ChangeListCtrlEnableFilter(id, true), expectTitle);
    unsigned numbers[3] = { 10, 1, 2 };
    QCOMPARE(View_ChangeListCtrlBrowseBoxParams(id, numbers), expectTitle);
    QCOMPARE(View_ChangeListCtrlEnableEditCol(id, 1, true), expectEditCol);
    QCOMPARE(View_ChangeListCtrlEditMode(id, 0), -1);
    QCOMPARE(View_ChangeListCtrlSel(id, 0, 0), 0);
    // not supported: -1 without touching the table
    const QString before = table(60)->model()->cellText(0, 0);
    QCOMPARE(View_ChangeListCtrlFontColor(id, 0, Brush {}), -1);
    QCOMPARE(View_AddListCtrlContent(id, { "a", "b" }, 0), -1);
    std::vector<std::string> out { "kept" };
    QCOMPARE(View_GetListCtrlContent(id, 0, 0, out), -1);
    QCOMPARE(out, std::vector<std::string> { "kept" });
    QCOMPARE(table(60)->model()->cellText(0, 0), before);
}

void tst_Tables::hidden_columns_and_rows_without_text()
{
    const View_List rec = record(70);
    QCOMPARE(View_CreateListCtrl(&rec, A), 0);
    XTableViewControl* t = table(70);
    QCOMPARE(View_ChangeListCtrlContent(70, page(3, 3)), 0);
    QCOMPARE(View_ChangeListCtrlHideCol(70, { { 0, false }, { 7, false }, { -1, false } }), 0);
    QCOMPARE(t->getActualColumnWidth(), (QVector<qreal> { 0, 500, 100 })); // the free column grows
    QCOMPARE(View_ChangeListCtrlHideCol(70, { { 0, true } }), 0);
    QCOMPARE(t->getActualColumnWidth(), (QVector<qreal> { 200, 300, 100 }));
    QCOMPARE(View_ChangeListCtrlRowTextVisible(70, { 1, 5000, -3 }, false), 0);
    QCOMPARE(t->model()->data(t->model()->index(1, 0), XTableModel::TextVisibleRole).toBool(), false);
    QCOMPARE(t->model()->data(t->model()->index(0, 0), XTableModel::TextVisibleRole).toBool(), true);
    QCOMPARE(t->model()->cellText(1, 0), QString("a1")); // kept, only not shown
    QCOMPARE(View_ChangeListCtrlRowTextVisible(70, { 1 }, true), 0);
    QCOMPARE(t->model()->data(t->model()->index(1, 0), XTableModel::TextVisibleRole).toBool(), true);
}

void tst_Tables::model_announces_only_the_changed_cells()
{
    XTableModel model;
    model.setColumnCount(4);
    model.setMinimumRowCount(3);
    QCOMPARE(model.rowCount(), 3);
    QVector<QVector<XTableModel::Cell>> rows(100, QVector<XTableModel::Cell>(4));
    for (int r = 0; r < 100; ++r)
        for (int c = 0; c < 4; ++c)
            rows[r][c].text = QString::number(r * 4 + c);
    model.updateData(rows);
    QCOMPARE(model.rowCount(), 100);
    QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
    QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
    rows[57][2].text = "alarm";
    model.updateData(rows);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.first().at(0).toModelIndex(), model.index(57, 2));
    QCOMPARE(changed.first().at(1).toModelIndex(), model.index(57, 2));
    QCOMPARE(changed.first().at(2).value<QVector<int>>(), (QVector<int> { Qt::DisplayRole, Qt::EditRole }));
    model.updateData(rows); // the same page again: nothing
    QCOMPARE(changed.count(), 1);
    QCOMPARE(reset.count(), 0);
    // an edit of an empty row makes it a row of the page
    model.setMinimumRowCount(120);
    QVERIFY(model.setData(model.index(110, 1), "new"));
    QCOMPARE(model.actualRowCount(), 111);
    QVERIFY(!model.setData(model.index(130, 1), "beyond"));
}

void tst_Tables::list_header_model_lays_out_its_columns_data()
{
    QTest::addColumn<QStringList>("titles");
    QTest::addColumn<QVector<int>>("widths");
    QTest::addColumn<QVector<int>>("lefts"); // left edges, then the total width
    QTest::addColumn<QVector<int>>("hits"); // x, column pairs

    QTest::newRow("widths given") << QStringList { "Tag", "Value", "Unit" } << QVector<int> { 120, 80, 40 }
                                  << QVector<int> { 0, 120, 200, 240 } << QVector<int> { 0, 0, 119, 0, 120, 1, 239, 2, 240, -1, -1, -1 };
    QTest::newRow("default for the rest") << QStringList { "A", "B", "C" } << QVector<int> { 50 }
                                          << QVector<int> { 0, 50, 150, 250 } << QVector<int> { 149, 1, 150, 2 };
    QTest::newRow("negative width is 0") << QStringList { "A", "B" } << QVector<int> { -30, 10 }
                                         << QVector<int> { 0, 0, 10 } << QVector<int> { 0, 1, 9, 1, 10, -1 };
    QTest::newRow("more widths than titles") << QStringList { "A" } << QVector<int> { 10, 20, 30 }
                                             << QVector<int> { 0, 10 } << QVector<int> { 10, -1 };
    QTest::newRow("no columns") << QStringList {} << QVector<int> { 10 } << QVector<int> { 0 } << QVector<int> { 0, -1 };
    QTest::newRow("huge widths stay in range") << QStringList { "A", "B", "C" }
                                               << QVector<int> { INT_MAX, INT_MAX, 1 }
                                               << QVector<int> { 0, INT_MAX, INT_MAX, INT_MAX } << QVector<int> { 5, 0 };
}

void tst_Tables::list_header_model_lays_out_its_columns()
{
    QFETCH(QStringList, titles);
    QFETCH(QVector<int>, widths);
    QFETCH(QVector<int>, lefts);
    QFETCH(QVector<int>, hits);
    XHeaderModel model;
    model.setTitles(titles);
    model.setWidths(widths);
    QCOMPARE(model.rowCount(), titles.size());
    for (int c = 0; c <= titles.size(); ++c)
        QCOMPARE(model.left(c), lefts.at(c));
    QCOMPARE(model.totalWidth(), lefts.last());
    for (int i = 0; i + 1 < hits.size(); i += 2)
        QCOMPARE(model.columnAt(hits.at(i)), hits.at(i + 1));
    for (int c = 0; c < titles.size(); ++c) {
        QCOMPARE(model.data(model.index(c), Qt::DisplayRole).toString(), titles.at(c));
        QCOMPARE(model.data(model.index(c), XHeaderModel::LeftRole).toInt(), lefts.at(c));
    }
    QVERIFY(!model.data(model.index(titles.size()), Qt::DisplayRole).isValid());
}

void tst_Tables::list_header_drawn_from_qml()
{
    // a designer's header: a Repeater over the model places one title per column
    QQmlComponent c(m_panel.view()->engine());
    c.setData("import QtQuick 2.15\nimport QQuickHalvex 1.0\n"
              "Item { width: 400; height: 30; property alias header: h\n"
              "  XHeaderModel { id: h; titles: ['Tag', 'Value', 'Unit']; widths: [150, 90]; defaultWidth: 60 }\n"
              "  Repeater { model: h; Text { objectName: 'title' + index; x: columnLeft; width: columnWidth;"
              "    text: display } } }",
        QUrl());
    std::unique_ptr<QObject> root(c.create());
    QVERIFY2(root, qPrintable(c.errorString()));
    auto* model = root->property("header").value<XHeaderModel*>();
    QVERIFY(model);
    auto* header = qobject_cast<QQuickItem*>(root.get());
    auto title = [header](int c) { return TestUtil::findItem(header, QStringLiteral("title%1").arg(c)); };
    QVERIFY(title(2));
    QCOMPARE(title(1)->x(), 150.0);
    QCOMPARE(title(2)->x(), 240.0);
    QCOMPARE(title(2)->width(), 60.0);
    QCOMPARE(model->totalWidth(), 300);
    // a wider first column moves the others; a renamed title changes only its own row
    QSignalSpy changed(model, &QAbstractItemModel::dataChanged);
    QSignalSpy reset(model, &QAbstractItemModel::modelReset);
    model->setWidths({ 200, 90 });
    QCOMPARE(title(1)->x(), 200.0);
    QCOMPARE(title(2)->x(), 290.0);
    model->setDefaultWidth(100);
    QCOMPARE(title(2)->width(), 100.0);
    QCOMPARE(changed.count(), 2);
    QCOMPARE(changed.last().at(0).toModelIndex(), model->index(2));
    model->setTitles({ "Tag", "Measured", "Unit" });
    QCOMPARE(title(1)->property("text").toString(), QStringLiteral("Measured"));
    QCOMPARE(changed.last().at(0).toModelIndex(), model->index(1));
    QCOMPARE(changed.last().at(1).toModelIndex(), model->index(1));
    QCOMPARE(reset.count(), 0);
    model->setTitles({ "Only" });
    QCOMPARE(reset.count(), 1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!title(1));
}

void tst_Tables::bad_pages_are_cut_not_trusted()
{
    const View_List rec = record(80);
    QCOMPARE(View_CreateListCtrl(&rec, A), 0);
    XTableViewControl* t = table(80);
    // rows of unequal length, a null text, invalid UTF-8 and a huge text
    const std::string huge(1 << 20, 'h');
    std::vector<std::vector<View_ListColData>> rows {
        { { "only one", nullptr, nullptr, 0, 0 } },
        { { nullptr, nullptr, nullptr, 0, 0 }, { "\xff\xfe", nullptr, nullptr, 0, 0 },
            { huge.c_str(), "", nullptr, 0xFFFF0000u, 0xFF00FF00u }, { "beyond", nullptr, nullptr, 0, 0 } },
    };
    QCOMPARE(View_ChangeListCtrlContent(80, rows), 0);
    QCOMPARE(t->model()->cellText(0, 0), QString("only one"));
    QCOMPARE(t->model()->cellText(0, 2), QString());
    QCOMPARE(t->model()->cellText(1, 0), QString());
    QCOMPARE(t->model()->cellText(1, 1), QString(2, QChar(0xFFFD)));
    QVERIFY(t->model()->cellText(1, 2).size() <= 4096);
    QCOMPARE(t->model()->columnCount(), 3);
    QCOMPARE(t->model()->data(t->model()->index(1, 2), XTableModel::TextColorRole).value<QColor>(), QColor(Qt::red));
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
    QCOMPARE(View_DeleteWidgets({ 80u }), 0);
    PanelFixture::settle();
    QVERIFY(!table(80));
}

void tst_Tables::paging_bar_reports_and_shows_the_logic_layers_numbers()
{
    View_List rec = record(90);
    rec.flags = LIST_SHOW_TOOLBAR;
    QCOMPARE(View_CreateListCtrl(&rec, A), 0);
    XTableViewControl* t = table(90);
    XSettingToolControl* bar = t->toolBar();
    QVERIFY(bar);
    QVERIFY(bar->y() + bar->height() <= t->height() + 0.5);
    QVERIFY(t->view()->y() + t->view()->height() <= bar->y() + 0.5); // the body ends above it
    unsigned numbers[3] = { 2000, 4, 143 };
    QCOMPARE(View_ChangeListCtrlBrowseBoxParams(90, numbers), 0);
    QCOMPARE(bar->totalNum(), QString("2000"));
    QCOMPARE(bar->pageNum(), QString("4"));
    QCOMPARE(bar->totalPageNum(), QString("143"));
    QCOMPARE(View_ChangeListCtrlBrowseBoxParams(90, nullptr), 0);
    QCOMPARE(bar->pageNum(), QString("4"));
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
    m_rec.clear();
    const char* names[] = { "homeButton", "upButton", "nextButton", "endButton" };
    for (const char* name : names) {
        QQuickItem* b = TestUtil::findItem(bar, name);
        QVERIFY2(b, name);
        m_panel.click(m_panel.sceneCenter(b));
    }
    QList<int> codes;
    for (const EventRecorder::Event& e : m_rec.events()) {
        if (e.code == EVT_PRESS)
            continue; // the panel's own press report
        if (e.code > 3)
            codes << e.code;
        QVERIFY2(e.id == 90u, qPrintable(QString("code %1 id %2").arg(e.code).arg(e.id)));
    }
    QCOMPARE(codes, (QList<int> { EVT_LIST_PAGE_HOME, EVT_LIST_PAGE_UP, EVT_LIST_PAGE_NEXT, EVT_LIST_PAGE_END }));
    // the page entry: the keyboard, then 513 with the number; the logic layer hears no 1281
    m_rec.clear();
    m_panel.click(m_panel.sceneCenter(TestUtil::findItem(bar, "pageButton")));
    QVERIFY(VirtualKeyboardManager::instance()->isShown());
    QCOMPARE(VirtualKeyboardManager::instance()->inputLine()->property("text").toString(), QString("4"));
    QVERIFY(m_panel.typeOnKeyboard({ "clear", "1", "2", "enter" }));
    QCOMPARE(m_rec.eventsWithCode(EVT_LIST_GOTO_PAGE).size(), 1);
    QCOMPARE(m_rec.eventsWithCode(EVT_LIST_GOTO_PAGE).first().intAt(0), 12);
    QCOMPARE(m_rec.eventsWithCode(EVT_VKB_ENTER).size(), 0);
    QCOMPARE(m_rec.eventsWithCode(EVT_VKB_HIDE).size(), 0);
    QCOMPARE(bar->pageNum(), QString("4")); // until the logic layer says otherwise
    // hidden parts
    View_List hidden = record(91, Rect { 20, 20, 600, 200 });
    hidden.flags = LIST_SHOW_TOOLBAR | LIST_HIDE_PAGE_BUTTONS | LIST_HIDE_TOTAL_NUM;
    QCOMPARE(View_CreateListCtrl(&hidden, A), 0);
    XSettingToolControl* bar2 = table(91)->toolBar();
    QVERIFY(bar2);
    QVERIFY(!TestUtil::findItem(bar2, "pageButtons")); // found only when shown
    QVERIFY(!TestUtil::findItem(bar2, "totalNum"));
    QVERIFY(TestUtil::findItem(bar2, "pageButton"));
}

void tst_Tables::cells_are_edited_through_the_keyboard_in_edit_mode()
{
    const View_List rec = record(100);
    QCOMPARE(View_CreateListCtrl(&rec, A), 0);
    XTableViewControl* t = table(100);
    QCOMPARE(View_ChangeListCtrlContent(100, page(4, 3)), 0);
    VirtualKeyboardManager* vkb = VirtualKeyboardManager::instance();
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
    // edit mode off: a press opens nothing
    m_panel.click(cellCenter(t, 1, 1));
    QVERIFY(!vkb->isShown());
    QCOMPARE(View_ChangeListCtrlEditMode(100, 1), -1);
    QCOMPARE(m_rec.eventsWithCode(EVT_LIST_EDIT_COMMIT).size(), 0); // nothing pending: nothing sent
    // a non-editable column opens nothing either
    m_panel.click(cellCenter(t, 1, 2));
    QVERIFY(!vkb->isShown());
    m_panel.click(cellCenter(t, 1, 1)); // a 32-bit column: decimal keys with its text
    QVERIFY(vkb->isShown());
    QCOMPARE(vkb->inputLine()->property("text").toString(), QString("b1"));
    QVERIFY(m_panel.typeOnKeyboard({ "clear", "4", "2", "enter" }));
    QVERIFY(!vkb->isShown());
    QCOMPARE(t->model()->cellText(1, 1), QString("42"));
    m_panel.click(cellCenter(t, 3, 0)); // a text column: the letters
    QVERIFY(vkb->isShown());
    QVERIFY(m_panel.typeOnKeyboard({ "o", "k", "enter" })); // the opened text is selected: typing replaces it
    m_panel.click(cellCenter(t, 1, 1));
    QVERIFY(m_panel.typeOnKeyboard({ "clear", "7", "enter" }));
    m_rec.clear();
    QCOMPARE(View_ChangeListCtrlEditMode(100, 1), -1);
    QCOMPARE(m_rec.eventsWithCode(EVT_LIST_EDIT_COMMIT).value(0).text(), QString("1,1=7\n3,0=ok\n"));
    QCOMPARE(m_rec.eventsWithCode(EVT_VKB_ENTER).size(), 0);
    // mode 0 with a cell open: the keyboard goes and the cell is forgotten
    m_panel.click(cellCenter(t, 0, 0));
    QVERIFY(vkb->isShown());
    QCOMPARE(View_ChangeListCtrlEditMode(100, 0), -1);
    QVERIFY(!vkb->isShown());
    QCOMPARE(t->view()->editingCell(), QPoint(-1, -1));
    QCOMPARE(t->view()->editMode(), 1);
}

void tst_Tables::data_types_choose_keyboard_and_validator_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("layout");
    QTest::addColumn<int>("validator");
    QTest::newRow("bool") << int(COL_BOOL) << 0 << 2;
    QTest::newRow("int8") << int(COL_INT8) << 0 << 3;
    QTest::newRow("uint64") << int(COL_UINT64) << 0 << 10;
    QTest::newRow("float") << int(COL_FLOAT) << 0 << 20;
    QTest::newRow("string") << int(COL_STRING) << 6 << 0;
    QTest::newRow("uint32 alt") << int(COL_UINT32_ALT) << 0 << 8;
    QTest::newRow("time") << int(COL_TIME) << 4 << 0;
    QTest::newRow("date") << int(COL_DATE) << 3 << 0;
    QTest::newRow("date-time") << int(COL_DATETIME) << 2 << 0;
    QTest::newRow("date-time alt") << int(COL_DATETIME_ALT) << 2 << 0;
    QTest::newRow("unknown 19") << 19 << 0 << 0;
    QTest::newRow("negative") << -1 << 0 << 0;
}

void tst_Tables::data_types_choose_keyboard_and_validator()
{
    QFETCH(int, type);
    QFETCH(int, layout);
    QFETCH(int, validator);
    QCOMPARE(XCommonTableView::dataTypeToVtkType(type), layout);
    QCOMPARE(XCommonTableView::dataTypeToValidator(type), validator);
}

void tst_Tables::table_deleted_while_the_keyboard_edits_a_cell()
{
    const View_List rec = record(110);
    QCOMPARE(View_CreateListCtrl(&rec, A), 0);
    QCOMPARE(View_ChangeListCtrlContent(110, page(4, 3)), 0);
    QCOMPARE(View_ChangeListCtrlEditMode(110, 1), -1);
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
    m_panel.click(cellCenter(table(110), 2, 0));
    VirtualKeyboardManager* vkb = VirtualKeyboardManager::instance();
    QVERIFY(vkb->isShown());
    m_rec.clear();
    QCOMPARE(View_DeleteWidgets({ 110u }), 0);
    PanelFixture::settle();
    QVERIFY(!vkb->isShown());
    QCOMPARE(m_rec.count(), 0);
    // the keyboard works for the logic layer again afterwards
    QCOMPARE(View_PopupVirtualKeyboard(7, VKB_DECIMAL, "1"), 0);
    QVERIFY(m_panel.typeOnKeyboard({ "enter" }));
    QCOMPARE(m_rec.eventsWithCode(EVT_VKB_ENTER).value(0).id, 7u);
}

void tst_Tables::flicking_reports_moving_and_the_scroll_bar_follows()
{
    const View_List rec = record(120);
    QCOMPARE(View_CreateListCtrl(&rec, A), 0);
    XTableViewControl* t = table(120);
    QVERIFY(t->scrollBar());
    QCOMPARE(t->scrollBar()->property("policy").toInt(), int(QQuickScrollBar::AlwaysOff)); // empty rows only
    QCOMPARE(View_ChangeListCtrlContent(120, page(300, 3)), 0);
    QCOMPARE(t->scrollBar()->property("policy").toInt(), int(QQuickScrollBar::AsNeeded));
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
    m_rec.clear();
    // a finger drags the body up
    const QPoint from = cellCenter(t, 6, 1);
    m_panel.press(from);
    for (int i = 1; i <= 12; ++i) {
        QTest::mouseMove(m_panel.view(), from - QPoint(0, i * 15));
        QTest::qWait(10);
    }
    m_panel.release(from - QPoint(0, 180));
    QTRY_VERIFY(!t->view()->isMoving());
    QVERIFY(t->view()->contentY() > 0);
    QCOMPARE(m_rec.eventsWithCode(EVT_LIST_MOVE_START).size(), 1);
    QCOMPARE(m_rec.eventsWithCode(EVT_LIST_MOVE_END).size(), 1);
    QVERIFY(t->scrollBar()->property("position").toReal() > 0);
    // without a scroll bar
    View_List bare = record(121);
    bare.flags = LIST_HIDE_SCROLLBAR;
    QCOMPARE(View_CreateListCtrl(&bare, A), 0);
    QVERIFY(!table(121)->scrollBar());
}

void tst_Tables::alarm_list_keeps_the_rows_being_read()
{
    View_listAlarm rec { record(130) };
    QCOMPARE(View_CreateListAlarm(&rec, A), 0);
    XTableViewControl* t = table(130);
    XCommonTableView* v = t->view();
    QCOMPARE(View_ChangeListCtrlContent(130, page(100, 3)), 0);
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
    // at the top: new alarms show at once
    QCOMPARE(View_ChangeListCtrlContent(130, page(102, 3, "n")), 0);
    QCOMPARE(v->contentY() - v->originY(), 0.0);
    // scrolled down to read: the rows read stay in place
    v->setContentY(v->originY() + 10 * v->rowHeight());
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
    QCOMPARE(View_ChangeListCtrlContent(130, page(105, 3, "m")), 0);
    QCOMPARE(v->contentY() - v->originY(), 13 * v->rowHeight());
    // fewer rows: nothing moves
    QCOMPARE(View_ChangeListCtrlContent(130, page(104, 3)), 0);
    QCOMPARE(v->contentY() - v->originY(), 13 * v->rowHeight());
}

void tst_Tables::cell_pictures_show_before_the_text()
{
    QTemporaryDir dir;
    QImage green(32, 32, QImage::Format_RGB32);
    green.fill(QColor(0, 200, 0));
    const QByteArray path = (dir.path() + "/green.png").toUtf8();
    QVERIFY(green.save(QString::fromUtf8(path)));
    const View_List rec = record(120);
    QCOMPARE(View_CreateListCtrl(&rec, A), 0);
    std::vector<std::vector<View_ListColData>> rows { { { "with picture", path.constData(), nullptr, 0, 0 },
        { "1", "missing.png", nullptr, 0, 0 } } };
    QCOMPARE(View_ChangeListCtrlContent(120, rows), 0);
    XTableViewControl* t = table(120);
    const QPoint left = m_panel.scenePoint(t->view(), QPointF(10, 15));
    QTRY_COMPARE(QColor(m_panel.view()->grabWindow().pixel(left)), QColor(0, 200, 0));
    // a picture that is not there shows no picture: the text starts at the left
    QCOMPARE(t->model()->data(t->model()->index(0, 1), XTableModel::ImageRole).toString(), QString());
}

QGUI_GUIAPP_TEST_MAIN(tst_Tables)
#include "tst_tables.moc"
