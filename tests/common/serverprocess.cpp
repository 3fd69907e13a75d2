#include "serverprocess.h"

#include <QDir>
#include <QElapsedTimer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QThread>

#include <csignal>
#include <sys/types.h>
#include <unistd.h>

namespace {

/* Direct children of \a pid, read from /proc. */
QList<qint64> childrenOf(qint64 pid)
{
    QList<qint64> out;
    const QStringList entries = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs);
    for (const QString& e : entries) {
        bool ok = false;
        const qint64 p = e.toLongLong(&ok);
        if (!ok)
            continue;
        QFile status(QStringLiteral("/proc/%1/status").arg(p));
        if (!status.open(QIODevice::ReadOnly))
            continue;
        for (const QByteArray& line : status.readAll().split('\n')) {
            if (line.startsWith("PPid:") && line.mid(5).trimmed().toLongLong() == pid)
                out << p;
        }
    }
    return out;
}

} // namespace

ServerProcess::ServerProcess(const QString& name)
    : m_name(name)
    , m_dir(new QTemporaryDir)
{
    if (!m_dir->isValid())
        m_unavailable = QStringLiteral("no temporary folder");
}

ServerProcess::~ServerProcess()
{
    stop();
}

quint16 ServerProcess::freePort()
{
    QTcpServer s;
    if (!s.listen(QHostAddress::LocalHost, 0))
        return 0;
    return s.serverPort();
}

bool ServerProcess::accepts(quint16 port)
{
    QTcpSocket s;
    s.connectToHost(QHostAddress::LocalHost, port);
    const bool ok = s.waitForConnected(300);
    s.abort();
    return ok;
}

bool ServerProcess::runTool(const QString& program, const QStringList& args, QByteArray* log, int timeoutMs)
{
    QProcess p;
    p.setProcessChannelMode(QProcess::MergedChannels);
    p.setStandardInputFile(QProcess::nullDevice());
    p.start(program, args);
    if (!p.waitForFinished(timeoutMs)) {
        p.kill();
        p.waitForFinished(2000);
        if (log)
            *log = p.readAll() + "\n(timed out or not started)";
        return false;
    }
    if (log)
        *log = p.readAll();
    return p.exitStatus() == QProcess::NormalExit && p.exitCode() == 0;
}

bool ServerProcess::start(int timeoutMs)
{
    if (!m_unavailable.isEmpty())
        return false;
    if (isRunning())
        return true;
    if (!m_prepared) {
        m_port = freePort();
        if (!m_port || !setUp())
            return false;
        m_prepared = true;
    }
    m_process.reset(new QProcess);
    m_process->setProcessChannelMode(QProcess::MergedChannels);
    m_process->setStandardInputFile(QProcess::nullDevice());
    QString prog = program();
    QStringList args = arguments();
    if (::geteuid() == 0 && !runAsUser().isEmpty()) {
        // setpriv execs the server itself, so the process id stays the server's
        args = QStringList { QStringLiteral("--reuid=") + runAsUser(),
            QStringLiteral("--regid=") + runAsUser(), QStringLiteral("--init-groups"), QStringLiteral("--"),
            prog }
            + args;
        prog = QStringLiteral("setpriv");
    }
    m_process->start(prog, args);
    if (!m_process->waitForStarted(5000)) {
        m_error = m_name + QStringLiteral(" did not start: ") + m_process->errorString();
        return false;
    }
    QElapsedTimer t;
    t.start();
    while (t.elapsed() < timeoutMs) {
        if (m_process->state() != QProcess::Running) {
            m_error = m_name + QStringLiteral(" ended: ") + QString::fromLocal8Bit(output().right(2000));
            return false;
        }
        if (accepts(m_port) && ready())
            return true;
        m_process->waitForReadyRead(100);
        m_output += m_process->readAll();
    }
    m_error = m_name + QStringLiteral(" not ready in time: ") + QString::fromLocal8Bit(output().right(2000));
    kill();
    return false;
}

void ServerProcess::stop()
{
    if (!m_process)
        return;
    if (m_process->state() == QProcess::Running) {
        m_process->terminate();
        if (!m_process->waitForFinished(15000))
            kill();
    }
    m_output += m_process->readAll();
    m_process.reset();
}

void ServerProcess::kill()
{
    if (!m_process)
        return;
    if (m_process->state() == QProcess::Running) {
        const qint64 pid = m_process->processId();
        const QList<qint64> children = childrenOf(pid);
        ::kill(pid_t(pid), SIGKILL);
        for (qint64 c : children)
            ::kill(pid_t(c), SIGKILL);
        m_process->waitForFinished(5000);
        // children are gone once the port and their files are free; give them a moment
        for (int i = 0; i < 50 && accepts(m_port); ++i)
            QThread::msleep(100);
    }
    m_output += m_process->readAll();
    m_process.reset();
}

bool ServerProcess::isRunning() const
{
    return m_process && m_process->state() == QProcess::Running;
}

QByteArray ServerProcess::output()
{
    if (m_process)
        m_output += m_process->readAll();
    return m_output;
}
