#ifndef XMQTTCLIENT_H
#define XMQTTCLIENT_H

#include <QByteArray>
#include <QObject>
#include <QString>

#include <MQTTAsync.h>

#include <atomic>
#include <map>
#include <mutex>

/**
 * One MQTT connection on the Paho asynchronous client.
 *
 * Paho calls back on its own threads. Its call-backs carry a context token (never the
 * client's address) that a static map turns into the client; a token that is no
 * longer in the map (the Paho handle was replaced or destroyed) is ignored. The map's
 * mutex is held while a call-back uses the client, and a client leaves the map before
 * its Paho handle or itself is destroyed, so no call-back touches a destroyed client.
 * Call-backs only change the state and the error (atomics) and emit signals.
 *
 * A Paho handle that is replaced or dropped is retired: its token leaves the map at once
 * and the handle goes to a reaper thread, which lets a pending connect be answered, asks
 * Paho to disconnect, waits for the call-backs to end and only then destroys the handle.
 * Nothing here waits for the broker, so every method returns at once.
 *
 * Every connect attempt is started here (Paho's automatic reconnection is not used), so
 * the reaper always knows whether a retired handle may still be connecting. A long
 * connection that is lost is connected again by a timer of the client (retryWanted /
 * retryDue, run by the manager under its mutex).
 *
 * All other methods are called with the manager's mutex held, never from a Paho
 * call-back (Paho forbids destroying a client from inside its own call-backs).
 */
class XMqttClient : public QObject {
    Q_OBJECT
public:
    enum ClientState { Disconnected = 0, Connecting = 1, Connected = 2 };
    Q_ENUM(ClientState)
    enum ProtocolVersion { MQTT_Default = 0, MQTT_3_1 = 3, MQTT_3_1_1 = 4, MQTT_5_0 = 5 };
    Q_ENUM(ProtocolVersion)
    enum Error {
        NoError = 0,
        InvalidProtocolVersion = 1,
        IdRejected = 2,
        ServerUnavailable = 3,
        BadUsernameOrPassword = 4,
        NotAuthorized = 5,
        TransportInvalid = 256,
        ProtocolViolation = 257,
        UnknownError = 258,
        Mqtt5SpecificError = 259
    };
    Q_ENUM(Error)

    /** Seconds of keep-alive on a long connection whose interval is given as 0. */
    static constexpr int kDefaultLongKeepAlive = 100;
    /** Automatic reconnection of a long connection: first and longest wait, seconds. */
    static constexpr int kMinRetryInterval = 1;
    static constexpr int kMaxRetryInterval = 30;
    /** Attempts made at the first interval before the wait starts doubling. */
    static constexpr int kSteadyRetries = 10;
    /** Messages Paho may hold that are not yet written to the broker. */
    static constexpr int kMaxQueuedMessages = 65535;
    /** Seconds Paho waits for the broker's answer to a connect. */
    static constexpr int kConnectTimeout = 10;

    explicit XMqttClient(QObject* parent = nullptr);
    ~XMqttClient() override;

    void setId(unsigned id) { m_id = id; }
    unsigned getId() const { return m_id; }

    QString hostname() const { return m_hostname; }
    void setHostname(const QString& host) { m_hostname = host; }
    quint16 port() const { return m_port; }
    void setPort(quint16 port) { m_port = port; }
    QString username() const { return m_username; }
    void setUsername(const QString& user) { m_username = user; }
    QString password() const { return m_password; }
    void setPassword(const QString& password) { m_password = password; }
    QString clientId() const { return m_clientId; }
    void setClientId(const QString& id) { m_clientId = id; }
    bool autoKeepAlive() const { return m_autoKeepAlive; }
    void setAutoKeepAlive(bool on) { m_autoKeepAlive = on; }
    int keepAlive() const { return m_keepAlive; }
    void setKeepAlive(int seconds) { m_keepAlive = seconds; }
    int protocolVersion() const { return m_version; }
    void setProtocolVersion(int version) { m_version = version; }
    bool longConnect() const { return m_longConnect; }
    void setLongConnect(bool on) { m_longConnect = on; }
    bool secure() const { return m_secure; }
    void setSecure(bool on) { m_secure = on; }

    ClientState state() const { return ClientState(m_state.load()); }
    Error error() const { return Error(m_error.load()); }
    /** The URI of the next connect, "tcp://host:port" or "ssl://host:port". */
    QByteArray serverUri() const;

