#include "pyftpserver.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

const char* const kScript = R"(import json, sys
from pyftpdlib.authorizers import DummyAuthorizer
from pyftpdlib.handlers import FTPHandler, ThrottledDTPHandler
from pyftpdlib.servers import FTPServer

with open(sys.argv[1], encoding="utf-8") as f:
    cfg = json.load(f)
auth = DummyAuthorizer()
auth.add_user(cfg["user"], cfg["password"], cfg["root"], perm="elradfmwMT")
auth.add_anonymous(cfg["root"], perm="elr")
handler = FTPHandler
handler.authorizer = auth
handler.auth_failed_timeout = 0.2  # the tests' clients wait one second for an answer
if cfg["rate"] > 0:
    dtp = ThrottledDTPHandler
    dtp.read_limit = cfg["rate"]
    dtp.write_limit = cfg["rate"]
    handler.dtp_handler = dtp
    handler.use_sendfile = False
FTPServer(("127.0.0.1", cfg["port"]), handler).serve_forever()
)";

QString python()
{
    // the system's interpreter: the library lives in its packages
    return QFileInfo::exists(QStringLiteral("/usr/bin/python3")) ? QStringLiteral("/usr/bin/python3")
                                                                 : QStringLiteral("python3");
}

} // namespace

PyFtpServer::PyFtpServer(const QByteArray& user, const QByteArray& password, int bytesPerSecond)
    : ServerProcess(QStringLiteral("pyftpdlib"))
    , m_user(user)
    , m_password(password)
    , m_rate(bytesPerSecond)
{
    QByteArray log;
    if (!runTool(python(), { QStringLiteral("-c"), QStringLiteral("import pyftpdlib") }, &log, 30000))
        setUnavailable(QStringLiteral("python3-pyftpdlib is not installed"));
}

bool PyFtpServer::setUp()
{
    if (!QDir().mkpath(root()))
        return false;
    QFile script(dir() + QStringLiteral("/server.py"));
    if (!script.open(QIODevice::WriteOnly) || script.write(kScript) < 0)
        return false;
    QJsonObject cfg;
    cfg.insert(QStringLiteral("user"), QString::fromUtf8(m_user));
    cfg.insert(QStringLiteral("password"), QString::fromUtf8(m_password));
    cfg.insert(QStringLiteral("root"), root());
    cfg.insert(QStringLiteral("port"), int(port()));
    cfg.insert(QStringLiteral("rate"), m_rate);
    QFile json(dir() + QStringLiteral("/server.json"));
    return json.open(QIODevice::WriteOnly) && json.write(QJsonDocument(cfg).toJson()) > 0;
}

QString PyFtpServer::program() const
{
    return python();
}

QStringList PyFtpServer::arguments() const
{
    return { dir() + QStringLiteral("/server.py"), dir() + QStringLiteral("/server.json") };
}
