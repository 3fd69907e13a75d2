#include "mqtt/qmqtt_app.h"

#include "mqtt/xmqttclient.h"
#include "platform/logiclayercaller.h"
#include "platform/nlogger.h"
#include "platform/threadhandoff.h"

#include <qgui/events.h>
#include <qgui/mqtt.h>

#include <QCoreApplication>
#include <QNetworkConfigurationManager>
#include <QPointer>
#include <QThread>

namespace MQTT {

namespace {

constexpr unsigned kMaxHandle = 0xFFFFFFFFu;

std::mutex g_instanceMutex;
QMqtt_App* g_instance = nullptr;

/* Sends an event to the logic layer on the GUI thread. Called on any thread (Paho's
 * included); carries values only. */
void postEvent(unsigned handle, int code, int value)
{
    auto send = [handle, code, value, h = qgui::HandOff()] {
        h.take();
        // View_EvtMqttState and View_EvtMqttError share this layout
        View_EvtMqttState data { handle, value };
        LogicLayerCaller::call(handle, code, &data);
    };
    if (QCoreApplication* app = QCoreApplication::instance())
        QMetaObject::invokeMethod(app, send, Qt::QueuedConnection);
    else
        send(); // no event loop at all: nothing better than the calling thread
}

} // namespace

QMqtt_App* QMqtt_App::instance()
{
    std::lock_guard<std::mutex> lock(g_instanceMutex);
    if (!g_instance) {
        g_instance = new QMqtt_App;
        qAddPostRoutine(&QMqtt_App::destroyInstance);
    }
    return g_instance;
}

void QMqtt_App::destroyInstance()
{
    QMqtt_App* app = nullptr;
    {
        std::lock_guard<std::mutex> lock(g_instanceMutex);
        app = g_instance;
        g_instance = nullptr;
    }
    if (app) {
        qRemovePostRoutine(&QMqtt_App::destroyInstance);
        delete app;
    }
}

QMqtt_App::QMqtt_App() = default;

QMqtt_App::~QMqtt_App()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    for (XMqttClient* c : qAsConst(m_clients))
        destroy(c);
    m_clients.clear();
    delete m_network;
}

XMqttClient* QMqtt_App::create(unsigned handle)
{
    QCoreApplication* app = QCoreApplication::instance();
    if (app && !m_networkAsked) {
        // the network watcher lives on the GUI thread and is made there (it starts threads of its own)
        m_networkAsked = true;
        if (QThread::currentThread() == app->thread()) {
            watchNetwork();
        } else {
            QPointer<QMqtt_App> self(this);
            QMetaObject::invokeMethod(
                app,
                [self, h = qgui::HandOff()] {
                    h.take();
                    if (self) {
                        std::lock_guard<std::mutex> lock(self->m_mutex);
                        self->watchNetwork();
                    }
                },
                Qt::QueuedConnection);
        }
    }

    auto* c = new XMqttClient;
    c->setId(handle);
    if (app && c->thread() != app->thread())
        c->moveToThread(app->thread());
    // Direct: runs on the thread that changed the state (often Paho's), while the client
    // certainly exists; only values travel on to the GUI thread.
    connect(
        c, &XMqttClient::stateChanged, c,
        [handle](XMqttClient::ClientState s) { postEvent(handle, EVT_MQTT_STATE, int(s)); },
        Qt::DirectConnection);
    connect(
        c, &XMqttClient::errorChanged, c, [handle, c] { postEvent(handle, EVT_MQTT_ERROR, int(c->error())); },
        Qt::DirectConnection);
    // Automatic attempts of a long connection: planned and started on the GUI thread, under
    // the mutex like every other operation.
    QPointer<QMqtt_App> self(this);
    connect(
        c, &XMqttClient::retryWanted, c,
        [self, c] {
            if (!self)
                return;
            std::lock_guard<std::mutex> lock(self->m_mutex);
            c->scheduleRetry();
        },
        Qt::QueuedConnection);
    connect(c, &XMqttClient::retryDue, c, [self, c](quint64 generation) {
        if (!self)
            return;
        std::lock_guard<std::mutex> lock(self->m_mutex);
        c->retryConnect(generation);
    });
    m_clients.insert(handle, c);
    return c;
}

