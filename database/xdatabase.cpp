#include <qgui/xdatabase.h>

#include "database/dbconn_pool.h"
#include "database/ddatabase.h"
#include "platform/nlogger.h"

#include <QHash>
#include <mutex>
#include <QThread>
#include <QThreadPool>

#include <memory>
#include <stdexcept>

namespace xDatabase {

namespace {

/* Module state: one DDatabase per number and the worker pool they share. A DDatabase is
 * handed out as a shared pointer so that a call on another thread never meets a deleted
 * one during db_close. */
struct Module {
    std::mutex mutex;
    QHash<unsigned, std::shared_ptr<DDatabase>> databases;
    QThreadPool* pool = nullptr;
};

Module& module()
{
    static Module m;
    return m;
}

QThreadPool* sharedPool(Module& m)
{
    if (!m.pool) {
        m.pool = new QThreadPool;
        if (m.pool->maxThreadCount() < 2)
            m.pool->setMaxThreadCount(2);
        // Threads never expire: connections are named after the thread handle, and a later
        // thread could get the handle of an expired one while its connection still exists.
        m.pool->setExpiryTimeout(-1);
    }
    return m.pool;
}

void deleteDatabase(DDatabase* d)
{
    if (d->thread() == QThread::currentThread() && !DDatabase::delivering())
        delete d;
    else if (d->thread() == QThread::currentThread())
        d->deleteLater(); // db_close from inside a callback: the watcher is still emitting
    else
        QMetaObject::invokeMethod(d, &QObject::deleteLater, Qt::QueuedConnection);
}

std::shared_ptr<DDatabase> find(unsigned dbNo)
{
    Module& m = module();
    std::lock_guard<std::mutex> lock(m.mutex);
    return m.databases.value(dbNo);
}

std::string checkedSql(const char* sql)
{
    if (!sql)
        throw std::logic_error("basic_string: construction from null is not valid");
    return std::string(sql);
}

QString fromUtf8(const std::string& s)
{
    return QString::fromUtf8(s.data(), int(s.size()));
}

} // namespace

void db_init(std::list<DbConnInfo>& infos, DbResultCallBack callBack)
{
    Module& m = module();
    for (const DbConnInfo& info : infos) {
        DbInfo d;
        d.driverName = fromUtf8(info.driver);
        d.hostName = fromUtf8(info.hostName);
        d.userName = fromUtf8(info.userName);
        d.password = fromUtf8(info.password);
        d.dbName = fromUtf8(info.dbName);
        d.port = info.port;
        DbConn_Pool::instance()->loginInfo(info.dbNo, d);

        std::lock_guard<std::mutex> lock(m.mutex);
        auto it = m.databases.find(info.dbNo);
        if (it != m.databases.end()) {
            (*it)->setCallBack(callBack); // waiting requests are kept
        } else {
            m.databases.insert(info.dbNo,
                std::shared_ptr<DDatabase>(
                    new DDatabase(info.dbNo, sharedPool(m), callBack), &deleteDatabase));
        }
        NLog::NLogger::instance()->logger()->info(
            "db_init: database {} driver {} name {}", info.dbNo, info.driver, info.dbName);
    }
}

void db_query(unsigned dbNo, unsigned queryId, const char* sql, bool read)
{
    std::list<std::string> sqls { checkedSql(sql) };
    if (auto d = find(dbNo))
        d->query(queryId, std::move(sqls), read);
}

void db_query(unsigned dbNo, unsigned queryId, std::list<std::string>& sqls)
{
    if (auto d = find(dbNo))
        d->query(queryId, sqls, false);
}

DbQueryResult db_querySync(unsigned dbNo, const char* sql, bool read)
{
    std::list<std::string> sqls { checkedSql(sql) };
    if (auto d = find(dbNo))
        return d->querySync(std::move(sqls), read);
    return DbQueryResult();
}

DbQueryResult db_querySync(unsigned dbNo, std::list<std::string>& sqls)
{
    if (auto d = find(dbNo))
        return d->querySync(sqls, false);
    return DbQueryResult();
}

void db_close()
{
    Module& m = module();
    QHash<unsigned, std::shared_ptr<DDatabase>> databases;
    QThreadPool* pool = nullptr;
    {
        std::lock_guard<std::mutex> lock(m.mutex);
        databases.swap(m.databases);
        pool = m.pool;
        m.pool = nullptr;
    }
    for (const auto& d : qAsConst(databases))
        d->close();
    if (pool) {
        pool->clear(); // jobs not started are dropped
        pool->waitForDone(); // jobs running finish
    }
    for (const auto& d : qAsConst(databases)) {
        if (d->thread() == QThread::currentThread())
            d->deliverFinished();
    }
    databases.clear();
    delete pool; // ends the worker threads
    DbConn_Pool::instance()->removeAll();
    NLog::NLogger::instance()->logger()->info("db_close");
}

} // namespace xDatabase
