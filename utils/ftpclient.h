#ifndef FTPCLIENT_H
#define FTPCLIENT_H

#include <QByteArray>
#include <QObject>
#include <QString>

#include <atomic>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>

/**
 * One FTP connection on libcurl, with a worker thread of its own.
 *
 * Commands (connect, put, pull, close) are queued by the GUI thread and run in
 * order on the worker; the curl handle keeps the control connection open
 * between them. Each finished command is posted back to the object's thread
 * as finished(); connection outcomes as connectionChanged(). cancelAll() ends
 * the running command and hands back the ones still queued, so that every
 * command is answered exactly once. The destructor cancels everything and
 * joins the worker.
 *
 * Time-out: a command ends with FTP_ERR_TIMEOUT when nothing moved (no
 * connection, no answer, no byte) for Settings::timeoutMs (rounded up to whole
 * seconds once connected: libcurl counts answers and stalls in seconds).
 */
class FtpClient : public QObject {
    Q_OBJECT

public:
    struct Settings {
        QString host;
        quint16 port = 21;
        QByteArray user; ///< empty: anonymous
        QByteArray password;
        bool passive = true;
        int timeoutMs = 15000;
    };

    struct Job {
        int command = 0; ///< FtpCommand
        QString local;
        QString remote;
        bool overwrite = false;
    };

    FtpClient(const Settings& settings, QObject* parent = nullptr);
    ~FtpClient() override;

    const Settings& settings() const { return m_settings; }

    /** Queues a command; it is answered by finished() (or handed back by cancelAll()). */
    void submit(const Job& job);
    /** Ends the running command and drops the queued ones; returns them all (the running one first) for the
     *  caller to answer: the worker answers no command that was taken back. */
    std::deque<Job> cancelAll();
    /** Asks the worker to end (after saying QUIT where a connection is open) without waiting; stopped()
     *  follows from the worker. */
    void stop();
    /** Blocks until the queue is empty and nothing runs, at most \a ms; true when idle. */
    bool waitIdle(int ms);

    /** Bytes moved and expected by the running (or last) transfer; true while one is queued or runs. */
    bool progress(qint64* done, qint64* total) const;

    /** The URL of \a remote on this client's server, path segments percent-encoded. */
    QByteArray url(const QString& remote) const;

signals:
    void finished(int command, int error, const QString& local, const QString& remote);
    /** A command told something about the connection: up (logged in) or broken. */
    void connectionChanged(bool up);
    /** The worker has ended (after stop() or at destruction). */
    void stopped();

private:
    void run();
    int execute(const Job& job);
    int connectToServer();
    int put(const Job& job);
    int pull(const Job& job);
    int remoteExists(const QString& remote, bool* exists);
    void prepare(const QByteArray& url);
    int perform();
    void closeConnection();
    static int xferInfo(void* self, long long dlTotal, long long dlNow, long long ulTotal, long long ulNow);
    static int mapError(int curlCode, int command);

    Settings m_settings;
    void* m_curl = nullptr; ///< CURL*, used on the worker only

    mutable std::mutex m_mutex;
    std::condition_variable m_wake;
    std::condition_variable m_idle;
    std::deque<Job> m_queue;
    Job m_current;
    bool m_busy = false;
    bool m_stop = false;
    std::thread m_thread;

    std::atomic<bool> m_cancel { false };
    std::atomic<bool> m_running { false };
    std::atomic<qint64> m_done { 0 };
    std::atomic<qint64> m_total { 0 };
};

#endif // FTPCLIENT_H
