// FTP clients against a real FTP server on loopback, and the panel's own server (vsftpd).
#include <QtTest>

#include <qgui/events.h>
#include <qgui/ftp.h>

#include "common/pyftpserver.h"
#include "config/projectmanage.h"
#include "platform/logiclayercaller.h"
#include "utils/ftpclient.h"
#include "utils/ftpservermanage.h"

#include <QCryptographicHash>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QTcpServer>
#include <QTemporaryDir>

#include <unistd.h>

#include <atomic>
#include <string>
#include <thread>
#include <vector>

namespace {

constexpr int kTimeoutMs = 3000;
const QByteArray kUser = "op\"er 'x'";
const QByteArray kPassword = "p\"a ss'w;$(x)";

struct Result {
    unsigned client;
    int command;
    int error;
    QString local;
    QString remote;
};
QList<Result> g_results;
QList<QPair<unsigned, int>> g_states;
int g_offThread = 0;

ErrRet onEvent(unsigned id, int code, void* data)
{
    if (QThread::currentThread() != QCoreApplication::instance()->thread())
        ++g_offThread;
    if (code == EVT_FTP_STATE)
        g_states << qMakePair(id, *static_cast<int*>(data));
    if (code == EVT_FTP_RESULT) {
        const auto* r = static_cast<View_EvtFtpResult*>(data);
        g_results << Result { id, r->command, r->error, QString::fromUtf8(r->localPath),
            QString::fromUtf8(r->remotePath) };
    }
    return ErrRet {};
}

QList<Result> resultsOf(unsigned client)
{
    QList<Result> out;
    for (const Result& r : qAsConst(g_results)) {
        if (r.client == client)
            out << r;
    }
    return out;
}

QList<int> statesOf(unsigned client)
{
    QList<int> out;
    for (const auto& s : qAsConst(g_states)) {
        if (s.first == client)
            out << s.second;
    }
    return out;
}

/* Waits (bounded) until \a client has \a n results. */
bool waitResults(unsigned client, int n, int ms = 60000)
{
    return QTest::qWaitFor([&]() { return resultsOf(client).size() >= n; }, ms);
}

FtpClientPrm clientPrm(unsigned char client, quint16 port, const char* user, const char* password, bool passive = true,
    int timeoutMs = kTimeoutMs)
{
    FtpClientPrm p {};
    p.client = client;
    p.passive = passive ? 1 : 0;
    p.port = port;
    p.host = "127.0.0.1";
    p.user = user;
    p.password = password;
    p.timeoutMs = timeoutMs;
    return p;
}

void writeRandom(const QString& path, qint64 bytes)
{
    QFile f(path);
    QVERIFY(f.open(QIODevice::WriteOnly));
    QByteArray chunk(1 << 20, Qt::Uninitialized);
    QRandomGenerator rng { quint32(bytes) };
    for (qint64 left = bytes; left > 0; left -= chunk.size()) {
        rng.fillRange(reinterpret_cast<quint32*>(chunk.data()), chunk.size() / 4);
        QVERIFY(f.write(chunk.constData(), qMin<qint64>(left, chunk.size())) > 0);
    }
}

QByteArray digest(const QString& path)
{
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly))
        return QByteArray();
    QCryptographicHash h(QCryptographicHash::Sha1);
    h.addData(&f);
    return h.result().toHex();
}

} // namespace

class tst_Ftp : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void urls_data();
    void urls();
    void connectOutcome_data();
    void connectOutcome();
    void refusedCalls_data();
    void refusedCalls();
    void roundTrip_data();
    void roundTrip();
    void overwriteRules();
    void serverKilledMidTransfer_data();
    void serverKilledMidTransfer();
    void disconnectDuringTransfer();
    void callsFromOtherThreads();
    void panelServer();
    void panelServerRefusals_data();
    void panelServerRefusals();

