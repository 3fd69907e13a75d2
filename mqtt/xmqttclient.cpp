#include "mqtt/xmqttclient.h"

#include "platform/nlogger.h"

#include <QTimer>

#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <cstdlib>
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

/* What a call-back of a retired handle tells the reaper. */
enum ReaperEvent { ConnectAnswered, ConnectSucceeded, ConnectionLost, DisconnectAnswered, OtherCallBack };

} // namespace

/**
 * Destroys retired Paho handles on a thread of its own, never on the caller's.
 *
 * A handle is destroyed only when its connect (if one was pending) has been answered, a
 * disconnect has been asked for (and answered, when it was connected) and none of its
 * call-backs has run for kSettleMs: Paho 1.3 has crashed when a handle was destroyed while
 * connecting, or right after a failed connect. A connect that Paho never answers (it should,
 * within its own time-out) leaves the handle to the library rather than risk that.
 *
 * Lock order: the client map's mutex, then this one. Paho is never called with this mutex
 * held, since Paho holds its own mutex while it calls back.
 *
 * The instance is never deleted (late call-backs may still look it up); its thread ends at
 * process exit, after a bounded wait for the handles still being reaped.
 */
class HandleReaper {
public:
    static constexpr int kSettleMs = 200;
    /** Longest wait for a pending connect's answer: two protocol versions may be tried, each
     *  with the connect time-out, and Paho looks at time-outs every 3 s. */
    static constexpr int kConnectAnswerMs = (2 * XMqttClient::kConnectTimeout + 10) * 1000;

    static HandleReaper& instance()
    {
        static HandleReaper* reaper = new HandleReaper;
        return *reaper;
    }

    /** Takes over a handle (the client map's mutex is held). */
    void adopt(MQTTAsync handle, void* token, bool v5, int graceMs, bool connectPending, QByteArray user,
        QByteArray password)
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        const Clock::time_point now = Clock::now();
        Retired& r = m_retired[token];
        r.handle = handle;
        r.v5 = v5;
        r.graceMs = graceMs;
        r.connectPending = connectPending;
        r.connectDeadline = now + std::chrono::milliseconds(kConnectAnswerMs);
        r.lastCallBack = now;
        r.user = std::move(user);
        r.password = std::move(password);
        if (!m_thread.joinable() && !m_stopping) {
            log(); // the logger outlives the exit handler registered after it
            m_thread = std::thread([this] { run(); });
            std::atexit(&HandleReaper::finishAtExit);
        }
        m_wake.notify_all();
    }

    /** A call-back of a handle that is no longer a client's (any Paho thread). */
    void notify(void* token, int event)
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        auto it = m_retired.find(token);
        if (it == m_retired.end())
            return; // destroyed already
        Retired& r = it->second;
        r.lastCallBack = Clock::now();
        switch (event) {
        case ConnectSucceeded:
            r.connectPending = false;
            r.disconnectAsked = false; // connected after all: disconnect (again)
            break;
        case ConnectAnswered:
            r.connectPending = false;
            break;
        case DisconnectAnswered:
            r.disconnectPending = false;
            break;
        default:
            break;
        }
        m_wake.notify_all();
    }

    int count()
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        return int(m_retired.size());
    }

