// Frame pacing on the top-level view: update requests that arrive while a frame
// is rendered are held, and the held request is never lost: the last change
// made reaches the screen without anything else asking for a frame.
#include <QQmlComponent>
#include <QQuickItem>
#include <QThread>
#include <QTimer>
#include <QtTest>

#include <atomic>

#include "app/cyclebeat.h"
#include "app/framepacer.h"
#include "app/xquickview.h"
#include "common/testutil.h"

class tst_FramePacer : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void pacing_follows_the_environment_data();
    void pacing_follows_the_environment();
    void the_last_change_is_rendered();
    void a_grab_does_not_hold_frames_back_data();
    void a_grab_does_not_hold_frames_back();
    void a_slow_frame_still_holds_requests();
    void a_frame_starts_after_the_cycle_data();
    void a_frame_starts_after_the_cycle();
    void the_beat_tells_when_the_next_cycle_is_due();
};

void tst_FramePacer::pacing_follows_the_environment_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<bool>("on");
    QTest::newRow("unset") << QByteArray() << true;
    QTest::newRow("0") << QByteArray("0") << false;
    QTest::newRow("1") << QByteArray("1") << true;
    QTest::newRow("not a number") << QByteArray("off") << true;
}

void tst_FramePacer::pacing_follows_the_environment()
{
    QFETCH(QByteArray, value);
    QFETCH(bool, on);
    if (value.isNull())
        qunsetenv("QGUI_FRAME_PACING");
    else
        qputenv("QGUI_FRAME_PACING", value);
    QCOMPARE(FramePacer::enabledByEnvironment(), on);
    XQuickView view;
    QCOMPARE(view.framePacer() != nullptr, on);
    qunsetenv("QGUI_FRAME_PACING");
}

namespace {

/* A shown view with the scene \a qml (a root item with an int property "step"), and which change each
 * frame shows: `changed` is the change made last, `swapped` the one the last swapped frame carries (taken
 * at its synchronisation, while the GUI thread waits). */
struct PacedScene {
    XQuickView view;
    QQuickItem* root = nullptr;
    std::atomic<int> changed { 0 }, synced { 0 }, swapped { 0 };

    bool show(const QByteArray& qml, QSize size)
    {
        QQmlComponent c(view.engine());
        c.setData(qml, QUrl());
        root = qobject_cast<QQuickItem*>(c.create());
        if (!root) {
            qWarning("%s", qPrintable(c.errorString()));
            return false;
        }
        root->setParentItem(view.contentItem());
        root->setParent(view.contentItem());
        view.resize(size);
        view.show();
        if (!TestUtil::waitForFrame(&view))
            return false;
        QObject::connect(&view, &QQuickWindow::beforeSynchronizing, &view, [this] { synced = changed.load(); },
            Qt::DirectConnection);
        QObject::connect(&view, &QQuickWindow::frameSwapped, &view, [this] { swapped = synced.load(); },
            Qt::DirectConnection);
        return true;
    }
    void change()
    {
        root->setProperty("step", ++changed);
    }
};

/* Grabs the window when a press reaches the item it filters. */
class PressGrab : public QObject {
public:
    PressGrab(QQuickWindow* window, QImage* into)
        : m_window(window)
        , m_into(into)
    {
    }
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::MouseButtonPress)
            *m_into = FramePacer::grab(m_window);
        return false;
    }

private:
    QQuickWindow* m_window;
    QImage* m_into;
};

} // namespace

void tst_FramePacer::the_last_change_is_rendered()
{
    PacedScene scene;
    QVERIFY(scene.view.framePacer());
    // enough text that a frame takes a while to render, so requests arrive during renderings
    QVERIFY(scene.show("import QtQuick 2.15\nRectangle { anchors.fill: parent; property int step: 0\n"
                       " Grid { columns: 20; Repeater { model: 600; Text { width: 40; height: 20;"
                       " text: step + index } } } }",
        QSize(800, 600)));

    constexpr int kChanges = 300;
    QTimer timer;
    timer.setTimerType(Qt::PreciseTimer);
    connect(&timer, &QTimer::timeout, this, [&] {
        scene.change();
        if (scene.changed == kChanges)
            timer.stop();
    });
    timer.start(2);
    QTRY_COMPARE_WITH_TIMEOUT(scene.changed.load(), kChanges, 10000);
    // nothing asks for a frame any more: the held request alone brings the last change
    QTRY_COMPARE_WITH_TIMEOUT(scene.swapped.load(), kChanges, 2000);

    FramePacer* pacer = scene.view.framePacer();
    QVERIFY2(pacer->heldCount() > 0, "no request arrived during a rendering: the test proves nothing");
    QVERIFY(pacer->releasedAtSwapCount() > 0); // a swap lets the held request go at once
}

void tst_FramePacer::a_grab_does_not_hold_frames_back_data()
{
    QTest::addColumn<bool>("fromAPress");
    QTest::newRow("grab between events") << false;
    QTest::newRow("grab from a press on the window") << true; // a screenshot taken by an operator's press
}

