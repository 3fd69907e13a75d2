#include "utils/ftpservermanage.h"

#include "config/projectmanage.h"
#include "platform/nlogger.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QThread>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <pwd.h>
#include <signal.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

auto logger()
{
    return NLog::NLogger::instance()->logger();
}

bool acceptsOnLoopback(quint16 port)
{
    const int fd = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (fd < 0)
        return false;
    sockaddr_in a {};
    a.sin_family = AF_INET;
    a.sin_port = htons(port);
    a.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    const bool ok = ::connect(fd, reinterpret_cast<sockaddr*>(&a), sizeof a) == 0;
    ::close(fd);
    return ok;
}

/* A value on a line of the configuration: no line breaks, nothing the file format would read otherwise. */
bool isConfigSafe(const QString& s)
{
    for (const QChar c : s) {
        if (c.unicode() < 0x20 || c.unicode() == 0x7f)
            return false;
    }
    return true;
}

/* Every process below \a pid (the listener's sessions and their helpers). */
QList<qint64> descendants(qint64 pid)
{
    QList<qint64> out { pid };
    const QStringList procs = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (int i = 0; i < out.size(); ++i) {
        for (const QString& name : procs) {
            bool ok = false;
            const qint64 child = name.toLongLong(&ok);
            if (!ok || out.contains(child))
                continue;
            QFile stat(QStringLiteral("/proc/") + name + QStringLiteral("/stat"));
            if (!stat.open(QIODevice::ReadOnly))
                continue;
            const QByteArray line = stat.readAll();
            const int close = line.lastIndexOf(')'); // the name may hold blanks and parentheses
            const QList<QByteArray> f = line.mid(close + 2).split(' ');
            if (f.size() > 1 && f.at(1).toLongLong() == out.at(i))
                out << child;
        }
    }
    out.removeFirst();
    return out;
}

} // namespace

FtpServerManage* FtpServerManage::getInstance()
{
    static FtpServerManage* m = new FtpServerManage; // lives as long as the process
    return m;
}

FtpServerManage::FtpServerManage(QObject* parent)
    : QObject(parent)
{
    if (QCoreApplication::instance())
        connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this, &FtpServerManage::stop);
}

QString FtpServerManage::program()
{
    const QString env = qEnvironmentVariable("QGUI_FTPD_PROGRAM");
    if (!env.isEmpty())
        return QFileInfo(env).isExecutable() ? env : QString();
    QString p = QStandardPaths::findExecutable(QStringLiteral("vsftpd"));
    if (p.isEmpty())
        p = QStandardPaths::findExecutable(QStringLiteral("vsftpd"), { QStringLiteral("/usr/sbin") });
    return p;
}

bool FtpServerManage::isRunning() const
{
    return m_process && m_process->state() == QProcess::Running;
}

QByteArray FtpServerManage::config(const Settings& s, const QString& emptyDir) const
{
    const QByteArray root = QFile::encodeName(QDir::cleanPath(s.rootPath));
    auto yes = [](bool b) { return b ? QByteArray("YES") : QByteArray("NO"); };
    QByteArray c;
    c += "# written by the panel at each start of its FTP server\n";
    c += "listen=YES\nlisten_ipv6=NO\nbackground=NO\n";
    c += "listen_port=" + QByteArray::number(s.port) + "\n";
    c += "max_clients=" + QByteArray::number(s.maxClients) + "\n";
    c += "secure_chroot_dir=" + QFile::encodeName(emptyDir) + "\n";
    c += "seccomp_sandbox=NO\n"; // the panel's kernels differ; the sandbox refuses some of them
    c += "write_enable=" + yes(!s.readOnly) + "\n";
    c += "anonymous_enable=" + yes(s.anonymous) + "\n";
    c += "anon_root=" + root + "\nno_anon_password=YES\n";
    c += "anon_upload_enable=" + yes(!s.readOnly) + "\nanon_mkdir_write_enable=" + yes(!s.readOnly) + "\n";
    c += "anon_other_write_enable=" + yes(!s.readOnly) + "\nanon_umask=022\n";
    c += "local_enable=" + yes(!s.user.isEmpty()) + "\n";
    if (!s.user.isEmpty()) {
        c += "local_root=" + root + "\nchroot_local_user=YES\nallow_writeable_chroot=YES\nlocal_umask=022\n";
        c += "userlist_enable=YES\nuserlist_deny=NO\nuserlist_file=" + QFile::encodeName(emptyDir)
            + "/../users\n";
    }
    c += "pam_service_name=vsftpd\n";
    c += "xferlog_enable=YES\nvsftpd_log_file=" + QFile::encodeName(emptyDir) + "/../vsftpd.log\n";
    return c;
}

