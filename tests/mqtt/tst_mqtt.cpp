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

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <atomic>
#include <cstdio>
#include <functional>
#include <memory>
#include <thread>
#include <vector>

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

/* A listening socket on a free loopback port; -1 on failure. */
int listenOnLoopback(quint16* port)
{
    const int fd = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (fd < 0)
        return -1;
    sockaddr_in addr {};
    addr.sin_family = AF_INET;
    addr.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t len = sizeof(addr);
    if (::bind(fd, reinterpret_cast<sockaddr*>(&addr), sizeof(addr)) != 0 || ::listen(fd, 64) != 0
        || ::getsockname(fd, reinterpret_cast<sockaddr*>(&addr), &len) != 0) {
        ::close(fd);
        return -1;
    }
    *port = ntohs(addr.sin_port);
    return fd;
}

/* A broker that is no broker: Silent accepts every TCP connection and never says a word
 * (no CONNACK), Drop accepts and closes at once. Runs on a thread of its own, so it goes on
 * while the test's thread is busy. */
class FakeBroker {
public:
    enum Mode { Silent, Drop };
    explicit FakeBroker(Mode mode)
        : m_mode(mode)
    {
        m_listener = listenOnLoopback(&m_port);
        if (m_listener >= 0)
            m_thread = std::thread([this] { run(); });
    }
    ~FakeBroker() { shutdown(); }
    quint16 port() const { return m_listener >= 0 ? m_port : 0; }
    int accepted() const { return m_accepted; }
    /** Closes the listener and every connection: from now on connects are refused. */
    void shutdown()
    {
        m_stop = true;
        if (m_thread.joinable())
            m_thread.join();
        for (int fd : m_open)
            ::close(fd);
        m_open.clear();
        if (m_listener >= 0)
            ::close(m_listener);
        m_listener = -1;
    }

private:
    void run()
    {
        while (!m_stop) {
            pollfd p { m_listener, POLLIN, 0 };
            if (::poll(&p, 1, 20) <= 0)
                continue;
            const int fd = ::accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC);
            if (fd < 0)
                continue;
            ++m_accepted;
            if (m_mode == Drop)
                ::close(fd);
            else
                m_open.push_back(fd); // read by nobody, answered never
        }
    }

    const Mode m_mode;
    int m_listener = -1;
    quint16 m_port = 0;
    std::thread m_thread;
    std::atomic<bool> m_stop { false };
    std::atomic<int> m_accepted { 0 };
    std::vector<int> m_open;
};

/* The longest time between two ticks of a 10 ms timer on the calling thread: how long its
 * event loop was kept from running. */
class GapMeter {
public:
    GapMeter()
    {
        m_timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&m_timer, &QTimer::timeout, [this] { tick(); });
    }
    void start()
    {
        m_clock.start();
        m_last = 0;
        m_max = 0;
        m_timer.start(10);
    }
    void stop()
    {
        tick(); // a call that blocked just before counts too
        m_timer.stop();
    }
    qint64 maxGap() const { return m_max; }

private:
    void tick()
    {
        const qint64 now = m_clock.elapsed();
        m_max = qMax(m_max, now - m_last);
        m_last = now;
    }
    QTimer m_timer;
    QElapsedTimer m_clock;
    qint64 m_last = 0;
    qint64 m_max = 0;
};

/* Runs the event loop until \a done or \a ms passed. */
bool spinUntil(const std::function<bool()>& done, int ms)
{
    QElapsedTimer t;
    t.start();
    while (!done() && t.elapsed() < ms)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    return done();
}

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
    void broker_killed_and_restarted_20_times();
    void short_connection_is_not_retried_but_reconnects_on_request();
    void handles_are_the_lowest_free_number_from_1();
    void keep_alive_reaches_the_broker_data();
    void keep_alive_reaches_the_broker();
    void empty_client_id_keeps_the_previous_one();
    void disconnect_keeps_the_client();
    void bad_input_is_refused_without_harm();
    void many_clients_created_and_destroyed();
    void exports_return_at_once_whatever_the_broker_does_data();
    void exports_return_at_once_whatever_the_broker_does();
    void process_ends_cleanly_while_handles_are_reaped();

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
    // retried every second (then at doubling intervals)
    QTRY_VERIFY_WITH_TIMEOUT(hasEvent(h, kState, 2), 40000);
    QCOMPARE(Mqtt_CheckState(h), 2);
    QVERIFY(hasEvent(h, kError, MQTT_ERR_NONE));
}

