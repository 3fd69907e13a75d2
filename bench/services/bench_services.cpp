// Services against their bare libraries, measured in the same run:
//  - queued single-row SQLite writes vs the same statements through QSqlQuery in one thread,
//    each in its own transaction (throughput, goal >= 0.8x);
//  - a read of 10,000 rows x 5 columns vs QSqlQuery reading every value as text (time, goal <= 1.2x);
//  - Mqtt_Publish vs MQTTAsync_sendMessage to the same local broker, until a subscriber has
//    every message (throughput, goal >= 0.8x);
//  - get_md5_hash vs QCryptographicHash (time, goal <= 1.5x).
#include "benchreport.h"

#include <qgui/mqtt.h>
#include <qgui/xdatabase.h>
#include <qgui/xmd5.h>

#include "common/mosquittobroker.h"
#include "mqtt/qmqtt_app.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QElapsedTimer>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>
#include <QVariant>

#include <MQTTAsync.h>

#include <atomic>
#include <cstdio>

namespace {

int g_results = 0;

bool spinUntil(const std::function<bool()>& done, int timeoutMs)
{
    QElapsedTimer t;
    t.start();
    QTimer tick; // wakes the loop for conditions that no event announces
    tick.start(1);
    while (!done()) {
        if (t.elapsed() > timeoutMs)
            return false;
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    return true;
}

QSqlDatabase bareSqlite(const QString& file, const QString& name)
{
    QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
    db.setDatabaseName(file);
    db.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=30000"));
    db.open();
    QSqlQuery(db).exec(QStringLiteral("pragma journal_mode=WAL"));
    return db;
}

void benchDatabase(const QTemporaryDir& dir)
{
    const QString ours = dir.filePath(QStringLiteral("ours.db"));
    const QString base = dir.filePath(QStringLiteral("base.db"));
    std::list<xDatabase::DbConnInfo> infos { { 1, "QSQLITE", "", "", "", ours.toStdString(), -1 } };
    xDatabase::db_init(infos, [](xDatabase::DbQueryResult*) { ++g_results; });
    QSqlDatabase bare = bareSqlite(base, QStringLiteral("bare"));

    const char* create = "create table w (id integer primary key, v text)";
    xDatabase::db_querySync(1, create, false);
    QSqlQuery(bare).exec(QString::fromLatin1(create));

    // writes
    const int writes = 400;
    std::vector<std::string> statements;
    for (int i = 0; i < writes; ++i)
        statements.push_back("insert into w (v) values ('row " + std::to_string(i) + "')");
    const double oursMs = Bench::medianMs(3, [&] {
        g_results = 0;
        for (int i = 0; i < writes; ++i)
            xDatabase::db_query(1, unsigned(i), statements[size_t(i)].c_str(), false);
        spinUntil([&] { return g_results >= writes; }, 300000);
    });
    const double bareMs = Bench::medianMs(3, [&] {
        for (int i = 0; i < writes; ++i) {
            bare.transaction();
            QSqlQuery q(bare);
            q.exec(QString::fromStdString(statements[size_t(i)]));
            bare.commit();
        }
    });
    Bench::report("sqlite queued single-row writes", writes / oursMs * 1000, writes / bareMs * 1000,
        "writes/s", ">= 0.8x");

    // reads: 10,000 rows x 5 columns
    const char* create2 = "create table r (a integer, b text, c real, d text, e integer)";
    xDatabase::db_querySync(1, create2, false);
    QSqlQuery(bare).exec(QString::fromLatin1(create2));
    std::list<std::string> fill;
    for (int i = 0; i < 10000; ++i)
        fill.push_back("insert into r values (" + std::to_string(i) + ", 'name " + std::to_string(i) + "', "
            + std::to_string(i * 0.25) + ", 'some longer text value', " + std::to_string(i * 7) + ")");
    xDatabase::db_querySync(1, fill);
    bare.transaction();
    for (const std::string& s : fill)
        QSqlQuery(bare).exec(QString::fromStdString(s));
    bare.commit();

    const char* select = "select a, b, c, d, e from r";
    size_t oursRows = 0;
    const double readOurs = Bench::medianMs(9, [&] {
        g_results = 0;
        xDatabase::db_query(1, 1, select, true);
        spinUntil([&] { return g_results >= 1; }, 60000);
    });
    const double readBare = Bench::medianMs(9, [&] {
        QSqlQuery q(bare);
        q.setForwardOnly(true);
        q.exec(QString::fromLatin1(select));
        std::vector<std::vector<std::string>> rows;
        while (q.next()) {
            std::vector<std::string> row;
            row.reserve(5);
            for (int c = 0; c < 5; ++c)
                row.push_back(q.value(c).toString().toStdString());
            rows.push_back(std::move(row));
        }
        oursRows = rows.size();
    });
    Bench::report("sqlite read 10000x5", readOurs, readBare, "ms", "<= 1.2x");
    xDatabase::db_close();
    bare.close();
}

// ---- MQTT ----

struct Counter {
    std::atomic<int> n { 0 };
};

int onMessage(void* context, char* topic, int, MQTTAsync_message* m)
{
    static_cast<Counter*>(context)->n.fetch_add(1);
    MQTTAsync_freeMessage(&m);
    MQTTAsync_free(topic);
    return 1;
}

void onDone(void* context, MQTTAsync_successData*)
{
    static_cast<std::atomic<bool>*>(context)->store(true);
}

MQTTAsync pahoClient(const QByteArray& uri, const char* id, Counter* counter, const char* subscribe, int qos)
{
    MQTTAsync c = nullptr;
    MQTTAsync_create(&c, uri.constData(), id, MQTTCLIENT_PERSISTENCE_NONE, nullptr);
    MQTTAsync_setCallbacks(c, counter, nullptr, &onMessage, nullptr);
    std::atomic<bool> ok { false };
    MQTTAsync_connectOptions o = MQTTAsync_connectOptions_initializer;
    o.keepAliveInterval = 30;
    o.cleansession = 1;
    o.onSuccess = &onDone;
    o.context = &ok;
    MQTTAsync_connect(c, &o);
    spinUntil([&] { return ok.load(); }, 10000);
    if (subscribe) {
        std::atomic<bool> subscribed { false };
        MQTTAsync_responseOptions r = MQTTAsync_responseOptions_initializer;
        r.onSuccess = &onDone;
        r.context = &subscribed;
        MQTTAsync_subscribe(c, subscribe, qos, &r);
        spinUntil([&] { return subscribed.load(); }, 10000);
    }
    return c;
}

void benchMqtt()
{
    MosquittoBroker broker;
    if (!broker.unavailableReason().isEmpty() || !broker.start()) {
        std::printf("BENCH mqtt skipped: %s\n", qPrintable(broker.unavailableReason() + broker.lastError()));
        return;
    }
    const QByteArray uri = "tcp://127.0.0.1:" + QByteArray::number(broker.port());
    for (int qos : { 0, 1 }) {
        const int n = qos == 0 ? 20000 : 10000;
        Counter received;
        const QByteArray topic = "bench/q" + QByteArray::number(qos);
        // The subscriber takes QoS 0, so that the broker's per-subscriber queue limits
        // of QoS 1 do not drop messages; the publishers use the QoS measured.
        MQTTAsync sub = pahoClient(uri, "bench-sub", &received, topic.constData(), 0);

        // ours
        const unsigned h = MQTT::Mqtt_CreateClient();
        MQTT::MqttConnectPrm p {};
        p.hostName = "127.0.0.1";
        p.port = broker.port();
        p.version = 4;
        p.keepAlive = 30;
        MQTT::Mqtt_Connect(h, p);
        spinUntil([&] { return MQTT::Mqtt_CheckState(h) == 2; }, 10000);
        received.n = 0;
        QElapsedTimer t;
        t.start();
        for (int i = 0; i < n; ++i)
            MQTT::Mqtt_Publish(h, topic.constData(), "value 12345.678", (unsigned char)qos, false);
        spinUntil([&] { return received.n.load() >= n; }, 60000);
        const double oursMs = t.nsecsElapsed() / 1e6;
        const int oursGot = received.n.load();
        MQTT::QMqtt_App::instance()->removeClient(h);

        // bare Paho
        Counter unused;
        MQTTAsync pub = pahoClient(uri, "bench-bare", &unused, nullptr, 0);
        received.n = 0;
        t.restart();
        for (int i = 0; i < n; ++i) {
            MQTTAsync_message m = MQTTAsync_message_initializer;
            static const char payload[] = "value 12345.678";
            m.payload = const_cast<char*>(payload);
            m.payloadlen = int(sizeof payload - 1);
            m.qos = qos;
            MQTTAsync_responseOptions r = MQTTAsync_responseOptions_initializer;
            MQTTAsync_sendMessage(pub, topic.constData(), &m, &r);
        }
        spinUntil([&] { return received.n.load() >= n; }, 60000);
        const double bareMs = t.nsecsElapsed() / 1e6;
        const int bareGot = received.n.load();
        MQTTAsync_disconnectOptions d = MQTTAsync_disconnectOptions_initializer;
        MQTTAsync_disconnect(pub, &d);
        MQTTAsync_disconnect(sub, &d);
        QThread::msleep(100);
        MQTTAsync_destroy(&pub);
        MQTTAsync_destroy(&sub);
        Bench::report("mqtt publish qos " + std::to_string(qos) + " (" + std::to_string(oursGot) + "/"
                + std::to_string(bareGot) + " of " + std::to_string(n) + " received)",
            oursGot / oursMs * 1000, bareGot / bareMs * 1000, "msg/s", ">= 0.8x");
    }
}

void benchMd5()
{
    QByteArray small("operator-passwd"); // 15 bytes, a normalised password
    QByteArray big(1 << 20, 'm');
    unsigned char out[16];
    for (const auto& c : { std::make_pair(&small, 200000), std::make_pair(&big, 40) }) {
        QByteArray& data = *c.first;
        const int loops = c.second;
        const double ours = Bench::medianMs(5, [&] {
            for (int i = 0; i < loops; ++i)
                XMD5::get_md5_hash(reinterpret_cast<unsigned char*>(data.data()), data.size(), out);
        });
        const double base = Bench::medianMs(5, [&] {
            for (int i = 0; i < loops; ++i)
                QCryptographicHash::hash(data, QCryptographicHash::Md5);
        });
        Bench::report("md5 " + std::to_string(data.size()) + " bytes x" + std::to_string(loops), ours, base,
            "ms", "<= 1.5x");
    }
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    QTemporaryDir dir;
    benchMd5();
    benchDatabase(dir);
    benchMqtt();
    return 0;
}