private:
    std::unique_ptr<PyFtpServer> m_server;
    QTemporaryDir m_local;
    QTemporaryDir m_project;
};

void tst_Ftp::initTestCase()
{
    LogicLayerCaller::setCallBack(&onEvent);
    m_server.reset(new PyFtpServer(kUser, kPassword));
    if (!m_server->unavailableReason().isEmpty())
        QSKIP(qPrintable(m_server->unavailableReason()));
    QVERIFY2(m_server->start(), m_server->output().constData());
    QVERIFY(QDir().mkpath(m_project.path() + QStringLiteral("/disk/tmp")));
    ProjectManage::getInstance()->setPrjPath(m_project.path() + QLatin1Char('/'));
}

void tst_Ftp::init()
{
    g_results.clear();
    g_states.clear();
}

void tst_Ftp::cleanup()
{
    for (int c = 1; c < 8; ++c)
        removeClient(c);
    QCOMPARE(g_offThread, 0);
}

void tst_Ftp::urls_data()
{
    QTest::addColumn<QString>("host");
    QTest::addColumn<QString>("remote");
    QTest::addColumn<QByteArray>("url");

    QTest::newRow("IPv4, relative") << "127.0.0.1" << "logs/a b.txt" << QByteArray("ftp://127.0.0.1:21/logs/a%20b.txt");
    QTest::newRow("IPv6") << "::1" << "x" << QByteArray("ftp://[::1]:21/x");
    QTest::newRow("name, absolute") << " panel.example " << "/var/x" << QByteArray("ftp://panel.example:21/%2Fvar/x");
    QTest::newRow("international name") << "bücher.example" << "x"
                                        << QByteArray("ftp://xn--bcher-kva.example:21/x");
    QTest::newRow("UTF-8 path, # and ?") << "h" << "报表/#1?.csv"
                                        << QByteArray("ftp://h:21/%E6%8A%A5%E8%A1%A8/%231%3F.csv");
}

void tst_Ftp::urls()
{
    QFETCH(QString, host);
    QFETCH(QString, remote);
    QFETCH(QByteArray, url);
    FtpClient::Settings s;
    s.host = host;
    FtpClient client(s);
    QCOMPARE(client.url(remote), url);
}

void tst_Ftp::connectOutcome_data()
{
    QTest::addColumn<QString>("target"); // "server", "closed" port, "silent" host
    QTest::addColumn<QByteArray>("user");
    QTest::addColumn<QByteArray>("password");
    QTest::addColumn<bool>("passive");
    QTest::addColumn<int>("error");

    QTest::newRow("user, quotes and blanks") << "server" << kUser << kPassword << true << int(FTP_OK);
    QTest::newRow("user, active mode") << "server" << kUser << kPassword << false << int(FTP_OK);
    QTest::newRow("anonymous") << "server" << QByteArray() << QByteArray() << true << int(FTP_OK);
    QTest::newRow("wrong password") << "server" << kUser << QByteArray("nope") << true << int(FTP_ERR_LOGIN);
    QTest::newRow("unknown user") << "server" << QByteArray("nobody here") << kPassword << true
                                  << int(FTP_ERR_LOGIN);
    QTest::newRow("nothing listens") << "closed" << kUser << kPassword << true << int(FTP_ERR_CONNECT);
    QTest::newRow("host never answers") << "silent" << kUser << kPassword << true << int(FTP_ERR_TIMEOUT);
}