void tst_Mqtt::broker_killed_and_restarted_20_times()
{
    // each outage: the broker killed as a crash would, back after half a second. One lost and one connected
    // state per outage, back within the outage + 2 s, and the logic layer's 10 ms cycle, which publishes and
    // asks the state every tick all along, never kept waiting by an export (the test's own starting of the
    // broker holds this thread, so the exports are timed, not the ticks).
    const unsigned h = Mqtt_CreateClient();
    Mqtt_Connect(h, prm(kLocalhost, m_broker->port(), nullptr, nullptr, "outages", true, 5));
    QTRY_VERIFY_WITH_TIMEOUT(hasEvent(h, kState, 2), 10000);
    QTimer cycle;
    int published = 0;
    qint64 longestCall = 0;
    QObject::connect(&cycle, &QTimer::timeout, [&] {
        QElapsedTimer call;
        call.start();
        Mqtt_Publish(h, "plant/outage", "tick", 1, false);
        Mqtt_CheckState(h);
        longestCall = qMax(longestCall, call.elapsed());
        ++published;
    });
    cycle.start(10);
    qint64 worstBack = 0;
    for (int outage = 0; outage < 20; ++outage) {
        m_recorder.clear();
        QElapsedTimer down;
        down.start();
        m_broker->kill();
        QVERIFY2(spinUntil([&] { return hasEvent(h, kState, 0); }, 10000), qPrintable(QString::number(outage)));
        spinUntil([] { return false; }, qMax<qint64>(0, 500 - down.elapsed()));
        QVERIFY2(m_broker->start(), qPrintable(m_broker->lastError()));
        // the outage ends when the broker accepts connections again (its start-up is part of it)
        const qint64 outageMs = down.elapsed();
        QVERIFY2(spinUntil([&] { return hasEvent(h, kState, 2); }, 40000), qPrintable(QString::number(outage)));
        const qint64 back = down.elapsed() - outageMs;
        worstBack = qMax(worstBack, back);
        QVERIFY2(back <= 2000, qPrintable(QStringLiteral("outage %1: back %2 ms after the broker").arg(outage).arg(back)));
        int lost = 0, connected = 0;
        for (const auto& e : eventsOf(h)) {
            lost += e == qMakePair(kState, 0) ? 1 : 0;
            connected += e == qMakePair(kState, 2) ? 1 : 0;
        }
        QCOMPARE(lost, 1);
        QCOMPARE(connected, 1);
    }
    cycle.stop();
    std::printf("20 outages: back at most %lld ms after the broker; longest export %lld ms over %d ticks\n",
        worstBack, longestCall, published);
    std::fflush(stdout);
    QVERIFY2(longestCall < 50, qPrintable(QString::number(longestCall)));
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

void tst_Mqtt::exports_return_at_once_whatever_the_broker_does_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<bool>("longConnect");
    QTest::addColumn<int>("version");
    QTest::newRow("silent broker, long, 3.1.1") << int(FakeBroker::Silent) << true << 4;
    QTest::newRow("silent broker, short, 5") << int(FakeBroker::Silent) << false << 5;
    QTest::newRow("silent broker, long, default version") << int(FakeBroker::Silent) << true << 0;
    QTest::newRow("connection dropped, long, 3.1.1") << int(FakeBroker::Drop) << true << 4;
    QTest::newRow("connection dropped, short, 3.1") << int(FakeBroker::Drop) << false << 3;
}