    /** Replaces the Paho handle by a new one and starts connecting (state 1). */
    void connectToHost();
    /** Ends the connection and drops the Paho handle (state 0). \a force: no grace time for
     *  messages in flight (otherwise up to 1 s, taken by the reaper, not by the caller). */
    void disconnectFromHost(bool force);
    /** A long connection that is down: the next automatic attempt after the current interval
     *  (1 s after a loss, doubling up to 30 s while attempts fail). On the client's thread. */
    void scheduleRetry();
    /** The automatic attempt \a generation is due: connects again unless something else
     *  happened meanwhile (connect, disconnect, success). */
    void retryConnect(quint64 generation);

    /** Retired Paho handles not yet destroyed (all clients). */
    static int retiredHandles();
    /** Hands one message to Paho. 0, or -1 when it was not accepted. */
    int publish(const QByteArray& topic, const QByteArray& payload, int qos, bool retain);

public Q_SLOTS:
    /** The network came online or went offline: a long connection that is down and was not
     *  ended by the logic layer connects again. */
    void onlineStateChanged(bool online);

Q_SIGNALS:
    void stateChanged(XMqttClient::ClientState state);
    void errorChanged();
    void connected();
    void disconnected();
    /** A long connection went down or an automatic attempt failed (any thread). */
    void retryWanted();
    /** The retry timer ran out (client's thread). */
    void retryDue(quint64 generation);

private:
    void setState(ClientState state);
    void setError(Error error);
    /** Starts a connect on a new Paho handle; \a automatic: an attempt of the retry timer,
     *  which does not report state 1. */
    void startConnect(bool automatic);
    /** Hands the Paho handle to the reaper; returns at once. */
    void retireHandle(int graceMs);

    static Error errorFromConnack(int code);
    static Error errorFromReason(int reasonCode);

    // Paho call-backs, routed through the context map.
    static void onConnectServer(void* context, MQTTAsync_successData* response);
    static void onConnectFailureServer(void* context, MQTTAsync_failureData* response);
    static void onConnectServer5(void* context, MQTTAsync_successData5* response);
    static void onConnectFailureServer5(void* context, MQTTAsync_failureData5* response);
    static void connectedServer(void* context, char* cause);
    static void connectionLostServer(void* context, char* cause);
    static void onPublishFailureServer(void* context, MQTTAsync_failureData* response);
    static void onPublishFailureServer5(void* context, MQTTAsync_failureData5* response);
    static void onDisconnectServer(void* context, MQTTAsync_successData* response);
    static void onDisconnectFailureServer(void* context, MQTTAsync_failureData* response);
    static void onDisconnectServer5(void* context, MQTTAsync_successData5* response);
    static void onDisconnectFailureServer5(void* context, MQTTAsync_failureData5* response);
    static int messageArrivedServer(void* context, char* topic, int topicLen, MQTTAsync_message* message);

    /** Runs \a fn on the client of \a context under the map's mutex; a call-back of a retired
     *  handle goes to the reaper as \a event instead. */
    template <typename Fn> static void route(void* context, int event, Fn&& fn);

    friend class HandleReaper;

    static std::mutex s_mapMutex;
    static std::map<void*, XMqttClient*> s_clients;
    static std::atomic<quintptr> s_nextContext;

    unsigned m_id = 0;
    QString m_hostname;
    quint16 m_port = 1883;
    QString m_username;
    QString m_password;
    QString m_clientId;
    bool m_autoKeepAlive = true;
    int m_keepAlive = 60;
    int m_version = MQTT_Default;
    bool m_longConnect = true;
    bool m_secure = false;
    bool m_userDisconnected = false; ///< the logic layer ended the connection

    std::atomic<int> m_state { Disconnected };
    std::atomic<int> m_error { NoError };
    std::atomic<bool> m_connectPending { false }; ///< a connect has not been answered yet
    std::atomic<bool> m_retrying { false }; ///< the current attempt is an automatic one
    std::atomic<quint64> m_retryGeneration { 0 }; ///< bumped by every connect or disconnect
    int m_retryInterval = kMinRetryInterval; ///< seconds before the next automatic attempt
    int m_retryCount = 0; ///< automatic attempts failed since the loss

    void* m_client = nullptr; ///< the Paho handle (MQTTAsync)
    bool m_clientV5 = false; ///< the handle speaks MQTT 5 (it takes the version 5 call-backs only)
    void* m_context = nullptr; ///< token of the current Paho handle in s_clients
    QByteArray m_connectUser; ///< kept alive while Paho may read them
    QByteArray m_connectPassword;
};

#endif // XMQTTCLIENT_H
