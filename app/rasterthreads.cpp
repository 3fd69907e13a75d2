#include "app/rasterthreads.h"

#include <QDir>
#include <QFile>

#include <cerrno>
#include <sys/resource.h>

int RasterThreads::niceFromEnvironment()
{
    bool ok = false;
    const int value = qEnvironmentVariableIntValue("QGUI_RASTER_NICE", &ok);
    return ok && value >= 0 && value <= 19 ? value : kDefaultNice;
}

bool RasterThreads::isRasterThreadName(const QString& name)
{
    static const QString prefix = QStringLiteral("llvmpipe-");
    if (!name.startsWith(prefix) || name.size() == prefix.size())
        return false;
    for (int i = prefix.size(); i < name.size(); ++i) {
        if (!name.at(i).isDigit())
            return false;
    }
    return true;
}

int RasterThreads::lowerPriority(int nice)
{
    if (nice <= 0)
        return 0;
    int changed = 0;
    const QStringList tasks = QDir(QStringLiteral("/proc/self/task")).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    for (const QString& task : tasks) {
        QFile comm(QStringLiteral("/proc/self/task/%1/comm").arg(task));
        if (!comm.open(QIODevice::ReadOnly))
            continue; // the thread ended meanwhile
        if (!isRasterThreadName(QString::fromLatin1(comm.readAll().trimmed())))
            continue;
        bool ok = false;
        const id_t tid = task.toUInt(&ok);
        if (!ok)
            continue;
        // on Linux the niceness is a thread's own: the call takes a thread id
        errno = 0;
        const int current = ::getpriority(PRIO_PROCESS, tid);
        if ((current == -1 && errno != 0) || current >= nice)
            continue;
        if (::setpriority(PRIO_PROCESS, tid, nice) == 0)
            ++changed;
    }
    return changed;
}