private:
    using Clock = std::chrono::steady_clock;

    struct Retired {
        MQTTAsync handle = nullptr;
        bool v5 = false;
        int graceMs = 0;
        bool connectPending = false;
        bool disconnectAsked = false;
        bool disconnectPending = false;
        Clock::time_point connectDeadline;
        Clock::time_point disconnectDeadline;
        Clock::time_point lastCallBack;
        QByteArray user; ///< what the handle's connect was given, kept while Paho may read it
        QByteArray password;
    };

    HandleReaper() = default;

    static void finishAtExit() { instance().finish(); }

    /** Process exit: lets the thread reap what it can within the connect time-outs, then joins it. */
    void finish()
    {
        {
            std::lock_guard<std::mutex> lock(m_mutex);
            m_stopping = true;
            m_stopDeadline = Clock::now() + std::chrono::milliseconds(kConnectAnswerMs);
            m_wake.notify_all();
        }
        if (m_thread.joinable())
            m_thread.join();
    }

    void run()
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        for (;;) {
            const Clock::time_point now = Clock::now();
            if (m_stopping && (m_retired.empty() || now >= m_stopDeadline))
                break;
            Clock::time_point wake = now + std::chrono::seconds(1);
            void* token = nullptr;
            bool destroy = false;
            for (auto it = m_retired.begin(); it != m_retired.end() && !token;) {
                Retired& r = it->second;
                if (r.connectPending) {
                    if (now < r.connectDeadline) {
                        wake = std::min(wake, r.connectDeadline);
                        ++it;
                        continue;
                    }
                    // Never answered: destroying it could crash Paho, so it is left to Paho.
                    log()->warn("mqtt: a retired connection never answered its connect; left to the library");
                    it = m_retired.erase(it);
                    continue;
                }
                if (!r.disconnectAsked) {
                    token = it->first;
                    break;
                }
                if (r.disconnectPending && now < r.disconnectDeadline) {
                    wake = std::min(wake, r.disconnectDeadline);
                    ++it;
                    continue;
                }
                const Clock::time_point quiet = r.lastCallBack + std::chrono::milliseconds(kSettleMs);
                if (now < quiet) {
                    wake = std::min(wake, quiet);
                    ++it;
                    continue;
                }
                token = it->first;
                destroy = true;
            }
            if (!token) {
                m_wake.wait_until(lock, wake);
                continue;
            }

            if (destroy) {
                auto it = m_retired.find(token);
                MQTTAsync handle = it->second.handle;
                m_retired.erase(it); // its call-backs from now on find nothing
                lock.unlock();
                MQTTAsync_destroy(&handle);
                lock.lock();
                continue;
            }

            Retired& r = m_retired[token];
            r.disconnectAsked = true;
            r.disconnectPending = true; // before the call: the answer may come before it returns
            r.disconnectDeadline = now + std::chrono::milliseconds(r.graceMs + 2000);
            MQTTAsync handle = r.handle;
            const bool v5 = r.v5;
            const int graceMs = r.graceMs;
            lock.unlock();
            // Also when it is not connected: Paho then only forgets that it should be.
            MQTTAsync_disconnectOptions opts = MQTTAsync_disconnectOptions_initializer;
            opts.timeout = graceMs;
            if (v5) { // an MQTT 5 handle takes only the call-backs of version 5
                opts.onSuccess5 = &XMqttClient::onDisconnectServer5;
                opts.onFailure5 = &XMqttClient::onDisconnectFailureServer5;
            } else {
                opts.onSuccess = &XMqttClient::onDisconnectServer;
                opts.onFailure = &XMqttClient::onDisconnectFailureServer;
            }
            opts.context = token;
            const int rc = MQTTAsync_disconnect(handle, &opts);
            lock.lock();
            auto it = m_retired.find(token);
            if (rc != MQTTASYNC_SUCCESS && it != m_retired.end())
                it->second.disconnectPending = false; // not connected: no answer will come
        }
        if (!m_retired.empty()) {
            log()->warn("mqtt: {} retired connection(s) still connecting at exit; left to the library",
                m_retired.size());
        }
    }

    std::mutex m_mutex;
    std::condition_variable m_wake;
    std::map<void*, Retired> m_retired; ///< by context token
    std::thread m_thread;
    bool m_stopping = false;
    Clock::time_point m_stopDeadline;
};

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
    retireHandle(0);
}

int XMqttClient::retiredHandles()
{
    return HandleReaper::instance().count();
}

QByteArray XMqttClient::serverUri() const
{
    return (m_secure ? QByteArrayLiteral("ssl://") : QByteArrayLiteral("tcp://")) + m_hostname.toUtf8() + ':'
        + QByteArray::number(m_port);
}

