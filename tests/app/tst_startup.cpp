// Start-up of the panel: command line, option words, project folders,
// antialiasing settings, device initialisation and the stop of the
// communication server at quit.
#include "common/guiapptestmain.h"

#include "app/guiapplication.h"
#include "config/projectmanage.h"

#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

namespace {
int g_initCalls = 0;
unsigned g_initDevice = 99;
QByteArray g_initA, g_initB;
unsigned g_initWords[3] = { 0, 0, 0 };
int g_initResult = 0;

int recordingDeviceInit(unsigned deviceNo, const char* a, const char* b, const unsigned* words)
{
    ++g_initCalls;
    g_initDevice = deviceNo;
    g_initA = a ? a : "(null)";
    g_initB = b ? b : "(null)";
    for (int i = 0; i < 3; ++i)
        g_initWords[i] = words ? words[i] : 0xDEAD;
    return g_initResult;
}
} // namespace

class tst_Startup : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void option_words_keep_the_last_word_of_each_kind_data();
    void option_words_keep_the_last_word_of_each_kind();
    void command_line_sets_project_path_options_and_rotation_data();
    void command_line_sets_project_path_options_and_rotation();
    void start_empties_the_temporary_folder_and_keeps_the_others();
    void antialiasing_follows_the_environment_data();
    void antialiasing_follows_the_environment();
    void device_initialisation_passes_paths_and_words();
    void failed_device_initialisation_stops_the_communication_server();
    void quit_stops_only_the_named_process();

private:
    QProcess* startStandIn(const QString& dir, const QString& name);
};

void tst_Startup::option_words_keep_the_last_word_of_each_kind_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QList<uint>>("expected");
    // the slots start as {100, 101, 102}: an untouched slot keeps its value
    QTest::newRow("later word of kind 1 wins") << "5,9,,2" << QList<uint> { 100, 9, 2 };
    QTest::newRow("kind 3 ignored") << "7" << QList<uint> { 100, 101, 102 };
    QTest::newRow("garbage reads as 0") << "abc" << QList<uint> { 0, 101, 102 };
    QTest::newRow("blanks around words") << " 4 , 8 " << QList<uint> { 8, 101, 102 };
    QTest::newRow("overflow reads as 0") << "99999999999" << QList<uint> { 0, 101, 102 };
    QTest::newRow("negative reads as 0") << "-1" << QList<uint> { 0, 101, 102 };
    QTest::newRow("empty text") << "" << QList<uint> { 100, 101, 102 };
    QTest::newRow("largest word is kind 3") << "4294967295" << QList<uint> { 100, 101, 102 };
    QTest::newRow("only commas") << ",,," << QList<uint> { 100, 101, 102 };
}

void tst_Startup::option_words_keep_the_last_word_of_each_kind()
{
    QFETCH(QString, text);
    QFETCH(QList<uint>, expected);
    unsigned words[3] = { 100, 101, 102 };
    GuiApplication::parseInitOpts(text, words);
    QCOMPARE((QList<uint> { words[0], words[1], words[2] }), expected);
    GuiApplication::parseInitOpts(text, nullptr); // no slots: nothing happens
}

void tst_Startup::command_line_sets_project_path_options_and_rotation_data()
{
    QTest::addColumn<QStringList>("args");
    QTest::addColumn<QString>("project");
    QTest::addColumn<QString>("options");
    QTest::addColumn<int>("rotation");
    QTest::addColumn<bool>("portrait");

    const QString cwd = QDir::currentPath();
    QTest::newRow("no options") << QStringList { "app" } << ""
                                << "" << 0 << false;
    QTest::newRow("relative project") << QStringList { "app", "-hmifile", "prj/a" } << cwd + "/prj/a/"
                                      << "" << 0 << false;
    QTest::newRow("absolute, double dash") << QStringList { "app", "--hmifile", "/srv/p" } << "/srv/p/"
                                           << "" << 0 << false;
    QTest::newRow("trailing slash kept once") << QStringList { "app", "-hmifile", "/srv/p/" } << "/srv/p/"
                                              << "" << 0 << false;
    QTest::newRow("options and rotation 90")
        << QStringList { "app", "-option", "5,9", "-rotation", "90" } << ""
        << "5,9" << 90 << true;
    QTest::newRow("rotation 270") << QStringList { "app", "-rotation", "270" } << ""
                                  << "" << 270 << true;
    QTest::newRow("rotation 180") << QStringList { "app", "-rotation", "180" } << ""
                                  << "" << 180 << false;
    QTest::newRow("rotation garbage") << QStringList { "app", "-rotation", "abc" } << ""
                                      << "" << 0 << false;
    QTest::newRow("unknown option ignored")
        << QStringList { "app", "--bogus", "x", "-hmifile", "/p" } << "/p/"
        << "" << 0 << false;
    QTest::newRow("option without value") << QStringList { "app", "-hmifile" } << ""
                                          << "" << 0 << false;
    QTest::newRow("blank project") << QStringList { "app", "-hmifile", "  " } << ""
                                   << "" << 0 << false;
}

