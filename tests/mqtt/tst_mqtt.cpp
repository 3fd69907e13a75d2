// MQTT clients against a real mosquitto broker on loopback.
#include <QtTest>

#include <qgui/mqtt.h>

#include "common/eventrecorder.h"
#include "common/mosquittobroker.h"
#include "mqtt/qmqtt_app.h"
#include "mqtt/xmqttclient.h"
#include "platform/logiclayercaller.h"

#include <QProcess>
#include <QRandomGenerator>
#include <QStandardPaths>

#include <memory>

using namespace MQTT;

namespace {

constexpr int kState = 1793;
constexpr int kError = 1794;

EventRecorder* g_recorder = nullptr;
int g_offThread = 0; // events that did not arrive on the GUI thread

ErrRet onEvent(unsigned id, int code, void* data)
{
    if (QThread::currentThread() != QCoreApplication::instance()->thread())
        ++g_offThread;
    return EventRecorder::callBack(id, code, data);
}

/* (code, handle in payload, value) of every MQTT event of \a handle. */
QList<QPair<int, int>> eventsOf(unsigned handle)
{
    QList<QPair<int, int>> out;
    for (const auto& e : g_recorder->events()) {
        if (e.id == handle && (e.code == kState || e.code == kError) && unsigned(e.intAt(0)) == handle)
            out << qMakePair(e.code, e.intAt(1));
    }
    return out;
}

bool hasEvent(unsigned handle, int code, int value)
{
    return eventsOf(handle).contains(qMakePair(code, value));
}

/* A subscriber of the test: mosquitto_sub, waiting for \a count messages. */
class Subscriber {
public:
    Subscriber(MosquittoBroker* broker, const QString& topic, int qos, int count)
        : m_broker(broker)
    {
        const quint16 port = broker->port();
        m_p.setProcessChannelMode(QProcess::MergedChannels);
        m_p.start(QStringLiteral("mosquitto_sub"),
            { QStringLiteral("-h"), QStringLiteral("127.0.0.1"), QStringLiteral("-p"), QString::number(port),
                QStringLiteral("-t"), topic, QStringLiteral("-q"), QString::number(qos), QStringLiteral("-C"),
                QString::number(count), QStringLiteral("-v"), QStringLiteral("-i"), m_id });
    }
    ~Subscriber()
    {
        if (m_p.state() != QProcess::NotRunning) {
            m_p.kill();
            m_p.waitForFinished(2000);
        }
    }
    /** Waits (bounded) until the broker has the subscription. */
    bool waitSubscribed()
    {
        const QByteArray line = "Received SUBSCRIBE from " + m_id.toLatin1();
        for (int i = 0; i < 100 && !m_broker->log().contains(line); ++i)
            QTest::qWait(50);
        return m_broker->log().contains(line);
    }
    /** Waits (bounded) until the subscriber got its messages and ended. */
    QByteArray received()
    {
        m_p.waitForFinished(10000);
        m_out += m_p.readAll();
        return m_out;
    }

private:
    MosquittoBroker* m_broker;
    QString m_id = QStringLiteral("sub-") + QString::number(QRandomGenerator::global()->generate());
    QProcess m_p;
    QByteArray m_out;
};

MqttConnectPrm prm(const QByteArray& host, quint16 port, const char* user = nullptr,
    const char* password = nullptr, const char* clientId = nullptr, bool longConnect = true,
    U16 keepAlive = 30, short version = 4)
{
    MqttConnectPrm p {};
    p.hostName = host.constData();
    p.userName = user;
    p.password = password;
    p.clientId = clientId;
    p.flags = longConnect ? 0 : MQTT_FLAG_SHORT_CONNECTION;
    p.port = port;
    p.version = version;
    p.keepAlive = keepAlive;
    return p;
}

const QByteArray kLocalhost("127.0.0.1");

} // namespace

class tst_Mqtt : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void connect_reports_connecting_then_connected_and_publishes_data();
    void connect_reports_connecting_then_connected_and_publishes();
    void wrong_credentials_report_an_error_until_the_right_ones_connect();
    void lost_connection_reports_state_0_and_a_long_connection_comes_back();
    void short_connection_is_not_retried_but_reconnects_on_request();
    void handles_are_the_lowest_free_number_from_1();
    void keep_alive_reaches_the_broker_data();
    void keep_alive_reaches_the_broker();
    void empty_client_id_keeps_the_previous_one();
    void disconnect_keeps_the_client();
    void bad_input_is_refused_without_harm();
    void many_clients_created_and_destroyed();