void tst_Ftp::connectOutcome()
{
    QFETCH(QString, target);
    QFETCH(QByteArray, user);
    QFETCH(QByteArray, password);
    QFETCH(bool, passive);
    QFETCH(int, error);

    QTcpServer silent; // accepts connections (the kernel does) and never says a word
    quint16 port = m_server->port();
    if (target == QLatin1String("closed"))
        port = ServerProcess::freePort();
    if (target == QLatin1String("silent")) {
        QVERIFY(silent.listen(QHostAddress::LocalHost));
        port = silent.serverPort();
    }
    QElapsedTimer t;
    t.start();
    const FtpClientPrm p = clientPrm(1, port, user.isEmpty() ? nullptr : user.constData(), password.constData(),
        passive, 1000);
    QCOMPARE(Ftp_Connect(p), 0);
    QCOMPARE(Ftp_CheckState(1), int(FTP_CONNECTING));
    QVERIFY(waitResults(1, 1, 20000));
    QVERIFY2(t.elapsed() < 1000 + 3000, qPrintable(QString::number(t.elapsed()))); // bounded by the time-out
    QTest::qWait(error == FTP_OK ? 50 : 1500); // nothing else follows
    const QList<Result> r = resultsOf(1);
    QCOMPARE(r.size(), 1);
    QCOMPARE(r.at(0).command, int(FTP_CMD_CONNECT));
    QCOMPARE(r.at(0).error, error);
    const int final = error == FTP_OK ? FTP_CONNECTED : FTP_FAILED;
    QCOMPARE(statesOf(1), (QList<int> { FTP_CONNECTING, final }));
    QCOMPARE(Ftp_CheckState(1), final);
}

void tst_Ftp::refusedCalls_data()
{
    QTest::addColumn<QString>("call");
    QTest::addColumn<QByteArray>("a");
    QTest::addColumn<QByteArray>("b");

    QTest::newRow("connect: null host") << "connect-host" << QByteArray() << QByteArray();
    QTest::newRow("connect: empty host") << "connect-host" << QByteArray("  ") << QByteArray();
    QTest::newRow("connect: LF in user") << "connect-cred" << QByteArray("a\nDELE x") << QByteArray("p");
    QTest::newRow("connect: CRLF in password") << "connect-cred" << QByteArray("a") << QByteArray("p\r\nQUIT");
    QTest::newRow("put: unknown client") << "put-unknown" << QByteArray("x") << QByteArray("x");
    QTest::newRow("put: missing local file") << "put" << QByteArray("/nonexistent/qgui") << QByteArray("x");
    QTest::newRow("put: folder as local file") << "put" << QByteArray("/tmp") << QByteArray("x");
    QTest::newRow("put: null remote") << "put" << QByteArray("<file>") << QByteArray();
    QTest::newRow("put: LF in remote") << "put" << QByteArray("<file>") << QByteArray("a\nDELE b");
    QTest::newRow("put: invalid UTF-8 local") << "put" << QByteArray("<file>\xff\xfe") << QByteArray("x");
    QTest::newRow("pull: onto an existing file") << "pull" << QByteArray("<file>") << QByteArray("x");
    QTest::newRow("pull: null local") << "pull" << QByteArray() << QByteArray("x");
    QTest::newRow("pull: invalid UTF-8 remote") << "pull" << QByteArray("<new>") << QByteArray("a\xc3(");
    QTest::newRow("put after disconnect") << "put-disconnected" << QByteArray("<file>") << QByteArray("x");
}