void tst_Startup::command_line_sets_project_path_options_and_rotation()
{
    QFETCH(QStringList, args);
    QFETCH(QString, project);
    QFETCH(QString, options);
    QFETCH(int, rotation);
    QFETCH(bool, portrait);
    auto* app = GuiApplication::instance();
    app->setRotation(0);
    QString gotProject = "untouched", gotOptions = "untouched";
    app->parseCmdline(args, gotProject, gotOptions);
    QCOMPARE(gotProject, project);
    QCOMPARE(gotOptions, options);
    QCOMPARE(app->getRotation(), rotation);
    QCOMPARE(app->isPortraitOrientation(), portrait);
}

void tst_Startup::start_empties_the_temporary_folder_and_keeps_the_others()
{
    QTemporaryDir dir;
    QVERIFY(dir.isValid());
    const QString root = dir.path() + "/";
    QDir().mkpath(root + "disk/tmp/sub");
    QDir().mkpath(root + "disk/hmi");
    QFile f1(root + "disk/tmp/old.txt");
    QVERIFY(f1.open(QIODevice::WriteOnly));
    f1.write("x");
    f1.close();
    QFile f2(root + "disk/tmp/sub/deep.txt");
    QVERIFY(f2.open(QIODevice::WriteOnly));
    f2.close();
    QFile keep(root + "disk/hmi/keep.txt");
    QVERIFY(keep.open(QIODevice::WriteOnly));
    keep.write("kept");
    keep.close();
    const auto prepared = GuiApplication::preparedFiles();
    QVERIFY(!prepared.isEmpty());
    QFile stale(root + prepared.first().first);
    QVERIFY(stale.open(QIODevice::WriteOnly));
    stale.write(QByteArray(10, 'z'));
    stale.close();

    unsigned words[3] = { 0, 0, 0 };
    GuiApplication::checkPath(root, words);

    for (const char* sub : { "disk/tmp", "disk/hmi", "disk/sd", "disk/usb1", "disk/usb2" })
        QVERIFY2(QDir(root + sub).exists(), sub);
    QVERIFY(QDir(root + "disk/tmp").isEmpty());
    QCOMPARE(QFile(root + "disk/hmi/keep.txt").size(), qint64(4));
    for (const auto& p : prepared) {
        QFile f(root + p.first);
        QVERIFY2(f.exists(), qPrintable(p.first));
        QCOMPARE(f.size(), p.second);
        QVERIFY(f.open(QIODevice::ReadOnly));
        QVERIFY(!f.readAll().contains('z')); // re-created, not kept
    }

    // without a project nothing of the working folder is touched
    QTemporaryDir cwd;
    const QString before = QDir::currentPath();
    QDir::setCurrent(cwd.path());
    GuiApplication::checkPath(QString(), words);
    QDir::setCurrent(before);
    QVERIFY(!QDir(cwd.path() + "/disk").exists());
}

void tst_Startup::antialiasing_follows_the_environment_data()
{
    QTest::addColumn<QByteArray>("disable"); // "<unset>" for not set
    QTest::addColumn<QByteArray>("samples");
    QTest::addColumn<int>("expected");
    QTest::newRow("nothing set") << QByteArray("<unset>") << QByteArray("<unset>") << 4;
    QTest::newRow("disabled") << QByteArray("1") << QByteArray("8") << 0;
    QTest::newRow("explicit 0") << QByteArray("0") << QByteArray("8") << 8;
    QTest::newRow("samples not a number") << QByteArray("<unset>") << QByteArray("many") << 4;
    QTest::newRow("samples empty") << QByteArray("<unset>") << QByteArray("") << 4;
    QTest::newRow("samples negative") << QByteArray("<unset>") << QByteArray("-2") << 4;
    QTest::newRow("samples 0 keeps antialiasing on") << QByteArray("<unset>") << QByteArray("0") << 4;
    QTest::newRow("samples 1 keeps antialiasing on") << QByteArray("0") << QByteArray("1") << 4;
    QTest::newRow("samples huge") << QByteArray("<unset>") << QByteArray("4096") << 16;
    QTest::newRow("disable garbage reads as 0") << QByteArray("yes") << QByteArray("2") << 2;
}