private:
    std::unique_ptr<MosquittoBroker> m_broker;
    EventRecorder m_recorder;
};

void tst_Mqtt::initTestCase()
{
    m_broker.reset(new MosquittoBroker);
    if (!m_broker->unavailableReason().isEmpty())
        QSKIP(qPrintable(m_broker->unavailableReason()));
    QVERIFY2(m_broker->start(), qPrintable(m_broker->lastError()));
    g_recorder = &m_recorder;
    m_recorder.install();
    LogicLayerCaller::setCallBack(&onEvent);
}

void tst_Mqtt::init()
{
    m_recorder.clear();
}

void tst_Mqtt::cleanup()
{
    QMqtt_App::destroyInstance(); // every client, and handles start from 1 again
    QCOMPARE(g_offThread, 0);
}

void tst_Mqtt::connect_reports_connecting_then_connected_and_publishes_data()
{
    QTest::addColumn<int>("qos");
    QTest::addColumn<int>("version");
    QTest::newRow("qos 0, 3.1.1") << 0 << 4;
    QTest::newRow("qos 1, 3.1.1") << 1 << 4;
    QTest::newRow("qos 2, 3.1") << 2 << 3;
    QTest::newRow("qos 1, 5") << 1 << 5;
}

void tst_Mqtt::connect_reports_connecting_then_connected_and_publishes()
{
    QFETCH(int, qos);
    QFETCH(int, version);
    Subscriber sub(m_broker.get(), QStringLiteral("plant/line1/#"), qos, 2);
    QVERIFY(sub.waitSubscribed());

    const unsigned h = Mqtt_CreateClient();
    QCOMPARE(h, 1u);
    QCOMPARE(Mqtt_CheckState(h), 0);
    Mqtt_Connect(h, prm(kLocalhost, m_broker->port(), nullptr, nullptr, "panel-a", true, 30, short(version)));
    QTRY_VERIFY_WITH_TIMEOUT(hasEvent(h, kState, 2), 10000);
    const QList<QPair<int, int>> expected { { kState, 1 }, { kState, 2 } };
    QCOMPARE(eventsOf(h), expected);
    QCOMPARE(Mqtt_CheckState(h), 2);

    Mqtt_Publish(h, "plant/line1/temp", "21.5", qos, false);
    Mqtt_Publish(h, "plant/line1/text", "温度 ok", qos, false);
    const QByteArray got = sub.received();
    QVERIFY2(got.contains("plant/line1/temp 21.5"), got.constData());
    QVERIFY2(got.contains("plant/line1/text 温度 ok"), got.constData());
}

void tst_Mqtt::wrong_credentials_report_an_error_until_the_right_ones_connect()
{
    MosquittoBroker locked(QStringLiteral("operator"), QStringLiteral("s3cret"));
    QVERIFY2(locked.start(), qPrintable(locked.lastError()));
    const unsigned h = Mqtt_CreateClient();
    Mqtt_Connect(h, prm(kLocalhost, locked.port(), "operator", "wrong"));
    QTRY_VERIFY_WITH_TIMEOUT(!eventsOf(h).isEmpty() && eventsOf(h).last() == qMakePair(kState, 0), 10000);
    const int error = m_recorder.eventsWithCode(kError).value(0).intAt(1);
    QVERIFY2(error == MQTT_ERR_BAD_USERNAME_OR_PASSWORD || error == MQTT_ERR_NOT_AUTHORIZED,
        qPrintable(QString::number(error)));
    QCOMPARE(Mqtt_CheckState(h), 0);

    m_recorder.clear();
    Mqtt_Connect(h, prm(kLocalhost, locked.port(), "operator", "s3cret"));
    QTRY_VERIFY_WITH_TIMEOUT(hasEvent(h, kState, 2), 10000);
    QTRY_VERIFY_WITH_TIMEOUT(hasEvent(h, kError, MQTT_ERR_NONE), 2000); // the error is cleared
}

void tst_Mqtt::lost_connection_reports_state_0_and_a_long_connection_comes_back()
{
    const unsigned h = Mqtt_CreateClient();
    Mqtt_Connect(h, prm(kLocalhost, m_broker->port()));
    QTRY_VERIFY_WITH_TIMEOUT(hasEvent(h, kState, 2), 10000);
    m_recorder.clear();

    m_broker->stop();
    QTRY_VERIFY_WITH_TIMEOUT(hasEvent(h, kState, 0), 10000);
    QVERIFY(hasEvent(h, kError, MQTT_ERR_TRANSPORT_INVALID));
    QCOMPARE(Mqtt_CheckState(h), 0);

    QVERIFY2(m_broker->start(), qPrintable(m_broker->lastError()));
    // retried after 1 s, then at doubling intervals
    QTRY_VERIFY_WITH_TIMEOUT(hasEvent(h, kState, 2), 40000);
    QCOMPARE(Mqtt_CheckState(h), 2);
    QVERIFY(hasEvent(h, kError, MQTT_ERR_NONE));
}

