// Desktops, windows and popup windows on a real panel: title-bar events,
// dragging, dimming, the message box from another thread, the busy bar, and
// the fixed results for unknown windows.
#include "common/eventrecorder.h"
#include "common/guiapptestmain.h"
#include "common/panelfixture.h"

#include "app/xquickview.h"
#include "platform/xoverlay.h"
#include "views/guithreadguard.h"
#include "views/presswatcher.h"
#include "views/qmlwindowmanage.h"
#include "views/viewmanage.h"
#include "xcomponents/qquick/xbasecontrol.h"
#include "xcomponents/qquick/xcausetext.h"
#include "xcomponents/qquick/xlumodialog.h"
#include "xcomponents/qquick/xwindow.h"
#include "xcomponents/qquick/xwindowtitile.h"

#include <QImage>
#include <QQuickItem>
#include <QTemporaryDir>

#include <thread>

class tst_Windows : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void title_bar_reports_and_never_closes_by_itself_data();
    void title_bar_reports_and_never_closes_by_itself();
    void dragging_the_title_moves_a_movable_popup();
    void dimming_blocks_presses_but_reports_them_data();
    void dimming_blocks_presses_but_reports_them();
    void window_hands_presses_to_the_widget_under_the_finger();
    void modal_popup_keeps_presses_from_the_window();
    void message_box_from_another_thread();
    void other_threads_are_refused_data();
    void other_threads_are_refused();
    void busy_bar_starts_and_stops();
    void windows_switch_and_report_geometry();
    void unknown_windows_give_their_fixed_results();
    void windows_of_another_desktop();
    void bad_records_and_texts();
    void screenshots_of_the_panel_and_of_a_window();

private:
    XLumoDialog* dialog(unsigned id) { return ViewManage::getInstance()->windowManage()->findDialog(id); }

    PanelFixture m_panel;
    EventRecorder m_rec;
    const unsigned A = PanelFixture::wid(1, 1);
    const unsigned P = PanelFixture::wid(1, 2);
};

void tst_Windows::init()
{
    QVERIFY(m_panel.start());
    m_rec.install();
    QCOMPARE(m_panel.switchWindow(A, Rect { 0, 0, 800, 480 }), 0);
    m_rec.clear();
}

void tst_Windows::cleanup()
{
    m_panel.stop();
}

void tst_Windows::title_bar_reports_and_never_closes_by_itself_data()
{
    QTest::addColumn<int>("button"); // WindowTitile::Button, 0 = the title itself
    QTest::addColumn<bool>("touch");
    QTest::addColumn<int>("code");
    QTest::newRow("close, mouse") << int(WindowTitile::CloseButton) << false << int(EVT_POPUP_CLOSE);
    QTest::newRow("close, touch") << int(WindowTitile::CloseButton) << true << int(EVT_POPUP_CLOSE);
    QTest::newRow("up") << int(WindowTitile::UpButton) << false << int(EVT_POPUP_UP);
    QTest::newRow("down, touch") << int(WindowTitile::DownButton) << true << int(EVT_POPUP_DOWN);
    QTest::newRow("title pressed") << 0 << false << int(EVT_POPUP_TITLE_PRESS);
}

void tst_Windows::title_bar_reports_and_never_closes_by_itself()
{
    QFETCH(int, button);
    QFETCH(bool, touch);
    QFETCH(int, code);
    QCOMPARE(m_panel.popup(P, Rect { 100, 80, 400, 250 }), 0);
    XLumoDialog* d = dialog(P);
    QVERIFY(d && d->isOpened());
    auto* bar = qobject_cast<WindowTitile*>(d->header());
    QVERIFY(bar);
    QCOMPARE(d->titleHeight(), 40);
    const QPointF local = button ? bar->buttonRect(WindowTitile::Button(button)).center() : QPointF(60, 20);
    const QPoint p = m_panel.scenePoint(bar, local);
    m_rec.clear();
    touch ? m_panel.touch(p) : m_panel.click(p);
    const auto events = m_rec.eventsWithCode(code);
    QCOMPARE(events.size(), 1);
    QCOMPARE(events.first().id, P);
    QVERIFY(events.first().nullData);
    QVERIFY(d->isOpened()); // closing is the logic layer's decision
    QCOMPARE(View_CloseWindow(P), 0);
    QVERIFY(!dialog(P));
}

