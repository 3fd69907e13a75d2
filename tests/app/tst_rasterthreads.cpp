// The software renderer's rasterising threads run below the GUI thread's
// priority: found by name among this process's threads, also the renderer's own
// once a window has drawn a frame.
#include <QDir>
#include <QFile>
#include <QQuickItem>
#include <QtTest>

#include <atomic>
#include <pthread.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <thread>
#include <unistd.h>

#include "app/rasterthreads.h"
#include "app/xquickview.h"
#include "common/testutil.h"

class tst_RasterThreads : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void names_data();
    void names();
    void only_rasterising_threads_are_lowered_data();
    void only_rasterising_threads_are_lowered();
    void the_renderers_threads_are_lowered_once_it_draws();
};

void tst_RasterThreads::names_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("raster");
    QTest::newRow("first") << "llvmpipe-0" << true;
    QTest::newRow("two digits") << "llvmpipe-15" << true;
    QTest::newRow("no number") << "llvmpipe-" << false;
    QTest::newRow("not a number") << "llvmpipe-x" << false;
    QTest::newRow("other thread") << "QSGRenderThread" << false;
    QTest::newRow("prefix inside") << "my-llvmpipe-0" << false;
    QTest::newRow("empty") << "" << false;
}

void tst_RasterThreads::names()
{
    QFETCH(QString, name);
    QFETCH(bool, raster);
    QCOMPARE(RasterThreads::isRasterThreadName(name), raster);
}

namespace {
/* A thread named \a name that waits until told to end; its thread id and niceness are read from outside. */
struct NamedThread {
    std::atomic<pid_t> tid { 0 };
    std::atomic<bool> done { false };
    std::thread thread;

    explicit NamedThread(const char* name, int nice = 0)
        : thread([this, name, nice] {
            ::pthread_setname_np(::pthread_self(), name);
            ::setpriority(PRIO_PROCESS, 0, nice);
            tid = pid_t(::syscall(SYS_gettid));
            while (!done)
                std::this_thread::sleep_for(std::chrono::milliseconds(1));
        })
    {
        while (tid == 0)
            std::this_thread::yield();
    }
    ~NamedThread()
    {
        done = true;
        thread.join();
    }
    int nice() const { return ::getpriority(PRIO_PROCESS, id_t(tid.load())); }
};
} // namespace

void tst_RasterThreads::only_rasterising_threads_are_lowered_data()
{
    QTest::addColumn<int>("asked");
    QTest::addColumn<int>("before"); // the rasterising thread's own niceness
    QTest::addColumn<int>("after");
    QTest::newRow("lowered") << 10 << 0 << 10;
    QTest::newRow("already nicer keeps its own") << 5 << 12 << 12;
    QTest::newRow("0 leaves it alone") << 0 << 0 << 0;
}

void tst_RasterThreads::only_rasterising_threads_are_lowered()
{
    QFETCH(int, asked);
    QFETCH(int, before);
    QFETCH(int, after);
    NamedThread raster("llvmpipe-7", before);
    NamedThread other("worker");
    QCOMPARE(raster.nice(), before);
    RasterThreads::lowerPriority(asked);
    QCOMPARE(raster.nice(), after);
    QCOMPARE(other.nice(), 0);
    QCOMPARE(::getpriority(PRIO_PROCESS, 0), 0); // the calling thread neither
}

void tst_RasterThreads::the_renderers_threads_are_lowered_once_it_draws()
{
    XQuickView view;
    view.resize(100, 100);
    view.show();
    QVERIFY(TestUtil::waitForFrame(&view));
    int found = 0;
    const QStringList tasks = QDir("/proc/self/task").entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString& task : tasks) {
        QFile comm("/proc/self/task/" + task + "/comm");
        if (!comm.open(QIODevice::ReadOnly) || !RasterThreads::isRasterThreadName(comm.readAll().trimmed()))
            continue;
        ++found;
        QCOMPARE(::getpriority(PRIO_PROCESS, task.toUInt()), RasterThreads::kDefaultNice);
    }
    if (!found)
        QSKIP("the renderer here does not rasterise on threads of its own");
}

QTEST_MAIN(tst_RasterThreads)
#include "tst_rasterthreads.moc"
