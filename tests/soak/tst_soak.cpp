// Create/delete soak: every widget kind created, shown, changed and deleted over and over in a window;
// popups and windows opened and closed with their widgets; a desktop closed with everything in it. After
// the cycles (deferred deletions flushed, the QML engine's garbage collected) the registry's maps are back
// where they were and no more objects live than before; in the full run resident memory has stopped
// growing too.
//
// QGUI_SOAK_CYCLES sets the number of cycles (500 by default; scripts/soak.sh runs 10,000 and prints the
// figures).
#include "common/guiapptestmain.h"
#include "common/panelfixture.h"
#include "common/testutil.h"
#include "common/widgetkinds.h"

#include "app/xquickview.h"
#include "views/lifecyclemanager.h"
#include "views/viewmanage.h"
#include "xcomponents/qquick/xqmlcomponentmanage.h"
#include "views/virtualkeyboardmanager.h"

#include <QElapsedTimer>
#include <QRegularExpression>
#include <QQmlEngine>
#include <QtCore/private/qhooks_p.h>

#include <atomic>
#include <cstdio>
#include <malloc.h>
#include <mutex>
#include <thread>
#include <unordered_set>

namespace {

/* Every QObject made on the GUI thread and destroyed; the set names the ones left over when the count does
 * not come back. The render thread's objects (shader programs, textures) are its caches, made once per
 * material and kept while the window lives: they are not counted. */
std::atomic<long> g_liveObjects { 0 };
std::mutex g_liveMutex;
std::unordered_set<QObject*> g_live;
const std::thread::id g_guiThread = std::this_thread::get_id(); // static initialisation runs on it

void objectAdded(QObject* o)
{
    if (std::this_thread::get_id() != g_guiThread)
        return;
    g_liveObjects.fetch_add(1, std::memory_order_relaxed);
    std::lock_guard<std::mutex> lock(g_liveMutex);
    g_live.insert(o);
}

void objectRemoved(QObject* o)
{
    std::lock_guard<std::mutex> lock(g_liveMutex);
    if (g_live.erase(o))
        g_liveObjects.fetch_sub(1, std::memory_order_relaxed);
}

std::unordered_set<QObject*> liveObjects()
{
    std::lock_guard<std::mutex> lock(g_liveMutex);
    return g_live;
}

/* The classes (and object names) of the objects alive now that were not in \a before. */
QString leftOver(const std::unordered_set<QObject*>& before)
{
    QMap<QString, int> classes;
    for (QObject* o : liveObjects()) {
        if (!before.count(o))
            ++classes[QString::fromLatin1(o->metaObject()->className()) + QLatin1Char(' ') + o->objectName()
                + (o->parent() ? QStringLiteral(" in ") + QString::fromLatin1(o->parent()->metaObject()->className())
                               : QString())];
    }
    QStringList out;
    for (auto it = classes.cbegin(); it != classes.cend(); ++it)
        out << QStringLiteral("%1 x %2").arg(it.value()).arg(it.key());
    return out.join(QStringLiteral(", "));
}

/* Before main: every object the test's panel makes is counted. */
const bool g_hooked = [] {
    qtHookData[QHooks::AddQObject] = reinterpret_cast<quintptr>(&objectAdded);
    qtHookData[QHooks::RemoveQObject] = reinterpret_cast<quintptr>(&objectRemoved);
    return true;
}();


/* The kinds to soak: all, or those whose export name matches QGUI_SOAK_KINDS (a regular expression). */
QList<WidgetKind> kinds()
{
    const QRegularExpression only(qEnvironmentVariable("QGUI_SOAK_KINDS"));
    QList<WidgetKind> out;
    for (const WidgetKind& k : widgetKinds()) {
        if (only.match(QString::fromLatin1(k.name)).hasMatch())
            out << k;
    }
    return out;
}

int cycles()
{
    const int n = qEnvironmentVariableIntValue("QGUI_SOAK_CYCLES");
    return n > 0 ? n : 500;
}

/* What must come back after the cycles: the registry exactly, and no more objects than before (fewer is
 * no leak: a cache of the first cycles may have been let go). */
struct Snapshot {
    long objects = 0;
    int ids = 0;
    int visible = 0;
    int invisible = 0;
    bool operator==(const Snapshot& o) const
    {
        return objects == o.objects && ids == o.ids && visible == o.visible && invisible == o.invisible;
    }
    bool noMoreThan(const Snapshot& o) const
    {
        return objects <= o.objects && ids == o.ids && visible == o.visible && invisible == o.invisible;
    }
};

Snapshot snapshot()
{
    // what widgets let go a moment later (their timers, the render thread's answers), and what the QML
    // engine's garbage collector holds (it runs when it sees fit): until the count holds
    auto collect = [] {
        if (QQmlEngine* engine = XQmlComponentManage::getInstance()->engine())
            engine->collectGarbage();
        PanelFixture::settle();
    };
    collect();
    QElapsedTimer waited;
    waited.start();
    for (int steady = 0; steady < 3 && waited.elapsed() < 2000;) {
        const long count = g_liveObjects.load();
        QTest::qWait(20);
        collect();
        steady = g_liveObjects.load() == count ? steady + 1 : 0;
    }
    ViewManage* vm = ViewManage::getInstance();
    return Snapshot { g_liveObjects.load(), int(vm->idHash().size()), vm->lifeCycle()->visibleCount(),
        vm->lifeCycle()->invisibleCount() };
}

char* toString(const Snapshot& s)
{
    return QTest::toString(QStringLiteral("%1 objects, %2 ids, %3 visible, %4 cached")
                               .arg(s.objects)
                               .arg(s.ids)
                               .arg(s.visible)
                               .arg(s.invisible));
}

// AddressSanitizer keeps freed memory in quarantine: resident memory says nothing there
#if defined(__SANITIZE_ADDRESS__)
constexpr bool kMeasureMemory = false;
#else
constexpr bool kMeasureMemory = true;
#endif
constexpr long kMaxDriftKiB = 1024;

/* The heap's bytes in use (not its free chunks): resident memory that grows while this does not is the
 * allocator's fragmentation, not something kept. */
long heapInUseKiB()
{
    const struct mallinfo2 info = mallinfo2();
    return long((info.uordblks + info.hblkhd) / 1024);
}
constexpr int kFullRun = 10000;

/* Runs \a cycle n times (settling every 100), checks the snapshot against the one after the first
 * \a warmUp cycles, and resident memory between a tenth of the way and the end (in the full run: the
 * short one is too short for the allocator to settle). */
template <typename Cycle>
void soak(const char* what, int n, int warmUp, Cycle cycle)
{
    for (int i = 0; i < warmUp && !QTest::currentTestFailed(); ++i)
        cycle(i);
    if (QTest::currentTestFailed())
        return;
    const Snapshot before = snapshot();
    const std::unordered_set<QObject*> objectsBefore = liveObjects();
    long rssFrom = TestUtil::residentKiB();
    long heapFrom = heapInUseKiB();
    const int from = qMax(warmUp, n / 10);
    for (int i = warmUp; i < n; ++i) {
        cycle(i);
        if (QTest::currentTestFailed())
            return;
        if (i % 100 == 99)
            PanelFixture::settle();
        if (i == from) {
            snapshot(); // the same clean-up as at the end: garbage collected, deletions done
            rssFrom = TestUtil::residentKiB();
            heapFrom = heapInUseKiB();
        }
    }
    const Snapshot after = snapshot();
    const long drift = TestUtil::residentKiB() - rssFrom;
    const long heapDrift = heapInUseKiB() - heapFrom;
    std::printf("soak %-36s %6d cycles: %+ld objects, %+d ids, resident %+ld KiB (heap in use %+ld KiB) from cycle %d\n",
        what, n, after.objects - before.objects, after.ids - before.ids, drift, heapDrift, from);
    std::fflush(stdout);
    if (!after.noMoreThan(before)) {
        qWarning("left over: %s", qPrintable(leftOver(objectsBefore)));
        QCOMPARE(after, before); // fails, naming both
    }
    if (kMeasureMemory && cycles() >= kFullRun)
        QVERIFY2(drift < kMaxDriftKiB, qPrintable(QStringLiteral("%1 KiB more after %2 cycles").arg(drift).arg(n)));
}

} // namespace

