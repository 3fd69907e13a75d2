#include "database/ddatabase.h"

#include "database/dbconn_pool.h"
#include "platform/nlogger.h"
#include "platform/threadhandoff.h"

#include <QSqlDriver>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QThread>
#include <QThreadPool>
#include <QVariant>

#include <future>

namespace xDatabase {

namespace {

spdlog::logger* log()
{
    return NLog::NLogger::instance()->logger();
}

std::string utf8(const QString& s)
{
    const QByteArray b = s.toUtf8();
    return std::string(b.constData(), size_t(b.size()));
}

QString fromUtf8(const std::string& s)
{
    return QString::fromUtf8(s.data(), int(s.size()));
}

void setError(DbQueryResult& r, const QSqlError& e)
{
    r.errorType = e.type() == QSqlError::NoError ? int(QSqlError::ConnectionError) : int(e.type());
    r.errorCode = utf8(e.nativeErrorCode());
    r.errorText = e.text().isEmpty() ? std::string("connection not open") : utf8(e.text());
}

bool usable(const QSqlDatabase& db)
{
    return db.isValid() && db.isOpen();
}

bool isSqlite(const QSqlDatabase& db)
{
    return db.driverName() == QLatin1String("QSQLITE");
}

/* After a failure on a server connection: is the server still there? A connection that
 * fails this probe is closed, so that its next use reconnects (a restarted server). */
bool alive(QSqlDatabase& db)
{
    if (isSqlite(db))
        return true;
    QSqlQuery probe(db);
    if (probe.exec(QStringLiteral("SELECT 1")))
        return true;
    db.close();
    return false;
}

void logSelectError(const QSqlError& e, const std::string& sql)
{
    log()->error("\n\tSql Error\n\tError Code {}\n\tError Msg {}\n\tsql:[{}]", utf8(e.nativeErrorCode()),
        utf8(e.text()), sql);
}

void logQueryError(const QSqlError& e, const std::string& sql)
{
    log()->error(
        "\n\tSql Error\n\tError Code {}\n\t{}\n\tsql:[{}]", utf8(e.nativeErrorCode()), utf8(e.text()), sql);
}

} // namespace

DDatabase::DDatabase(unsigned dbNo, QThreadPool* pool, DbResultCallBack callBack, QObject* parent)
    : QObject(parent)
    , m_dbNo(dbNo)
    , m_pool(pool)
    , m_callBack(std::move(callBack))
{
}

DDatabase::~DDatabase()
{
    // Destroyed once the pool has no job of this database left (db_close waits for them); a finished
    // job's notice still in the event queue goes with this object.
}

void DDatabase::setCallBack(DbResultCallBack callBack)
{
    m_callBack = std::move(callBack);
}

int DDatabase::readQueueLength() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_readLength;
}

int DDatabase::writeQueueLength() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_writeLength;
}

void DDatabase::query(unsigned queryId, std::list<std::string> sqls, bool read)
{
    bool refused = false;
    bool start = false;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        if (m_closed)
            return;
        int& length = read ? m_readLength : m_writeLength;
        if (checkFull(length)) {
            refused = true;
        } else {
            (read ? m_readQueue : m_writeQueue).push_back(DQuery { queryId, std::move(sqls) });
            ++length;
            bool& running = read ? m_readRunning : m_writeRunning;
            start = !running;
            running = true;
        }
    }
    const bool ownerThread = QThread::currentThread() == thread();
    if (refused) {
        DbQueryResult r;
        r.queryId = queryId;
        r.errorType = int(QSqlError::UnknownError);
        r.errorText = "too many sqls";
        // At once for the owner thread; a caller on another thread gets it through the
        // owner's event loop, like every other result.
        if (ownerThread)
            deliver(r);
        else
            QMetaObject::invokeMethod(
                this, [this, r, h = qgui::HandOff()]() mutable { h.take(); deliver(r); }, Qt::QueuedConnection);
        return;
    }
    if (!start)
        return;
    if (ownerThread)
        read ? watchSelect() : watchQuery();
    else
        QMetaObject::invokeMethod(
            this, read ? &DDatabase::watchSelect : &DDatabase::watchQuery, Qt::QueuedConnection);
}

