// Tree menus: the tree content built from the logic layer's nodes (deep,
// wide, cyclic and broken trees included), the flattening of the expanded
// tree into rows, and presses on the rows and expanders of a real tree menu.
#include "common/eventrecorder.h"
#include "common/guiapptestmain.h"
#include "common/panelfixture.h"
#include "common/testutil.h"

#include "app/xquickview.h"
#include "platform/xpopup.h"
#include "views/viewmanage.h"
#include "xcomponents/qquick/nqmltreemodeltotablemodel.h"
#include "xcomponents/qquick/nquicktreeview.h"
#include "xcomponents/qquick/treeitem.h"
#include "xcomponents/qquick/treemodel.h"
#include "xcomponents/qquick/xquickcombobox.h"
#include "xcomponents/qquick/xtreeview.h"
#include "xcomponents/qquick/xtreeviewcontrol.h"

#include <QQuickItem>
#include <QTest>

#include <qgui/events.h>
#include <qgui/view.h>

#include <vector>

class tst_MenuTree : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void proxy_flattens_the_expanded_nodes();
    void tree_item_keeps_children_and_columns();
    void content_from_nodes_data();
    void content_from_nodes();
    void entries_report_their_number_and_expanders_toggle_data();
    void entries_report_their_number_and_expanders_toggle();
    void tree_select_sets_current_entry_and_text();
    void tree_calls_on_a_list_menu_are_refused();

private:
    View_Menu menu(unsigned id, unsigned flags) const;
    static XTreeViewControl* control(unsigned id)
    {
        QQuickItem* item = ViewManage::getInstance()->getItemById(id);
        if (auto* box = qobject_cast<XQuickComboBox*>(item))
            item = box->view();
        return qobject_cast<XTreeViewControl*>(item);
    }
    static NQuickTreeView* rows(unsigned id) { return control(id)->treeview()->treeView(); }
    QStringList pressEvents() const;

    PanelFixture m_panel;
    EventRecorder m_rec;
    Font m_font { nullptr, 16, 400, 0, 0, 0, 0, 0xFF000000u, QGUI_ALIGN_LEFT | QGUI_ALIGN_VCENTER };
    const unsigned A = PanelFixture::wid(1, 1);
};

namespace {

/** Alarm groups: "Plant" (1) with "Line A" (10, expanded, with "Pump" 100, "Valve" 101) and
 *  "Line B" (11, with "Fan" 110), and "Office" (2). */
struct AlarmTree {
    View_TreeNode lineA[2] { { "Pump", nullptr, 100, 0, nullptr, 0 }, { "Valve", nullptr, 101, 0, nullptr, 0 } };
    View_TreeNode lineB[1] { { "Fan", nullptr, 110, 0, nullptr, 0 } };
    View_TreeNode plant[2] { { "Line A", nullptr, 10, 1, lineA, 2 }, { "Line B", nullptr, 11, 0, lineB, 1 } };
    View_TreeNode top[2] { { "Plant", nullptr, 1, 1, plant, 2 }, { "Office", nullptr, 2, 0, nullptr, 0 } };
    View_TreeNode root { "", nullptr, -1, 1, top, 2 };
};

QStringList shownTexts(const NQmlTreeModelToTableModel* proxy)
{
    QStringList out;
    for (int r = 0; r < proxy->rowCount(); ++r) {
        const QModelIndex i = proxy->index(r, 0);
        out << QString(proxy->depth(r), '-') + i.data(Qt::DisplayRole).toString();
    }
    return out;
}

} // namespace

View_Menu tst_MenuTree::menu(unsigned id, unsigned flags) const
{
    View_Menu m {};
    m.rect = flags & MENU_IN_PLACE ? Rect { 100, 50, 300, 302 } : Rect { 100, 50, 300, 36 };
    m.id = id;
    m.flags = flags | MENU_TREE;
    m.font = &m_font;
    m.boxColor = m.backColor = 0xFFFFFFFFu;
    m.highlightColor = 0xFF0000FFu;
    m.frameColor = 0xFF000000u;
    m.borderWidth = 1;
    m.popHeight = 300;
    m.rowHeight = 30;
    m.indent = 20;
    return m;
}

void tst_MenuTree::init()
{
    QVERIFY(m_panel.start());
    m_rec.install();
    QCOMPARE(m_panel.switchWindow(A, Rect { 0, 0, 800, 480 }, 0xFFFFFFFFu), 0);
    m_rec.clear();
}