bool FtpServerManage::waitListening(quint16 port, int ms)
{
    QDeadlineTimer deadline(ms);
    while (!deadline.hasExpired()) {
        if (m_process->state() != QProcess::Running)
            return false;
        if (acceptsOnLoopback(port))
            return true;
        m_process->waitForFinished(20); // sleeps and notices an early exit
    }
    return false;
}

int FtpServerManage::start(const Settings& settings)
{
    stop();
    const QString prog = program();
    if (prog.isEmpty()) {
        logger()->error("ftp server: vsftpd is not installed; the panel serves no FTP");
        return -1;
    }
    if (::geteuid() != 0) {
        logger()->error("ftp server: vsftpd needs to be started by root");
        return -1;
    }
    const QFileInfo root(settings.rootPath);
    if (settings.rootPath.isEmpty() || !root.isDir() || !isConfigSafe(settings.rootPath)) {
        logger()->error("ftp server: the folder to serve \"{}\" does not exist", settings.rootPath.toStdString());
        return -1;
    }
    if (!settings.user.isEmpty()) {
        const QByteArray u = settings.user.toUtf8();
        const passwd* pw = isConfigSafe(settings.user) ? ::getpwnam(u.constData()) : nullptr;
        if (!pw || pw->pw_uid == 0) {
            logger()->error("ftp server: \"{}\" is not an account of the system that may log in", u.constData());
            return -1;
        }
    }
    if (acceptsOnLoopback(settings.port)) {
        logger()->error("ftp server: port {} is taken by another program", settings.port);
        return -1;
    }
    const QString tmp = ProjectManage::getInstance()->getStorePath(0);
    const QString dir = (tmp.isEmpty() ? QDir::tempPath() + QStringLiteral("/qgui-ftpd-")
                                             + QString::number(QCoreApplication::applicationPid())
                                       : tmp + QStringLiteral("ftpd"));
    const QString empty = dir + QStringLiteral("/empty");
    if (!QDir().mkpath(empty)) {
        logger()->error("ftp server: cannot make {}", empty.toStdString());
        return -1;
    }
    QFile::setPermissions(empty, QFile::ReadOwner | QFile::ExeOwner | QFile::ReadGroup | QFile::ExeGroup
            | QFile::ReadOther | QFile::ExeOther);
    QFile users(dir + QStringLiteral("/users"));
    users.open(QIODevice::WriteOnly | QIODevice::Truncate);
    users.write(settings.user.toUtf8() + "\n");
    users.close();
    m_configPath = dir + QStringLiteral("/vsftpd.conf");
    QFile conf(m_configPath);
    const QByteArray text = config(settings, empty);
    if (!conf.open(QIODevice::WriteOnly | QIODevice::Truncate) || conf.write(text) != text.size()) {
        logger()->error("ftp server: cannot write {}", m_configPath.toStdString());
        return -1;
    }
    conf.close();
    QFile::setPermissions(m_configPath, QFile::ReadOwner | QFile::WriteOwner); // vsftpd insists on it

    m_process = new QProcess(this);
    m_process->setProcessChannelMode(QProcess::MergedChannels);
    m_process->setStandardInputFile(QProcess::nullDevice());
    m_process->start(prog, { m_configPath });
    if (!m_process->waitForStarted(5000) || !waitListening(settings.port, 5000)) {
        const QByteArray out = m_process->readAll().trimmed();
        logger()->error("ftp server: vsftpd did not start on port {}: {}", settings.port,
            out.isEmpty() ? std::string("no answer") : out.toStdString());
        stop();
        return -1;
    }
    logger()->info("ftp server: serving {} on port {} ({}{})", settings.rootPath.toStdString(), settings.port,
        settings.anonymous ? "anonymous" : "accounts only", settings.readOnly ? ", read-only" : "");
    return 0;
}

int FtpServerManage::stop()
{
    if (!m_process)
        return 0;
    QProcess* p = m_process;
    m_process = nullptr;
    if (p->state() != QProcess::NotRunning) {
        // open sessions are processes of their own: they end first, and the listener, still running, collects
        // them (orphans left to a process 1 that never collects them would stay as zombies)
        // the deepest first, so that each one's parent is there to collect it
        const QList<qint64> sessions = descendants(p->processId());
        QDeadlineTimer collected(1000);
        for (auto it = sessions.crbegin(); it != sessions.crend(); ++it) {
            ::kill(pid_t(*it), SIGKILL);
            while (!collected.hasExpired() && ::kill(pid_t(*it), 0) == 0)
                QThread::msleep(5);
        }
        p->terminate();
        if (!p->waitForFinished(2000)) {
            p->kill();
            p->waitForFinished(2000);
        }
    }
    delete p;
    return 0;
}