DbQueryResult DDatabase::querySync(std::list<std::string> sqls, bool read)
{
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        if (m_closed)
            return DbQueryResult();
    }
    const unsigned dbNo = m_dbNo;
    auto promise = std::make_shared<std::promise<DbQueryResult>>();
    std::future<DbQueryResult> answer = promise->get_future();
    m_pool->start([dbNo, q = DQuery { 0, std::move(sqls) }, read, promise, h = qgui::HandOff()] {
        h.take();
        if (read) {
            promise->set_value(doSelect(dbNo, q));
            return;
        }
        const QList<DbQueryResult> results = doQuery(dbNo, QList<DQuery> { q });
        promise->set_value(results.isEmpty() ? DbQueryResult() : results.first());
    });
    try {
        return answer.get();
    } catch (const std::future_error&) {
        return DbQueryResult(); // the pool dropped the job (db_close)
    }
}

void DDatabase::close()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_closed = true;
    m_readQueue.clear();
    m_writeQueue.clear();
    m_readLength = 0;
    m_writeLength = 0;
}

void DDatabase::deliverFinished()
{
    if (m_readInFlight) {
        if (std::shared_ptr<DbQueryResult> r = takeRead()) {
            m_readInFlight = false;
            m_readRunning = false;
            deliver(*r);
        }
    }
    if (m_writeInFlight) {
        bool done = false;
        QList<DbQueryResult> results = takeWrites(&done);
        if (done) {
            m_writeInFlight = false;
            m_writeRunning = false;
            for (DbQueryResult& r : results)
                deliver(r);
        }
    }
}

namespace {
thread_local int t_delivering = 0; // depth of callbacks running on this thread
}

bool DDatabase::delivering()
{
    return t_delivering > 0;
}

void DDatabase::deliver(DbQueryResult& result)
{
    if (!m_callBack)
        return;
    ++t_delivering;
    m_callBack(&result);
    --t_delivering;
}

void DDatabase::watchSelect()
{
    DQuery q;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        if (m_closed || m_readQueue.empty()) {
            m_readRunning = false;
            return;
        }
        q = std::move(m_readQueue.front());
        m_readQueue.pop_front();
        --m_readLength;
    }
    const unsigned dbNo = m_dbNo;
    m_readInFlight = true;
    m_pool->start([this, dbNo, q = std::move(q), outcome = m_outcome, h = qgui::HandOff()] {
        h.take();
        auto r = std::make_shared<DbQueryResult>(doSelect(dbNo, q));
        {
            std::lock_guard<std::mutex> lock(outcome->mutex);
            outcome->read = std::move(r);
        }
        QMetaObject::invokeMethod(this, &DDatabase::onSelectFinished, Qt::QueuedConnection);
    });
}

void DDatabase::watchQuery()
{
    QList<DQuery> batch;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        if (m_closed || m_writeQueue.empty()) {
            m_writeRunning = false;
            return;
        }
        batch.reserve(int(m_writeQueue.size()));
        for (DQuery& q : m_writeQueue)
            batch.append(std::move(q));
        m_writeQueue.clear();
        m_writeLength = 0;
    }
    const unsigned dbNo = m_dbNo;
    m_writeInFlight = true;
    m_pool->start([this, dbNo, batch = std::move(batch), outcome = m_outcome, h = qgui::HandOff()] {
        h.take();
        QList<DbQueryResult> results = doQuery(dbNo, batch);
        {
            std::lock_guard<std::mutex> lock(outcome->mutex);
            outcome->writes = std::move(results);
            outcome->writesDone = true;
        }
        QMetaObject::invokeMethod(this, &DDatabase::onQueryFinished, Qt::QueuedConnection);
    });
}

void DDatabase::onSelectFinished()
{
    if (!m_readInFlight)
        return; // already answered by deliverFinished()
    m_readInFlight = false;
    if (std::shared_ptr<DbQueryResult> r = takeRead())
        deliver(*r);
    watchSelect(); // the next reading request, if any
}

std::shared_ptr<DbQueryResult> DDatabase::takeRead()
{
    std::lock_guard<std::mutex> lock(m_outcome->mutex);
    return std::move(m_outcome->read);
}

QList<DbQueryResult> DDatabase::takeWrites(bool* done)
{
    std::lock_guard<std::mutex> lock(m_outcome->mutex);
    if (done)
        *done = m_outcome->writesDone;
    m_outcome->writesDone = false;
    return std::move(m_outcome->writes);
}