void tst_Ftp::refusedCalls()
{
    QFETCH(QString, call);
    QFETCH(QByteArray, a);
    QFETCH(QByteArray, b);

    const QString file = m_local.filePath(QStringLiteral("refused.txt"));
    QFile f(file);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write("x");
    f.close();
    a.replace("<file>", QFile::encodeName(file));
    a.replace("<new>", QFile::encodeName(m_local.filePath(QStringLiteral("new.txt"))));
    const char* pa = a.isNull() ? nullptr : a.constData();
    const char* pb = b.isNull() ? nullptr : b.constData();

    if (call.startsWith(QLatin1String("connect"))) {
        FtpClientPrm p = clientPrm(2, m_server->port(), pa, pb);
        if (call == QLatin1String("connect-host"))
            p.host = pa;
        QCOMPARE(Ftp_Connect(p), -1);
        QCOMPARE(Ftp_CheckState(2), -1);
    } else {
        if (call != QLatin1String("put-unknown")) {
            QCOMPARE(Ftp_Connect(clientPrm(2, m_server->port(), kUser.constData(), kPassword.constData())), 0);
            QVERIFY(waitResults(2, 1));
        }
        if (call == QLatin1String("put-disconnected")) {
            QCOMPARE(Ftp_DisConnect(2, true), 0);
            QCOMPARE(Ftp_CheckState(2), int(FTP_DISCONNECTED));
        }
        const int before = resultsOf(2).size();
        const int r = call == QLatin1String("pull") ? Ftp_Pull(2, pa, pb, false) : Ftp_Put(2, pa, pb, true);
        QCOMPARE(r, -1);
        QTest::qWait(100);
        QVERIFY(resultsOf(2).size() <= before + (call == QLatin1String("put-disconnected") ? 1 : 0));
    }
    QCOMPARE(Ftp_TransferProgress(9, nullptr, nullptr), -1);
    QCOMPARE(Ftp_DisConnect(9, false), -1);
    QCOMPARE(removeClient(9), -1);
    QCOMPARE(Ftp_CheckState(9), -1);
    // nothing reached the server's folder
    QCOMPARE(QDir(m_server->root()).entryList(QDir::Files), QStringList());
}

void tst_Ftp::roundTrip_data()
{
    QTest::addColumn<bool>("passive");
    QTest::addColumn<qint64>("bytes");
    QTest::addColumn<QString>("remote");

    QTest::newRow("empty file, passive") << true << qint64(0) << QStringLiteral("empty.bin");
    QTest::newRow("1 MB into new folders, active") << false << qint64(1 << 20) << QStringLiteral("a/b/c/one.bin");
    QTest::newRow("UTF-8 names") << true << qint64(4096) << QStringLiteral("报表/数据 1.csv");
    QTest::newRow("absolute path") << true << qint64(10000) << QStringLiteral("/abs/x.bin");
    QTest::newRow("100 MB, passive") << true << qint64(100) * 1024 * 1024 << QStringLiteral("big/100m.bin");
}

void tst_Ftp::roundTrip()
{
    QFETCH(bool, passive);
    QFETCH(qint64, bytes);
    QFETCH(QString, remote);

    const QString up = m_local.filePath(QStringLiteral("up.bin"));
    const QString down = m_local.filePath(QStringLiteral("down/here/back.bin"));
    writeRandom(up, bytes);
    QFile::remove(down);
    QCOMPARE(Ftp_Connect(clientPrm(3, m_server->port(), kUser.constData(), kPassword.constData(), passive)), 0);
    const QByteArray r = remote.toUtf8();
    QCOMPARE(Ftp_Put(3, QFile::encodeName(up).constData(), r.constData(), true), 0);
    // accepted behind the log-in: it runs for the caller, who must not touch the file yet
    QCOMPARE(Ftp_TransferProgress(3, nullptr, nullptr), 1);

    // progress is readable while the transfer runs, and complete afterwards
    bool sawRunning = false;
    QElapsedTimer t;
    t.start();
    while (resultsOf(3).size() < 2 && t.elapsed() < 120000) {
        long long done = -1, total = -1;
        if (Ftp_TransferProgress(3, &done, &total) == 1) {
            QVERIFY(done >= 0 && done <= bytes);
            sawRunning = sawRunning || (done > 0 && total == bytes);
        }
        QTest::qWait(5);
    }
    QVERIFY(waitResults(3, 2));
    if (bytes >= 50 * 1024 * 1024)
        QVERIFY(sawRunning);
    long long done = -1, total = -1;
    QCOMPARE(Ftp_TransferProgress(3, &done, &total), 0);
    QCOMPARE(done, bytes);

    QCOMPARE(Ftp_Pull(3, QFile::encodeName(down).constData(), r.constData(), false), 0);
    QVERIFY(waitResults(3, 3, 120000));
    const QList<Result> res = resultsOf(3);
    QCOMPARE(res.at(0).command, int(FTP_CMD_CONNECT));
    QCOMPARE(res.at(1).command, int(FTP_CMD_PUT));
    QCOMPARE(res.at(1).error, int(FTP_OK));
    QCOMPARE(res.at(1).local, up);
    QCOMPARE(res.at(1).remote, remote);
    QCOMPARE(res.at(2).command, int(FTP_CMD_PULL));
    QCOMPARE(res.at(2).error, int(FTP_OK));
    QCOMPARE(QFileInfo(down).size(), bytes);
    QCOMPARE(digest(down), digest(up));
    // the absolute path lands at the top of the served folder (the server keeps users inside it)
    QString onServer = remote;
    QCOMPARE(digest(m_server->root() + QLatin1Char('/') + onServer.remove(QRegularExpression("^/"))), digest(up));
    QVERIFY(!QFile::exists(down + QStringLiteral(".part")));
    QCOMPARE(statesOf(3), (QList<int> { FTP_CONNECTING, FTP_CONNECTED }));
}

