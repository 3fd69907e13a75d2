// The widget registry: caches through create, switch, close popup, re-parent
// and delete, and the generic operations with their fixed results, on a real
// panel.
#include "common/eventrecorder.h"
#include "common/guiapptestmain.h"
#include "common/panelfixture.h"

#include "platform/gid.h"
#include "platform/logiclayercaller.h"
#include "utils/utils.h"
#include "views/lifecyclemanager.h"
#include "views/qmlwindowmanage.h"
#include "views/viewmanage.h"
#include "views/widgetpropertymanage.h"
#include "xcomponents/qquick/xbasecontrol.h"

#include <QPointer>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QThread>

#include <QQuickItem>
#include <atomic>
#include <functional>
#include <memory>

Q_DECLARE_METATYPE(std::function<int()>)

/** An item type of a QML module that takes its ids through invokable setters (not an XBaseControl). */
class IdHolder : public QQuickItem {
    Q_OBJECT
public:
    Q_INVOKABLE void setId(uint id) { m_id = id; }
    Q_INVOKABLE void setWindowId(uint id) { m_windowId = id; }
    uint m_id = 0;
    uint m_windowId = 0;
};

class tst_Registry : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void caches_follow_create_close_reparent_and_delete();
    void creation_needs_a_window_and_a_record();
    void closing_a_desktop_caches_its_popup_widgets();
    void an_id_created_again_replaces_its_widget();
    void show_from_cache_reports_an_unknown_id();
    void unknown_ids_give_their_fixed_results_data();
    void unknown_ids_give_their_fixed_results();
    void unknown_ids_get_the_documented_result_data();
    void unknown_ids_get_the_documented_result();
    void export_to_file_runs_on_a_worker();
    void disable_flags_data();
    void disable_flags();
    void opacity_rectangle_and_move();
    void deleting_a_widget_inside_its_own_press_handler(); // then changing it, and re-entering
    void ids_reach_items_declared_in_qml_of_any_type();

private:
    unsigned placeholder(unsigned id, unsigned windowId, Rect r = Rect { 10, 20, 30, 40 });

    PanelFixture m_panel;
    EventRecorder m_rec;
    const unsigned A = PanelFixture::wid(1, 1);
    const unsigned P = PanelFixture::wid(1, 2);
};

void tst_Registry::init()
{
    QVERIFY(m_panel.start());
    m_rec.install();
    m_rec.clear();
    Utils::resetAssertCount();
    QCOMPARE(m_panel.switchWindow(A, Rect { 0, 0, 800, 480 }), 0);
}

void tst_Registry::cleanup()
{
    m_panel.stop();
}

unsigned tst_Registry::placeholder(unsigned id, unsigned windowId, Rect r)
{
    View_CameraIP rec {};
    rec.rect = r;
    rec.id = id;
    return unsigned(View_CreateCameraIP(&rec, windowId));
}

void tst_Registry::caches_follow_create_close_reparent_and_delete()
{
    auto* vm = ViewManage::getInstance();
    LifeCycleManager* lc = vm->lifeCycle();
    QCOMPARE(placeholder(101, A), 0u);
    QCOMPARE(placeholder(102, A), 0u);
    QVERIFY(lc->isVisibleEntry(101));
    QVERIFY(!vm->getItemById(101)->parent()); // owned by the registry, not by its window
    QCOMPARE(vm->getItemById(101)->parentItem(), vm->windowManage()->getWindow(A));

    QCOMPARE(m_panel.popup(P, Rect { 100, 100, 300, 200 }), 0);
    QCOMPARE(placeholder(201, P), 0u);
    QPointer<QQuickItem> inPopup = vm->getItemById(201);
    QVERIFY(vm->idHash().contains(201));

    // closing the popup keeps its widgets, unparented, in the invisible cache
    QCOMPARE(View_CloseWindow(P), 0);
    PanelFixture::settle();
    QVERIFY(inPopup);
    QVERIFY(!inPopup->parentItem());
    QVERIFY(lc->isInvisibleEntry(201));
    QVERIFY(!vm->idHash().contains(201));
    QCOMPARE(vm->getItemById(201), inPopup.data());

    // re-parented into the window it is visible again
    QCOMPARE(View_SetWidgetParent(201, A), 0);
    QCOMPARE(inPopup->parentItem(), vm->windowManage()->getWindow(A));
    QVERIFY(lc->isVisibleEntry(201));
    QCOMPARE(GId::wid(inPopup), A);

    // switching windows re-sorts the caches by parent
    const unsigned B = PanelFixture::wid(1, 3);
    LifeCycleManager::removeItemParentItem(vm->getItemById(102));
    QCOMPARE(m_panel.switchWindow(B, Rect { 0, 0, 800, 480 }), 0);
    QVERIFY(lc->isInvisibleEntry(102));
    QVERIFY(lc->isVisibleEntry(101));

    // delete twice: the second time nothing is found and nothing happens
    QPointer<QQuickItem> doomed = vm->getItemById(101);
    QCOMPARE(View_DeleteWidgets({ 101 }), 0);
    QCOMPARE(View_DeleteWidgets({ 101, 4242 }), 0);
    QVERIFY(!vm->getItemById(101));
    QVERIFY(doomed); // deletion is deferred
    PanelFixture::settle();
    QVERIFY(!doomed);
    QCOMPARE(Utils::assertCount(), 0);
}

