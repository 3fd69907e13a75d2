#ifndef DBCONN_POOL_H
#define DBCONN_POOL_H

#include <QHash>
#include <mutex>
#include <QSqlDatabase>
#include <QString>

namespace xDatabase {

/** Login data of one database, kept by the pool under its database number. */
struct DbInfo {
    QString driverName;
    QString hostName;
    QString userName;
    QString password;
    QString dbName; ///< for SQLite the file path
    int port = -1; ///< -1: the driver's default port
};

/**
 * Login data per database number, and the per-thread Qt connections built from it.
 *
 * A Qt connection may only be used by the thread that opened it, so every worker
 * thread opens its own, named "CNM0X<thread handle in hex>_<database number>".
 * Replacing the login data of a number makes the connections opened with the old
 * data reopen on their next use. Thread-safe.
 */
class DbConn_Pool {
public:
    static DbConn_Pool* instance();

    /** Stores (or replaces) the login data of \a dbNo. */
    void loginInfo(unsigned dbNo, const DbInfo& info);
    bool contains(unsigned dbNo) const;

    /** The connection of the calling thread for \a dbNo, opened if needed. It may be invalid
     *  or closed (unknown number, unknown driver, server down): check isOpen() and lastError(). */
    QSqlDatabase pull(unsigned dbNo);

    /** Closes and removes every connection that pull() created. Only when no thread uses
     *  them any more (the worker threads have ended). */
    void removeAll();

    /** Connection name of the calling thread for \a dbNo. */
    static QString connectionName(unsigned dbNo);

private:
    DbConn_Pool() = default;
    QSqlDatabase open(unsigned dbNo, const QString& name, const DbInfo& info);

    mutable std::mutex m_mutex;
    QHash<unsigned, DbInfo> m_infos;
    QHash<unsigned, quint64> m_generation; ///< bumped by every loginInfo of a number
    QHash<QString, quint64> m_connections; ///< connection name -> generation it was opened with
};

} // namespace xDatabase

#endif // DBCONN_POOL_H