void tst_Ftp::overwriteRules()
{
    const QString a = m_local.filePath(QStringLiteral("a.txt"));
    const QString b = m_local.filePath(QStringLiteral("b.txt"));
    const QString pulled = m_local.filePath(QStringLiteral("pulled.txt"));
    for (auto [path, text] : { qMakePair(a, QByteArray("first")), qMakePair(b, QByteArray("second")),
             qMakePair(pulled, QByteArray("keep me")) }) {
        QFile f(path);
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write(text);
    }
    QCOMPARE(Ftp_Connect(clientPrm(4, m_server->port(), kUser.constData(), kPassword.constData())), 0);
    const QByteArray ea = QFile::encodeName(a), eb = QFile::encodeName(b), ep = QFile::encodeName(pulled);
    QCOMPARE(Ftp_Put(4, ea.constData(), "ow/t.txt", false), 0); // new: written
    QCOMPARE(Ftp_Put(4, eb.constData(), "ow/t.txt", false), 0); // exists: refused, unchanged
    QCOMPARE(Ftp_Pull(4, ep.constData(), "ow/missing.txt", true), 0); // missing: the local file stays
    QCOMPARE(Ftp_Pull(4, ep.constData(), "nofolder/x.txt", true), 0);
    QVERIFY(waitResults(4, 5));
    const QString onServer = m_server->root() + QStringLiteral("/ow/t.txt");
    QFile s(onServer);
    QVERIFY(s.open(QIODevice::ReadOnly));
    QCOMPARE(s.readAll(), QByteArray("first"));
    s.close();
    QCOMPARE(Ftp_Put(4, eb.constData(), "ow/t.txt", true), 0); // replaced
    QCOMPARE(Ftp_Pull(4, ep.constData(), "ow/t.txt", true), 0); // replaces the local file
    QVERIFY(waitResults(4, 7));
    QList<int> errors;
    for (const Result& r : resultsOf(4))
        errors << r.error;
    QCOMPARE(errors,
        (QList<int> { FTP_OK, FTP_OK, FTP_ERR_EXISTS, FTP_ERR_REMOTE_MISSING, FTP_ERR_REMOTE_MISSING, FTP_OK,
            FTP_OK }));
    QFile p(pulled);
    QVERIFY(p.open(QIODevice::ReadOnly));
    QCOMPARE(p.readAll(), QByteArray("second"));
    QCOMPARE(QDir(m_local.path()).entryList({ QStringLiteral("*.part") }), QStringList());
    // a file-level failure leaves the connection as it was
    QCOMPARE(Ftp_CheckState(4), int(FTP_CONNECTED));
}

void tst_Ftp::serverKilledMidTransfer_data()
{
    QTest::addColumn<int>("command");
    QTest::newRow("put") << int(FTP_CMD_PUT);
    QTest::newRow("pull") << int(FTP_CMD_PULL);
}