void tst_Windows::dragging_the_title_moves_a_movable_popup()
{
    QCOMPARE(m_panel.popup(P, Rect { 100, 80, 400, 250 }), 0);
    XLumoDialog* d = dialog(P);
    const QPoint start = m_panel.scenePoint(d->header(), QPointF(60, 20));
    QTest::mousePress(m_panel.view(), Qt::LeftButton, Qt::NoModifier, start);
    for (int i = 1; i <= 5; ++i)
        QTest::mouseMove(m_panel.view(), start + QPoint(10 * i, 6 * i));
    QTest::mouseRelease(m_panel.view(), Qt::LeftButton, Qt::NoModifier, start + QPoint(50, 30));
    QCOMPARE(d->position(), QPointF(150, 110));

    QCOMPARE(View_SetDialogMoveControl(P, false), 0);
    const QPoint again = m_panel.scenePoint(d->header(), QPointF(60, 20));
    QTest::mousePress(m_panel.view(), Qt::LeftButton, Qt::NoModifier, again);
    QTest::mouseMove(m_panel.view(), again + QPoint(40, 40));
    QTest::mouseRelease(m_panel.view(), Qt::LeftButton, Qt::NoModifier, again + QPoint(40, 40));
    QCOMPARE(d->position(), QPointF(150, 110));
}

void tst_Windows::dimming_blocks_presses_but_reports_them_data()
{
    QTest::addColumn<int>("percent");
    QTest::addColumn<int>("alpha"); // -1: the layer is closed
    QTest::addColumn<bool>("touch");
    QTest::newRow("50 percent") << 50 << 128 << false;
    QTest::newRow("0 percent, touch") << 0 << 255 << true;
    QTest::newRow("99 percent") << 99 << 3 << false;
    QTest::newRow("full brightness") << 100 << -1 << false;
    QTest::newRow("above 100 counts as 100") << 250 << -1 << true;
    QTest::newRow("negative counts as 0") << -5 << 255 << false;
}

void tst_Windows::dimming_blocks_presses_but_reports_them()
{
    QFETCH(int, percent);
    QFETCH(int, alpha);
    QFETCH(bool, touch);
    XBaseControl* c = PanelFixture::control(11, A, { 300, 200 });
    QCOMPARE(View_SetLight(percent), 0);
    XPopup* lighter = ViewManage::getInstance()->windowManage()->lighter(1);
    QVERIFY(lighter);
    QCOMPARE(lighter->isOpened(), alpha >= 0);
    if (alpha >= 0)
        QCOMPARE(lighter->property("color").value<QColor>().alpha(), alpha);
    QVERIFY(QTest::qWaitForWindowExposed(m_panel.view()));
    m_rec.clear();
    const QPoint p = m_panel.sceneCenter(c);
    touch ? m_panel.touch(p) : m_panel.click(p);
    const auto presses = m_rec.eventsWithCode(EVT_PRESS);
    QCOMPARE(presses.size(), 1);
    QCOMPARE(presses.first().id, 0u);
    QCOMPARE(QPoint(presses.first().intAt(0), presses.first().intAt(1)), p);
    QCOMPARE(m_rec.count(EVT_WIDGET_PRESS), alpha >= 0 ? 0 : 1); // a dimmed panel only wakes
    View_SetLight(100);
    QVERIFY(!lighter->isOpened());
    QVERIFY(!ViewManage::getInstance()->windowManage()->pressWatcher()->blockPress());
}

