#include "pgserver.h"

#include <QDir>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QUuid>

#include <pwd.h>
#include <unistd.h>

PgServer::PgServer()
    : ServerProcess(QStringLiteral("postgres"))
{
    if (binDir().isEmpty())
        setUnavailable(QStringLiteral("PostgreSQL is not installed (no /usr/lib/postgresql/*/bin/postgres)"));
    else if (::geteuid() == 0 && !::getpwnam("postgres"))
        setUnavailable(QStringLiteral("running as root and there is no \"postgres\" user to run the server"));
}

QString PgServer::binDir()
{
    QDir base(QStringLiteral("/usr/lib/postgresql"));
    QStringList versions = base.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name);
    for (int i = versions.size() - 1; i >= 0; --i) {
        const QString bin = base.filePath(versions.at(i) + QStringLiteral("/bin"));
        if (QFileInfo::exists(bin + QStringLiteral("/postgres")))
            return bin;
    }
    return QString();
}

QString PgServer::runAsUser() const
{
    return QStringLiteral("postgres");
}

bool PgServer::setUp()
{
    if (::geteuid() == 0) {
        struct passwd* pw = ::getpwnam("postgres");
        if (!pw || ::chown(dir().toLocal8Bit().constData(), pw->pw_uid, pw->pw_gid) != 0) {
            setError(QStringLiteral("cannot hand the folder to the postgres user"));
            return false;
        }
    }
    QStringList args { QStringLiteral("-D"), dir() + QStringLiteral("/data"), QStringLiteral("-U"),
        QStringLiteral("postgres"), QStringLiteral("--auth=trust"), QStringLiteral("-E"),
        QStringLiteral("UTF8"), QStringLiteral("--locale=C"), QStringLiteral("--no-sync") };
    QString prog = binDir() + QStringLiteral("/initdb");
    if (::geteuid() == 0) {
        args = QStringList { QStringLiteral("--reuid=postgres"), QStringLiteral("--regid=postgres"),
            QStringLiteral("--init-groups"), QStringLiteral("--"), prog }
            + args;
        prog = QStringLiteral("setpriv");
    }
    QByteArray log;
    if (!runTool(prog, args, &log)) {
        setError(QStringLiteral("initdb failed: ") + QString::fromLocal8Bit(log.right(2000)));
        return false;
    }
    return true;
}

QString PgServer::program() const
{
    return binDir() + QStringLiteral("/postgres");
}

QStringList PgServer::arguments() const
{
    return { QStringLiteral("-D"), dir() + QStringLiteral("/data"), QStringLiteral("-p"),
        QString::number(port()), QStringLiteral("-k"), dir(), QStringLiteral("-c"),
        QStringLiteral("listen_addresses=127.0.0.1"), QStringLiteral("-c"), QStringLiteral("fsync=off"),
        QStringLiteral("-c"), QStringLiteral("max_connections=40") };
}

bool PgServer::ready()
{
    // The port opens while the server still recovers ("the database system is starting up").
    const QString name = QStringLiteral("pg-ready-") + QUuid::createUuid().toString();
    bool ok = false;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QPSQL"), name);
        db.setHostName(QStringLiteral("127.0.0.1"));
        db.setPort(port());
        db.setUserName(QStringLiteral("postgres"));
        db.setDatabaseName(QStringLiteral("postgres"));
        db.setConnectOptions(QStringLiteral("connect_timeout=2"));
        ok = db.open() && QSqlQuery(db).exec(QStringLiteral("select 1"));
        db.close();
    }
    QSqlDatabase::removeDatabase(name);
    return ok;
}