void tst_Startup::antialiasing_follows_the_environment()
{
    QFETCH(QByteArray, disable);
    QFETCH(QByteArray, samples);
    QFETCH(int, expected);
    auto set = [](const char* name, const QByteArray& v) {
        if (v == "<unset>")
            qunsetenv(name);
        else
            qputenv(name, v);
    };
    set("X_DISABLE_ANTIALIASING", disable);
    set("X_ANTIALIASING_SAMPLES", samples);
    QCOMPARE(GuiApplication::antialiasingSamples(), expected);
    qunsetenv("X_DISABLE_ANTIALIASING");
    qunsetenv("X_ANTIALIASING_SAMPLES");
}

void tst_Startup::device_initialisation_passes_paths_and_words()
{
    auto* app = GuiApplication::instance();
    _Main_CallBacks cb {};
    cb.deviceInit = &recordingDeviceInit;
    app->setCallbacks(cb);
    g_initCalls = 0;
    g_initResult = 0;
    QCOMPARE(app->deviceInit(3, QString::fromUtf8("路径A"), QStringLiteral("b")), 0);
    QCOMPARE(g_initCalls, 1);
    QCOMPARE(g_initDevice, 3u);
    QCOMPARE(QString::fromUtf8(g_initA), QString::fromUtf8("路径A"));
    QCOMPARE(g_initB, QByteArray("b"));
    QCOMPARE(g_initWords[0], 0u); // the test runs without "-option"

    cb.deviceInit = nullptr; // a slot left null counts as success
    app->setCallbacks(cb);
    QCOMPARE(app->deviceInit(0, QString(), QString()), 0);
}

QProcess* tst_Startup::startStandIn(const QString& dir, const QString& name)
{
    const QString sleepBin = QStandardPaths::findExecutable("sleep");
    if (sleepBin.isEmpty())
        return nullptr;
    const QString copy = dir + "/" + name;
    QFile::copy(sleepBin, copy);
    QFile::setPermissions(copy, QFile::permissions(copy) | QFile::ExeOwner);
    auto* p = new QProcess(this);
    p->start(copy, { "60" });
    if (!p->waitForStarted(5000)) {
        delete p;
        return nullptr;
    }
    return p;
}

void tst_Startup::failed_device_initialisation_stops_the_communication_server()
{
    QTemporaryDir dir;
    QProcess* server = startStandIn(dir.path(), GuiApplication::commServerName());
    if (!server)
        QSKIP("no 'sleep' executable to stand in for the communication server");
    auto* app = GuiApplication::instance();
    _Main_CallBacks cb {};
    cb.deviceInit = &recordingDeviceInit;
    app->setCallbacks(cb);
    g_initResult = 5;
    QCOMPARE(app->deviceInit(0, QString(), QString()), 5);
    g_initResult = 0;
    QVERIFY(server->waitForFinished(5000));
    QCOMPARE(server->exitStatus(), QProcess::CrashExit); // killed, not finished on its own
}

void tst_Startup::quit_stops_only_the_named_process()
{
    QTemporaryDir dir;
    QProcess* server = startStandIn(dir.path(), GuiApplication::commServerName());
    QProcess* bystander = startStandIn(dir.path(), "relaybridge2");
    if (!server || !bystander)
        QSKIP("no 'sleep' executable to stand in for the communication server");
    GuiApplication::instance()->onaboutToQuit();
    QVERIFY(server->waitForFinished(5000));
    QCOMPARE(bystander->state(), QProcess::Running);
    bystander->kill();
    bystander->waitForFinished(5000);
}

QGUI_GUIAPP_TEST_MAIN(tst_Startup)
#include "tst_startup.moc"