void DDatabase::onQueryFinished()
{
    if (!m_writeInFlight)
        return;
    m_writeInFlight = false;
    QList<DbQueryResult> results = takeWrites(nullptr);
    for (DbQueryResult& r : results)
        deliver(r);
    watchQuery(); // requests that came in meanwhile form the next batch
}

DbQueryResult DDatabase::doSelect(unsigned dbNo, const DQuery& query)
{
    DbQueryResult r;
    r.queryId = query.queryId;
    static const std::string kEmpty;
    const std::string& sql = query.sqls.empty() ? kEmpty : query.sqls.front();

    QSqlDatabase db = DbConn_Pool::instance()->pull(dbNo);
    if (!usable(db)) {
        logSelectError(db.lastError(), sql);
        setError(r, db.lastError());
        return r;
    }
    log()->debug("\n\tSql执行语句 {}", sql);
    const QString text = fromUtf8(sql);
    for (int attempt = 0; attempt < 2; ++attempt) {
        QSqlQuery q(db);
        q.setForwardOnly(true);
        if (!q.exec(text)) {
            const QSqlError e = q.lastError();
            q.finish();
            // A read is safe to repeat: once, on a fresh connection, when the old one died.
            if (attempt == 0 && !alive(db)) {
                db = DbConn_Pool::instance()->pull(dbNo);
                if (usable(db))
                    continue;
            }
            logSelectError(e, sql);
            setError(r, e);
            break;
        }
        const int columns = q.record().count();
        if (q.size() > 0)
            r.rows.reserve(size_t(q.size()));
        while (q.next()) {
            std::vector<std::string> row;
            row.reserve(size_t(columns));
            for (int c = 0; c < columns; ++c) {
                const QVariant v = q.value(c);
                row.push_back(v.isNull() ? std::string() : utf8(v.toString()));
            }
            r.rows.push_back(std::move(row));
        }
        if (q.lastError().isValid()) { // the fetch broke off
            logSelectError(q.lastError(), sql);
            setError(r, q.lastError());
            r.rows.clear();
        }
        q.finish();
        break;
    }
    return r;
}

QList<DbQueryResult> DDatabase::doQuery(unsigned dbNo, const QList<DQuery>& batch)
{
    QList<DbQueryResult> results;
    results.reserve(batch.size());
    for (const DQuery& request : batch) {
        DbQueryResult r;
        r.queryId = request.queryId;
        QSqlDatabase db = DbConn_Pool::instance()->pull(dbNo);
        bool transaction = usable(db) && db.transaction();
        // Nothing has run yet when BEGIN fails: a dead connection may be replaced safely.
        if (!transaction && usable(db) && !alive(db))
            db = DbConn_Pool::instance()->pull(dbNo);
        if (!usable(db)) {
            const std::string first = request.sqls.empty() ? std::string() : request.sqls.front();
            logQueryError(db.lastError(), first);
            setError(r, db.lastError());
            results.append(std::move(r));
            continue;
        }
        if (!transaction)
            transaction = db.transaction();

        // PostgreSQL aborts the whole transaction on a failed statement; a savepoint per
        // statement keeps the others, as on the other engines.
        const bool savepoints
            = transaction && request.sqls.size() > 1 && db.driverName() == QLatin1String("QPSQL");
        QSqlQuery q(db);
        for (const std::string& sql : request.sqls) {
            log()->debug("\n\tSql执行语句 {}", sql);
            if (savepoints)
                q.exec(QStringLiteral("SAVEPOINT qgui_sp"));
            if (!q.exec(fromUtf8(sql))) {
                const QSqlError e = q.lastError();
                logQueryError(e, sql);
                if (r.errorType == 0)
                    setError(r, e);
                if (savepoints)
                    q.exec(QStringLiteral("ROLLBACK TO SAVEPOINT qgui_sp"));
            }
            q.finish();
        }
        // Committed whether or not a statement failed: the others stay. A refused commit
        // keeps nothing of the request, so its error is the one reported, over any
        // statement's.
        if (transaction && !db.commit()) {
            const QSqlError e = db.lastError();
            logQueryError(e, "COMMIT");
            setError(r, e);
            // SQLite leaves the transaction open when COMMIT is refused (a deferred foreign
            // key): end it, or the connection's next BEGIN fails and its statements would
            // join this transaction.
            if (db.isOpen())
                db.rollback();
        }
        if (r.errorType != 0)
            alive(db);
        results.append(std::move(r));
    }
    return results;
}

} // namespace xDatabase
