// The services without a widget (database, MQTT, password blocks, archives, FTP) called by eight
// threads of the logic layer at once, while the GUI thread delivers their results. Nothing may be lost:
// every request is answered exactly once, every acknowledged row is stored, every published message
// arrives, every archive and every upload round-trips. scripts/tsan.sh runs this test for a minute
// under ThreadSanitizer; the normal suites run it for a few seconds.
#include <QtTest>

#include <qgui/events.h>
#include <qgui/ftp.h>
#include <qgui/mqtt.h>
#include <qgui/xdatabase.h>
#include <qgui/xdzip.h>
#include <qgui/xmd5.h>

#include "common/mosquittobroker.h"
#include "common/pyftpserver.h"
#include "config/projectmanage.h"
#include "platform/logiclayercaller.h"

#include <QCryptographicHash>
#include <QProcess>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

namespace {

constexpr int kThreads = 8;
constexpr unsigned kDb = 1;
const QByteArray kUser = "svc";
const QByteArray kPassword = "svc-pw";

/* What the GUI thread received, touched on the GUI thread only (events and results are delivered there). */
struct Received {
    QHash<unsigned, int> dbAnswers; // query id -> answers
    int dbErrors = 0;
    QString firstDbError;
    QHash<unsigned, int> ftpResults; // client -> results
    int ftpFailed = 0;
    int offThread = 0;
};
Received g_rx;

bool onGuiThread()
{
    return QThread::currentThread() == QCoreApplication::instance()->thread();
}

void onDbResult(xDatabase::DbQueryResult* r)
{
    if (!onGuiThread())
        ++g_rx.offThread;
    ++g_rx.dbAnswers[r->queryId];
    if (r->errorType != 0) {
        if (g_rx.dbErrors++ == 0)
            g_rx.firstDbError = QString::fromStdString(r->errorText);
    }
}

ErrRet onEvent(unsigned id, int code, void* data)
{
    if (!onGuiThread())
        ++g_rx.offThread;
    if (code == EVT_FTP_RESULT) {
        ++g_rx.ftpResults[id];
        if (static_cast<View_EvtFtpResult*>(data)->error != FTP_OK)
            ++g_rx.ftpFailed;
    }
    return ErrRet {};
}

/* What the threads did, counted by each thread and summed at the end. */
struct Work {
    std::vector<unsigned> writes; // query ids of queued writes
    std::vector<unsigned> reads; // query ids of queued reads
    int syncReads = 0;
    std::vector<int> published; // message numbers
    int passwordBlocks = 0;
    int archives = 0;
    int uploads = 0;
    unsigned mqttHandle = 0;
    std::vector<std::string> faults; // anything not as documented
};

QByteArray fileContent(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

} // namespace

class tst_ServiceThreads : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void eightThreadsAtOnce();

private:
    void runThread(int t, Work* w);

    QTemporaryDir m_dir;
    QTemporaryDir m_project;
    std::unique_ptr<MosquittoBroker> m_broker;
    std::unique_ptr<PyFtpServer> m_ftp;
    std::atomic<bool> m_stop { false };
    std::chrono::steady_clock::time_point m_end;
};

void tst_ServiceThreads::initTestCase()
{
    LogicLayerCaller::setCallBack(&onEvent);
    QVERIFY(QDir().mkpath(m_project.path() + QStringLiteral("/disk/tmp")));
    ProjectManage::getInstance()->setPrjPath(m_project.path() + QLatin1Char('/'));
    m_broker.reset(new MosquittoBroker);
    if (!m_broker->unavailableReason().isEmpty())
        QSKIP(qPrintable(m_broker->unavailableReason()));
    QVERIFY2(m_broker->start(), qPrintable(m_broker->lastError()));
    m_ftp.reset(new PyFtpServer(kUser, kPassword));
    if (!m_ftp->unavailableReason().isEmpty())
        QSKIP(qPrintable(m_ftp->unavailableReason()));
    QVERIFY2(m_ftp->start(), m_ftp->output().constData());
    if (QStandardPaths::findExecutable(QStringLiteral("7z")).isEmpty())
        QSKIP("7z is not installed");

    xDatabase::DbConnInfo info;
    info.dbNo = kDb;
    info.driver = "QSQLITE";
    info.dbName = QFile::encodeName(m_dir.filePath(QStringLiteral("svc.db"))).toStdString();
    std::list<xDatabase::DbConnInfo> infos { info };
    xDatabase::db_init(infos, &onDbResult);
    const auto made = xDatabase::db_querySync(kDb, "CREATE TABLE t(th INTEGER, n INTEGER, PRIMARY KEY(th, n))", false);
    QCOMPARE(made.errorType, 0);
}