void tst_Ftp::serverKilledMidTransfer()
{
    QFETCH(int, command);
    PyFtpServer slow(kUser, kPassword, 2 * 1024 * 1024); // a 20 MB transfer lasts ten seconds
    QVERIFY2(slow.start(), slow.output().constData());
    const QString big = m_local.filePath(QStringLiteral("slow.bin"));
    writeRandom(big, 20 * 1024 * 1024);
    QFile::copy(big, slow.root() + QStringLiteral("/slow.bin"));
    const QString target = m_local.filePath(QStringLiteral("slow-back.bin"));
    QFile::remove(target);

    QCOMPARE(Ftp_Connect(clientPrm(5, slow.port(), kUser.constData(), kPassword.constData())), 0);
    const QByteArray eb = QFile::encodeName(big), et = QFile::encodeName(target);
    QCOMPARE(command == FTP_CMD_PUT ? Ftp_Put(5, eb.constData(), "up/slow.bin", true)
                                    : Ftp_Pull(5, et.constData(), "slow.bin", false),
        0);
    QVERIFY(QTest::qWaitFor(
        []() {
            long long done = 0;
            return Ftp_TransferProgress(5, &done, nullptr) == 1 && done > 1024 * 1024;
        },
        20000));
    slow.kill();
    QVERIFY(waitResults(5, 2, 20000));
    QTest::qWait(300);
    const QList<Result> r = resultsOf(5);
    QCOMPARE(r.size(), 2); // exactly one answer for the cut transfer
    QCOMPARE(r.at(1).command, command);
    QVERIFY2(r.at(1).error == FTP_ERR_TRANSFER || r.at(1).error == FTP_ERR_CONNECT,
        qPrintable(QString::number(r.at(1).error)));
    QCOMPARE(Ftp_CheckState(5), int(FTP_FAILED));
    QVERIFY(!QFile::exists(target)); // nothing half-written is kept
    QVERIFY(!QFile::exists(target + QStringLiteral(".part")));

    // the server comes back: the next command reconnects by itself
    QVERIFY(slow.start());
    QCOMPARE(Ftp_Pull(5, et.constData(), "slow.bin", true), 0);
    QVERIFY(waitResults(5, 3, 60000));
    QCOMPARE(resultsOf(5).at(2).error, int(FTP_OK));
    QCOMPARE(digest(target), digest(big));
    QCOMPARE(Ftp_CheckState(5), int(FTP_CONNECTED));
    QCOMPARE(statesOf(5), (QList<int> { FTP_CONNECTING, FTP_CONNECTED, FTP_FAILED, FTP_CONNECTED }));
}

