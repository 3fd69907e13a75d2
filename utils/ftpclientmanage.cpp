#include "utils/ftpclientmanage.h"

#include "platform/logiclayercaller.h"
#include "platform/nlogger.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <qgui/events.h>

FtpClientManage* FtpClientManage::getInstance()
{
    static FtpClientManage* m = new FtpClientManage; // lives as long as the process
    return m;
}

FtpClientManage::FtpClientManage(QObject* parent)
    : QObject(parent)
{
    if (QCoreApplication::instance()) {
        // the workers end with the event loop, before static destruction takes curl away
        connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, this, &FtpClientManage::removeAll);
    }
}

FtpClientManage::~FtpClientManage()
{
    removeAll();
}

bool FtpClientManage::isCommandSafe(const QByteArray& text)
{
    return !text.contains('\r') && !text.contains('\n') && !text.contains('\0');
}

void FtpClientManage::setState(unsigned char client, int state)
{
    auto it = m_clients.find(client);
    if (it == m_clients.end() || it->second.state == state)
        return;
    it->second.state = state;
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

void FtpClientManage::answerCancelled(unsigned char client, const std::deque<FtpClient::Job>& taken)
{
    for (const FtpClient::Job& job : taken)
        finish(client, job.command, FTP_ERR_CANCELLED, job.local, job.remote);
}

void FtpClientManage::retire(std::unique_ptr<FtpClient> client, bool silent)
{
    // the worker may still say QUIT to a slow server: it ends on its own and is deleted then
    FtpClient* c = client.release();
    if (silent)
        c->disconnect();
    c->setParent(this);
    connect(c, &FtpClient::stopped, c, &QObject::deleteLater);
    c->stop();
}

int FtpClientManage::connectClient(unsigned char client, const FtpClient::Settings& prm)
{
    if (prm.host.trimmed().isEmpty() || !isCommandSafe(prm.user) || !isCommandSafe(prm.password)
        || !isCommandSafe(prm.host.toUtf8()))
        return -1;
    auto old = m_clients.find(client);
    if (old != m_clients.end())
        deliverFinished(old->second.client.get()); // may call back in
    Entry& entry = m_clients[client];
    std::deque<FtpClient::Job> taken;
    if (entry.client) {
        // the old connection's commands are answered (below) before anything of the new one
        taken = entry.client->cancelAll();
        retire(std::move(entry.client), false);
    }
    entry.client.reset(new FtpClient(prm));
    FtpClient* c = entry.client.get();
    // queued to the GUI thread with the client as context: nothing arrives from a client that is gone
    connect(c, &FtpClient::connectionChanged, c, [this, client, c](bool up) {
        auto e = m_clients.find(client);
        if (e != m_clients.end() && e->second.client.get() == c && e->second.state != FTP_DISCONNECTED)
            setState(client, up ? FTP_CONNECTED : FTP_FAILED);
    });
    connect(c, &FtpClient::finished, c, [this, client](int command, int error, const QString& l, const QString& r) {
        finish(client, command, error, l, r);
    });
    const bool stateChanges = entry.state != FTP_CONNECTING;
    entry.state = FTP_CONNECTING;
    c->submit({ FTP_CMD_CONNECT, QString(), QString(), false });
    // events last: the logic layer's call-back may call back in
    answerCancelled(client, taken);
    if (stateChanges) {
        int s = FTP_CONNECTING;
        LogicLayerCaller::call(client, EVT_FTP_STATE, &s);
    }
    return 0;
}

int FtpClientManage::state(unsigned char client) const
{
    auto it = m_clients.find(client);
    return it == m_clients.end() ? -1 : it->second.state;
}

int FtpClientManage::disconnectClient(unsigned char client, bool wait)
{
    auto it = m_clients.find(client);
    if (it == m_clients.end())
        return -1;
    deliverFinished(it->second.client.get()); // may call back in
    it = m_clients.find(client);
    if (it == m_clients.end())
        return 0;
    FtpClient* c = it->second.client.get();
    const std::deque<FtpClient::Job> taken = c->cancelAll();
    const bool stateChanges = it->second.state != FTP_DISCONNECTED;
    it->second.state = FTP_DISCONNECTED;
    deliverFinished(c); // what ended just before the cancel comes first
    answerCancelled(client, taken);
    it = m_clients.find(client);
    if (it == m_clients.end())
        return 0;
    c = it->second.client.get();
    c->submit({ FTP_CMD_DISCONNECT, QString(), QString(), false });
    if (wait && !c->waitIdle(c->settings().timeoutMs + 1000))
        NLog::NLogger::instance()->logger()->warn("ftp client {}: the connection did not close in time", int(client));
    if (stateChanges) {
        int s = FTP_DISCONNECTED;
        LogicLayerCaller::call(client, EVT_FTP_STATE, &s);
    }
    return 0;
}

void FtpClientManage::deliverFinished(FtpClient* c)
{
    // results the worker has posted and the event loop has not delivered yet: events keep the commands' order
    QCoreApplication::sendPostedEvents(c, QEvent::MetaCall);
}

int FtpClientManage::submit(
    unsigned char client, int command, const QString& local, const QString& remote, bool overwrite)
{
    auto it = m_clients.find(client);
    if (it == m_clients.end() || it->second.state == FTP_DISCONNECTED || local.isEmpty() || remote.isEmpty()
        || !isCommandSafe(remote.toUtf8()))
        return -1;
    it->second.client->submit({ command, local, remote, overwrite });
    return 0;
}

int FtpClientManage::put(unsigned char client, const QString& local, const QString& remote, bool overwrite)
{
    const QFileInfo fi(local);
    if (!local.isEmpty() && (!fi.isFile() || !fi.isReadable()))
        return -1;
    return submit(client, FTP_CMD_PUT, local, remote, overwrite);
}

int FtpClientManage::pull(unsigned char client, const QString& local, const QString& remote, bool overwrite)
{
    if (!overwrite && !local.isEmpty() && QFileInfo::exists(local))
        return -1;
    return submit(client, FTP_CMD_PULL, local, remote, overwrite);
}

int FtpClientManage::progress(unsigned char client, qint64* done, qint64* total) const
{
    auto it = m_clients.find(client);
    if (it == m_clients.end())
        return -1;
    return it->second.client->progress(done, total) ? 1 : 0;
}

int FtpClientManage::removeClient(unsigned char client)
{
    auto it = m_clients.find(client);
    if (it == m_clients.end())
        return -1;
    deliverFinished(it->second.client.get()); // commands already done are answered; may call back in
    it = m_clients.find(client);
    if (it == m_clients.end())
        return 0;
    std::unique_ptr<FtpClient> c = std::move(it->second.client);
    m_clients.erase(it);
    c->cancelAll(); // what still runs or waits is not answered any more
    deliverFinished(c.get());
    retire(std::move(c), true);
    return 0;
}

void FtpClientManage::removeAll()
{
    while (!m_clients.empty())
        removeClient(m_clients.begin()->first);
    // at quit the retired workers are waited for (each at most its time-out)
    const auto retired = findChildren<FtpClient*>(QString(), Qt::FindDirectChildrenOnly);
    for (FtpClient* c : retired)
        delete c;
}
