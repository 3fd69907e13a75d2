// View_MainThreadLoop end to end, each case in its own process (one
// application object per process): the call-back slots, the cyclic timers,
// a failed device initialisation and hostile arguments.
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <sched.h>

#include "common/testutil.h"

class tst_MainLoop : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void main_loop_runs_the_logic_layer_data();
    void main_loop_runs_the_logic_layer();
    void the_cycle_runs_at_real_time_priority_data();
    void the_cycle_runs_at_real_time_priority();

private:
    QMap<QString, QString> run(const QStringList& args, const QProcessEnvironment& env, int* exitCode);
};

QMap<QString, QString> tst_MainLoop::run(
    const QStringList& args, const QProcessEnvironment& env, int* exitCode)
{
    QProcess p;
    p.setProcessEnvironment(env);
    p.start(TestUtil::helperPath("tests/app", "mainloop_child"), args);
    bool finished = p.waitForFinished(30000);
    if (!finished)
        p.kill();
    *exitCode = finished && p.exitStatus() == QProcess::NormalExit ? p.exitCode() : -1000;
    QMap<QString, QString> out;
    for (const QByteArray& line : p.readAllStandardOutput().split('\n')) {
        const int eq = line.indexOf('=');
        if (eq > 0)
            out.insert(QString::fromUtf8(line.left(eq)), QString::fromUtf8(line.mid(eq + 1)));
    }
    if (*exitCode != 0)
        qWarning() << p.readAllStandardError().right(2000);
    return out;
}

void tst_MainLoop::main_loop_runs_the_logic_layer_data()
{
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<QString>("env"); // NAME=VALUE or empty
    QTest::addColumn<QString>("result");
    QTest::addColumn<bool>("loopRan");
    QTest::addColumn<QString>("words");
    QTest::addColumn<QString>("samples");

    QTest::newRow("runs until terminated") << QStringList { "run", "-option", "5,9,,2" } << ""
                                           << "0" << true << "0,9,2"
                                           << "4";
    QTest::newRow("failed device init skips the loop") << QStringList { "fail" } << ""
                                                       << "0" << false << "0,0,0"
                                                       << "4";
    QTest::newRow("null call-back record") << QStringList { "nullcb" } << ""
                                           << "-1" << false << "0,0,0"
                                           << "-2";
    QTest::newRow("null argv entries") << QStringList { "nullargv", "-option", "4" } << ""
                                       << "0" << true << "0,0,0"
                                       << "4";
    QTest::newRow("antialiasing off") << QStringList { "run" } << "X_DISABLE_ANTIALIASING=1"
                                      << "0" << true << "0,0,0"
                                      << "-1";
    QTest::newRow("8 samples") << QStringList { "run" } << "X_ANTIALIASING_SAMPLES=8"
                               << "0" << true << "0,0,0"
                               << "8";
}

void tst_MainLoop::main_loop_runs_the_logic_layer()
{
    QFETCH(QStringList, args);
    QFETCH(QString, env);
    QFETCH(QString, result);
    QFETCH(bool, loopRan);
    QFETCH(QString, words);
    QFETCH(QString, samples);

    QTemporaryDir prj;
    QProcessEnvironment e = QProcessEnvironment::systemEnvironment();
    e.remove("X_DISABLE_ANTIALIASING");
    e.remove("X_ANTIALIASING_SAMPLES");
    if (!env.isEmpty())
        e.insert(env.section('=', 0, 0), env.section('=', 1));
    if (args.first() != "nullargv")
        args << "-hmifile" << prj.path();
    int code = 0;
    const auto out = run(args, e, &code);
    QCOMPARE(code, 0);
    QCOMPARE(out.value("result"), result);
    QCOMPARE(out.value("words"), words);
    QCOMPARE(out.value("samples"), samples);
    if (result == "-1") {
        QCOMPARE(out.value("starts"), QString("0"));
        return;
    }
    QCOMPARE(out.value("starts"), QString("1"));
    QCOMPARE(out.value("inits"), QString("1"));
    if (loopRan) {
        QVERIFY(out.value("cycles100").toInt() >= 3);
        QVERIFY(out.value("cycles10").toInt() >= 30); // the child quits only after both
        // slot 5 runs right after slot 4, in the same pass of the event loop, never on its own
        QCOMPARE(out.value("slot5apart"), QString("0"));
    } else {
        QCOMPARE(out.value("cycles10"), QString("0"));
        QCOMPARE(out.value("cycles100"), QString("0"));
    }
    if (args.first() != "nullargv")
        QVERIFY(QDir(prj.path() + "/disk/tmp").exists());
}

void tst_MainLoop::the_cycle_runs_at_real_time_priority_data()
{
    QTest::addColumn<QString>("env");
    QTest::addColumn<int>("policy"); // of the thread running the cycle
    QTest::newRow("by default") << "" << int(SCHED_FIFO);
    QTest::newRow("priority 0: left alone") << "QGUI_CYCLE_PRIORITY=0" << int(SCHED_OTHER);
    QTest::newRow("not a number: the default") << "QGUI_CYCLE_PRIORITY=high" << int(SCHED_FIFO);
}

void tst_MainLoop::the_cycle_runs_at_real_time_priority()
{
    QFETCH(QString, env);
    QFETCH(int, policy);
    sched_param param {};
    param.sched_priority = 1;
    if (policy == SCHED_FIFO && ::sched_setscheduler(0, SCHED_FIFO | SCHED_RESET_ON_FORK, &param) != 0)
        QSKIP("this process may not use the real-time class");
    param.sched_priority = 0;
    ::sched_setscheduler(0, SCHED_OTHER, &param);

    QTemporaryDir prj;
    QProcessEnvironment e = QProcessEnvironment::systemEnvironment();
    e.remove("QGUI_CYCLE_PRIORITY");
    if (!env.isEmpty())
        e.insert(env.section('=', 0, 0), env.section('=', 1));
    int code = 0;
    const auto out = run({ "run", "-hmifile", prj.path() }, e, &code);
    QCOMPARE(code, 0);
    QCOMPARE(out.value("policy").toInt(), policy);
    // a thread the logic layer starts from the cycle is an ordinary one
    QCOMPARE(out.value("threadpolicy").toInt(), int(SCHED_OTHER));
}

QTEST_GUILESS_MAIN(tst_MainLoop)
#include "tst_mainloop.moc"
