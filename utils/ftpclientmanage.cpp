#include "utils/ftpclientmanage.h"

#include "platform/logiclayercaller.h"

#include <QFile>
#include <QFileInfo>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTimer>
#include <QUrl>

#include <qgui/events.h>

FtpClientManage* FtpClientManage::getInstance()
{
    static FtpClientManage* m = new FtpClientManage; // lives as long as the process
    return m;
}

FtpClientManage::FtpClientManage(QObject* parent)
    : QObject(parent)
    , m_nam(new QNetworkAccessManager(this))
{
}

QUrl FtpClientManage::url(const Client& c, const QString& remote) const
{
    QUrl u;
    u.setScheme(QStringLiteral("ftp"));
    u.setHost(c.host);
    u.setPort(c.port);
    if (!c.user.isEmpty()) {
        u.setUserName(c.user);
        u.setPassword(c.password);
    }
    u.setPath(remote.startsWith(QLatin1Char('/')) ? remote : QLatin1Char('/') + remote);
    return u;
}

void FtpClientManage::setState(unsigned char client, int state)
{
    auto it = m_clients.find(client);
    if (it == m_clients.end() || it->state == state)
        return;
    it->state = state;
    int s = state;
    LogicLayerCaller::call(client, EVT_FTP_STATE, &s);
}

void FtpClientManage::finish(
    unsigned char client, int command, int error, const QString& local, const QString& remote)
{
    const QByteArray l = local.toUtf8(), r = remote.toUtf8();
    View_EvtFtpResult res { command, error, l.constData(), r.constData() };
    LogicLayerCaller::call(client, EVT_FTP_RESULT, &res);
}

void FtpClientManage::watch(QNetworkReply* reply, int timeoutMs)
{
    QTimer::singleShot(timeoutMs, reply, [reply]() {
        if (reply->isRunning())
            reply->abort();
    });
}

int FtpClientManage::connectClient(unsigned char client, const Client& prm)
{
    if (prm.host.trimmed().isEmpty())
        return -1;
    m_clients.insert(client, prm);
    setState(client, FTP_CONNECTING);
    QNetworkReply* reply = m_nam->get(QNetworkRequest(url(prm, QStringLiteral("/"))));
    watch(reply, prm.timeoutMs);
    connect(reply, &QNetworkReply::finished, this, [this, reply, client]() {
        reply->deleteLater();
        if (!m_clients.contains(client))
            return;
        const int err = reply->error() == QNetworkReply::NoError ? 0 : int(reply->error());
        setState(client, err ? FTP_FAILED : FTP_CONNECTED);
        finish(client, FTP_CMD_CONNECT, err, QString(), QString());
    });
    return 0;
}

int FtpClientManage::state(unsigned char client) const
{
    return m_clients.contains(client) ? m_clients.value(client).state : -1;
}

int FtpClientManage::disconnectClient(unsigned char client)
{
    if (!m_clients.contains(client))
        return -1;
    setState(client, FTP_DISCONNECTED);
    finish(client, FTP_CMD_DISCONNECT, 0, QString(), QString());
    return 0;
}

int FtpClientManage::put(unsigned char client, const QString& local, const QString& remote, bool overwrite)
{
    Q_UNUSED(overwrite) // the server decides; FTP STOR replaces an existing file
    auto it = m_clients.constFind(client);
    if (it == m_clients.constEnd() || remote.isEmpty())
        return -1;
    auto* file = new QFile(local, this);
    if (!file->open(QIODevice::ReadOnly)) {
        delete file;
        return -1;
    }
    QNetworkReply* reply = m_nam->put(QNetworkRequest(url(*it, remote)), file);
    file->setParent(reply);
    watch(reply, it->timeoutMs);
    connect(reply, &QNetworkReply::finished, this, [this, reply, client, local, remote]() {
        reply->deleteLater();
        finish(client, FTP_CMD_PUT, reply->error() == QNetworkReply::NoError ? 0 : int(reply->error()), local,
            remote);
    });
    return 0;
}

int FtpClientManage::pull(unsigned char client, const QString& local, const QString& remote, bool overwrite)
{
    auto it = m_clients.constFind(client);
    if (it == m_clients.constEnd() || local.isEmpty() || remote.isEmpty())
        return -1;
    if (!overwrite && QFileInfo::exists(local))
        return -1;
    QNetworkReply* reply = m_nam->get(QNetworkRequest(url(*it, remote)));
    watch(reply, it->timeoutMs);
    connect(reply, &QNetworkReply::finished, this, [this, reply, client, local, remote]() {
        reply->deleteLater();
        int err = reply->error() == QNetworkReply::NoError ? 0 : int(reply->error());
        if (!err) {
            QFile f(local);
            if (!f.open(QIODevice::WriteOnly) || f.write(reply->readAll()) < 0)
                err = -1;
        }
        finish(client, FTP_CMD_PULL, err, local, remote);
    });
    return 0;
}

int FtpClientManage::removeClient(unsigned char client)
{
    return m_clients.remove(client) ? 0 : -1;
}
