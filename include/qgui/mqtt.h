/*
 * qgui services: MQTT clients.
 *
 * The logic layer creates clients (numbered by a handle), connects them to brokers
 * and publishes messages. Every change of a client's state is reported as event
 * 1793 (0x701) and every change of its error as event 1794 (0x702), both with the
 * client handle as id, on the GUI thread (payloads View_EvtMqttState and
 * View_EvtMqttError of qgui/events.h). The exports may be called from any thread.
 *
 * Reconnection: a long connection that is lost is re-established automatically,
 * every second for the first 10 attempts, then at doubling intervals of at most
 * 30 s, until it succeeds or the logic layer disconnects. A short connection, or a connect that fails, is not
 * retried: the logic layer calls Mqtt_ReConnect. A long connection is also retried
 * when the network comes back online.
 */
#ifndef QGUI_MQTT_H
#define QGUI_MQTT_H

#include <qgui/types.h>

#include <string>

namespace MQTT {

/** Client states (event 1793, Mqtt_CheckState). */
enum MqttClientState {
    MQTT_STATE_DISCONNECTED = 0, /**< not connected (also after a lost connection) */
    MQTT_STATE_CONNECTING = 1, /**< Mqtt_Connect or Mqtt_ReConnect is waiting for the broker's answer */
    MQTT_STATE_CONNECTED = 2 /**< connected; messages can be published */
};

/** Client errors (event 1794). Values 1 to 5 are the broker's refusal codes. */
enum MqttError {
    MQTT_ERR_NONE = 0, /**< no error; reported again after an error once a connect succeeds */
    MQTT_ERR_INVALID_PROTOCOL_VERSION = 1, /**< the broker or the library refused the protocol version */
    MQTT_ERR_ID_REJECTED = 2, /**< the broker refused the client id */
    MQTT_ERR_SERVER_UNAVAILABLE = 3, /**< the broker is not available for service */
    MQTT_ERR_BAD_USERNAME_OR_PASSWORD = 4, /**< the broker refused the user name or password */
    MQTT_ERR_NOT_AUTHORIZED
    = 5, /**< the broker refused the client (also wrong credentials on some brokers) */
    MQTT_ERR_TRANSPORT_INVALID
    = 256, /**< no network connection: broker unreachable, TLS refused, connection lost */
    MQTT_ERR_PROTOCOL_VIOLATION = 257, /**< the broker broke the protocol */
    MQTT_ERR_UNKNOWN = 258, /**< any other failure (for example an invalid host name) */
    MQTT_ERR_MQTT5_SPECIFIC = 259 /**< an MQTT 5 reason code without a value above */
};

/** Bits of MqttConnectPrm::flags. */
enum MqttConnectFlags {
    MQTT_FLAG_SHORT_CONNECTION = 0x01, /**< set: short connection (keep-alive as given, no automatic
                                          reconnect); clear: long connection */
    MQTT_FLAG_SSL = 0x02 /**< set: "ssl://" with the system's CA certificates and host name check */
};

/** Protocol versions (MqttConnectPrm::version, Mqtt_SetVersion). */
enum MqttProtocolVersion {
    MQTT_VERSION_DEFAULT = 0, /**< 3.1.1, falling back to 3.1 */
    MQTT_VERSION_3_1 = 3,
    MQTT_VERSION_3_1_1 = 4,
    MQTT_VERSION_5 = 5
};

/** Connect record; strings are UTF-8, null counts as empty. */
struct MqttConnectPrm {
    const char* hostName; /**< broker host name or address */
    const char* userName; /**< user name; empty: none */
    const char* password; /**< password; empty: none */
    const char* clientId; /**< client id; empty keeps the client's current id */
    U8 flags; /**< MqttConnectFlags bits */
    U16 port; /**< broker port */
    short version; /**< MqttProtocolVersion; other values fail with MQTT_ERR_INVALID_PROTOCOL_VERSION */
    U16 keepAlive; /**< keep-alive interval in seconds; 0 on a long connection means 100 */
    U16 reserved; /**< passed on, not used yet */
};

/** Creates a client under the lowest free handle from 1 upward; returns the handle. */
QGUI_EXPORT unsigned Mqtt_CreateClient();

/** Connects client \a handle (created first if needed; handle 0 is ignored). The outcome
 *  arrives as events: state 1 at once, then 2, or 0 with an error. */
QGUI_EXPORT void Mqtt_Connect(unsigned handle, MqttConnectPrm const& prm);

/** Connects again with the settings of the last Mqtt_Connect. */
QGUI_EXPORT void Mqtt_ReConnect(unsigned handle);

/** The client's MqttClientState; -1 for an unknown handle. */
QGUI_EXPORT int Mqtt_CheckState(unsigned handle);

/** Ends the connection but keeps the client. \a force true: at once, messages in flight are
 *  dropped; false: messages in flight get up to 1 s to complete. */
QGUI_EXPORT void Mqtt_Disconnect(unsigned handle, bool force);

/** Sets the protocol version of the next connect (MqttProtocolVersion). */
QGUI_EXPORT void Mqtt_SetVersion(unsigned handle, int version);

/** Publishes one message (a null payload is an empty message). Failures (unknown handle,
 *  not connected, null topic, \a qos above 2) are logged as "publish msg fail: topic:...". */
QGUI_EXPORT void Mqtt_Publish(
    unsigned handle, char const* topic, char const* payload, unsigned char qos, bool retain);

/** The client's id (a random "qgui-..." id until one is given); empty for an unknown handle. */
QGUI_EXPORT std::string Mqtt_GetClientId(unsigned handle);

} // namespace MQTT

#endif /* QGUI_MQTT_H */
