#ifndef SERVERPROCESS_H
#define SERVERPROCESS_H

#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <memory>

/**
 * A real server process for tests, on a free loopback port, with its files in a
 * temporary folder. Every wait is bounded. The server can be stopped, killed (with
 * the processes it started) and started again on the same port and data folder;
 * the destructor stops it and removes the folder.
 *
 * Subclasses set the program and its arguments (start arguments may depend on port()
 * and dir()), and prepare the folder in setUp().
 */
class ServerProcess {
public:
    virtual ~ServerProcess();

    /** Empty when the server can run here, else why not (for QSKIP). */
    QString unavailableReason() const { return m_unavailable; }
    /** Prepares the folder (first time) and starts the server; true once it accepts connections. */
    bool start(int timeoutMs = 30000);
    /** Asks the server to stop and waits (bounded), then kills what is left. */
    void stop();
    /** Kills the server and its child processes at once, as a crash would. */
    void kill();
    bool isRunning() const;

    quint16 port() const { return m_port; }
    QString dir() const { return m_dir ? m_dir->path() : QString(); }
    /** Everything the server printed so far. */
    QByteArray output();
    QString lastError() const { return m_error; }

    /** A free TCP port on 127.0.0.1. */
    static quint16 freePort();
    /** True when something accepts TCP connections on 127.0.0.1:\a port. */
    static bool accepts(quint16 port);
    /** Runs a helper command to its end (bounded); false on failure, with the output in \a log. */
    static bool runTool(
        const QString& program, const QStringList& args, QByteArray* log = nullptr, int timeoutMs = 120000);

protected:
    explicit ServerProcess(const QString& name);
    virtual bool setUp() = 0; ///< first start only: prepare dir()
    virtual QString program() const = 0;
    virtual QStringList arguments() const = 0;
    /** Extra readiness check after the port accepts connections. */
    virtual bool ready() { return true; }
    /** Runs \a program as this unprivileged user when the tests run as root ("" = as is). */
    virtual QString runAsUser() const { return QString(); }
    void setUnavailable(const QString& why) { m_unavailable = why; }
    void setError(const QString& e) { m_error = e; }

private:
    QString m_name;
    QString m_unavailable;
    QString m_error;
    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<QProcess> m_process;
    QByteArray m_output;
    quint16 m_port = 0;
    bool m_prepared = false;
};

#endif // SERVERPROCESS_H