void QMqtt_App::watchNetwork()
{
    QT_WARNING_PUSH
    QT_WARNING_DISABLE_DEPRECATED
    auto* network = new QNetworkConfigurationManager;
    connect(network, &QNetworkConfigurationManager::onlineStateChanged, network, [this](bool online) {
        std::lock_guard<std::mutex> lock(m_mutex);
        for (XMqttClient* c : qAsConst(m_clients))
            c->onlineStateChanged(online);
    });
    QT_WARNING_POP
    m_network = network;
}

void QMqtt_App::destroy(XMqttClient* c)
{
    QObject::disconnect(c, nullptr, nullptr, nullptr); // no events from a client on its way out
    c->disconnectFromHost(true);
    if (c->thread() == QThread::currentThread())
        delete c;
    else
        c->deleteLater();
}

unsigned QMqtt_App::createClient(unsigned handle)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    if (handle == 0) {
        handle = 1;
        while (m_clients.contains(handle)) {
            if (handle == kMaxHandle)
                return 0; // every handle in use
            ++handle;
        }
    } else if (m_clients.contains(handle)) {
        return 0;
    }
    create(handle);
    return handle;
}

void QMqtt_App::connectClient(unsigned handle, const QString& host, quint16 port, const QString& user,
    const QString& password, const QString& clientId, int keepAlive, int version, bool longConnect,
    bool secure, quint16 word)
{
    Q_UNUSED(word) // reserved with the logic layer
    std::lock_guard<std::mutex> lock(m_mutex);
    if (handle == 0) {
        NLog::NLogger::instance()->logger()->warn("Mqtt_Connect: handle 0 is not a client");
        return;
    }
    XMqttClient* c = m_clients.value(handle);
    if (!c)
        c = create(handle);
    c->setHostname(host);
    c->setPort(port);
    c->setUsername(user);
    c->setPassword(password);
    if (!clientId.isEmpty())
        c->setClientId(clientId);
    if (longConnect) {
        c->setAutoKeepAlive(true);
        c->setKeepAlive(keepAlive > 0 ? keepAlive : XMqttClient::kDefaultLongKeepAlive);
    } else {
        c->setAutoKeepAlive(false);
        c->setKeepAlive(keepAlive);
    }
    c->setLongConnect(longConnect);
    c->setSecure(secure);
    c->setProtocolVersion(version);
    c->connectToHost();
}

void QMqtt_App::disconnectClient(unsigned handle, bool force)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    if (XMqttClient* c = m_clients.value(handle))
        c->disconnectFromHost(force);
}

void QMqtt_App::reconnectClient(unsigned handle)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    if (XMqttClient* c = m_clients.value(handle))
        c->connectToHost();
}

int QMqtt_App::checkState(unsigned handle)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    XMqttClient* c = m_clients.value(handle);
    return c ? int(c->state()) : -1;
}

void QMqtt_App::setVersion(unsigned handle, int version)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    if (XMqttClient* c = m_clients.value(handle))
        c->setProtocolVersion(version);
}

int QMqtt_App::publish(unsigned handle, const char* topic, const char* payload, int qos, bool retain)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    XMqttClient* c = m_clients.value(handle);
    int rc = -1;
    if (c && topic) {
        rc = c->publish(QByteArray::fromRawData(topic, int(qstrlen(topic))),
            payload ? QByteArray::fromRawData(payload, int(qstrlen(payload))) : QByteArray(), qos, retain);
    }
    if (rc == -1) {
        NLog::NLogger::instance()->logger()->warn(
            "publish msg fail: topic:{}, msg:{}", topic ? topic : "(null)", payload ? payload : "(null)");
    }
    return rc;
}

std::string QMqtt_App::clientId(unsigned handle)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    XMqttClient* c = m_clients.value(handle);
    return c ? c->clientId().toStdString() : std::string();
}

bool QMqtt_App::removeClient(unsigned handle)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    XMqttClient* c = m_clients.take(handle);
    if (!c)
        return false;
    destroy(c);
    return true;
}

int QMqtt_App::clientCount()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_clients.size();
}

XMqttClient* QMqtt_App::client(unsigned handle)
{
    return m_clients.value(handle);
}

} // namespace MQTT
