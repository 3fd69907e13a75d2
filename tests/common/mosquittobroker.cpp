#include "mosquittobroker.h"

#include <QFile>
#include <QStandardPaths>

namespace {
QString findProgram(const QString& name)
{
    QString p = QStandardPaths::findExecutable(name);
    if (p.isEmpty())
        p = QStandardPaths::findExecutable(name, { QStringLiteral("/usr/sbin"), QStringLiteral("/usr/bin") });
    return p;
}
} // namespace

MosquittoBroker::MosquittoBroker(const QString& user, const QString& password)
    : ServerProcess(QStringLiteral("mosquitto"))
    , m_user(user)
    , m_password(password)
{
    if (findProgram(QStringLiteral("mosquitto")).isEmpty())
        setUnavailable(QStringLiteral("mosquitto is not installed"));
    else if (!m_user.isEmpty() && findProgram(QStringLiteral("mosquitto_passwd")).isEmpty())
        setUnavailable(QStringLiteral("mosquitto_passwd is not installed"));
}

bool MosquittoBroker::setUp()
{
    QByteArray conf = "listener " + QByteArray::number(port())
        + " 127.0.0.1\n"
          "log_dest file "
        + dir().toLocal8Bit()
        + "/mosquitto.log\n"
          "log_type all\nconnection_messages true\n"
          "persistence false\nuser root\n";
    if (m_user.isEmpty()) {
        conf += "allow_anonymous true\n";
    } else {
        const QString file = dir() + QStringLiteral("/passwd");
        QByteArray log;
        if (!runTool(findProgram(QStringLiteral("mosquitto_passwd")),
                { QStringLiteral("-c"), QStringLiteral("-b"), file, m_user, m_password }, &log)) {
            setError(QStringLiteral("mosquitto_passwd failed: ") + QString::fromLocal8Bit(log));
            return false;
        }
        conf += "allow_anonymous false\npassword_file " + file.toLocal8Bit() + "\n";
    }
    QFile f(dir() + QStringLiteral("/mosquitto.conf"));
    if (!f.open(QIODevice::WriteOnly) || f.write(conf) != conf.size())
        return false;
    return true;
}

QString MosquittoBroker::program() const
{
    return findProgram(QStringLiteral("mosquitto"));
}

QStringList MosquittoBroker::arguments() const
{
    return { QStringLiteral("-c"), dir() + QStringLiteral("/mosquitto.conf") };
}

QByteArray MosquittoBroker::log() const
{
    QFile f(dir() + QStringLiteral("/mosquitto.log"));
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}