void tst_Windows::window_hands_presses_to_the_widget_under_the_finger()
{
    XBaseControl* under = PanelFixture::control(21, A, { 100, 100 });
    XWindow* win = ViewManage::getInstance()->windowManage()->findWindow(A);
    QVERIFY(win);
    m_rec.clear();
    QCOMPARE(win->pressHandler(QPointF(120, 120), nullptr), 21u);
    QCOMPARE(win->releaseHandler(QPointF(500, 400), under), 21u); // nothing there: the source's id
    QCOMPARE(win->releaseHandler(QPointF(500, 400), nullptr), 0u);
    const auto events = m_rec.events();
    QCOMPARE(events.size(), 3);
    QCOMPARE(events[0].code, int(EVT_WIDGET_PRESS));
    QCOMPARE(events[0].id, 21u);
    QCOMPARE(events[1].code, int(EVT_WIDGET_RELEASE));

    QCOMPARE(m_panel.popup(P, Rect { 300, 100, 300, 200 }), 0);
    XLumoDialog* d = dialog(P);
    QQuickItem* content = ViewManage::getInstance()->windowManage()->getWindow(P);
    auto* inPopup = new XBaseControl(content);
    inPopup->setId(22);
    inPopup->setSize({ 50, 50 });
    ViewManage::getInstance()->appendItem(22, inPopup);
    QCOMPARE(d->pressHandler(QPointF(10, 50), nullptr), 22u); // below the 40-pixel title
}

void tst_Windows::modal_popup_keeps_presses_from_the_window()
{
    XBaseControl* c = PanelFixture::control(31, A, { 20, 400 });
    QCOMPARE(m_panel.popup(P, Rect { 200, 100, 300, 200 }, 10, true), 0);
    m_rec.clear();
    m_panel.click(m_panel.sceneCenter(c));
    QCOMPARE(m_rec.count(EVT_PRESS), 1); // the panel press is still reported
    QCOMPARE(m_rec.count(EVT_WIDGET_PRESS), 0);
    View_CloseWindow(P);
    m_panel.click(m_panel.sceneCenter(c));
    QCOMPARE(m_rec.count(EVT_WIDGET_PRESS), 1);
}

void tst_Windows::message_box_from_another_thread()
{
    std::thread worker([] {
        View_PopupMsg("from a worker", 5);
        View_PopupMsg("second \xe6\xb6\x88\xe6\x81\xaf", 0);
        View_PopupMsg(nullptr, 1);
    });
    worker.join();
    QmlWindowManage* wm = ViewManage::getInstance()->windowManage();
    QVERIFY(!wm->messageBox()); // shown on the next turn of the event loop
    QTRY_VERIFY(wm->messageBox() && qobject_cast<XPopup*>(wm->messageBox())->isOpened());
    QCOMPARE(wm->messageBox()->z(), QmlWindowManage::kMessageZ);
    QQuickItem* list = wm->messageBox()->findChild<QQuickItem*>("msgList");
    QVERIFY(list);
    QTRY_COMPARE(list->property("count").toInt(), 3);
}

void tst_Windows::other_threads_are_refused_data()
{
    QTest::addColumn<QString>("call");
    QTest::newRow("create") << "create";
    QTest::newRow("change text") << "change";
    QTest::newRow("delete") << "delete";
    QTest::newRow("hide") << "hide";
    QTest::newRow("window switch") << "switch";
    QTest::newRow("close window") << "close";
    QTest::newRow("language") << "language";
}