template <typename Fn> void XMqttClient::route(void* context, int event, Fn&& fn)
{
    {
        std::lock_guard<std::mutex> lock(s_mapMutex);
        auto it = s_clients.find(context);
        if (it != s_clients.end()) {
            fn(it->second);
            return;
        }
    }
    // A retired handle: the client never hears of it, the reaper does. A handle leaves the
    // map and joins the reaper under the map's mutex, so no call-back falls in between.
    HandleReaper::instance().notify(context, event);
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
    ++m_retryGeneration; // a pending automatic attempt is off
    m_retrying = false;
    m_userDisconnected = false;
    startConnect(false);
}

void XMqttClient::scheduleRetry()
{
    if (!m_longConnect || m_userDisconnected || state() == Connected || m_connectPending)
        return;
    // Every second for the first kSteadyRetries attempts (a broker that restarts is back within a second of
    // its return), then at doubling intervals while attempts fail.
    m_retryCount = m_retrying ? m_retryCount + 1 : 0;
    m_retryInterval = m_retryCount < kSteadyRetries ? int(kMinRetryInterval)
                                                    : qMin(m_retryInterval * 2, int(kMaxRetryInterval));
    const quint64 generation = m_retryGeneration;
    QTimer::singleShot(m_retryInterval * 1000, this, [this, generation] {
        if (generation == m_retryGeneration)
            Q_EMIT retryDue(generation);
    });
}

void XMqttClient::retryConnect(quint64 generation)
{
    if (generation != m_retryGeneration || !m_longConnect || m_userDisconnected || state() == Connected
        || m_connectPending)
        return;
    m_retrying = true;
    startConnect(true);
}

