#include "mariadbserver.h"

#include <QDir>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QStandardPaths>
#include <QUuid>

#include <unistd.h>

namespace {
QString findProgram(const QString& name)
{
    QString p = QStandardPaths::findExecutable(name);
    if (p.isEmpty())
        p = QStandardPaths::findExecutable(name, { QStringLiteral("/usr/sbin"), QStringLiteral("/usr/bin") });
    return p;
}
} // namespace

MariaDbServer::MariaDbServer()
    : ServerProcess(QStringLiteral("mariadbd"))
{
    if (findProgram(QStringLiteral("mariadbd")).isEmpty()
        || findProgram(QStringLiteral("mariadb-install-db")).isEmpty())
        setUnavailable(QStringLiteral("MariaDB is not installed (mariadbd, mariadb-install-db)"));
}

bool MariaDbServer::setUp()
{
    QStringList args { QStringLiteral("--no-defaults"),
        QStringLiteral("--datadir=") + dir() + QStringLiteral("/data"), QStringLiteral("--skip-test-db"),
        QStringLiteral("--auth-root-authentication-method=normal") };
    if (::geteuid() == 0)
        args << QStringLiteral("--user=root");
    QByteArray log;
    if (!runTool(findProgram(QStringLiteral("mariadb-install-db")), args, &log)) {
        setError(QStringLiteral("mariadb-install-db failed: ") + QString::fromLocal8Bit(log.right(2000)));
        return false;
    }
    return true;
}

QString MariaDbServer::program() const
{
    return findProgram(QStringLiteral("mariadbd"));
}

QStringList MariaDbServer::arguments() const
{
    QStringList args { QStringLiteral("--no-defaults"),
        QStringLiteral("--datadir=") + dir() + QStringLiteral("/data"),
        QStringLiteral("--socket=") + dir() + QStringLiteral("/mysqld.sock"),
        QStringLiteral("--pid-file=") + dir() + QStringLiteral("/mysqld.pid"),
        QStringLiteral("--port=") + QString::number(port()), QStringLiteral("--bind-address=127.0.0.1"),
        QStringLiteral("--skip-grant-tables"), QStringLiteral("--skip-log-bin"),
        QStringLiteral("--innodb-buffer-pool-size=32M"),
        QStringLiteral("--innodb-flush-log-at-trx-commit=2") };
    if (::geteuid() == 0)
        args << QStringLiteral("--user=root");
    return args;
}

bool MariaDbServer::ready()
{
    // The port opens before the server answers queries; create the test database.
    const QString name = QStringLiteral("mariadb-ready-") + QUuid::createUuid().toString();
    bool ok = false;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QMYSQL"), name);
        db.setHostName(QStringLiteral("127.0.0.1"));
        db.setPort(port());
        db.setUserName(QStringLiteral("root"));
        db.setConnectOptions(QStringLiteral("MYSQL_OPT_CONNECT_TIMEOUT=2"));
        if (db.open())
            ok = QSqlQuery(db).exec(QStringLiteral("CREATE DATABASE IF NOT EXISTS qgui"));
        db.close();
    }
    QSqlDatabase::removeDatabase(name);
    return ok;
}