void tst_Registry::closing_a_desktop_caches_its_popup_widgets()
{
    auto* vm = ViewManage::getInstance();
    QCOMPARE(m_panel.popup(P, Rect { 100, 100, 300, 200 }), 0);
    QCOMPARE(placeholder(211, P), 0u);
    QPointer<QQuickItem> item = vm->getItemById(211);
    QCOMPARE(View_CloseDesktop(1), 0);
    PanelFixture::settle();
    QVERIFY(item); // kept in the cache, out of the scene
    QVERIFY(!item->parentItem());
    QVERIFY(!vm->idHash().contains(211));
    QVERIFY(vm->lifeCycle()->isInvisibleEntry(211));
    QVERIFY(!vm->windowManage()->getWindow(A));
}

void tst_Registry::creation_needs_a_window_and_a_record()
{
    QCOMPARE(int(placeholder(301, 0)), -1);
    QCOMPARE(int(placeholder(302, PanelFixture::wid(1, 77))), -1);
    QCOMPARE(int(placeholder(303, PanelFixture::wid(9, 1))), -1);
    QCOMPARE(View_CreateCameraIP(nullptr, A), -1);
    QVERIFY(!ViewManage::getInstance()->getItemById(301));
    QVERIFY(!ViewManage::getInstance()->getItemById(302));
    Rect negative { 5, 5, -10, -20 };
    QCOMPARE(placeholder(304, A, negative), 0u);
    QCOMPARE(ViewManage::getInstance()->getItemById(304)->size(), QSizeF(0, 0));
}

void tst_Registry::an_id_created_again_replaces_its_widget()
{
    QCOMPARE(placeholder(401, A), 0u);
    QPointer<QQuickItem> first = ViewManage::getInstance()->getItemById(401);
    QCOMPARE(placeholder(401, A, Rect { 200, 200, 10, 10 }), 0u);
    QQuickItem* second = ViewManage::getInstance()->getItemById(401);
    QVERIFY(second != first.data());
    PanelFixture::settle();
    QVERIFY(!first); // the replaced widget is deleted, not leaked
    QCOMPARE(second->position(), QPointF(200, 200));
}

void tst_Registry::show_from_cache_reports_an_unknown_id()
{
    QCOMPARE(View_ShowWidget(999, 1, ITEM_SLASH_WHOLE), -1);
    QVERIFY2(
        Utils::lastAssertLocation().startsWith("\"nullptr != pItem\" in file qgui/views/ViewManage, line "),
        qPrintable(Utils::lastAssertLocation()));
    Utils::resetAssertCount();
    QCOMPARE(View_ShowWidget(999, 0, ITEM_SLASH_WHOLE), 0);
    QCOMPARE(Utils::assertCount(), 0);

    QCOMPARE(placeholder(501, A), 0u);
    View_HideWidget(501, ITEM_SLASH_WHOLE);
    QVERIFY(!ViewManage::getInstance()->getItemById(501)->isVisible());
    QCOMPARE(View_ShowWidget(501, 1, ITEM_SLASH_WHOLE), 0);
    QVERIFY(ViewManage::getInstance()->getItemById(501)->isVisible());
}