void XMqttClient::startConnect(bool automatic)
{
    retireHandle(0);
    if (m_version != MQTT_Default && m_version != MQTT_3_1 && m_version != MQTT_3_1_1
        && m_version != MQTT_5_0) {
        m_retrying = false;
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
        m_retrying = false;
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
    // No automatic reconnection by Paho: its attempts run unseen, and a handle must not be
    // destroyed while it connects. Lost long connections are retried by scheduleRetry().
    opts.automaticReconnect = 0;
    MQTTAsync_SSLOptions ssl = MQTTAsync_SSLOptions_initializer;
    if (m_secure) {
        ssl.enableServerCertAuth = 1;
        ssl.verify = 1; // the certificate must name the host
        ssl.CApath = kSystemCaPath;
        opts.ssl = &ssl;
    }

    if (!automatic)
        setState(Connecting);
    m_connectPending = true;
    rc = MQTTAsync_connect(handle, &opts);
    if (rc != MQTTASYNC_SUCCESS) {
        m_connectPending = false;
        log()->warn("mqtt client {}: connect to {} refused by the library ({})", m_id, uri.toStdString(), rc);
        setError(rc == MQTTASYNC_BAD_UTF8_STRING || rc == MQTTASYNC_BAD_MQTT_OPTION ? UnknownError
                                                                                    : TransportInvalid);
        setState(Disconnected);
        if (automatic)
            Q_EMIT retryWanted(); // the next attempt, later
    }
}

void XMqttClient::disconnectFromHost(bool force)
{
    ++m_retryGeneration;
    m_retrying = false;
    m_userDisconnected = true;
    retireHandle(force ? 0 : 1000);
    setState(Disconnected);
}

void XMqttClient::retireHandle(int graceMs)
{
    if (!m_client)
        return;
    {
        std::lock_guard<std::mutex> lock(s_mapMutex);
        s_clients.erase(m_context); // from now on its call-backs reach the reaper only
        HandleReaper::instance().adopt(m_client, m_context, m_clientV5, graceMs,
            m_connectPending.exchange(false), std::move(m_connectUser), std::move(m_connectPassword));
    }
    m_client = nullptr;
    m_context = nullptr;
    m_connectUser.clear();
    m_connectPassword.clear();
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
        retryConnect(++m_retryGeneration); // now, instead of the waiting attempt
}

void XMqttClient::onConnectServer(void* context, MQTTAsync_successData*)
{
    route(context, ConnectSucceeded, [](XMqttClient* c) {
        c->m_connectPending = false;
        c->m_retrying = false;
        c->setState(Connected);
        c->setError(NoError);
    });
}

void XMqttClient::onConnectFailureServer(void* context, MQTTAsync_failureData* response)
{
    const int code = response ? response->code : MQTTASYNC_FAILURE;
    const std::string text = response && response->message ? response->message : "";
    route(context, ConnectAnswered, [code, &text](XMqttClient* c) {
        log()->warn("mqtt client {}: connect failed ({} {})", c->m_id, code, text);
        c->m_connectPending = false;
        c->setError(errorFromConnack(code));
        c->setState(Disconnected);
        if (c->m_retrying)
            Q_EMIT c->retryWanted();
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
    route(context, ConnectAnswered, [reason, code](XMqttClient* c) {
        log()->warn("mqtt client {}: connect failed (reason {:#x}, code {})", c->m_id, reason, code);
        c->m_connectPending = false;
        c->setError(reason ? errorFromReason(reason) : TransportInvalid);
        c->setState(Disconnected);
        if (c->m_retrying)
            Q_EMIT c->retryWanted();
    });
}

void XMqttClient::connectedServer(void* context, char*)
{
    route(context, ConnectSucceeded, [](XMqttClient* c) {
        c->m_connectPending = false;
        c->m_retrying = false;
        c->setState(Connected);
        c->setError(NoError);
    });
}

void XMqttClient::connectionLostServer(void* context, char* cause)
{
    const std::string text = cause ? cause : "";
    route(context, ConnectionLost, [&text](XMqttClient* c) {
        log()->warn("mqtt client {}: connection lost {}", c->m_id, text);
        c->setError(TransportInvalid);
        c->setState(Disconnected);
        Q_EMIT c->retryWanted(); // a long connection comes back (decided on the client's thread)
    });
}

void XMqttClient::onPublishFailureServer(void* context, MQTTAsync_failureData* response)
{
    const int code = response ? response->code : MQTTASYNC_FAILURE;
    route(context, OtherCallBack, [code](XMqttClient* c) {
        log()->warn("mqtt client {}: a message was not delivered ({})", c->m_id, code);
    });
}

void XMqttClient::onPublishFailureServer5(void* context, MQTTAsync_failureData5* response)
{
    const int code = response ? response->code : MQTTASYNC_FAILURE;
    route(context, OtherCallBack, [code](XMqttClient* c) {
        log()->warn("mqtt client {}: a message was not delivered ({})", c->m_id, code);
    });
}

// Disconnects are asked for by the reaper only, for retired handles.
void XMqttClient::onDisconnectServer(void* context, MQTTAsync_successData*)
{
    HandleReaper::instance().notify(context, DisconnectAnswered);
}

void XMqttClient::onDisconnectFailureServer(void* context, MQTTAsync_failureData*)
{
    HandleReaper::instance().notify(context, DisconnectAnswered);
}

void XMqttClient::onDisconnectServer5(void* context, MQTTAsync_successData5*)
{
    HandleReaper::instance().notify(context, DisconnectAnswered);
}

void XMqttClient::onDisconnectFailureServer5(void* context, MQTTAsync_failureData5*)
{
    HandleReaper::instance().notify(context, DisconnectAnswered);
}

int XMqttClient::messageArrivedServer(void* context, char* topic, int, MQTTAsync_message* message)
{
    // Clients do not subscribe; anything that arrives anyway is dropped.
    Q_UNUSED(context)
    MQTTAsync_freeMessage(&message);
    MQTTAsync_free(topic);
    return 1;
}
