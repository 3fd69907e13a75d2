#ifndef DDATABASE_H
#define DDATABASE_H

#include <qgui/xdatabase.h>

#include <QList>
#include <QObject>

#include <deque>
#include <memory>
#include <mutex>

class QThreadPool;

namespace xDatabase {

/** One queued request: the caller's query id and its statements. */
struct DQuery {
    unsigned queryId = 0;
    std::list<std::string> sqls;
};

/**
 * The request queues of one database number.
 *
 * Reads run one at a time in queue order; writes waiting at the same moment run as
 * one batch. Jobs run on the shared worker pool; their results are handed to the
 * callback on the thread that owns this object (the one that created it), through
 * a notice each job queues when it is done; a job leaves its result in an Outcome
 * shared with this object. This object outlives its jobs (db_close waits for the pool). The mutex guards the queues and the running flags and is never held
 * while a statement runs or the callback is called.
 */
class DDatabase : public QObject {
    Q_OBJECT
public:
    /** Most requests of one kind that may wait; one more is refused with "too many sqls". */
    static constexpr int kMaxWaiting = 8192;

    DDatabase(unsigned dbNo, QThreadPool* pool, DbResultCallBack callBack, QObject* parent = nullptr);
    ~DDatabase() override;

    unsigned dbNo() const { return m_dbNo; }
    void setCallBack(DbResultCallBack callBack);

    /** Queues one request (\a read: a single reading statement) and returns at once. */
    void query(unsigned queryId, std::list<std::string> sqls, bool read);
    /** Runs one request on the pool, bypassing the queues, and waits for its result. */
    DbQueryResult querySync(std::list<std::string> sqls, bool read);

    /** Drops the waiting requests; later requests are ignored. Running jobs go on. */
    void close();
    /** After close() and once the pool is idle: answers the jobs that were running
     *  (owner thread only). */
    void deliverFinished();

    /** True while a result callback runs on the calling thread. */
    static bool delivering();

    int readQueueLength() const;
    int writeQueueLength() const;

    /** Runs one reading request on the calling thread's connection. */
    static DbQueryResult doSelect(unsigned dbNo, const DQuery& query);
    /** Runs writing requests in order, each in its own transaction, on the calling
     *  thread's connection; one result per request. */
    static QList<DbQueryResult> doQuery(unsigned dbNo, const QList<DQuery>& batch);

private:
    bool checkFull(int queueLength) const { return queueLength >= kMaxWaiting; }
    void watchSelect();
    void watchQuery();
    void onSelectFinished();
    void onQueryFinished();
    void deliver(DbQueryResult& result);
    std::shared_ptr<DbQueryResult> takeRead();
    QList<DbQueryResult> takeWrites(bool* done);

    const unsigned m_dbNo;
    QThreadPool* const m_pool;
    DbResultCallBack m_callBack;

    /** Where the jobs leave their results: shared, so that a job still running when this object goes
     *  writes into memory that is still there. */
    struct Outcome {
        std::mutex mutex;
        std::shared_ptr<DbQueryResult> read; ///< by pointer: rows are not copied
        QList<DbQueryResult> writes;
        bool writesDone = false;
    };

    mutable std::mutex m_mutex;
    std::deque<DQuery> m_readQueue;
    std::deque<DQuery> m_writeQueue;
    int m_readLength = 0;
    int m_writeLength = 0;
    bool m_readRunning = false; ///< a read job is running or its result is not yet handed over
    bool m_writeRunning = false; ///< the same for a write batch
    bool m_closed = false;
    bool m_readInFlight = false; ///< owner thread only: a read job runs or its result is not yet answered
    bool m_writeInFlight = false; ///< owner thread only: the same for the write batch

    const std::shared_ptr<Outcome> m_outcome = std::make_shared<Outcome>();
};

} // namespace xDatabase

#endif // DDATABASE_H
