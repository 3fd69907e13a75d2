#ifndef PROCESSKILLER_H
#define PROCESSKILLER_H

#include <QList>
#include <QString>

/**
 * Finds processes by executable name and stops them, without calling an
 * external tool. A process matches when the base name of its executable, or of
 * the first word of its command line, equals \a name (with or without ".exe").
 * The calling process is never matched.
 */
class ProcessKiller {
public:
    static QList<qint64> findByName(const QString& name);
    /** Sends SIGKILL to every match and waits up to \a waitMs until they are gone.
     *  Returns how many processes were signalled. */
    static int killByName(const QString& name, int waitMs = 3000);
};

#endif // PROCESSKILLER_H
