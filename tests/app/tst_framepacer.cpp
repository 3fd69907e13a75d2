// Frame pacing on the top-level view: update requests that arrive while a frame
// is rendered are held, and the held request is never lost: the last change
// made reaches the screen without anything else asking for a frame.
#include <QQmlComponent>
#include <QQuickItem>
#include <QTimer>
#include <QtTest>

#include <atomic>

#include "app/framepacer.h"
#include "app/xquickview.h"
#include "common/testutil.h"

class tst_FramePacer : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void pacing_follows_the_environment_data();
    void pacing_follows_the_environment();
    void the_last_change_is_rendered();
    void a_grab_does_not_hold_frames_back();
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

void tst_FramePacer::the_last_change_is_rendered()
{
    XQuickView view;
    QVERIFY(view.framePacer());
    QQmlComponent c(view.engine());
    // enough text that a frame takes a while to render, so requests arrive during renderings
    c.setData("import QtQuick 2.15\nRectangle { width: 800; height: 600; property int step: 0\n"
              " Grid { columns: 20; Repeater { model: 600; Text { width: 40; height: 20;"
              " text: step + index } } } }",
        QUrl());
    auto* root = qobject_cast<QQuickItem*>(c.create());
    QVERIFY2(root, qPrintable(c.errorString()));
    root->setParentItem(view.contentItem());
    root->setParent(view.contentItem());
    view.resize(800, 600);
    view.show();
    QVERIFY(TestUtil::waitForFrame(&view));

    // which change each frame shows: taken at the synchronisation, while the GUI thread waits
    std::atomic<int> changed { 0 }, synced { 0 }, swapped { 0 };
    connect(&view, &QQuickWindow::beforeSynchronizing, this, [&] { synced = changed.load(); },
        Qt::DirectConnection);
    connect(&view, &QQuickWindow::frameSwapped, this, [&] { swapped = synced.load(); }, Qt::DirectConnection);

    constexpr int kChanges = 300;
    QTimer timer;
    timer.setTimerType(Qt::PreciseTimer);
    connect(&timer, &QTimer::timeout, this, [&] {
        root->setProperty("step", changed + 1);
        if (++changed == kChanges)
            timer.stop();
    });
    timer.start(2);
    QTRY_COMPARE_WITH_TIMEOUT(changed.load(), kChanges, 10000);
    // nothing asks for a frame any more: the held request alone brings the last change
    QTRY_COMPARE_WITH_TIMEOUT(swapped.load(), kChanges, 2000);

    QVERIFY2(view.framePacer()->heldCount() > 0, "no request arrived during a rendering: the test proves nothing");
    QVERIFY(view.framePacer()->releasedAtSwapCount() > 0); // a swap lets the held request go at once
}

void tst_FramePacer::a_grab_does_not_hold_frames_back()
{
    // a grab draws a frame into an image and never swaps it: the pacer must not wait for that swap
    XQuickView view;
    QQmlComponent c(view.engine());
    c.setData("import QtQuick 2.15\nRectangle { width: 200; height: 100; property int step: 0\n"
              " Text { text: parent.step } }",
        QUrl());
    auto* root = qobject_cast<QQuickItem*>(c.create());
    QVERIFY2(root, qPrintable(c.errorString()));
    root->setParentItem(view.contentItem());
    root->setParent(view.contentItem());
    view.resize(200, 100);
    view.show();
    QVERIFY(TestUtil::waitForFrame(&view));
    std::atomic<int> changed { 0 }, synced { 0 }, swapped { 0 };
    connect(&view, &QQuickWindow::beforeSynchronizing, this, [&] { synced = changed.load(); },
        Qt::DirectConnection);
    connect(&view, &QQuickWindow::frameSwapped, this, [&] { swapped = synced.load(); }, Qt::DirectConnection);
    for (int i = 1; i <= 5; ++i) {
        QVERIFY(!view.grabWindow().isNull());
        changed = i;
        root->setProperty("step", i);
        QTRY_COMPARE_WITH_TIMEOUT(swapped.load(), i, 2000);
    }
    QCOMPARE(view.framePacer()->timedOutCount(), quint64(0)); // no request waited for a swap that never came
}

QTEST_MAIN(tst_FramePacer)
#include "tst_framepacer.moc"
