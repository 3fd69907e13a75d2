// Exports: the FTP client family.
#include "app/layerlog.h"
#include "platform/guiqtadaptcore.h"
#include "platform/threadhandoff.h"
#include "config/projectmanage.h"
#include "utils/ftpclientmanage.h"
#include "utils/ftpservermanage.h"

#include <QCoreApplication>
#include <QThread>

#include <future>

#include <qgui/ftp.h>

namespace {
/* The FTP service lives on the GUI thread (its events are sent there). A call from another thread is handed
 * over and waits for its result: the service may be called from any thread. A call the GUI thread never runs
 * (the application is going away) answers -1. */
template <typename Fn>
int onGuiThread(Fn fn)
{
    QCoreApplication* app = QCoreApplication::instance();
    if (!app || QThread::currentThread() == app->thread())
        return fn();
    std::promise<int> promise;
    std::future<int> answer = promise.get_future();
    QMetaObject::invokeMethod(
        app,
        [&fn, promise = std::move(promise), h = qgui::HandOff()]() mutable {
            h.take();
            promise.set_value(fn());
        },
        Qt::QueuedConnection);
    try {
        return answer.get();
    } catch (const std::future_error&) {
        return -1; // dropped with the event queue
    }
}

/* Paths must be valid UTF-8: a replaced character would name another file. Null and invalid give "". */
QString pathOf(const char* text)
{
    if (!text)
        return QString();
    const QByteArray raw(text);
    return QString::fromUtf8(raw).toUtf8() == raw ? GuiQtAdapt::Core::fromString(text) : QString();
}

int configServer(const FtpServerPrm& prm)
{
    FtpServerManage* server = FtpServerManage::getInstance();
    if (!prm.enable)
        return server->stop();
    FtpServerManage::Settings s;
    s.anonymous = prm.anonymous != 0;
    s.readOnly = prm.readOnly != 0;
    s.port = prm.port ? prm.port : 21;
    s.maxClients = prm.maxClients;
    s.rootPath = pathOf(prm.rootPath);
    if (!prm.rootPath || !*prm.rootPath)
        s.rootPath = ProjectManage::getInstance()->getPrjPath() + QStringLiteral("disk");
    s.user = pathOf(prm.user);
    return server->start(s);
}

FtpClient::Settings clientSettings(const FtpClientPrm& prm)
{
    FtpClient::Settings c;
    c.host = GuiQtAdapt::Core::fromUtf8(prm.host);
    c.port = prm.port ? prm.port : 21;
    // credentials go to the server byte for byte
    c.user = prm.user ? QByteArray(prm.user) : QByteArray();
    c.password = prm.password ? QByteArray(prm.password) : QByteArray();
    c.passive = prm.passive != 0;
    c.timeoutMs = prm.timeoutMs > 0 ? prm.timeoutMs : 15000;
    return c;
}

FtpClientManage* clients()
{
    return FtpClientManage::getInstance();
}
} // namespace

int Ftp_ConfigServer(const FtpServerPrm& prm)
{
    QGUI_LAYER_LOG("enable {} port {}", int(prm.enable), int(prm.port));
    return onGuiThread([&]() { return configServer(prm); });
}

int Ftp_Connect(const FtpClientPrm& prm)
{
    QGUI_LAYER_LOG("client {}", int(prm.client));
    const FtpClient::Settings c = clientSettings(prm);
    return onGuiThread([&]() { return clients()->connectClient(prm.client, c); });
}

int Ftp_CheckState(unsigned char client)
{
    QGUI_LAYER_TRACE("client {}", int(client));
    return onGuiThread([&]() { return clients()->state(client); });
}

int Ftp_DisConnect(unsigned char client, bool wait)
{
    QGUI_LAYER_LOG("client {} wait {}", int(client), wait);
    return onGuiThread([&]() { return clients()->disconnectClient(client, wait); });
}

int Ftp_Put(unsigned char client, const char* localPath, const char* remotePath, bool overwrite)
{
    QGUI_LAYER_LOG("client {}", int(client));
    const QString local = pathOf(localPath), remote = pathOf(remotePath);
    return onGuiThread([&]() { return clients()->put(client, local, remote, overwrite); });
}

int Ftp_Pull(unsigned char client, const char* localPath, const char* remotePath, bool overwrite)
{
    QGUI_LAYER_LOG("client {}", int(client));
    const QString local = pathOf(localPath), remote = pathOf(remotePath);
    return onGuiThread([&]() { return clients()->pull(client, local, remote, overwrite); });
}

int Ftp_TransferProgress(unsigned char client, long long* done, long long* total)
{
    QGUI_LAYER_TRACE("client {}", int(client));
    qint64 d = 0, t = 0;
    const int r = onGuiThread([&]() { return clients()->progress(client, &d, &t); });
    if (done)
        *done = r < 0 ? 0 : d;
    if (total)
        *total = r < 0 ? 0 : t;
    return r;
}

int removeClient(unsigned char client)
{
    QGUI_LAYER_LOG("client {}", int(client));
    return onGuiThread([&]() { return clients()->removeClient(client); });
}