void tst_Mqtt::short_connection_is_not_retried_but_reconnects_on_request()
{
    const unsigned h = Mqtt_CreateClient();
    Mqtt_Connect(h, prm(kLocalhost, m_broker->port(), nullptr, nullptr, nullptr, false));
    QTRY_VERIFY_WITH_TIMEOUT(hasEvent(h, kState, 2), 10000);
    m_broker->stop();
    QTRY_VERIFY_WITH_TIMEOUT(
        hasEvent(h, kState, 0) && hasEvent(h, kError, MQTT_ERR_TRANSPORT_INVALID), 10000);
    QVERIFY2(m_broker->start(), qPrintable(m_broker->lastError()));
    QTest::qWait(1500); // a long connection would be back by now
    QCOMPARE(Mqtt_CheckState(h), 0);
    m_recorder.clear();
    Mqtt_ReConnect(h);
    QTRY_VERIFY_WITH_TIMEOUT(hasEvent(h, kState, 2), 10000);
    QCOMPARE(eventsOf(h).first(), qMakePair(kState, 1));
}

void tst_Mqtt::handles_are_the_lowest_free_number_from_1()
{
    QMqtt_App* app = QMqtt_App::instance();
    QCOMPARE(Mqtt_CreateClient(), 1u);
    QCOMPARE(app->createClient(3), 3u);
    QCOMPARE(app->createClient(3), 0u); // in use: nothing created
    QCOMPARE(Mqtt_CreateClient(), 2u);
    QCOMPARE(Mqtt_CreateClient(), 4u);
    QVERIFY(app->removeClient(2));
    QCOMPARE(Mqtt_CreateClient(), 2u);
    QCOMPARE(app->clientCount(), 4);
    QCOMPARE(Mqtt_CheckState(5), -1);
}

void tst_Mqtt::keep_alive_reaches_the_broker_data()
{
    QTest::addColumn<bool>("longConnect");
    QTest::addColumn<int>("given");
    QTest::addColumn<int>("used");
    QTest::newRow("long, 0 means 100") << true << 0 << 100;
    QTest::newRow("long, 20") << true << 20 << 20;
    QTest::newRow("short, 0 means none") << false << 0 << 0;
    QTest::newRow("short, 15") << false << 15 << 15;
}

void tst_Mqtt::keep_alive_reaches_the_broker()
{
    QFETCH(bool, longConnect);
    QFETCH(int, given);
    QFETCH(int, used);
    const QByteArray id = "ka-" + QByteArray(QTest::currentDataTag()).replace(' ', '_').replace(',', '_');
    const unsigned h = Mqtt_CreateClient();
    Mqtt_Connect(
        h, prm(kLocalhost, m_broker->port(), nullptr, nullptr, id.constData(), longConnect, U16(given)));
    QTRY_VERIFY_WITH_TIMEOUT(hasEvent(h, kState, 2), 10000);
    QCOMPARE(QMqtt_App::instance()->client(h)->keepAlive(), used);
    // the broker logs "New client connected from ... as <id> (p2, c1, k<keep-alive>)"
    const QByteArray expect = "as " + id + " (p2, c1, k" + QByteArray::number(used) + ")";
    QTRY_VERIFY_WITH_TIMEOUT(m_broker->log().contains(expect), 5000);
}

void tst_Mqtt::empty_client_id_keeps_the_previous_one()
{
    const unsigned h = Mqtt_CreateClient();
    const std::string generated = Mqtt_GetClientId(h);
    QVERIFY(!generated.empty());
    Mqtt_Connect(h, prm(kLocalhost, m_broker->port(), nullptr, nullptr, "hmi-07"));
    QCOMPARE(Mqtt_GetClientId(h), std::string("hmi-07"));
    Mqtt_Connect(h, prm(kLocalhost, m_broker->port(), nullptr, nullptr, ""));
    QCOMPARE(Mqtt_GetClientId(h), std::string("hmi-07"));
    Mqtt_Connect(h, prm(kLocalhost, m_broker->port()));
    QCOMPARE(Mqtt_GetClientId(h), std::string("hmi-07"));
    QTRY_VERIFY_WITH_TIMEOUT(Mqtt_CheckState(h) == 2, 10000);
    QTRY_VERIFY_WITH_TIMEOUT(m_broker->log().count("as hmi-07 ") >= 2, 5000);
}