void tst_Windows::other_threads_are_refused()
{
    QFETCH(QString, call);
    const unsigned id = 4711;
    const Font font {};
    View_Text rec { 0, Rect { 10, 10, 200, 40 }, id, "as made", &font, nullptr };
    QCOMPARE(View_CreateText(&rec, A), 0);
    auto* text = qobject_cast<XCauseText*>(ViewManage::getInstance()->getItemById(id));
    QVERIFY(text);
    const int refusedBefore = GuiThreadGuard::refusedCount();
    const int itemsBefore = ViewManage::getInstance()->findChildren<QObject*>().size();
    const unsigned B = PanelFixture::wid(1, 9);

    int result = 0;
    std::thread worker([&] {
        View_Text other { 0, Rect { 10, 60, 200, 40 }, id + 1, "from a worker", &font, nullptr };
        View_Window w {};
        w.id = B;
        w.rect = Rect { 0, 0, 300, 200 };
        if (call == QLatin1String("create"))
            result = View_CreateText(&other, A);
        else if (call == QLatin1String("change"))
            result = View_ChangeTextContent(id, "changed by a worker", nullptr);
        else if (call == QLatin1String("delete"))
            result = View_DeleteWidgets(std::list<unsigned> { id });
        else if (call == QLatin1String("hide"))
            result = View_HideWidget(id, ITEM_SLASH_WHOLE);
        else if (call == QLatin1String("switch"))
            result = View_SwitchWindow(&w);
        else if (call == QLatin1String("close"))
            result = View_CloseWindow(A);
        else if (call == QLatin1String("language"))
            result = View_SetSysWndLang(1);
    });
    worker.join();
    PanelFixture::settle();
    QCOMPARE(result, -1);
    QCOMPARE(GuiThreadGuard::refusedCount(), refusedBefore + 1); // one warning per refused call
    // nothing changed: the widget, its text, its window, the registry
    QCOMPARE(ViewManage::getInstance()->getItemById(id), static_cast<QQuickItem*>(text));
    QVERIFY(!ViewManage::getInstance()->getItemById(id + 1));
    QCOMPARE(text->text(), QStringLiteral("as made"));
    QVERIFY(text->isVisible());
    QVERIFY(ViewManage::getInstance()->windowManage()->findWindow(A));
    QVERIFY(!ViewManage::getInstance()->windowManage()->findWindow(B));
    QCOMPARE(ViewManage::getInstance()->findChildren<QObject*>().size(), itemsBefore);
    // and the same call on the GUI thread still works
    QCOMPARE(View_ChangeTextContent(id, "changed here", nullptr), 0);
    QCOMPARE(text->text(), QStringLiteral("changed here"));
    QCOMPARE(View_DeleteWidgets(std::list<unsigned> { id }), 0);
}

void tst_Windows::busy_bar_starts_and_stops()
{
    QCOMPARE(View_ShowProcess(5, 0, 0), 0);
    auto* bar = qobject_cast<XPopup*>(ViewManage::getInstance()->windowManage()->busyBar());
    QVERIFY(bar && bar->isOpened());
    QCOMPARE(View_HideProcess(5), 0);
    QVERIFY(!bar->isOpened());
    QCOMPARE(View_HideProcess(5), 0); // again: nothing to stop
}

void tst_Windows::windows_switch_and_report_geometry()
{
    const unsigned B = PanelFixture::wid(1, 2);
    QCOMPARE(m_panel.switchWindow(B, Rect { 10, 20, 300, 200 }), 0);
    QmlWindowManage* wm = ViewManage::getInstance()->windowManage();
    QCOMPARE(wm->currentWindow(), static_cast<QQuickItem*>(wm->findWindow(B)));
    QCOMPARE(m_panel.switchWindow(A, Rect { 0, 0, 800, 480 }), 0); // back to an open window
    QCOMPARE(wm->currentWindow(), static_cast<QQuickItem*>(wm->findWindow(A)));
    Rect r {};
    QCOMPARE(View_GetWindowRect(B, r), 0);
    QCOMPARE(r.x, 10);
    QCOMPARE(r.width, 300);
    QCOMPARE(View_WindowShowAndMove(B, 50, 60), 0);
    QCOMPARE(wm->findWindow(B)->position(), QPointF(50, 60));
    QCOMPARE(View_HideWindow(B), 0);
    QVERIFY(!wm->findWindow(B)->isVisible());
    int h = -1;
    QCOMPARE(View_GetTitleBarHeight(B, h), 0);
    QCOMPARE(h, 0); // a window has no title bar
    QCOMPARE(m_panel.popup(P + 10, Rect { 0, 0, 200, 100 }), 0);
    QCOMPARE(View_GetTitleBarHeight(P + 10, h), 0);
    QCOMPARE(h, 40);
    QCOMPARE(View_ChangeWindowTitle(P + 10, "new title"), 0);
    QCOMPARE(qobject_cast<WindowTitile*>(dialog(P + 10)->header())->title(), QString("new title"));
    QCOMPARE(View_CloseWindow(B), 0);
    PanelFixture::settle();
    QVERIFY(!wm->findWindow(B));
}

