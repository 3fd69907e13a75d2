// Registry and window benchmarks on a real panel (run under Xvfb):
//  - creating 1,000 widgets through the registry into one window, against
//    creating the same items straight from a compiled component;
//  - switching to a window of 200 widgets and back (close, switch, re-parent
//    the cached widgets, one frame), against raw re-parenting of 200 items;
//  - memory per registered widget, against a plain item.
#include "benchpanel.h"
#include "benchreport.h"
#include "common/panelfixture.h"
#include "common/testutil.h"

#include "app/guiapplication.h"
#include "app/xquickview.h"
#include "platform/nlogger.h"
#include "views/qmlwindowmanage.h"
#include "views/viewmanage.h"

#include <QFile>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>
#include <malloc.h>
#include <vector>

namespace {
/** Heap bytes in use (the allocator's count, not pages touched). */
double heapBytes()
{
    return double(mallinfo2().uordblks);
}

void frame(QQuickView* view)
{
    QSignalSpy spy(view, &QQuickWindow::frameSwapped);
    view->update();
    spy.wait(1000);
}

int create(unsigned id, unsigned windowId, int i)
{
    View_CameraIP rec {};
    rec.rect = Rect { (i % 40) * 20, (i / 40) * 18, 18, 16 };
    rec.id = id;
    return View_CreateCameraIP(&rec, windowId);
}
} // namespace

int main(int argc, char** argv)
{
    GuiApplication app(argc, argv);
    PanelFixture panel;
    const unsigned A = PanelFixture::wid(1, 1), B = PanelFixture::wid(1, 2);
    if (!Bench::openPanel(panel, QSize(800, 480), A, 0xFFE0E0E0u))
        return 1;
    QQuickItem* contentA = ViewManage::getInstance()->windowManage()->getWindow(A);

    // 1. creation of 1,000 widgets
    // only the creation is timed; deleting and rendering happen between the runs
    unsigned nextId = 1;
    std::list<unsigned> ids;
    std::vector<QQuickItem*> items;
    auto cleanUp = [&] {
        View_DeleteWidgets(ids);
        ids.clear();
        for (QQuickItem* item : items)
            item->deleteLater();
        items.clear();
        PanelFixture::settle();
        QTest::qWait(30); // the previous run's log lines and frame are finished before the next run
    };
    auto createOurs = [&] {
        for (int i = 0; i < 1000; ++i) {
            create(nextId, A, i);
            ids.push_back(nextId++);
        }
    };
    QQmlComponent plain(panel.view()->engine());
    plain.setData("import QQuickHalvex 1.0\nXInvalidFeature {}", QUrl());
    auto createPlain = [&] {
        for (int i = 0; i < 1000; ++i) {
            auto* item = qobject_cast<QQuickItem*>(plain.create());
            item->setParentItem(contentA);
            item->setPosition(QPointF((i % 40) * 20, (i / 40) * 18));
            item->setSize(QSizeF(18, 16));
            items.push_back(item);
        }
    };
    createOurs(); // warm-up: type loading, first allocations
    createPlain();
    cleanUp();
    // interleaved runs, so both sides see the same machine load; medians
    std::vector<double> tOurs, tBase;
    for (int i = 0; i < 15; ++i) {
        tOurs.push_back(Bench::medianMs(1, createOurs));
        cleanUp();
        tBase.push_back(Bench::medianMs(1, createPlain));
        cleanUp();
    }
    std::sort(tOurs.begin(), tOurs.end());
    std::sort(tBase.begin(), tBase.end());
    const double ours = tOurs[tOurs.size() / 2];
    const double base = tBase[tBase.size() / 2];
    Bench::report("create_1000_widgets", ours, base, "ms", "<= 1.5x");

    // 2. switching to a window of 200 widgets and back
    std::list<unsigned> inA, inB;
    for (int i = 0; i < 200; ++i) {
        create(10000 + i, A, i);
        inA.push_back(10000 + i);
    }
    panel.switchWindow(B, Rect { 0, 0, 800, 480 });
    for (int i = 0; i < 200; ++i) {
        create(20000 + i, B, i);
        inB.push_back(20000 + i);
    }
    frame(panel.view());
    bool onB = true;
    std::vector<double> switches;
    for (int i = 0; i < 21; ++i) {
        const unsigned from = onB ? B : A, to = onB ? A : B;
        const std::list<unsigned>& cached = onB ? inA : inB;
        switches.push_back(Bench::medianMs(1, [&] {
            View_CloseWindow(from);
            panel.switchWindow(to, Rect { 0, 0, 800, 480 });
            for (unsigned id : cached)
                View_SetWidgetParent(id, to);
        }));
        frame(panel.view());
        onB = !onB;
    }
    std::sort(switches.begin(), switches.end());
    const double switchMs = switches[switches.size() / 2];
    QQuickItem* x = new QQuickItem(panel.view()->contentItem());
    QQuickItem* y = new QQuickItem(panel.view()->contentItem());
    std::vector<QQuickItem*> raw;
    for (int i = 0; i < 200; ++i) {
        auto* item = qobject_cast<QQuickItem*>(plain.create());
        item->setSize(QSizeF(18, 16));
        item->setParentItem(x);
        raw.push_back(item);
    }
    bool onX = true;
    std::vector<double> raws;
    for (int i = 0; i < 21; ++i) {
        raws.push_back(Bench::medianMs(1, [&] {
            for (QQuickItem* item : raw)
                item->setParentItem(onX ? y : x);
        }));
        frame(panel.view());
        onX = !onX;
    }
    std::sort(raws.begin(), raws.end());
    const double rawMs = raws[raws.size() / 2];
    Bench::report(
        "switch_window_200_widgets", switchMs, rawMs, "ms", "well inside 16.7 ms; vs raw re-parenting");

    // 3. memory per registered widget (heap of the GUI thread, before any rendering)
    PanelFixture::settle();
    NLog::NLogger::instance()->logger()->flush();
    QTest::qWait(200); // the log queue is drained
    const int n = 5000;
    double before = heapBytes();
    std::list<unsigned> many;
    const unsigned C = PanelFixture::wid(1, 3);
    panel.switchWindow(C, Rect { 0, 0, 800, 480 });
    for (int i = 0; i < n; ++i) {
        create(100000 + i, C, i % 1000);
        many.push_back(100000 + i);
    }
    const double oursKb = (heapBytes() - before) / n;
    View_DeleteWidgets(many);
    PanelFixture::settle();
    before = heapBytes();
    std::vector<QQuickItem*> plainItems;
    for (int i = 0; i < n; ++i) {
        auto* item = qobject_cast<QQuickItem*>(plain.create());
        item->setParentItem(y);
        item->setSize(QSizeF(18, 16));
        plainItems.push_back(item);
    }
    const double plainKb = (heapBytes() - before) / n;
    Bench::report(
        "memory_per_widget", oursKb, plainKb, "bytes", "heap per registered widget vs the same plain item");
    panel.stop();
    return 0;
}