void tst_FramePacer::a_grab_does_not_hold_frames_back()
{
    // a grab draws a frame into an image and never swaps it: the pacer must not wait for that swap
    QFETCH(bool, fromAPress);
    PacedScene scene;
    QVERIFY(scene.show(
        "import QtQuick 2.15\nRectangle { anchors.fill: parent; property int step: 0; Text { text: parent.step }\n"
        " MouseArea { objectName: 'area'; anchors.fill: parent } }",
        QSize(200, 100)));
    QImage grabbed;
    // the press reaches the area while the window is handling it
    PressGrab press(&scene.view, &grabbed);
    scene.root->findChild<QQuickItem*>("area")->installEventFilter(&press);
    for (int i = 1; i <= 5; ++i) {
        grabbed = QImage();
        if (fromAPress)
            QTest::mouseClick(&scene.view, Qt::LeftButton, Qt::NoModifier, QPoint(50, 50));
        else
            grabbed = scene.view.grabWindow();
        QVERIFY(!grabbed.isNull());
        scene.change();
        QTRY_COMPARE_WITH_TIMEOUT(scene.swapped.load(), i, 2000);
    }
    QCOMPARE(scene.view.framePacer()->timedOutCount(), quint64(0)); // no request waited for a swap that never came
}

void tst_FramePacer::a_slow_frame_still_holds_requests()
{
    // frames whose swap takes longer than any guess at its length: the GUI thread still never waits for one
    PacedScene scene;
    QVERIFY(scene.show(
        "import QtQuick 2.15\nRectangle { anchors.fill: parent; property int step: 0; Text { text: parent.step } }",
        QSize(200, 100)));
    constexpr int kSlowMs = 150;
    std::atomic<qint64> requestedAt { -1 }, longestWait { 0 };
    QElapsedTimer clock;
    clock.start();
    connect(&scene.view, &QQuickWindow::afterAnimating, this, [&] { requestedAt = clock.elapsed(); }); // GUI thread
    connect(&scene.view, &QQuickWindow::beforeSynchronizing, this, [&] {
        if (requestedAt >= 0)
            longestWait = qMax(longestWait.load(), clock.elapsed() - requestedAt);
    }, Qt::DirectConnection);
    // a software renderer rasterises the frame when it is swapped: the time goes after the drawing
    connect(&scene.view, &QQuickWindow::afterRendering, this, [] { QThread::msleep(kSlowMs); },
        Qt::DirectConnection);
    QTimer timer;
    connect(&timer, &QTimer::timeout, this, [&] { scene.change(); });
    timer.start(5);
    QTest::qWait(6 * kSlowMs);
    timer.stop();
    QTRY_COMPARE_WITH_TIMEOUT(scene.swapped.load(), scene.changed.load(), 2000);
    QVERIFY(scene.view.framePacer()->heldCount() > 0);
    QVERIFY2(longestWait < kSlowMs / 2, qPrintable(QStringLiteral("waited %1 ms").arg(longestWait.load())));
}

void tst_FramePacer::a_frame_starts_after_the_cycle_data()
{
    QTest::addColumn<bool>("stopBeat");
    QTest::newRow("held until the cycle ends") << false;
    QTest::newRow("a stopped cycle holds nothing") << true;
}

void tst_FramePacer::a_frame_starts_after_the_cycle()
{
    // a frame started during a cycle's call-backs (or just before the next is due) would keep the
    // GUI thread in its synchronisation when the cycle should run: it waits for the cycle to end
    QFETCH(bool, stopBeat);
    PacedScene scene;
    QVERIFY(scene.show(
        "import QtQuick 2.15\nRectangle { anchors.fill: parent; property int step: 0; Text { text: parent.step } }",
        QSize(200, 100)));
    FramePacer* pacer = scene.view.framePacer();
    CycleBeat beat;
    pacer->setBeat(&beat);
    QTRY_COMPARE_WITH_TIMEOUT(scene.swapped.load(), scene.changed.load(), 2000);

    beat.started();
    if (stopBeat)
        beat.stop(); // the application's timers were killed: no cycle is due
    scene.change();
    if (stopBeat) {
        QTRY_COMPARE_WITH_TIMEOUT(scene.swapped.load(), scene.changed.load(), 2000);
        QCOMPARE(pacer->heldForCycleCount(), quint64(0));
        return;
    }
    // well within the pacer's safety interval: the request arrived and is held for the cycle
    QTRY_VERIFY_WITH_TIMEOUT(pacer->heldForCycleCount() > 0, 2000);
    QTest::qWait(50);
    QCOMPARE(scene.swapped.load(), scene.changed.load() - 1);
    beat.ended();
    QCOMPARE(pacer->releasedAfterCycleCount(), quint64(1)); // at once, inside the cycle's end
    QTRY_COMPARE_WITH_TIMEOUT(scene.swapped.load(), scene.changed.load(), 2000);
    QCOMPARE(pacer->timedOutCount(), quint64(0));
}

void tst_FramePacer::the_beat_tells_when_the_next_cycle_is_due()
{
    constexpr qint64 kInterval = 10'000'000;
    CycleBeat beat(kInterval);
    QCOMPARE(beat.nsUntilNext(), qint64(-1)); // never started
    beat.started();
    QCOMPARE(beat.nsUntilNext(), qint64(0)); // running
    QSignalSpy ended(&beat, &CycleBeat::cycleEnded);
    beat.ended();
    beat.ended(); // one end per start
    QCOMPARE(ended.count(), 1);
    const qint64 left = beat.nsUntilNext();
    QVERIFY2(left > 0 && left <= kInterval, qPrintable(QString::number(left)));
    QTest::qWait(3 * kInterval / 1'000'000);
    QCOMPARE(beat.nsUntilNext(), qint64(-1)); // no start for two intervals: no cycle runs
    beat.started();
    beat.stop();
    QCOMPARE(beat.nsUntilNext(), qint64(-1));
}

QTEST_MAIN(tst_FramePacer)
#include "tst_framepacer.moc"
