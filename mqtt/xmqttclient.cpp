#include "mqtt/xmqttclient.h"

#include "platform/nlogger.h"

#include <QThread>

#include <chrono>
#include <condition_variable>
#include <thread>

std::mutex XMqttClient::s_mapMutex;
std::map<void*, XMqttClient*> XMqttClient::s_clients;
std::atomic<quintptr> XMqttClient::s_nextContext { 1 };

namespace {

spdlog::logger* log()
{
    return NLog::NLogger::instance()->logger();
}

/* Paho reads these while connecting, so they must outlive the connect call. */
const char kSystemCaPath[] = "/etc/ssl/certs";

/* Waits, bounded, for a Paho operation's answer; outlives the wait when it times out. */
struct PahoWaiter {
    std::mutex mutex;
    bool done = false;
    std::condition_variable cv;
    static void onDone(void* context, MQTTAsync_successData*) { static_cast<PahoWaiter*>(context)->finish(); }
    static void onFailed(void* context, MQTTAsync_failureData*)
    {
        static_cast<PahoWaiter*>(context)->finish();
    }
    static void onDone5(void* context, MQTTAsync_successData5*)
    {
        static_cast<PahoWaiter*>(context)->finish();
    }
    static void onFailed5(void* context, MQTTAsync_failureData5*)
    {
        static_cast<PahoWaiter*>(context)->finish();
    }
    void finish()
    {
        std::lock_guard<std::mutex> lock(mutex);
        done = true;
        cv.notify_all();
    }
    bool wait(int ms)
    {
        std::unique_lock<std::mutex> lock(mutex);
        return cv.wait_for(lock, std::chrono::milliseconds(ms), [this] { return done; });
    }
};

} // namespace

XMqttClient::XMqttClient(QObject* parent)
    : QObject(parent)
{
    // A client id of our own until the logic layer gives one: brokers refuse empty ids
    // for clients of protocol 3.1.
    m_clientId = QStringLiteral("qgui-%1").arg(quintptr(s_nextContext.fetch_add(1)) ^ quintptr(this)
            ^ quintptr(std::chrono::steady_clock::now().time_since_epoch().count()),
        0, 16);
}

XMqttClient::~XMqttClient()
{
    destroyMQTT(0);
}

QByteArray XMqttClient::serverUri() const
{
    return (m_secure ? QByteArrayLiteral("ssl://") : QByteArrayLiteral("tcp://")) + m_hostname.toUtf8() + ':'
        + QByteArray::number(m_port);
}

template <typename Fn> void XMqttClient::route(void* context, Fn&& fn)
{
    std::lock_guard<std::mutex> lock(s_mapMutex);
    auto it = s_clients.find(context);
    if (it == s_clients.end())
        return; // a replaced or destroyed Paho handle
    fn(it->second);
}

void XMqttClient::setState(ClientState state)
{
    if (m_state.exchange(state) == state)
        return;
    Q_EMIT stateChanged(state);
    if (state == Connected)
        Q_EMIT connected();
    else if (state == Disconnected)
        Q_EMIT disconnected();
}

void XMqttClient::setError(Error error)
{
    if (m_error.exchange(error) == error)
        return;
    Q_EMIT errorChanged();
}

XMqttClient::Error XMqttClient::errorFromConnack(int code)
{
    if (code >= 1 && code <= 5)
        return Error(code); // the broker's refusal code
    return TransportInvalid;
}

XMqttClient::Error XMqttClient::errorFromReason(int reasonCode)
{
    switch (reasonCode) {
    case 0x84:
        return InvalidProtocolVersion; // unsupported protocol version
    case 0x85:
        return IdRejected; // client identifier not valid
    case 0x86:
        return BadUsernameOrPassword;
    case 0x87:
        return NotAuthorized;
    case 0x88:
        return ServerUnavailable;
    case 0x81:
    case 0x82:
        return ProtocolViolation; // malformed packet, protocol error
    default:
        return reasonCode >= 0x80 ? Mqtt5SpecificError : TransportInvalid;
    }
}

