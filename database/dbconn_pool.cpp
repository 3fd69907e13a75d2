#include "database/dbconn_pool.h"

#include "platform/nlogger.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QThread>

namespace xDatabase {

DbConn_Pool* DbConn_Pool::instance()
{
    static DbConn_Pool pool;
    return &pool;
}

void DbConn_Pool::loginInfo(unsigned dbNo, const DbInfo& info)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_infos.insert(dbNo, info);
    ++m_generation[dbNo];
}

bool DbConn_Pool::contains(unsigned dbNo) const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_infos.contains(dbNo);
}

QString DbConn_Pool::connectionName(unsigned dbNo)
{
    return QStringLiteral("CNM0X%1_%2").arg(quintptr(QThread::currentThreadId()), 0, 16).arg(dbNo);
}

QSqlDatabase DbConn_Pool::pull(unsigned dbNo)
{
    const QString name = connectionName(dbNo);
    DbInfo info;
    bool known = false;
    bool current = false;
    quint64 generation = 0;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        auto it = m_infos.constFind(dbNo);
        if (it != m_infos.constEnd()) {
            known = true;
            info = *it;
            generation = m_generation.value(dbNo);
        }
        auto c = m_connections.constFind(name);
        current = c != m_connections.constEnd() && *c == generation;
    }
    if (!known)
        return QSqlDatabase();

    if (QSqlDatabase::contains(name)) {
        if (current)
            return QSqlDatabase::database(name, true); // reopens a closed connection
        QSqlDatabase::removeDatabase(name); // opened with replaced login data
    }
    QSqlDatabase db = open(dbNo, name, info);
    std::lock_guard<std::mutex> lock(m_mutex);
    m_connections.insert(name, generation);
    return db;
}

QSqlDatabase DbConn_Pool::open(unsigned dbNo, const QString& name, const DbInfo& info)
{
    Q_UNUSED(dbNo)
    QSqlDatabase db = QSqlDatabase::addDatabase(info.driverName, name);
    db.setHostName(info.hostName);
    db.setDatabaseName(info.dbName);
    db.setUserName(info.userName);
    db.setPassword(info.password);
    db.setPort(info.port);

    if (info.driverName == QLatin1String("QSQLITE")) {
        db.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=30000"));
    } else if (info.driverName == QLatin1String("QMYSQL")) {
        db.setConnectOptions(QStringLiteral("MYSQL_OPT_RECONNECT=1;MYSQL_OPT_CONNECT_TIMEOUT=3;"
                                            "MYSQL_OPT_READ_TIMEOUT=3;MYSQL_OPT_WRITE_TIMEOUT=3"));
    } else if (info.driverName == QLatin1String("QPSQL")) {
        db.setConnectOptions(QStringLiteral("connect_timeout=3"));
    }
    // "QTDS" takes no options; other names give an invalid connection ("Driver not loaded").

    if (info.driverName == QLatin1String("QSQLITE") && db.open()) {
        // WAL lets a reader and the writer of the same file work side by side. A file that
        // refuses it (read-only medium, not a database) is used all the same.
        QSqlQuery wal(db);
        if (!wal.exec(QStringLiteral("pragma journal_mode=WAL"))) {
            NLog::NLogger::instance()->logger()->warn("pragma journal_mode=WAL failed on {}: {}",
                info.dbName.toStdString(), wal.lastError().text().toStdString());
        }
    }
    if (db.isValid() && !db.isOpen())
        db.open();
    return db;
}

void DbConn_Pool::removeAll()
{
    QList<QString> names;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        names = m_connections.keys();
        m_connections.clear();
    }
    // The owning threads have ended; removing the last handle deletes the driver, which
    // closes the connection (a handle cannot be fetched from another thread to close it).
    for (const QString& name : qAsConst(names))
        QSqlDatabase::removeDatabase(name);
}

} // namespace xDatabase