void tst_Ftp::disconnectDuringTransfer()
{
    PyFtpServer slow(kUser, kPassword, 1024 * 1024);
    QVERIFY2(slow.start(), slow.output().constData());
    const QString big = m_local.filePath(QStringLiteral("cancel.bin"));
    writeRandom(big, 8 * 1024 * 1024);
    const QByteArray eb = QFile::encodeName(big);
    QCOMPARE(Ftp_Connect(clientPrm(6, slow.port(), kUser.constData(), kPassword.constData())), 0);
    QCOMPARE(Ftp_Put(6, eb.constData(), "c1.bin", true), 0);
    QCOMPARE(Ftp_Put(6, eb.constData(), "c2.bin", true), 0); // still queued when the disconnect comes
    QVERIFY(QTest::qWaitFor([]() {
        long long done = 0;
        return Ftp_TransferProgress(6, &done, nullptr) == 1 && done > 0; // the first one moves
    }, 10000));
    QElapsedTimer t;
    t.start();
    QCOMPARE(Ftp_DisConnect(6, true), 0);
    QVERIFY(t.elapsed() < kTimeoutMs + 1000);
    QCOMPARE(Ftp_CheckState(6), int(FTP_DISCONNECTED));
    QCOMPARE(Ftp_TransferProgress(6, nullptr, nullptr), 0);
    QVERIFY(waitResults(6, 4));
    QTest::qWait(300);
    QList<QPair<int, int>> got;
    for (const Result& r : resultsOf(6))
        got << qMakePair(r.command, r.error);
    QCOMPARE(got,
        (QList<QPair<int, int>> { { FTP_CMD_CONNECT, FTP_OK }, { FTP_CMD_PUT, FTP_ERR_CANCELLED },
            { FTP_CMD_PUT, FTP_ERR_CANCELLED }, { FTP_CMD_DISCONNECT, FTP_OK } }));
    QCOMPARE(statesOf(6), (QList<int> { FTP_CONNECTING, FTP_CONNECTED, FTP_DISCONNECTED }));

    // connected again, a transfer then removal: nothing more is heard of the client
    QCOMPARE(Ftp_Connect(clientPrm(6, slow.port(), kUser.constData(), kPassword.constData())), 0);
    QCOMPARE(Ftp_Put(6, eb.constData(), "c3.bin", true), 0);
    QVERIFY(QTest::qWaitFor([]() { return Ftp_TransferProgress(6, nullptr, nullptr) == 1; }, 10000));
    QCOMPARE(removeClient(6), 0);
    const int before = g_results.size() + g_states.size();
    QTest::qWait(500);
    QCOMPARE(g_results.size() + g_states.size(), before);
    QCOMPARE(Ftp_CheckState(6), -1);
}

void tst_Ftp::callsFromOtherThreads()
{
    // four threads of the logic layer drive a client each at the same time; the events still come on the
    // GUI thread (onEvent counts any that do not), one per command
    const QString file = m_local.filePath(QStringLiteral("threads.bin"));
    writeRandom(file, 256 * 1024);
    const QByteArray ef = QFile::encodeName(file);
    std::atomic<int> finished { 0 };
    std::atomic<int> refused { 0 };
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&, i]() {
            const unsigned char client = static_cast<unsigned char>(10 + i);
            const std::string remote = "threads/t" + std::to_string(i) + ".bin";
            if (Ftp_Connect(clientPrm(client, m_server->port(), kUser.constData(), kPassword.constData())) != 0)
                ++refused;
            for (int n = 0; n < 5; ++n) {
                if (Ftp_Put(client, ef.constData(), remote.c_str(), true) != 0)
                    ++refused;
                long long done = 0;
                if (Ftp_TransferProgress(client, &done, nullptr) < 0 || Ftp_CheckState(client) < 0)
                    ++refused;
            }
            ++finished;
        });
    }
    QVERIFY(QTest::qWaitFor([&]() { return finished.load() == 4; }, 30000)); // the GUI thread keeps running
    for (std::thread& t : threads)
        t.join();
    QCOMPARE(refused.load(), 0);
    for (unsigned c = 10; c < 14; ++c) {
        QVERIFY(waitResults(c, 6));
        for (const Result& r : resultsOf(c))
            QCOMPARE(r.error, int(FTP_OK));
        QCOMPARE(digest(m_server->root() + QStringLiteral("/threads/t") + QString::number(c - 10)
                     + QStringLiteral(".bin")),
            digest(file));
        QCOMPARE(removeClient(static_cast<unsigned char>(c)), 0);
    }
}