void tst_Windows::unknown_windows_give_their_fixed_results()
{
    const unsigned none = PanelFixture::wid(1, 999);
    Rect r { 7, 7, 7, 7 };
    int h = 99;
    QCOMPARE(View_ShowWindow(none, true), -1);
    QCOMPARE(View_HideWindow(none), View_ShowWindow(none, false));
    QCOMPARE(View_ChangeWindowTitle(none, "x"), -1);
    QCOMPARE(View_GetTitleBarHeight(none, h), -1);
    QCOMPARE(h, 99);
    QCOMPARE(View_SetWindowParent(none, A), -1);
    QCOMPARE(View_SetWindowParent(A, none), -1);
    QCOMPARE(View_WindowShowAndMove(none, 1, 1), -1);
    QCOMPARE(View_GetWindowRect(none, r), -1);
    QCOMPARE(r.x, 7);
    QCOMPARE(View_ShowDesktop(42), 0);
    QCOMPARE(View_HideDesktop(42), 0);
    QCOMPARE(View_CloseDesktop(42), 0);
    QCOMPARE(View_CloseWindow(none), -1);
    QCOMPARE(m_panel.popup(PanelFixture::wid(42, 1), Rect { 0, 0, 10, 10 }), 0); // no such desktop
    QVERIFY(!dialog(PanelFixture::wid(42, 1)));
    QCOMPARE(m_panel.switchWindow(PanelFixture::wid(42, 1), Rect { 0, 0, 10, 10 }), -1);
    QCOMPARE(View_HmiConnectResponse(), -1);
    QCOMPARE(View_HmiDisConnect(), -1);
    QCOMPARE(View_PopupSystemSet(), -1);
}

void tst_Windows::bad_records_and_texts()
{
    QCOMPARE(View_SwitchWindow(nullptr), -1);
    QCOMPARE(View_PopupWindow(nullptr, P, nullptr, 0), 0);
    View_Window w {};
    w.id = P;
    w.rect = Rect { 10, 10, -50, -50 };
    w.title = "\xff\xfe broken \xc3";
    w.image = "/no/such/picture.png"; // falls back to the fill
    QCOMPARE(View_PopupWindow(&w, P, nullptr, 0), 0); // no popup record: defaults
    XLumoDialog* d = dialog(P);
    QVERIFY(d);
    QCOMPARE(d->size(), QSizeF(0, 0));
    View_Popup top {};
    top.z = 2147483647; // the dimming layer's z: applied, with a warning
    w.id = P + 1;
    w.rect = Rect { 0, 0, 100, 100 };
    QCOMPARE(View_PopupWindow(&w, P + 1, &top, 0x1 /* keyboard window */), 0);
    QCOMPARE(dialog(P + 1)->z(), 2147483647.0);
    QVERIFY(dialog(P + 1)->header()->inherits("KeyBoardWindowTitile"));
    QCOMPARE(View_CreateDesktop(Size { -5, 0 }, 7), 0);
    QCOMPARE(View_PopupMsg("\xff\xff", 1), 0);
    std::string huge(1 << 20, 'x');
    QCOMPARE(View_PopupMsg(huge.c_str(), 1), 0);
    QCOMPARE(View_ChangeWindowTitle(P, huge.c_str()), 0);
    QCOMPARE(
        qobject_cast<WindowTitile*>(dialog(P)->header())->title().size(), 512); // cut, not laid out whole
    PanelFixture::settle();
}