void tst_Registry::unknown_ids_give_their_fixed_results_data()
{
    QTest::addColumn<int>("call");
    QTest::addColumn<int>("expected");
    QTest::addColumn<bool>("asserts");
    QTest::newRow("DeleteWidgets") << 0 << 0 << false;
    QTest::newRow("HideWidget") << 1 << 0 << false;
    QTest::newRow("MoveWidget") << 2 << -1 << false;
    QTest::newRow("ChangeOpacity") << 3 << 0 << false;
    QTest::newRow("SetDisableFlag") << 4 << -1 << true;
    QTest::newRow("ClrDisableFlag") << 5 << -1 << true;
    QTest::newRow("SetBusy") << 6 << 0 << false;
    QTest::newRow("ClrBusy") << 7 << 0 << false;
    QTest::newRow("SetInputMode") << 8 << 0 << false;
    QTest::newRow("ClrInputFlag") << 9 << 0 << false;
    QTest::newRow("GetWgtRect") << 10 << 0 << false;
    QTest::newRow("SetWidgetParent to no parent") << 11 << -1 << true;
    QTest::newRow("SetWidgetParent unknown widget") << 12 << 0 << false;
    QTest::newRow("ShowWidget not from cache") << 13 << 0 << false;
}

void tst_Registry::unknown_ids_get_the_documented_result_data()
{
    // what include/qgui/view.h documents for an unknown id, and a creator given an unknown window
    // makes nothing
    QTest::addColumn<std::function<int()>>("call");
    QTest::addColumn<int>("expected");
    const unsigned id = 77;
    const Brush brush { BRUSH_SOLID, 0xFF000000u, 0, 0 };
    QTest::newRow("FillWidget: ignored")
        << std::function<int()>([=] { return View_FillWidget(id, 0, 1, 2, brush); }) << 0;
    QTest::newRow("RotateWidget: ignored")
        << std::function<int()>([=] { return View_RotateWidget(id, 90, 4); }) << 0;
    QTest::newRow("ZoomWidget: ignored")
        << std::function<int()>([=] { return View_ZoomWidget(id, 9, 9, 0); }) << 0;
    QTest::newRow("SetTextCursorFocus: always 0")
        << std::function<int()>([=] { return View_SetTextCursorFocus(id); }) << 0;
    QTest::newRow("SetTextSelectCursor: always 0")
        << std::function<int()>([=] { return View_SetTextSelectCursor(id, 0, 1); }) << 0;
    QTest::newRow("ChangeListCtrlSel: always 0")
        << std::function<int()>([=] { return View_ChangeListCtrlSel(id, 1, 1); }) << 0;
    QTest::newRow("PopupDateTimeDialog: always 0")
        << std::function<int()>([=] { return View_PopupDateTimeDialog(id, "x"); }) << 0;
    QTest::newRow("CurveXyShowCursor: always 0")
        << std::function<int()>([] { return View_CurveXyShowCursor(); }) << 0;
    QTest::newRow("ChangePen") << std::function<int()>([=] { return View_ChangePen(id, nullptr); }) << -1;
    QTest::newRow("MeterUpdateVal") << std::function<int()>([=] { return View_MeterUpdateVal(id, 5); }) << -1;
    QTest::newRow("ChangeInputParam")
        << std::function<int()>([=] { return View_ChangeInputParam(id, nullptr); }) << -1;
    QTest::newRow("ChangeListCtrlContent")
        << std::function<int()>([=] { return View_ChangeListCtrlContent(id, {}); }) << -1;
    QTest::newRow("CreateMeter in no window") << std::function<int()>([] {
        View_Meter rec {};
        rec.id = 77;
        return View_CreateMeter(&rec, PanelFixture::wid(9, 9));
    }) << -1;
    QTest::newRow("Export2File without work")
        << std::function<int()>([] { return View_Export2File(nullptr, {}); }) << -1;
}

void tst_Registry::unknown_ids_get_the_documented_result()
{
    QFETCH(std::function<int()>, call);
    QFETCH(int, expected);
    QCOMPARE(call(), expected);
    QVERIFY(!ViewManage::getInstance()->getItemById(77));
    QCOMPARE(Utils::assertCount(), 0);
}

void tst_Registry::export_to_file_runs_on_a_worker()
{
    std::atomic<bool> ran { false };
    std::atomic<bool> onGuiThread { true };
    QThread* gui = QThread::currentThread();
    QCOMPARE(View_Export2File(&ran,
                 [&](void* context) {
                     onGuiThread = QThread::currentThread() == gui;
                     static_cast<std::atomic<bool>*>(context)->store(true);
                 }),
        0);
    QTRY_VERIFY(ran);
    QVERIFY(!onGuiThread);
}