void XMqttClient::connectToHost()
{
    destroyMQTT(0);
    m_userDisconnected = false;
    if (m_version != MQTT_Default && m_version != MQTT_3_1 && m_version != MQTT_3_1_1
        && m_version != MQTT_5_0) {
        setError(InvalidProtocolVersion);
        setState(Disconnected);
        return;
    }
    const bool v5 = m_version == MQTT_5_0;
    const QByteArray uri = serverUri();
    const QByteArray clientId = m_clientId.toUtf8();

    MQTTAsync_createOptions create = MQTTAsync_createOptions_initializer;
    create.MQTTVersion = v5 ? MQTTVERSION_5 : MQTTVERSION_DEFAULT;
    // Paho counts every queued command against this limit (100 by default), connected or
    // not: a burst of publishes would be refused long before the socket is the limit.
    create.maxBufferedMessages = kMaxQueuedMessages;
    MQTTAsync handle = nullptr;
    int rc = MQTTAsync_createWithOptions(
        &handle, uri.constData(), clientId.constData(), MQTTCLIENT_PERSISTENCE_NONE, nullptr, &create);
    if (rc != MQTTASYNC_SUCCESS) {
        log()->warn("mqtt client {}: cannot create a client for {} ({})", m_id, uri.toStdString(), rc);
        setError(UnknownError);
        setState(Disconnected);
        return;
    }
    m_client = handle;
    m_clientV5 = v5;
    m_context = reinterpret_cast<void*>(s_nextContext.fetch_add(1));
    {
        std::lock_guard<std::mutex> lock(s_mapMutex);
        s_clients[m_context] = this;
    }
    MQTTAsync_setCallbacks(
        handle, m_context, &XMqttClient::connectionLostServer, &XMqttClient::messageArrivedServer, nullptr);
    MQTTAsync_setConnected(handle, m_context, &XMqttClient::connectedServer);

    MQTTAsync_connectOptions opts = MQTTAsync_connectOptions_initializer;
    if (v5) {
        MQTTAsync_connectOptions opts5 = MQTTAsync_connectOptions_initializer5;
        opts = opts5;
        opts.onSuccess5 = &XMqttClient::onConnectServer5;
        opts.onFailure5 = &XMqttClient::onConnectFailureServer5;
    } else {
        opts.onSuccess = &XMqttClient::onConnectServer;
        opts.onFailure = &XMqttClient::onConnectFailureServer;
        opts.cleansession = 1;
        opts.MQTTVersion = m_version;
    }
    opts.context = m_context;
    opts.keepAliveInterval = m_keepAlive;
    opts.connectTimeout = kConnectTimeout;
    m_connectUser = m_username.toUtf8();
    m_connectPassword = m_password.toUtf8();
    opts.username = m_connectUser.isEmpty() ? nullptr : m_connectUser.constData();
    opts.password = m_connectPassword.isEmpty() ? nullptr : m_connectPassword.constData();
    if (m_longConnect) {
        opts.automaticReconnect = 1;
        opts.minRetryInterval = kMinRetryInterval;
        opts.maxRetryInterval = kMaxRetryInterval;
    }
    MQTTAsync_SSLOptions ssl = MQTTAsync_SSLOptions_initializer;
    if (m_secure) {
        ssl.enableServerCertAuth = 1;
        ssl.verify = 1; // the certificate must name the host
        ssl.CApath = kSystemCaPath;
        opts.ssl = &ssl;
    }

    setState(Connecting);
    m_connectPending = true;
    rc = MQTTAsync_connect(handle, &opts);
    if (rc != MQTTASYNC_SUCCESS) {
        m_connectPending = false;
        log()->warn("mqtt client {}: connect to {} refused by the library ({})", m_id, uri.toStdString(), rc);
        setError(rc == MQTTASYNC_BAD_UTF8_STRING || rc == MQTTASYNC_BAD_MQTT_OPTION ? UnknownError
                                                                                    : TransportInvalid);
        setState(Disconnected);
    }
}

void XMqttClient::disconnectFromHost(bool force)
{
    m_userDisconnected = true;
    destroyMQTT(force ? 0 : 1000);
    setState(Disconnected);
}

void XMqttClient::destroyMQTT(int graceMs)
{
    if (!m_client)
        return;
    // Paho may crash when a client is destroyed while its connect is still under way: let
    // the connect be answered first (bounded by its own time-out).
    for (int waited = 0; m_connectPending && waited < (kConnectTimeout + 2) * 1000; waited += 10)
        std::this_thread::sleep_for(std::chrono::milliseconds(10));

    {
        std::lock_guard<std::mutex> lock(s_mapMutex);
        s_clients.erase(m_context); // from now on its call-backs are ignored
    }
    m_connectPending = false;
    MQTTAsync handle = m_client;
    m_client = nullptr;
    m_context = nullptr;

    if (MQTTAsync_isConnected(handle)) {
        auto* waiter = new PahoWaiter;
        MQTTAsync_disconnectOptions opts = MQTTAsync_disconnectOptions_initializer;
        opts.timeout = graceMs;
        if (m_clientV5) { // an MQTT 5 handle takes only the call-backs of version 5
            opts.onSuccess5 = &PahoWaiter::onDone5;
            opts.onFailure5 = &PahoWaiter::onFailed5;
        } else {
            opts.onSuccess = &PahoWaiter::onDone;
            opts.onFailure = &PahoWaiter::onFailed;
        }
        opts.context = waiter;
        bool answered = true;
        if (MQTTAsync_disconnect(handle, &opts) == MQTTASYNC_SUCCESS)
            answered = waiter->wait(graceMs + 2000);
        if (answered)
            delete waiter;
        else
            log()->warn("mqtt client {}: no answer to disconnect", m_id); // the waiter is left to Paho
    }
    MQTTAsync_destroy(&handle);
}