void tst_ServiceThreads::cleanupTestCase()
{
    for (int t = 0; t < kThreads; ++t)
        removeClient(static_cast<unsigned char>(t + 1));
    QTest::qWait(500); // the clients' worker threads end and are collected on the GUI thread
    xDatabase::db_close();
}

/* One thread of the logic layer: every round writes a row and publishes a message, makes and checks a password
 * block; some rounds read (queued and waiting), pack and unpack an archive, upload a file. */
void tst_ServiceThreads::runThread(int t, Work* w)
{
    auto fault = [w](std::string what) { w->faults.push_back(std::move(what)); };
    const std::string tag = std::to_string(t);

    // MQTT: a client of its own, connected from this thread
    w->mqttHandle = MQTT::Mqtt_CreateClient();
    MQTT::MqttConnectPrm p {};
    const std::string clientId = "svc-" + tag;
    p.hostName = "127.0.0.1";
    p.port = m_broker->port();
    p.clientId = clientId.c_str();
    p.version = MQTT::MQTT_VERSION_3_1_1;
    p.keepAlive = 30;
    MQTT::Mqtt_Connect(w->mqttHandle, p);
    // FTP: client t + 1
    FtpClientPrm f {};
    f.client = static_cast<unsigned char>(t + 1);
    f.host = "127.0.0.1";
    f.port = m_ftp->port();
    f.user = kUser.constData();
    f.password = kPassword.constData();
    f.passive = 1;
    f.timeoutMs = 20000;
    if (Ftp_Connect(f) != 0)
        fault("Ftp_Connect refused");
    for (int i = 0; i < 1000 && MQTT::Mqtt_CheckState(w->mqttHandle) != MQTT::MQTT_STATE_CONNECTED; ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    if (MQTT::Mqtt_CheckState(w->mqttHandle) != MQTT::MQTT_STATE_CONNECTED)
        fault("MQTT client " + tag + " not connected");
    if (MQTT::Mqtt_GetClientId(w->mqttHandle) != clientId)
        fault("client id of " + tag);

    const QString folder = m_dir.filePath(QStringLiteral("t%1").arg(t));
    QDir().mkpath(folder);
    const std::string topic = "svc/" + tag;
    for (int n = 0; std::chrono::steady_clock::now() < m_end; ++n) {
        const unsigned qid = (unsigned(t + 1) << 24) | unsigned(n);
        const std::string insert = "INSERT INTO t VALUES(" + tag + ", " + std::to_string(n) + ")";
        xDatabase::db_query(kDb, qid, insert.c_str(), false);
        w->writes.push_back(qid);

        const std::string payload = std::to_string(n);
        MQTT::Mqtt_Publish(w->mqttHandle, topic.c_str(), payload.c_str(), 1, false);
        w->published.push_back(n);

        const std::string password = "t" + tag + "n" + std::to_string(n % 100000);
        unsigned char block[64];
        if (XMD5::encrypt(password.c_str(), block) != 1 || XMD5::check_pwd(password.c_str(), block) != 1
            || XMD5::check_pwd((password + "x").c_str(), block) != 0)
            fault("password block " + password);
        unsigned char digest[16];
        XMD5::get_md5_hash(reinterpret_cast<unsigned char*>(const_cast<char*>(insert.data())), int(insert.size()),
            digest);
        if (QByteArray(reinterpret_cast<char*>(digest), 16)
            != QCryptographicHash::hash(QByteArray::fromStdString(insert), QCryptographicHash::Md5))
            fault("md5 of " + insert);
        ++w->passwordBlocks;

        if (n % 8 == 0) {
            const unsigned rid = qid | 0x800000u;
            xDatabase::db_query(kDb, rid, "SELECT count(*) FROM t", true);
            w->reads.push_back(rid);
            const auto r = xDatabase::db_querySync(kDb, "SELECT count(*) FROM t", true);
            if (r.errorType != 0 || r.rows.size() != 1)
                fault("sync read: " + r.errorText);
            ++w->syncReads;
            if (Ftp_CheckState(f.client) < 0 || Ftp_TransferProgress(f.client, nullptr, nullptr) < 0)
                fault("FTP state of client " + tag);
        }
        if (n % 40 == 0) {
            const QString in = folder + QStringLiteral("/in.txt");
            const QByteArray text = QByteArray("thread ") + tag.c_str() + " round " + QByteArray::number(n);
            QFile file(in);
            if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
                fault("write " + in.toStdString());
            file.close();
            const QByteArray zip = QFile::encodeName(folder + QStringLiteral("/a.zip"));
            const QByteArray out = QFile::encodeName(folder + QStringLiteral("/out"));
            const QByteArray pw = QByteArray("pw") + tag.c_str();
            QFile::remove(QString::fromLocal8Bit(zip));
            if (XDZip::compress(QFile::encodeName(in).constData(), zip.constData(), pw.constData(), false) != 0
                || XDZip::unCompress(zip.constData(), pw.constData(), out.constData()) != 0
                || fileContent(QString::fromLocal8Bit(out) + QStringLiteral("/in.txt")) != text)
                fault("archive round " + std::to_string(n));
            ++w->archives;
            const std::string remote = "svc/t" + tag + "/" + std::to_string(n) + ".txt";
            if (Ftp_Put(f.client, QFile::encodeName(in).constData(), remote.c_str(), true) != 0)
                fault("Ftp_Put refused");
            else
                ++w->uploads;
            // the local file is read when the upload runs: wait for it before the next round rewrites it
            for (int i = 0; i < 2000 && Ftp_TransferProgress(f.client, nullptr, nullptr) == 1; ++i)
                std::this_thread::sleep_for(std::chrono::milliseconds(5));
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(4));
    }
}

void tst_ServiceThreads::eightThreadsAtOnce()
{
    const int seconds = qEnvironmentVariableIsSet("QGUI_SERVICE_THREADS_SECONDS")
        ? qEnvironmentVariableIntValue("QGUI_SERVICE_THREADS_SECONDS")
        : 5;

    // every message of every thread, as the broker passes it on
    QSet<QByteArray> arrived;
    QByteArray pending;
    QProcess sub;
    QObject::connect(&sub, &QProcess::readyReadStandardOutput, [&]() {
        pending += sub.readAllStandardOutput();
        int nl;
        while ((nl = pending.indexOf('\n')) >= 0) {
            arrived.insert(pending.left(nl));
            pending.remove(0, nl + 1);
        }
    });
    sub.start(QStringLiteral("mosquitto_sub"),
        { QStringLiteral("-h"), QStringLiteral("127.0.0.1"), QStringLiteral("-p"), QString::number(m_broker->port()),
            QStringLiteral("-t"), QStringLiteral("svc/#"), QStringLiteral("-q"), QStringLiteral("1"),
            QStringLiteral("-v"), QStringLiteral("-i"), QStringLiteral("svc-sub") });
    QTRY_VERIFY_WITH_TIMEOUT(m_broker->log().contains("Received SUBSCRIBE from svc-sub"), 10000);

    std::vector<Work> work(kThreads);
    std::vector<std::thread> threads;
    std::atomic<int> finished { 0 };
    m_end = std::chrono::steady_clock::now() + std::chrono::seconds(seconds);
    for (int t = 0; t < kThreads; ++t) {
        threads.emplace_back([this, t, &work, &finished]() {
            runThread(t, &work[t]);
            ++finished;
        });
    }
    // the GUI thread keeps delivering while the threads work
    QVERIFY(QTest::qWaitFor([&]() { return finished.load() == kThreads; }, (seconds + 180) * 1000));
    for (std::thread& th : threads)
        th.join();

    int writes = 0, reads = 0, syncReads = 0, messages = 0, blocks = 0, archives = 0, uploads = 0;
    QSet<unsigned> handles;
    for (const Work& w : work) {
        for (const std::string& f : w.faults)
            QFAIL(f.c_str());
        writes += int(w.writes.size());
        reads += int(w.reads.size());
        syncReads += w.syncReads;
        messages += int(w.published.size());
        blocks += w.passwordBlocks;
        archives += w.archives;
        uploads += w.uploads;
        handles.insert(w.mqttHandle);
    }
    QCOMPARE(handles.size(), kThreads); // clients created at the same moment got handles of their own

    // every queued request answered exactly once, on the GUI thread
    QVERIFY2(QTest::qWaitFor([&]() { return g_rx.dbAnswers.size() >= writes + reads; }, 120000),
        qPrintable(QStringLiteral("%1 of %2 answered").arg(g_rx.dbAnswers.size()).arg(writes + reads)));
    QCOMPARE(g_rx.dbAnswers.size(), writes + reads);
    for (auto it = g_rx.dbAnswers.cbegin(); it != g_rx.dbAnswers.cend(); ++it)
        QVERIFY2(it.value() == 1, qPrintable(QStringLiteral("query %1 answered %2 times").arg(it.key()).arg(it.value())));
    QVERIFY2(g_rx.dbErrors == 0, qPrintable(g_rx.firstDbError));
    for (const Work& w : work) {
        for (unsigned id : w.writes)
            QVERIFY(g_rx.dbAnswers.contains(id));
    }
    // every acknowledged row is stored
    const auto count = xDatabase::db_querySync(kDb, "SELECT count(*) FROM t", true);
    QCOMPARE(count.rows.size(), size_t(1));
    QCOMPARE(QByteArray::fromStdString(count.rows[0][0]).toInt(), writes);

    // every message arrived (at least once: quality of service 1)
    QVERIFY2(QTest::qWaitFor([&]() { return arrived.size() >= messages; }, 60000),
        qPrintable(QStringLiteral("%1 of %2 messages arrived").arg(arrived.size()).arg(messages)));
    for (int t = 0; t < kThreads; ++t) {
        for (int n : work[t].published)
            QVERIFY(arrived.contains(QByteArray("svc/") + QByteArray::number(t) + ' ' + QByteArray::number(n)));
    }
    sub.kill();
    sub.waitForFinished(2000);

    // every upload answered once, after the connect's own answer, and stored
    for (int t = 0; t < kThreads; ++t) {
        const unsigned client = unsigned(t + 1);
        QVERIFY(QTest::qWaitFor([&]() { return g_rx.ftpResults.value(client) >= work[t].uploads + 1; }, 60000));
        QCOMPARE(g_rx.ftpResults.value(client), work[t].uploads + 1);
        QCOMPARE(QDir(m_ftp->root() + QStringLiteral("/svc/t%1").arg(t)).entryList(QDir::Files).size(),
            work[t].uploads);
    }
    QCOMPARE(g_rx.ftpFailed, 0);
    QCOMPARE(g_rx.offThread, 0);

    std::printf("%d threads for %d s: %d rows written, %d queued and %d waiting reads, %d messages, "
                "%d password blocks, %d archives, %d uploads; nothing lost\n",
        kThreads, seconds, writes, reads, syncReads, messages, blocks, archives, uploads);
    std::fflush(stdout);
}

QTEST_GUILESS_MAIN(tst_ServiceThreads)
#include "tst_servicethreads.moc"