void tst_Registry::unknown_ids_give_their_fixed_results()
{
    QFETCH(int, call);
    QFETCH(int, expected);
    QFETCH(bool, asserts);
    const unsigned id = 0xFFFFFFFFu;
    Rect r { 1, 2, 3, 4 };
    int result = 12345;
    switch (call) {
    case 0:
        result = View_DeleteWidgets({ id, 0 });
        break;
    case 1:
        result = View_HideWidget(id, ITEM_SLASH_SLASH);
        break;
    case 2:
        result = View_MoveWidget(id, 1, 1);
        break;
    case 3:
        result = View_ChangeOpacity(id, 50);
        break;
    case 4:
        result = View_SetDisableFlag(id, 6);
        break;
    case 5:
        result = View_ClrDisableFlag(id, 6);
        break;
    case 6:
        result = View_SetBusy(id);
        break;
    case 7:
        result = View_ClrBusy(id);
        break;
    case 8:
        result = View_SetInputMode(id, true);
        break;
    case 9:
        result = View_ClrInputFlag(id);
        break;
    case 10:
        result = View_GetWgtRect(id, r);
        QCOMPARE(r.width, 3); // untouched
        break;
    case 11:
        result = View_SetWidgetParent(id, PanelFixture::wid(1, 99));
        break;
    case 12:
        result = View_SetWidgetParent(id, A);
        break;
    case 13:
        result = View_ShowWidget(id, 0, ItemSlashType(77));
        break;
    }
    QCOMPARE(result, expected);
    QCOMPARE(Utils::assertCount() > 0, asserts);
    if (asserts)
        QVERIFY(Utils::lastAssertLocation().contains(" in file qgui/views/ViewManage, line "));
}

void tst_Registry::disable_flags_data()
{
    QTest::addColumn<uint>("flags");
    QTest::addColumn<bool>("icon");
    QTest::addColumn<bool>("gray");
    QTest::newRow("6: icon and grey") << 6u << true << true;
    QTest::newRow("1: neither") << 1u << false << false;
    QTest::newRow("2: icon") << 2u << true << false;
    QTest::newRow("4: grey") << 4u << false << true;
    QTest::newRow("unknown bits ignored") << 0xFFFFFFF9u << false << false;
}

void tst_Registry::disable_flags()
{
    QFETCH(uint, flags);
    QFETCH(bool, icon);
    QFETCH(bool, gray);
    XBaseControl* c = PanelFixture::control(601, A);
    QCOMPARE(View_SetDisableFlag(601, flags), 0);
    QCOMPARE(c->disEnableIcon() && c->disEnableIcon()->isVisible(), icon);
    QCOMPARE(c->grayFlag(), gray);
    QCOMPARE(View_ClrDisableFlag(601, flags), 0);
    QVERIFY(!(c->disEnableIcon() && c->disEnableIcon()->isVisible()));
    QVERIFY(!c->grayFlag());
    QCOMPARE(View_SetBusy(601), 0);
    QVERIFY(c->busyIcon() && c->busyIcon()->isVisible());
    QCOMPARE(View_ClrBusy(601), 0);
    QVERIFY(!c->busyIcon()->isVisible());
}

void tst_Registry::opacity_rectangle_and_move()
{
    QCOMPARE(placeholder(701, A, Rect { 10, 20, 30, 40 }), 0u);
    QQuickItem* item = ViewManage::getInstance()->getItemById(701);
    QCOMPARE(View_ChangeOpacity(701, 50), 0);
    QCOMPARE(item->opacity(), 0.5);
    QCOMPARE(View_ChangeOpacity(701, 255), 0);
    QCOMPARE(item->opacity(), 1.0);
    Rect r {};
    QCOMPARE(View_GetWgtRect(701, r), 0);
    QCOMPARE(r.x, 10);
    QCOMPARE(r.y, 20);
    QCOMPARE(r.width, 30);
    QCOMPARE(r.height, 40);
    QCOMPARE(View_MoveWidget(701, 5, 6), 0); // a painted item moves
    QCOMPARE(item->position(), QPointF(5, 6));
    PanelFixture::control(702, A);
    QCOMPARE(View_MoveWidget(702, 5, 6), -1); // a plain control does not
    QCOMPARE(View_HideWidget(702, ITEM_SLASH_SLASH), -1);
    QVERIFY(Utils::lastAssertLocation().startsWith("\"0\" in file qgui/views/ViewManage"));
}

