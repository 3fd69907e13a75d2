#ifndef QMQTT_APP_H
#define QMQTT_APP_H

#include <QHash>
#include <mutex>
#include <QObject>
#include <QString>

#include <string>

class XMqttClient;
class QNetworkConfigurationManager;

namespace MQTT {

/**
 * The process-wide keeper of the MQTT clients, by handle. Its mutex is held for the
 * whole of every operation, so the exports may be called from any thread.
 *
 * State and error changes of a client become events 1793 and 1794 for the logic
 * layer; they are posted to the GUI thread (the application object's thread) and sent
 * there, with only the handle and the value, so a client destroyed meanwhile is never
 * touched. Clients live in the GUI thread.
 *
 * The instance is destroyed, and every client with it, when the application object is.
 */
class QMqtt_App : public QObject {
    Q_OBJECT
public:
    static QMqtt_App* instance();
    /** Destroys the instance and every client (also done when QCoreApplication ends). */
    static void destroyInstance();

    /** \a handle 0: a client under the lowest free handle from 1. Otherwise a client under
     *  \a handle, or 0 when it is in use. Returns the handle. */
    unsigned createClient(unsigned handle);
    void connectClient(unsigned handle, const QString& host, quint16 port, const QString& user,
        const QString& password, const QString& clientId, int keepAlive, int version, bool longConnect,
        bool secure, quint16 word);
    void disconnectClient(unsigned handle, bool force);
    void reconnectClient(unsigned handle);
    int checkState(unsigned handle);
    void setVersion(unsigned handle, int version);
    /** 0, or -1 when the message was not taken (logged as a warning). */
    int publish(unsigned handle, const char* topic, const char* payload, int qos, bool retain);
    std::string clientId(unsigned handle);

    /** Disconnects and destroys one client; false for an unknown handle. */
    bool removeClient(unsigned handle);
    int clientCount();
    /** The client under \a handle, for inspection; null when none. Not locked. */
    XMqttClient* client(unsigned handle);

private:
    QMqtt_App();
    ~QMqtt_App() override;
    XMqttClient* create(unsigned handle);
    void destroy(XMqttClient* client);
    /** Makes the network watcher (GUI thread, mutex held): a network that comes back retries the long
     *  connections. */
    void watchNetwork();

    std::mutex m_mutex;
    QHash<unsigned, XMqttClient*> m_clients;
    QNetworkConfigurationManager* m_network = nullptr;
    bool m_networkAsked = false; ///< under the mutex: the watcher is made or on its way
};

} // namespace MQTT

#endif // QMQTT_APP_H