void tst_MenuTree::cleanup()
{
    m_panel.stop();
}

QStringList tst_MenuTree::pressEvents() const
{
    QStringList out;
    for (const auto& e : m_rec.events()) {
        if (e.code == EVT_WIDGET_PRESS || e.code == EVT_WIDGET_RELEASE)
            out << QStringLiteral("%1:%2:%3").arg(e.code).arg(e.id).arg(e.nullData ? -1 : e.intAt(0));
    }
    return out;
}

void tst_MenuTree::proxy_flattens_the_expanded_nodes()
{
    TreeModel model;
    auto root = std::make_unique<TreeItem>(1);
    for (const char* name : { "a", "b" }) {
        TreeItem* n = root->appendChild();
        n->setData(0, Qt::DisplayRole, QString::fromLatin1(name));
        for (int i = 0; i < 2; ++i) {
            TreeItem* c = n->appendChild();
            c->setData(0, Qt::DisplayRole, QStringLiteral("%1%2").arg(name).arg(i));
            c->appendChild()->setData(0, Qt::DisplayRole, QStringLiteral("%1%2x").arg(name).arg(i));
        }
    }
    model.updateData(std::move(root));
    NQmlTreeModelToTableModel proxy;
    proxy.setSourceModel(&model);
    QCOMPARE(shownTexts(&proxy), QStringList({ "a", "b" }));
    proxy.expand(0);
    QCOMPARE(shownTexts(&proxy), QStringList({ "a", "-a0", "-a1", "b" }));
    proxy.expand(2);
    QCOMPARE(shownTexts(&proxy), QStringList({ "a", "-a0", "-a1", "--a1x", "b" }));
    QVERIFY(proxy.isExpanded(2));
    QVERIFY(!proxy.hasChildren(3));
    proxy.expand(3); // a leaf does not expand
    QCOMPARE(proxy.rowCount(), 5);
    proxy.collapse(0);
    QCOMPARE(shownTexts(&proxy), QStringList({ "a", "b" }));
    proxy.toggleExpanded(0); // the inner expansion is remembered
    QCOMPARE(shownTexts(&proxy), QStringList({ "a", "-a0", "-a1", "--a1x", "b" }));
    QCOMPARE(proxy.index(3, 0).data(NQmlTreeModelToTableModel::DepthRole).toInt(), 2);
    QCOMPARE(proxy.roleNames().value(NQmlTreeModelToTableModel::ExpandedRole), QByteArray("expanded"));
    // a change of the source's structure rebuilds the rows
    model.updateData(nullptr);
    QCOMPARE(proxy.rowCount(), 0);
    QCOMPARE(proxy.depth(0), -1);
}

void tst_MenuTree::tree_item_keeps_children_and_columns()
{
    TreeItem root(2);
    QVERIFY(root.insertChildren(0, 3, 2));
    QVERIFY(!root.insertChildren(5, 1, 2));
    QVERIFY(root.child(1)->setData(1, Qt::DisplayRole, "b"));
    QVERIFY(!root.child(1)->setData(2, Qt::DisplayRole, "out of range"));
    QCOMPARE(root.child(2)->childNumber(), 2);
    QVERIFY(root.removeChildren(0, 1));
    QCOMPARE(root.childCount(), 2);
    QCOMPARE(root.child(0)->data(1, Qt::DisplayRole).toString(), QStringLiteral("b"));
    QVERIFY(!root.removeChildren(1, 5));
    QVERIFY(root.insertColumns(0, 1));
    QCOMPARE(root.child(0)->columnCount(), 3);
    QCOMPARE(root.child(0)->data(2, Qt::DisplayRole).toString(), QStringLiteral("b"));
    QVERIFY(root.removeColumns(0, 2));
    QCOMPARE(root.child(0)->data(0, Qt::DisplayRole).toString(), QStringLiteral("b"));
    QVERIFY(!root.child(7));
}

void tst_MenuTree::content_from_nodes_data()
{
    QTest::addColumn<QString>("shape");
    QTest::addColumn<int>("topRows"); // rows before anything is expanded by hand
    QTest::addColumn<int>("allRows"); // rows with every node expanded
    QTest::newRow("alarm groups") << "alarm" << 6 << 7;
    QTest::newRow("10000 deep") << "deep" << 10000 << 10000;
    QTest::newRow("10000 wide") << "wide" << 10000 << 10000;
    QTest::newRow("cycle back to an ancestor") << "cycle" << 2 << 2;
    QTest::newRow("null child array") << "nullkids" << 1 << 1;
    QTest::newRow("null root empties") << "null" << 0 << 0;
}