class tst_Soak : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void every_kind_created_shown_changed_and_deleted_data();
    void every_kind_created_shown_changed_and_deleted();
    void popups_and_windows_opened_and_closed_with_their_widgets();
    void a_desktop_closed_with_everything_in_it();

private:
    PanelFixture m_panel;
    const unsigned A = PanelFixture::wid(1, 1);
};

void tst_Soak::init()
{
    QVERIFY(g_hooked);
    QVERIFY(m_panel.start());
    QCOMPARE(m_panel.switchWindow(A, Rect { 0, 0, 800, 480 }), 0);
    // the panel prepares its keyboard a moment after start-up: before counting, not during
    QVERIFY(QTest::qWaitFor([] { return VirtualKeyboardManager::instance()->isInitialised(); }, 5000));
    QTRY_VERIFY(!VirtualKeyboardManager::instance()->isWarmingUp());
}

void tst_Soak::cleanup()
{
    m_panel.stop();
}

void tst_Soak::every_kind_created_shown_changed_and_deleted_data()
{
    QTest::addColumn<int>("kind");
    for (int k = 0; k < widgetKinds().size(); ++k) {
        if (kinds().contains(widgetKinds().at(k)))
            QTest::newRow(widgetKinds().at(k).name) << k;
    }
}

void tst_Soak::every_kind_created_shown_changed_and_deleted()
{
    QFETCH(int, kind);
    const WidgetKind& k = widgetKinds().at(kind);
    const unsigned id = 500;
    soak(k.name, cycles(), 2, [&](int i) {
        QCOMPARE(k.create(id, A, Rect { 20, 20, 200, 120 }), 0);
        QCOMPARE(View_ShowWidget(id, 0, ItemSlashType(0)), 0);
        const int moved = View_MoveWidget(id, 20 + i % 50, 30); // -1: a kind that does not move
        QVERIFY(moved == 0 || moved == -1);
        QCOMPARE(View_ChangeOpacity(id, static_cast<unsigned char>(50 + i % 50)), 0);
        if (i % 10 == 0)
            TestUtil::waitForFrame(m_panel.view(), 1000); // what the render thread makes for the widget goes too
        QCOMPARE(View_HideWidget(id, ItemSlashType(0)), 0);
        QCOMPARE(View_DeleteWidgets({ id }), 0);
    });
}