void tst_Windows::screenshots_of_the_panel_and_of_a_window()
{
    QTemporaryDir dir;
    const QByteArray panelPng = (dir.path() + "/sub/panel.png").toUtf8();
    View_ScreenShotData d {};
    d.mode = SCREENSHOT_GRAB;
    d.path = panelPng.constData();
    QCOMPARE(View_ScreenShot(77, &d), 0);
    QTRY_COMPARE(m_rec.count(EVT_SCREENSHOT), 1); // written asynchronously
    QCOMPARE(m_rec.eventsWithCode(EVT_SCREENSHOT).first().id, 77u);
    QCOMPARE(m_rec.eventsWithCode(EVT_SCREENSHOT).first().intAt(0), 0);
    QCOMPARE(QImage(QString::fromUtf8(panelPng)).size(), QSize(800, 480));

    const QByteArray partPng = (dir.path() + "/part.png").toUtf8();
    d.windowId = A;
    d.rect = Rect { 10, 10, 100, 50 };
    d.path = partPng.constData();
    QCOMPARE(View_ScreenShot(78, &d), 0);
    QTRY_COMPARE(m_rec.count(EVT_SCREENSHOT), 2);
    QCOMPARE(QImage(QString::fromUtf8(partPng)).size(), QSize(100, 50));

    d.mode = SCREENSHOT_LOAD; // read back: the pixels come with the event
    QCOMPARE(View_ScreenShot(79, &d), 0);
    QCOMPARE(m_rec.count(EVT_SCREENSHOT), 3);
    QCOMPARE(m_rec.eventsWithCode(EVT_SCREENSHOT).last().intAt(0), 0);
    d.path = "/no/such/file.png";
    QCOMPARE(View_ScreenShot(80, &d), -1);
    QCOMPARE(m_rec.eventsWithCode(EVT_SCREENSHOT).last().intAt(0), -1);

    m_rec.clear();
    d.mode = SCREENSHOT_GRAB;
    d.path = partPng.constData();
    d.windowId = PanelFixture::wid(1, 999);
    QCOMPARE(View_ScreenShot(81, &d), -1); // unknown window: nothing started, no event
    d.windowId = 0;
    d.path = "";
    QCOMPARE(View_ScreenShot(82, &d), -1);
    d.path = partPng.constData();
    d.mode = 9;
    QCOMPARE(View_ScreenShot(83, &d), -1);
    QCOMPARE(View_ScreenShot(84, nullptr), -1);
    QTest::qWait(50);
    QCOMPARE(m_rec.count(EVT_SCREENSHOT), 0);
}

void tst_Windows::windows_of_another_desktop()
{
    // the logic layer builds desktop 2 while desktop 1 is shown: its window ids work from anywhere; the ids of
    // a desktop that does not exist, or no longer exists, are unknown windows
    auto* vm = ViewManage::getInstance();
    const unsigned W2 = PanelFixture::wid(2, 1);
    const unsigned W3 = PanelFixture::wid(3, 1);
    QCOMPARE(View_CreateDesktop(Size { 800, 480 }, 2), 0);
    QCOMPARE(m_panel.switchWindow(W2, Rect { 0, 0, 800, 480 }), 0);
    QCOMPARE(m_panel.switchWindow(PanelFixture::wid(1, 1), Rect { 0, 0, 800, 480 }), 0);

    View_CameraIP rec {};
    rec.rect = Rect { 10, 10, 60, 40 };
    rec.id = 901;
    QCOMPARE(View_CreateCameraIP(&rec, W2), 0);
    QCOMPARE(vm->getItemById(901)->parentItem(), vm->windowManage()->getWindow(W2));
    rec.id = 902;
    QCOMPARE(View_CreateCameraIP(&rec, PanelFixture::wid(1, 1)), 0);
    QCOMPARE(View_SetWidgetParent(902, W2), 0); // across desktops
    QCOMPARE(vm->getItemById(902)->parentItem(), vm->windowManage()->getWindow(W2));

    rec.id = 903;
    QCOMPARE(View_CreateCameraIP(&rec, W3), -1);
    QVERIFY(!vm->getItemById(903));
    QCOMPARE(View_SetWidgetParent(902, W3), -1);
    QCOMPARE(View_CloseWindow(W3), -1);
    Rect r {};
    QCOMPARE(View_GetWindowRect(W3, r), -1);

    QCOMPARE(View_CloseDesktop(2), 0);
    PanelFixture::settle();
    rec.id = 904;
    QCOMPARE(View_CreateCameraIP(&rec, W2), -1); // its desktop is closed
    QCOMPARE(View_CloseWindow(W2), -1);
    QVERIFY(!vm->idHash().contains(901)); // no longer among the widgets shown
    QVERIFY(!vm->idHash().contains(902));
}

QGUI_GUIAPP_TEST_MAIN(tst_Windows)
#include "tst_windows.moc"