namespace {
QPointer<XBaseControl> g_pressed;
bool g_validAfterDelete = false;

QList<int> g_afterDelete;
bool g_reentrant = false;

ErrRet deleteOnPress(unsigned id, int code, void* data)
{
    EventRecorder::callBack(id, code, data);
    if (code == EVT_WIDGET_PRESS && id != 0) {
        View_DeleteWidgets({ id }); // the logic layer deletes the widget from inside its own event
        g_validAfterDelete = !g_pressed.isNull() && g_pressed->getId() == id;
        // ... changes it in the same call-back: the id is gone, the documented results for an unknown id
        g_afterDelete = { View_MoveWidget(id, 5, 5), View_ChangeOpacity(id, 50), View_ShowWidget(id, 1, ItemSlashType(0)) };
        // ... and makes and deletes other widgets while the event is being delivered
        View_CameraIP rec {};
        rec.rect = Rect { 0, 0, 40, 40 };
        rec.id = 802;
        g_reentrant = View_CreateCameraIP(&rec, PanelFixture::wid(1, 1)) == 0 && View_DeleteWidgets({ 802 }) == 0;
        rec.id = 803;
        g_reentrant = g_reentrant && View_CreateCameraIP(&rec, PanelFixture::wid(1, 1)) == 0;
    }
    return 0;
}
} // namespace

void tst_Registry::deleting_a_widget_inside_its_own_press_handler()
{
    XBaseControl* c = PanelFixture::control(801, A);
    QPointer<XBaseControl> guard(c);
    g_pressed = c;
    g_validAfterDelete = false;
    LogicLayerCaller::setCallBack(&deleteOnPress);
    const QPoint p = m_panel.sceneCenter(c);
    m_panel.press(p);
    QVERIFY(g_validAfterDelete); // still valid while its own handler runs
    QCOMPARE(g_afterDelete, (QList<int> { -1, 0, -1 })); // changed after its delete: an unknown id
    QVERIFY(g_reentrant);
    m_panel.release(p);
    PanelFixture::settle();
    QVERIFY(!guard);
    auto* vm = ViewManage::getInstance();
    QVERIFY(!vm->getItemById(802)); // made and deleted inside the call-back
    QVERIFY(vm->getItemById(803)); // made inside the call-back, kept
    QCOMPARE(View_MoveWidget(803, 10, 10), 0);
    QCOMPARE(m_rec.eventsWithCode(EVT_WIDGET_PRESS).size(), 1);
    QCOMPARE(m_rec.eventsWithCode(EVT_WIDGET_PRESS).first().id, 801u);
    m_rec.install();
}

void tst_Registry::ids_reach_items_declared_in_qml_of_any_type()
{
    // Items declared in QML each have a meta-object of their own, freed with the item: the next item's
    // may be given the same address. Items of a type without the setters (ids kept as properties) and of
    // one with them, made and freed in turn, must each get their ids their own way.
    qmlRegisterType<IdHolder>("QGuiTest.Registry", 1, 0, "IdHolder");
    QQmlEngine engine;
    QQmlComponent plain(&engine);
    plain.setData("import QtQuick 2.15\nItem { property int a; property int b }", QUrl());
    QQmlComponent holder(&engine);
    holder.setData("import QtQuick 2.15\nimport QGuiTest.Registry 1.0\nIdHolder { property int a; property int b }", QUrl());
    QVERIFY2(plain.isReady() && holder.isReady(), qPrintable(plain.errorString() + holder.errorString()));
    for (unsigned i = 1; i <= 40; ++i) {
        std::unique_ptr<QObject> made((i % 2 ? plain : holder).create());
        auto* item = qobject_cast<QQuickItem*>(made.get());
        QVERIFY(item);
        WidgetPropertyManage::setIds(item, 1000 + i, 2000 + i);
        if (auto* h = qobject_cast<IdHolder*>(item)) {
            QCOMPARE(h->m_id, 1000 + i);
            QCOMPARE(h->m_windowId, 2000 + i);
        } else {
            QCOMPARE(GId::id(item), 1000 + i);
            QCOMPARE(GId::wid(item), 2000 + i);
        }
    }
}

QGUI_GUIAPP_TEST_MAIN(tst_Registry)
#include "tst_registry.moc"