void tst_MenuTree::content_from_nodes()
{
    QFETCH(QString, shape);
    QFETCH(int, topRows);
    QFETCH(int, allRows);
    const View_Menu m = menu(20, MENU_IN_PLACE);
    QCOMPARE(View_CreateMenuTreeAlarmGrp(reinterpret_cast<const View_MenuTreeAlarmGrp*>(&m), A), 0);
    QVERIFY(control(20));
    AlarmTree alarm;
    std::vector<View_TreeNode> nodes;
    View_TreeNode root { "", nullptr, -1, 1, nullptr, 0 };
    const View_TreeNode* rootPtr = &root;
    if (shape == "alarm") {
        rootPtr = &alarm.root;
    } else if (shape == "deep") {
        nodes.resize(10000);
        for (size_t i = 0; i < nodes.size(); ++i)
            nodes[i] = View_TreeNode { "d", nullptr, int(i), 1, i + 1 < nodes.size() ? &nodes[i + 1] : nullptr,
                i + 1 < nodes.size() ? 1u : 0u };
        root.children = nodes.data();
        root.childCount = 1;
    } else if (shape == "wide") {
        nodes.assign(10000, View_TreeNode { "w", nullptr, 7, 0, nullptr, 0 });
        root.children = nodes.data();
        root.childCount = U32(nodes.size());
    } else if (shape == "cycle") {
        // node 0 lists itself and node 1 as children; node 1 lists node 0
        nodes.resize(2);
        nodes[0] = View_TreeNode { "c0", nullptr, 0, 1, nodes.data(), 2 };
        nodes[1] = View_TreeNode { "c1", nullptr, 1, 1, nodes.data(), 1 };
        root.children = nodes.data();
        root.childCount = 1;
    } else if (shape == "nullkids") {
        nodes.assign(1, View_TreeNode { "n", nullptr, 0, 1, nullptr, 5 });
        root.children = nodes.data();
        root.childCount = 1;
    } else {
        rootPtr = nullptr;
    }
    QCOMPARE(View_ChangeMenuTreeContent(20, rootPtr), 0);
    NQmlTreeModelToTableModel* proxy = rows(20)->proxy();
    QCOMPARE(proxy->rowCount(), topRows);
    for (int r = 0; r < proxy->rowCount(); ++r)
        proxy->expand(r);
    QCOMPARE(proxy->rowCount(), allRows);
    if (shape == "alarm") {
        QCOMPARE(shownTexts(proxy),
            QStringList({ "Plant", "-Line A", "--Pump", "--Valve", "-Line B", "--Fan", "Office" }));
    } else if (shape == "deep") {
        QCOMPARE(proxy->depth(9999), 9999);
    } else if (shape == "cycle") {
        // c0 under the root; c1 under c0; c0 itself below c0 and below c1 is the cycle, skipped
        QCOMPARE(shownTexts(proxy), QStringList({ "c0", "-c1" }));
    }
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
    QCOMPARE(View_ChangeMenuTreeContent(20, nullptr), 0); // the old tree, however deep, goes
    QCOMPARE(proxy->rowCount(), 0);
}

void tst_MenuTree::entries_report_their_number_and_expanders_toggle_data()
{
    QTest::addColumn<bool>("dropDown");
    QTest::addColumn<bool>("touch");
    QTest::newRow("drop-down, mouse") << true << false;
    QTest::newRow("drop-down, touch") << true << true;
    QTest::newRow("in place, mouse") << false << false;
}