void tst_Soak::popups_and_windows_opened_and_closed_with_their_widgets()
{
    // a popup with its widgets opened and closed, then another window switched in and out: the same ids
    // come back each time, so nothing may pile up
    const unsigned P = PanelFixture::wid(1, 2);
    const unsigned B = PanelFixture::wid(1, 3);
    const QList<WidgetKind> kinds = ::kinds();
    // warmed up with every kind once, so that each kind's component is compiled and cached before counting
    soak("popup and window", qMax(cycles(), kinds.size() + 10), kinds.size() + 2, [&](int i) {
        QCOMPARE(m_panel.popup(P, Rect { 100, 60, 400, 300 }), 0);
        for (int w = 0; w < 3; ++w)
            QCOMPARE(kinds.at((i + w * 16) % kinds.size()).create(600 + unsigned(w), P, Rect { 10, 50, 120, 60 }), 0);
        QCOMPARE(View_CloseWindow(P), 0);
        QCOMPARE(m_panel.switchWindow(B, Rect { 0, 0, 800, 480 }), 0);
        QCOMPARE(kinds.at(i % kinds.size()).create(700, B, Rect { 10, 10, 150, 80 }), 0);
        QCOMPARE(m_panel.switchWindow(A, Rect { 0, 0, 800, 480 }), 0);
        if (i % 10 == 0)
            TestUtil::waitForFrame(m_panel.view(), 1000);
        QCOMPARE(View_DeleteWidgets({ 600, 601, 602, 700 }), 0);
    });
}

void tst_Soak::a_desktop_closed_with_everything_in_it()
{
    // desktop 2 with a window holding one widget of every kind and a popup, closed whole each time
    const QList<WidgetKind> kinds = ::kinds();
    const int n = qMax(2, cycles() / 20); // every cycle makes every kind
    soak("desktop with every kind", n, 2, [&](int) {
        QCOMPARE(View_CreateDesktop(Size { 800, 480 }, 2), 0);
        const unsigned W = PanelFixture::wid(2, 1);
        const unsigned P = PanelFixture::wid(2, 2);
        QCOMPARE(m_panel.switchWindow(W, Rect { 0, 0, 800, 480 }), 0);
        for (int k = 0; k < kinds.size(); ++k)
            QCOMPARE(kinds.at(k).create(800 + unsigned(k), W, Rect { 10 * (k % 8), 10 * (k / 8), 100, 60 }), 0);
        QCOMPARE(m_panel.popup(P, Rect { 100, 60, 400, 300 }), 0);
        QCOMPARE(kinds.at(0).create(900, P, Rect { 10, 50, 120, 60 }), 0);
        TestUtil::waitForFrame(m_panel.view(), 1000);
        QCOMPARE(View_CloseDesktop(2), 0);
        QCOMPARE(m_panel.switchWindow(A, Rect { 0, 0, 800, 480 }), 0);
    });
}

QGUI_GUIAPP_TEST_MAIN(tst_Soak)
#include "tst_soak.moc"
