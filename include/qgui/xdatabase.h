/*
 * qgui services: SQL database access.
 *
 * Each configured database has a number. Requests are queued per database and
 * run on worker threads, each worker with its own connection; results come back
 * through the callback given to db_init, on the thread that called db_init
 * (the GUI thread in a running panel), never on a worker.
 *
 * - Reading requests of one database run one at a time, in the order queued.
 * - Writing requests waiting at the same moment run as one batch; each request
 *   runs in its own transaction, which is committed even when one of its
 *   statements failed (the other statements stay committed).
 * - At most 8192 requests of each kind (read, write) may wait per database;
 *   a further one is answered at once, before db_query returns, with the error
 *   text "too many sqls".
 * - Synchronous calls bypass the queues and may overtake queued requests.
 *
 * All texts are UTF-8. Invalid UTF-8 is replaced (U+FFFD) on the way in.
 */
#ifndef QGUI_XDATABASE_H
#define QGUI_XDATABASE_H

#include <qgui/types.h>

#include <functional>
#include <list>
#include <string>
#include <vector>

namespace xDatabase {

/** One database to connect to; given to db_init. */
struct DbConnInfo {
    U32 dbNo = 0; /**< database number used by db_query / db_querySync */
    std::string driver; /**< "QSQLITE", "QMYSQL", "QPSQL" or "QTDS" */
    std::string hostName; /**< server host name or address; unused by SQLite */
    std::string userName; /**< login user; unused by SQLite */
    std::string password; /**< login password; unused by SQLite */
    std::string dbName; /**< database name; for SQLite the file path */
    int port = -1; /**< server port; -1 = the driver's default */
};

/** The result of one request. */
struct DbQueryResult {
    U32 queryId = 0; /**< the caller's query id, handed back unchanged */
    int errorType = 0; /**< 0 = no error, else a QSqlError::ErrorType value (1 connection, 2 statement, 3
                          transaction, 4 unknown) */
    std::string errorCode; /**< the driver's native error code, empty when none */
    std::string errorText; /**< the error text ("too many sqls" for a refused request) */
    std::vector<std::vector<std::string>>
        rows; /**< reading requests: rows, columns in query order; NULL is "" */
};

/** The result callback: called once per request, on the thread that called db_init. The
 *  pointer is valid during the call only. */
typedef std::function<void(DbQueryResult*)> DbResultCallBack;

/**
 * Registers the databases of \a infos (an entry replaces an older one of the same number)
 * and sets the result callback for them. Call once at start-up, on the thread that is to
 * receive the results (it needs a running Qt event loop). Unknown drivers are accepted;
 * each of their requests is answered with a connection error.
 */
QGUI_EXPORT void db_init(std::list<DbConnInfo>& infos, DbResultCallBack callBack);

/**
 * Queues one statement for database \a dbNo and returns at once. \a read true: a reading
 * statement whose rows are returned; false: a writing statement. An unregistered \a dbNo is
 * ignored (no callback). A null \a sql throws std::logic_error and queues nothing.
 */
QGUI_EXPORT void db_query(unsigned dbNo, unsigned queryId, const char* sql, bool read);

/** Queues \a sqls as one writing request, run in one transaction. An empty list is answered
 *  with an empty result. */
QGUI_EXPORT void db_query(unsigned dbNo, unsigned queryId, std::list<std::string>& sqls);

/**
 * Runs one statement on the worker pool and waits for it; the result's query id is 0.
 * An unregistered \a dbNo gives an empty result (both integers 0, empty texts, no rows).
 * A null \a sql throws std::logic_error.
 */
QGUI_EXPORT DbQueryResult db_querySync(unsigned dbNo, const char* sql, bool read);

/** Runs \a sqls as one writing request (one transaction) and waits for it. */
QGUI_EXPORT DbQueryResult db_querySync(unsigned dbNo, std::list<std::string>& sqls);

/**
 * Shuts the service down: requests not yet started are dropped without an answer,
 * requests already running finish and are answered from inside this call, then the
 * worker threads end and every connection is closed. Call it on the thread that called
 * db_init. db_init may be called again afterwards.
 */
QGUI_EXPORT void db_close();

} // namespace xDatabase

#endif /* QGUI_XDATABASE_H */
