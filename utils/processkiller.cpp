#include "utils/processkiller.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QThread>

#include <csignal>
#include <sys/types.h>
#include <unistd.h>

namespace {

bool nameMatches(const QString& candidate, const QString& name)
{
    const QString base = QFileInfo(candidate).fileName();
    if (base.isEmpty())
        return false;
    QString bare = name;
    if (bare.endsWith(QLatin1String(".exe"), Qt::CaseInsensitive))
        bare.chop(4);
    return base == bare || base == bare + QLatin1String(".exe");
}

QString firstCmdlineWord(const QString& pidDir)
{
    QFile f(pidDir + QLatin1String("/cmdline"));
    if (!f.open(QIODevice::ReadOnly))
        return QString();
    const QByteArray data = f.read(4096);
    return QString::fromLocal8Bit(data.left(data.indexOf('\0')));
}

bool alive(qint64 pid)
{
    if (::kill(pid_t(pid), 0) != 0)
        return false;
    // a zombie still answers kill(0); it is gone for our purpose
    QFile f(QStringLiteral("/proc/%1/stat").arg(pid));
    if (!f.open(QIODevice::ReadOnly))
        return false;
    const QByteArray stat = f.readAll();
    int close = stat.lastIndexOf(')');
    return close < 0 || stat.size() < close + 3 || stat.at(close + 2) != 'Z';
}

} // namespace

QList<qint64> ProcessKiller::findByName(const QString& name)
{
    QList<qint64> pids;
    if (name.trimmed().isEmpty())
        return pids;
    const qint64 self = qint64(::getpid());
    const QStringList entries = QDir(QStringLiteral("/proc")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString& e : entries) {
        bool ok = false;
        qint64 pid = e.toLongLong(&ok);
        if (!ok || pid == self)
            continue;
        const QString dir = QStringLiteral("/proc/") + e;
        const QString exe = QFileInfo(dir + QLatin1String("/exe")).symLinkTarget();
        if (nameMatches(exe, name) || nameMatches(firstCmdlineWord(dir), name))
            pids.append(pid);
    }
    return pids;
}

int ProcessKiller::killByName(const QString& name, int waitMs)
{
    const QList<qint64> pids = findByName(name);
    int signalled = 0;
    for (qint64 pid : pids) {
        if (::kill(pid_t(pid), SIGKILL) == 0)
            ++signalled;
    }
    QElapsedTimer t;
    t.start();
    for (qint64 pid : pids) {
        while (alive(pid) && t.elapsed() < waitMs)
            QThread::msleep(5);
    }
    return signalled;
}