void tst_Ftp::panelServer()
{
    if (FtpServerManage::program().isEmpty())
        QSKIP("vsftpd is not installed");
    if (::geteuid() != 0)
        QSKIP("the panel's FTP server is started by root only");
    QTemporaryDir served;
    QVERIFY(QDir().mkpath(served.filePath(QStringLiteral("logs"))));
    const QString log = served.filePath(QStringLiteral("logs/panel.log"));
    writeRandom(log, 3 * 1024 * 1024 + 17);
    QFile::setPermissions(served.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadOther
            | QFile::ExeOther | QFile::ReadGroup | QFile::ExeGroup);

    const quint16 port = ServerProcess::freePort();
    const QByteArray root = QFile::encodeName(served.path());
    FtpServerPrm s {};
    s.enable = 1;
    s.anonymous = 1;
    s.readOnly = 1;
    s.port = port;
    s.rootPath = root.constData();
    QCOMPARE(Ftp_ConfigServer(s), 0);
    // its configuration lives in the project's temporary folder
    QVERIFY(QFile::exists(m_project.path() + QStringLiteral("/disk/tmp/ftpd/vsftpd.conf")));

    const QString back = m_local.filePath(QStringLiteral("from-panel.log"));
    QFile::remove(back);
    QCOMPARE(Ftp_Connect(clientPrm(7, port, nullptr, nullptr)), 0);
    const QByteArray eb = QFile::encodeName(back);
    QCOMPARE(Ftp_Pull(7, eb.constData(), "logs/panel.log", false), 0);
    const QByteArray el = QFile::encodeName(log);
    QCOMPARE(Ftp_Put(7, el.constData(), "logs/written.log", true), 0); // read-only server
    QCOMPARE(Ftp_Pull(7, m_local.filePath(QStringLiteral("up.txt")).toUtf8().constData(), "../../etc/passwd", true),
        0); // the served folder cannot be left
    QVERIFY(waitResults(7, 4));
    const QList<Result> r = resultsOf(7);
    QCOMPARE(r.at(0).error, int(FTP_OK));
    QCOMPARE(r.at(1).error, int(FTP_OK));
    QCOMPARE(digest(back), digest(log));
    QCOMPARE(r.at(2).error, int(FTP_ERR_REFUSED));
    QVERIFY(!QFile::exists(served.filePath(QStringLiteral("logs/written.log"))));
    QCOMPARE(r.at(3).error, int(FTP_ERR_REMOTE_MISSING));

    // stopped: nothing listens any more; stopping twice is fine
    s.enable = 0;
    QCOMPARE(Ftp_ConfigServer(s), 0);
    QCOMPARE(Ftp_ConfigServer(s), 0);
    QVERIFY(!ServerProcess::accepts(port));
}

void tst_Ftp::panelServerRefusals_data()
{
    QTest::addColumn<QString>("why");
    QTest::newRow("server program missing") << "program";
    QTest::newRow("root folder missing") << "root";
    QTest::newRow("port taken") << "port";
    QTest::newRow("unknown account") << "account";
    QTest::newRow("root account") << "root-account";
}

void tst_Ftp::panelServerRefusals()
{
    QFETCH(QString, why);
    if (FtpServerManage::program().isEmpty())
        QSKIP("vsftpd is not installed");
    QTcpServer taken;
    QVERIFY(taken.listen(QHostAddress::Any));
    FtpServerPrm s {};
    s.enable = 1;
    s.anonymous = 1;
    s.readOnly = 1;
    s.port = why == QLatin1String("port") ? taken.serverPort() : ServerProcess::freePort();
    const QByteArray root = why == QLatin1String("root") ? QByteArray("/nonexistent/served")
                                                        : QFile::encodeName(m_local.path());
    s.rootPath = root.constData();
    if (why == QLatin1String("account"))
        s.user = "no-such-account-here";
    if (why == QLatin1String("root-account"))
        s.user = "root";
    if (why == QLatin1String("program"))
        qputenv("QGUI_FTPD_PROGRAM", "/nonexistent/vsftpd");
    const int r = Ftp_ConfigServer(s);
    qunsetenv("QGUI_FTPD_PROGRAM");
    QCOMPARE(r, -1);
    QVERIFY(!FtpServerManage::getInstance()->isRunning());
}

QTEST_GUILESS_MAIN(tst_Ftp)
#include "tst_ftp.moc"
