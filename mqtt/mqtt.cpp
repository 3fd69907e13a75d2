// The exported MQTT calls: one log line each, then the manager.
#include <qgui/mqtt.h>

#include "mqtt/qmqtt_app.h"
#include "platform/nlogger.h"

namespace MQTT {

namespace {
spdlog::logger* log()
{
    return NLog::NLogger::instance()->logger();
}
QString text(const char* s)
{
    return s ? QString::fromUtf8(s) : QString();
}
} // namespace

unsigned Mqtt_CreateClient()
{
    const unsigned handle = QMqtt_App::instance()->createClient(0);
    log()->info("Mqtt_CreateClient: {}", handle);
    return handle;
}

void Mqtt_Connect(unsigned handle, MqttConnectPrm const& prm)
{
    log()->info("Mqtt_Connect: {} {}:{} version {} keep-alive {} flags {:#x}", handle,
        prm.hostName ? prm.hostName : "", prm.port, prm.version, prm.keepAlive, prm.flags);
    QMqtt_App::instance()->connectClient(handle, text(prm.hostName), prm.port, text(prm.userName),
        text(prm.password), text(prm.clientId), prm.keepAlive, prm.version,
        !(prm.flags & MQTT_FLAG_SHORT_CONNECTION), (prm.flags & MQTT_FLAG_SSL) != 0, prm.reserved);
}

void Mqtt_ReConnect(unsigned handle)
{
    log()->info("Mqtt_ReConnect: {}", handle);
    QMqtt_App::instance()->reconnectClient(handle);
}

int Mqtt_CheckState(unsigned handle)
{
    return QMqtt_App::instance()->checkState(handle);
}

void Mqtt_Disconnect(unsigned handle, bool force)
{
    log()->info("Mqtt_Disconnect: {} {}", handle, force);
    QMqtt_App::instance()->disconnectClient(handle, force);
}

void Mqtt_SetVersion(unsigned handle, int version)
{
    log()->info("Mqtt_SetVersion: {} {}", handle, version);
    QMqtt_App::instance()->setVersion(handle, version);
}

void Mqtt_Publish(unsigned handle, char const* topic, char const* payload, unsigned char qos, bool retain)
{
    log()->debug("Mqtt_Publish: {} qos {}", handle, qos);
    QMqtt_App::instance()->publish(handle, topic, payload, qos, retain);
}

std::string Mqtt_GetClientId(unsigned handle)
{
    return QMqtt_App::instance()->clientId(handle);
}

} // namespace MQTT
