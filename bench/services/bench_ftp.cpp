// FTP throughput: 100 MB put and pull through loopback with the library's client, against the curl
// command-line tool moving the same file to and from the same server (the panel's own, vsftpd).
#include "benchreport.h"

#include <qgui/events.h>
#include <qgui/ftp.h>

#include "common/serverprocess.h"
#include "platform/logiclayercaller.h"
#include "utils/ftpservermanage.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>

#include <pwd.h>
#include <unistd.h>

#include <cstdio>
#include <vector>

namespace {

int g_done = 0;
int g_error = 0;

ErrRet onEvent(unsigned, int code, void* data)
{
    if (code == EVT_FTP_RESULT) {
        ++g_done;
        g_error = static_cast<View_EvtFtpResult*>(data)->error;
    }
    return ErrRet {};
}

/* Seconds of one library transfer, -1 on failure. */
double ours(bool put, const QByteArray& local, const char* remote)
{
    const int before = g_done;
    QElapsedTimer t;
    t.start();
    const int r = put ? Ftp_Put(1, local.constData(), remote, true) : Ftp_Pull(1, local.constData(), remote, true);
    if (r != 0 || !QTest::qWaitFor([&]() { return g_done > before; }, 120000) || g_error != 0)
        return -1;
    return t.nsecsElapsed() / 1e9;
}

/* Seconds of the same transfer by the curl tool, -1 on failure. */
double tool(bool put, const QString& local, const QString& url)
{
    QProcess p;
    QElapsedTimer t;
    t.start();
    p.start(QStringLiteral("curl"),
        put ? QStringList { QStringLiteral("-s"), QStringLiteral("-T"), local, url }
            : QStringList { QStringLiteral("-s"), QStringLiteral("-o"), local, url });
    if (!p.waitForFinished(120000) || p.exitCode() != 0)
        return -1;
    return t.nsecsElapsed() / 1e9;
}

double medianOf(std::vector<double> v)
{
    std::sort(v.begin(), v.end());
    return v.empty() ? -1 : v[v.size() / 2];
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    LogicLayerCaller::setCallBack(&onEvent);
    QProcess probe;
    probe.start(QStringLiteral("curl"), { QStringLiteral("--version") });
    if (FtpServerManage::program().isEmpty() || !probe.waitForFinished(10000) || probe.exitCode() != 0) {
        std::printf("bench_ftp: vsftpd or curl is not installed; nothing measured\n");
        return 0;
    }
    QTemporaryDir dir;
    // served folder: readable by all; "in" writable by the server's anonymous account
    const QString served = dir.filePath(QStringLiteral("served"));
    QDir().mkpath(served + QStringLiteral("/in"));
    QFile::setPermissions(dir.path(), QFile::permissions(served) | QFile::ExeOther | QFile::ReadOther);
    if (const passwd* ftp = ::getpwnam("ftp"))
        (void)::chown(QFile::encodeName(served + QStringLiteral("/in")).constData(), ftp->pw_uid, ftp->pw_gid);
    const qint64 size = 100LL * 1024 * 1024;
    const QString src = served + QStringLiteral("/source.bin");
    {
        QFile f(src);
        f.open(QIODevice::WriteOnly);
        QByteArray chunk(1 << 20, Qt::Uninitialized);
        QRandomGenerator rng { 7u };
        for (qint64 i = 0; i < size; i += chunk.size()) {
            rng.fillRange(reinterpret_cast<quint32*>(chunk.data()), chunk.size() / 4);
            f.write(chunk);
        }
    }
    const quint16 port = ServerProcess::freePort();
    const QByteArray root = QFile::encodeName(served);
    FtpServerPrm s {};
    s.enable = 1;
    s.anonymous = 1;
    s.readOnly = 0;
    s.port = port;
    s.rootPath = root.constData();
    if (Ftp_ConfigServer(s) != 0) {
        std::printf("bench_ftp: the FTP server did not start\n");
        return 1;
    }
    FtpClientPrm c {};
    c.client = 1;
    c.passive = 1;
    c.port = port;
    c.host = "127.0.0.1";
    c.timeoutMs = 15000;
    if (Ftp_Connect(c) != 0 || !QTest::qWaitFor([]() { return g_done > 0; }, 15000) || g_error != 0) {
        std::printf("bench_ftp: the client could not log in\n");
        return 1;
    }

    const QString base = QStringLiteral("ftp://127.0.0.1:") + QString::number(port) + QLatin1Char('/');
    const QString down = dir.filePath(QStringLiteral("down.bin"));
    const QByteArray srcLocal = QFile::encodeName(src), downLocal = QFile::encodeName(down);
    std::vector<double> putOurs, putTool, pullOurs, pullTool;
    for (int round = 0; round < 3; ++round) {
        // alternate who goes first, so that neither always meets a warm or a cold page cache
        if (round % 2 == 0) {
            putOurs.push_back(ours(true, srcLocal, "in/ours.bin"));
            putTool.push_back(tool(true, src, base + QStringLiteral("in/tool.bin")));
            pullOurs.push_back(ours(false, downLocal, "source.bin"));
            pullTool.push_back(tool(false, down, base + QStringLiteral("source.bin")));
        } else {
            putTool.push_back(tool(true, src, base + QStringLiteral("in/tool.bin")));
            putOurs.push_back(ours(true, srcLocal, "in/ours.bin"));
            pullTool.push_back(tool(false, down, base + QStringLiteral("source.bin")));
            pullOurs.push_back(ours(false, downLocal, "source.bin"));
        }
    }
    const double mb = size / (1024.0 * 1024.0);
    const double po = medianOf(putOurs), pt = medianOf(putTool), lo = medianOf(pullOurs), lt = medianOf(pullTool);
    if (po <= 0 || pt <= 0 || lo <= 0 || lt <= 0) {
        std::printf("bench_ftp: a transfer failed\n");
        removeClient(1);
        s.enable = 0;
        Ftp_ConfigServer(s);
        return 1;
    }
    Bench::report("ftp put 100 MB (throughput)", mb / po, mb / pt, "MB/s", ">= 0.8x");
    Bench::report("ftp pull 100 MB (throughput)", mb / lo, mb / lt, "MB/s", ">= 0.8x");
    removeClient(1);
    s.enable = 0;
    Ftp_ConfigServer(s);
    return 0;
}