void tst_Mqtt::disconnect_keeps_the_client()
{
    const unsigned h = Mqtt_CreateClient();
    Mqtt_Connect(h, prm(kLocalhost, m_broker->port(), nullptr, nullptr, "leaving"));
    QTRY_VERIFY_WITH_TIMEOUT(Mqtt_CheckState(h) == 2, 10000);
    m_recorder.clear();
    Mqtt_Disconnect(h, false);
    QCOMPARE(Mqtt_CheckState(h), 0);
    QTRY_VERIFY_WITH_TIMEOUT(hasEvent(h, kState, 0), 5000);
    QVERIFY(!hasEvent(h, kError, MQTT_ERR_TRANSPORT_INVALID)); // asked for, not lost
    QCOMPARE(Mqtt_GetClientId(h), std::string("leaving"));
    Mqtt_ReConnect(h);
    QTRY_VERIFY_WITH_TIMEOUT(Mqtt_CheckState(h) == 2, 10000);
}

void tst_Mqtt::bad_input_is_refused_without_harm()
{
    QCOMPARE(Mqtt_CheckState(0), -1);
    QCOMPARE(Mqtt_CheckState(0xFFFFFFFFu), -1);
    QCOMPARE(Mqtt_GetClientId(12345), std::string());
    Mqtt_Publish(12345, "t", "p", 0, false);
    Mqtt_Disconnect(12345, true);
    Mqtt_ReConnect(12345);
    Mqtt_SetVersion(12345, 4);

    Mqtt_Connect(0, prm(kLocalhost, m_broker->port())); // 0 names no client
    QCOMPARE(QMqtt_App::instance()->clientCount(), 0);

    const unsigned top = 0xFFFFFFFFu; // the highest handle is a handle like any other
    Mqtt_Connect(top, prm(kLocalhost, m_broker->port()));
    QTRY_VERIFY_WITH_TIMEOUT(Mqtt_CheckState(top) == 2, 10000);
    Mqtt_Publish(top, nullptr, "p", 0, false);
    Mqtt_Publish(top, "t", nullptr, 1, false); // an empty message
    Mqtt_Publish(top, "t", "p", 3, false);
    Mqtt_Publish(top, "", "p", 0, false);
    QCOMPARE(Mqtt_CheckState(top), 2);

    const unsigned h = Mqtt_CreateClient();
    Mqtt_SetVersion(h, 4);
    MqttConnectPrm p = prm(kLocalhost, m_broker->port(), nullptr, nullptr, nullptr, true, 30, 7);
    Mqtt_Connect(h, p); // no such protocol version
    QTRY_VERIFY_WITH_TIMEOUT(hasEvent(h, kError, MQTT_ERR_INVALID_PROTOCOL_VERSION), 5000);
    QCOMPARE(Mqtt_CheckState(h), 0);

    MqttConnectPrm bad {};
    bad.hostName = "no\xff\xfehost";
    bad.userName = "\xc3";
    bad.clientId = "id\xff";
    bad.port = m_broker->port();
    bad.version = 4;
    m_recorder.clear();
    Mqtt_Connect(h, bad);
    QTRY_VERIFY_WITH_TIMEOUT(Mqtt_CheckState(h) == 0 && !m_recorder.eventsWithCode(kError).isEmpty(), 15000);
}

void tst_Mqtt::many_clients_created_and_destroyed()
{
    QMqtt_App* app = QMqtt_App::instance();
    for (int round = 0; round < 5; ++round) {
        QList<unsigned> handles;
        for (int i = 0; i < 10; ++i) {
            const unsigned h = Mqtt_CreateClient();
            handles << h;
            Mqtt_Connect(h, prm(kLocalhost, m_broker->port(), nullptr, nullptr, nullptr, i % 2 == 0, 10, 4));
        }
        for (unsigned h : qAsConst(handles))
            QTRY_VERIFY_WITH_TIMEOUT(Mqtt_CheckState(h) == 2, 10000);
        for (unsigned h : qAsConst(handles))
            Mqtt_Publish(h, "stress", "x", 1, false);
        // destroyed while messages may still be in flight, and with events still queued
        for (unsigned h : qAsConst(handles))
            QVERIFY(app->removeClient(h));
    }
    QCOMPARE(app->clientCount(), 0);
    QTest::qWait(200); // events posted before the removals are still delivered harmlessly
}

QTEST_GUILESS_MAIN(tst_Mqtt)
#include "tst_mqtt.moc"