int XMqttClient::publish(const QByteArray& topic, const QByteArray& payload, int qos, bool retain)
{
    if (!m_client || topic.isEmpty() || qos < 0 || qos > 2)
        return -1;
    MQTTAsync_message msg = MQTTAsync_message_initializer;
    msg.payload = const_cast<char*>(payload.constData()); // Paho copies it
    msg.payloadlen = payload.size();
    msg.qos = qos;
    msg.retained = retain ? 1 : 0;
    MQTTAsync_responseOptions ro = MQTTAsync_responseOptions_initializer;
    if (m_clientV5)
        ro.onFailure5 = &XMqttClient::onPublishFailureServer5;
    else
        ro.onFailure = &XMqttClient::onPublishFailureServer;
    ro.context = m_context;
    const int rc = MQTTAsync_sendMessage(m_client, topic.constData(), &msg, &ro);
    if (rc != MQTTASYNC_SUCCESS)
        log()->debug("mqtt client {}: MQTTAsync_sendMessage {}", m_id, rc);
    return rc == MQTTASYNC_SUCCESS ? 0 : -1;
}

void XMqttClient::onlineStateChanged(bool online)
{
    if (online && m_longConnect && !m_userDisconnected && m_client && state() == Disconnected
        && !m_connectPending)
        connectToHost();
}

void XMqttClient::onConnectServer(void* context, MQTTAsync_successData*)
{
    route(context, [](XMqttClient* c) {
        c->m_connectPending = false;
        c->setState(Connected);
        c->setError(NoError);
    });
}

void XMqttClient::onConnectFailureServer(void* context, MQTTAsync_failureData* response)
{
    const int code = response ? response->code : MQTTASYNC_FAILURE;
    const std::string text = response && response->message ? response->message : "";
    route(context, [code, &text](XMqttClient* c) {
        log()->warn("mqtt client {}: connect failed ({} {})", c->m_id, code, text);
        c->m_connectPending = false;
        c->setError(errorFromConnack(code));
        c->setState(Disconnected);
    });
}

void XMqttClient::onConnectServer5(void* context, MQTTAsync_successData5*)
{
    onConnectServer(context, nullptr);
}

void XMqttClient::onConnectFailureServer5(void* context, MQTTAsync_failureData5* response)
{
    const int reason = response ? int(response->reasonCode) : 0;
    const int code = response ? response->code : MQTTASYNC_FAILURE;
    route(context, [reason, code](XMqttClient* c) {
        log()->warn("mqtt client {}: connect failed (reason {:#x}, code {})", c->m_id, reason, code);
        c->m_connectPending = false;
        c->setError(reason ? errorFromReason(reason) : TransportInvalid);
        c->setState(Disconnected);
    });
}

void XMqttClient::connectedServer(void* context, char*)
{
    // Called for every connection, automatic reconnections included.
    route(context, [](XMqttClient* c) {
        c->m_connectPending = false;
        c->setState(Connected);
        c->setError(NoError);
    });
}

void XMqttClient::connectionLostServer(void* context, char* cause)
{
    const std::string text = cause ? cause : "";
    route(context, [&text](XMqttClient* c) {
        log()->warn("mqtt client {}: connection lost {}", c->m_id, text);
        c->setError(TransportInvalid);
        c->setState(Disconnected);
    });
}

void XMqttClient::onPublishFailureServer(void* context, MQTTAsync_failureData* response)
{
    const int code = response ? response->code : MQTTASYNC_FAILURE;
    route(context, [code](XMqttClient* c) {
        log()->warn("mqtt client {}: a message was not delivered ({})", c->m_id, code);
    });
}

void XMqttClient::onPublishFailureServer5(void* context, MQTTAsync_failureData5* response)
{
    const int code = response ? response->code : MQTTASYNC_FAILURE;
    route(context, [code](XMqttClient* c) {
        log()->warn("mqtt client {}: a message was not delivered ({})", c->m_id, code);
    });
}

int XMqttClient::messageArrivedServer(void* context, char* topic, int, MQTTAsync_message* message)
{
    // Clients do not subscribe; anything that arrives anyway is dropped.
    Q_UNUSED(context)
    MQTTAsync_freeMessage(&message);
    MQTTAsync_free(topic);
    return 1;
}
