// The crash report: a child process crashes on purpose and must leave
// "halvex_crash_<date>_<time>.log" with every section in its working folder.
#include <QDir>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <csignal>
#include <sys/mman.h>
#include <thread>
#include <vector>

#include "app/ccrashstack.h"
#include "app/threadsignalstack.h"
#include "common/testutil.h"

class tst_Crash : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void a_crash_leaves_a_complete_report_data();
    void a_crash_leaves_a_complete_report();
    void report_file_name_has_date_and_time();
    void every_new_thread_has_a_signal_stack();
    void replaced_handlers_are_put_back();
};

void tst_Crash::a_crash_leaves_a_complete_report_data()
{
    QTest::addColumn<QString>("how");
    QTest::addColumn<int>("signal");
    QTest::addColumn<QString>("access"); // the access line expected, or empty when none
    QTest::newRow("read of a bad address") << "read" << int(SIGSEGV) << "Read Address: 0000000000000010";
    QTest::newRow("write to a bad address") << "write" << int(SIGSEGV) << "Write Address: 0000000000000020";
    QTest::newRow("jump to a bad address") << "jump" << int(SIGSEGV) << "Address: 0000000000000030";
    QTest::newRow("abort") << "abort" << int(SIGABRT) << "";
    QTest::newRow("arithmetic") << "fpe" << int(SIGFPE) << "";
    QTest::newRow("illegal instruction") << "ill" << int(SIGILL) << "";
    QTest::newRow("bus error") << "bus" << int(SIGBUS) << "";
    QTest::newRow("trap") << "trap" << int(SIGTRAP) << "";
    QTest::newRow("bad system call") << "sys" << int(SIGSYS) << "";
    QTest::newRow("another thread") << "thread" << int(SIGSEGV) << "Read Address: 0000000000000010";
    QTest::newRow("stack overflow") << "overflow" << int(SIGSEGV) << "Write Address: ";
    QTest::newRow("stack overflow on another thread") << "thread-overflow" << int(SIGSEGV) << "Write Address: ";
}

void tst_Crash::a_crash_leaves_a_complete_report()
{
    QFETCH(QString, how);
    QFETCH(int, signal);
    QFETCH(QString, access);

    QTemporaryDir dir;
    QProcess p;
    p.setWorkingDirectory(dir.path());
    const QString exe = TestUtil::helperPath("tests/app", "crash_child");
    p.start(exe, { how });
    QVERIFY(p.waitForFinished(20000));
    QCOMPARE(p.exitStatus(), QProcess::CrashExit); // the process still dies of its signal

    const QStringList reports = QDir(dir.path()).entryList({ "halvex_crash_*.log" }, QDir::Files);
    QCOMPARE(reports.size(), 1);
    QVERIFY(QRegularExpression("^halvex_crash_\\d{8}_\\d{6}\\.log$").match(reports.first()).hasMatch());
    QFile f(dir.filePath(reports.first()));
    QVERIFY(f.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(f.readAll());

    const QStringList sections = {
        "^Linux: \\S+",
        "\nProcess: .*crash_child\n",
        "Exception Addr:  [0-9A-F]{16}  ",
        "\nModule: \\S+",
        "\nException Code: [0-9A-F]{4}" + QString("%1").arg(signal, 4, 16, QChar('0')).toUpper() + "\n",
        "Instruction: ( [0-9A-F]{2})+| \\(unreadable\\)",
        "\nRegisters: \n",
        "\nRAX: [0-9A-F]{16} RBX: [0-9A-F]{16} RCX: [0-9A-F]{16} RDX: [0-9A-F]{16}",
        "\nRSI: [0-9A-F]{16} RDI: [0-9A-F]{16} RSP: [0-9A-F]{16} RBP: [0-9A-F]{16}",
        "\nRIP: [0-9A-F]{16} EFlags: [0-9A-F]{16}",
        "\nCall Stack:\n[0-9A-F]{16}  \\S+ 0x[0-9a-f]+",
    };
    for (const QString& s : sections) {
#if !defined(__x86_64__)
        if (s.contains("RAX") || s.contains("RSI") || s.contains("RIP"))
            continue;
#endif
        QVERIFY2(QRegularExpression(s).match(text).hasMatch(), qPrintable(s + "\n--- report:\n" + text));
    }
    if (!access.isEmpty())
        QVERIFY2(text.contains(access), qPrintable(text));
    else
        QVERIFY(!text.contains(" Address: "));
    QVERIFY(text.contains("crashNow") || text.contains("crash_child"));
}

void tst_Crash::report_file_name_has_date_and_time()
{
    const QString name = QString::fromStdString(CCrashStack::reportFileName());
    const QString expected = "halvex_crash_" + QDateTime::currentDateTime().toString("yyyyMMdd_hh");
    QVERIFY2(name.startsWith(expected.left(21)), qPrintable(name));
    QVERIFY(name.endsWith(".log"));
}

void tst_Crash::every_new_thread_has_a_signal_stack()
{
    int with = 0;
    int stillMapped = 0;
    for (int round = 0; round < 50; ++round) {
        std::vector<std::thread> threads;
        std::vector<void*> stacks(8, nullptr);
        for (int i = 0; i < 8; ++i) {
            threads.emplace_back([&stacks, i] {
                stack_t cur {};
                if (sigaltstack(nullptr, &cur) == 0 && !(cur.ss_flags & SS_DISABLE) && cur.ss_size >= MINSIGSTKSZ)
                    stacks[i] = cur.ss_sp;
            });
        }
        for (auto& t : threads)
            t.join();
        for (void* stack : stacks) {
            with += stack != nullptr;
            unsigned char page = 0;
            // mincore() fails with ENOMEM for an address that is no longer mapped
            if (stack && mincore(stack, 4096, &page) == 0)
                ++stillMapped;
        }
    }
    QCOMPARE(with, 400);
    if (ThreadSignalStack::coversNewThreads())
        QCOMPARE(stillMapped, 0); // each thread's stack is given back when it ends
}

void tst_Crash::replaced_handlers_are_put_back()
{
    CCrashStack::install();
    QCOMPARE(CCrashStack::reassert(), 0);
    std::signal(SIGSEGV, SIG_DFL); // other code takes over
    std::signal(SIGFPE, SIG_IGN);
    QCOMPARE(CCrashStack::reassert(), 2);
    QCOMPARE(CCrashStack::reassert(), 0);
    std::signal(SIGSEGV, SIG_DFL);
    std::signal(SIGFPE, SIG_DFL);
    std::signal(SIGABRT, SIG_DFL);
}

QTEST_GUILESS_MAIN(tst_Crash)
#include "tst_crash.moc"