void tst_Mqtt::exports_return_at_once_whatever_the_broker_does()
{
    QFETCH(int, mode);
    QFETCH(bool, longConnect);
    QFETCH(int, version);
    FakeBroker fake { FakeBroker::Mode(mode) };
    QVERIFY2(fake.port() != 0, "no loopback listener");
    const MqttConnectPrm to
        = prm(kLocalhost, fake.port(), nullptr, nullptr, nullptr, longConnect, 30, short(version));
    QMqtt_App* app = QMqtt_App::instance();
    const unsigned h = Mqtt_CreateClient();

    // The test's thread stands for the GUI thread and its 10 ms cycle.
    GapMeter gaps;
    qint64 slowest = 0;
    QByteArray slowestCall;
    auto timed = [&](const char* what, const std::function<void()>& call) {
        QElapsedTimer t;
        t.start();
        call();
        if (slowestCall.isEmpty() || t.elapsed() > slowest) {
            slowest = t.elapsed();
            slowestCall = what;
        }
        QTest::qWait(40); // the listener takes the connection meanwhile
    };
    gaps.start();
    timed("Mqtt_Connect", [&] { Mqtt_Connect(h, to); });
    timed("Mqtt_ReConnect", [&] { Mqtt_ReConnect(h); });
    timed("Mqtt_ReConnect", [&] { Mqtt_ReConnect(h); });
    timed("Mqtt_Disconnect", [&] { Mqtt_Disconnect(h, false); });
    timed("Mqtt_Connect", [&] { Mqtt_Connect(h, to); });
    timed("Mqtt_Disconnect(force)", [&] { Mqtt_Disconnect(h, true); });
    timed("Mqtt_ReConnect", [&] { Mqtt_ReConnect(h); });
    const unsigned other = Mqtt_CreateClient();
    timed("Mqtt_Connect", [&] { Mqtt_Connect(other, to); });
    timed("client destroyed", [&] { QVERIFY(app->removeClient(other)); });
    timed("Mqtt_Connect", [&] { Mqtt_Connect(other, to); });
    timed("every client destroyed", [&] { QMqtt_App::destroyInstance(); });
    gaps.stop();
    qInfo("longest gap between ticks %lld ms; slowest call %s, %lld ms", gaps.maxGap(),
        slowestCall.constData(), slowest);
    QVERIFY2(fake.accepted() > 0, "the connects never reached the listener");
    QVERIFY2(gaps.maxGap() <= 100,
        qPrintable(QStringLiteral("the event loop stood still for %1 ms").arg(gaps.maxGap())));
    QVERIFY2(slowest <= 100,
        qPrintable(QStringLiteral("%1 took %2 ms").arg(QString::fromLatin1(slowestCall)).arg(slowest)));

    // The client still works, while handles it left behind may still wait for the listener.
    Subscriber sub(m_broker.get(), QStringLiteral("after/stall"), 1, 1);
    QVERIFY(sub.waitSubscribed());
    const unsigned live = Mqtt_CreateClient();
    Mqtt_Connect(
        live, prm(kLocalhost, m_broker->port(), nullptr, nullptr, nullptr, longConnect, 30, short(version)));
    QTRY_VERIFY_WITH_TIMEOUT(Mqtt_CheckState(live) == 2, 10000);
    Mqtt_Publish(live, "after/stall", "alive", 1, false);
    const QByteArray got = sub.received();
    QVERIFY2(got.contains("after/stall alive"), got.constData());

    // The listener goes away: the connects still waiting for it fail now. Those handles are
    // retired, so their failures never reach a client, and the reaper destroys them all.
    // (The live client's own "connected" event is posted after its state changes: let it arrive
    // before the slate is cleared.)
    QTRY_VERIFY_WITH_TIMEOUT(hasEvent(live, kState, 2), 10000);
    m_recorder.clear();
    fake.shutdown();
    QTRY_COMPARE_WITH_TIMEOUT(XMqttClient::retiredHandles(), 0, 15000);
    QTest::qWait(100);
    QCOMPARE(Mqtt_CheckState(live), 2);
    QStringList late;
    for (const auto& e : eventsOf(live))
        late << QStringLiteral("(%1, %2)").arg(e.first).arg(e.second);
    QVERIFY2(late.isEmpty(), qPrintable(late.join(' ')));
}

void tst_Mqtt::process_ends_cleanly_while_handles_are_reaped()
{
    // The helper (this program, see main) leaves a client connecting to a listener that never
    // answers, a handle retired while connecting, and one retired with a message in flight.
    QProcess child;
    child.setProcessChannelMode(QProcess::MergedChannels);
    child.start(QCoreApplication::applicationFilePath(),
        { QStringLiteral("--exit-while-reaping"), QString::number(m_broker->port()) });
    QVERIFY(child.waitForStarted());
    QVERIFY2(child.waitForFinished(120000), "the process did not end");
    const QByteArray out = child.readAll();
    QCOMPARE(child.exitStatus(), QProcess::NormalExit);
    QVERIFY2(child.exitCode() == 0, out.constData());
    QVERIFY2(out.contains("retired at exit:"), out.constData());
    QVERIFY2(!out.contains("retired at exit: 0"), out.constData()); // there was something to reap
    QVERIFY2(!out.contains("Sanitizer"), out.constData());
}

/* The helper process of process_ends_cleanly_while_handles_are_reaped. */
int exitWhileReaping(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    const quint16 brokerPort = quint16(QByteArray(argv[2]).toUInt());
    // Never accepted: the kernel completes the TCP handshake and nothing ever answers.
    quint16 silentPort = 0;
    if (listenOnLoopback(&silentPort) < 0)
        return 2;

    const unsigned waiting = Mqtt_CreateClient();
    Mqtt_Connect(waiting, prm(kLocalhost, silentPort));
    Mqtt_ReConnect(waiting); // the first handle is retired while it connects

    const unsigned live = Mqtt_CreateClient();
    Mqtt_Connect(live, prm(kLocalhost, brokerPort));
    if (!spinUntil([live] { return Mqtt_CheckState(live) == 2; }, 10000))
        return 3;
    Mqtt_Publish(live, "exit/test", "bye", 2, false);
    Mqtt_Disconnect(live, false); // retired with the message perhaps in flight
    Mqtt_Connect(live, prm(kLocalhost, brokerPort));

    std::printf("retired at exit: %d\n", XMqttClient::retiredHandles());
    std::fflush(stdout);
    return 0; // the clients go with the application object, the rest at exit
}

int main(int argc, char** argv)
{
    if (argc >= 3 && qstrcmp(argv[1], "--exit-while-reaping") == 0)
        return exitWhileReaping(argc, argv);
    QCoreApplication app(argc, argv);
    app.setAttribute(Qt::AA_Use96Dpi, true);
    tst_Mqtt tc;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&tc, argc, argv);
}

#include "tst_mqtt.moc"