void tst_MenuTree::entries_report_their_number_and_expanders_toggle()
{
    QFETCH(bool, dropDown);
    QFETCH(bool, touch);
    const View_Menu m = menu(21, dropDown ? 0 : MENU_IN_PLACE);
    QCOMPARE(View_CreateMenuTreeAlarmGrp(reinterpret_cast<const View_MenuTreeAlarmGrp*>(&m), A), 0);
    AlarmTree alarm;
    QCOMPARE(View_ChangeMenuTreeContent(21, &alarm.root), 0);
    if (dropDown)
        QCOMPARE(View_MenuPopupDropdownBox(21), 0);
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
    m_rec.clear();
    XTreeViewControl* c = control(21);
    const auto tap = [&](QPointF p) {
        const QPoint at = m_panel.scenePoint(c, p);
        touch ? m_panel.touch(at) : m_panel.click(at);
    };
    // rows of 30 under a 1-pixel border; indent 20. Row 4 is "Line B" (depth 1): its expander
    // spans x 0..40
    tap(QPointF(30, 4 * 30 + 15));
    QVERIFY(pressEvents().isEmpty());
    QVERIFY(rows(21)->isExpanded(4));
    QCOMPARE(rows(21)->proxy()->rowCount(), 7);
    // row 5 is now "Fan" (110); its text is right of the expanders
    QSignalSpy clicked(c, SIGNAL(itemClicked(int)));
    tap(QPointF(150, 5 * 30 + 15));
    QCOMPARE(pressEvents(), QStringList({ "2:21:110", "3:21:110" }));
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(clicked[0][0].toInt(), 110);
    if (dropDown)
        QVERIFY(!qobject_cast<XQuickComboBox*>(ViewManage::getInstance()->getItemById(21))->isPopupOpen());
    QCOMPARE(c->treeview()->currentIndex(), -1); // the logic layer sets the selection
}

void tst_MenuTree::tree_select_sets_current_entry_and_text()
{
    const View_Menu m = menu(22, 0);
    QCOMPARE(View_CreateMenuTreeAlarmGrp(reinterpret_cast<const View_MenuTreeAlarmGrp*>(&m), A), 0);
    AlarmTree alarm;
    QCOMPARE(View_ChangeMenuTreeContent(22, &alarm.root), 0);
    const View_Text text { 0, Rect {}, 0, "Line A / Valve", nullptr, nullptr };
    QCOMPARE(View_ChangeMenuTreeSelect(22, 101, &text), 0);
    QCOMPARE(control(22)->treeview()->currentIndex(), 101);
    auto* box = qobject_cast<XQuickComboBox*>(ViewManage::getInstance()->getItemById(22));
    QCOMPARE(box->displayText(), QStringLiteral("Line A / Valve"));
    QCOMPARE(View_ChangeMenuTreeSelect(22, 5, nullptr), 0); // null text keeps the text
    QCOMPARE(box->displayText(), QStringLiteral("Line A / Valve"));
    // an entry inside a collapsed node: the nodes above it open so that it shows
    const NQmlTreeModelToTableModel* proxy = control(22)->treeview()->treeView()->proxy();
    QVERIFY(!shownTexts(proxy).contains("--Fan"));
    QCOMPARE(View_ChangeMenuTreeSelect(22, 110, nullptr), 0);
    QVERIFY(shownTexts(proxy).contains("--Fan"));
    QVERIFY(shownTexts(proxy).contains("--Valve")); // what was open stays open
    // the current entry is drawn highlighted (row 3 is "Valve")
    QCOMPARE(View_ChangeMenuTreeSelect(22, 101, &text), 0);
    QCOMPARE(View_MenuPopupDropdownBox(22), 0);
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
    const QImage img = m_panel.view()->grabWindow();
    QCOMPARE(QColor(img.pixel(m_panel.scenePoint(control(22), QPointF(290, 3 * 30 + 15)))), QColor(0, 0, 255));
    QCOMPARE(QColor(img.pixel(m_panel.scenePoint(control(22), QPointF(290, 2 * 30 + 15)))), QColor(255, 255, 255));
}

void tst_MenuTree::tree_calls_on_a_list_menu_are_refused()
{
    View_Menu m = menu(23, 0);
    m.flags = 0; // a flat list
    QCOMPARE(View_CreateMenuConst(reinterpret_cast<const View_MenuConst*>(&m), A), 0);
    AlarmTree alarm;
    QCOMPARE(View_ChangeMenuTreeContent(23, &alarm.root), -1);
    QCOMPARE(View_ChangeMenuTreeSelect(23, 1, nullptr), -1);
    const View_Menu t = menu(24, 0);
    QCOMPARE(View_CreateMenuTreeAlarmGrp(reinterpret_cast<const View_MenuTreeAlarmGrp*>(&t), A), 0);
    QCOMPARE(View_ChangeMenuContent(24, {}), -1);
    QCOMPARE(View_ChangeMenuSelect(24, 0, nullptr, nullptr), -1);
}

QGUI_GUIAPP_TEST_MAIN(tst_MenuTree)
#include "tst_menutree.moc"
