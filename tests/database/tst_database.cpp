// The database service against real engines: SQLite files, and PostgreSQL and MariaDB
// servers started for the test on loopback.
#include <QtTest>

#include <cstdio>
#include <signal.h>

#include <qgui/xdatabase.h>

#include "common/mariadbserver.h"
#include "common/pgserver.h"
#include "database/dbconn_pool.h"
#include "database/ddatabase.h"
#include "platform/nlogger.h"

#include <QDir>
#include <QProcess>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>

#include <map>
#include <memory>
#include <stdexcept>

using xDatabase::DbConnInfo;
using xDatabase::DbQueryResult;

namespace {

enum DbNo : unsigned { kSqlite = 1, kPostgres = 2, kMariaDb = 3, kNotADatabase = 4, kBadDriver = 5 };

/* Stands in for the logic layer's result callback. */
struct Results {
    QList<DbQueryResult> list;
    int offThread = 0; ///< callbacks that did not run on the owner (main) thread
    void clear() { list.clear(); }
    int count(unsigned id) const
    {
        int n = 0;
        for (const auto& r : list)
            n += r.queryId == id;
        return n;
    }
    const DbQueryResult* find(unsigned id) const
    {
        for (const auto& r : list)
            if (r.queryId == id)
                return &r;
        return nullptr;
    }
};
Results g_results;

void onResult(DbQueryResult* r)
{
    if (QThread::currentThread() != QCoreApplication::instance()->thread())
        ++g_results.offThread;
    g_results.list.append(*r);
}

/* Runs the event loop (bounded) until \a n results are in. Sleeps only while no event
 * comes, so each result is handed over as soon as it is ready. */
bool waitForResults(int n, int timeoutMs = 60000)
{
    QElapsedTimer t;
    t.start();
    QTimer tick; // wakes the loop to look at the clock
    tick.start(100);
    while (g_results.list.size() < n && t.elapsed() < timeoutMs)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    return g_results.list.size() >= n;
}

DbQueryResult sync(unsigned db, const QByteArray& sql, bool read = false)
{
    return xDatabase::db_querySync(db, sql.constData(), read);
}

QString describe(const DbQueryResult& r)
{
    return QStringLiteral("type %1 code %2: %3")
        .arg(r.errorType)
        .arg(QString::fromStdString(r.errorCode), QString::fromStdString(r.errorText));
}

int poolThreads()
{
    int n = 0;
    for (const QString& t :
        QDir(QStringLiteral("/proc/self/task")).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile comm(QStringLiteral("/proc/self/task/%1/comm").arg(t));
        if (comm.open(QIODevice::ReadOnly) && comm.readAll().startsWith("Thread (pooled)"))
            ++n;
    }
    return n;
}

} // namespace

class tst_Database : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void read_returns_rows_in_column_order_with_null_as_empty_data() { drivers(); }
    void read_returns_rows_in_column_order_with_null_as_empty();
    void failed_statement_leaves_the_others_of_its_request_committed_data() { drivers(); }
    void failed_statement_leaves_the_others_of_its_request_committed();
    void failed_commit_is_reported_over_statement_errors_and_every_failure_is_logged_data();
    void failed_commit_is_reported_over_statement_errors_and_every_failure_is_logged();
    void requests_are_answered_in_queue_order_data() { drivers(); }
    void requests_are_answered_in_queue_order();
    void the_8193rd_waiting_request_of_a_kind_is_refused_at_once_data() { drivers(); }
    void the_8193rd_waiting_request_of_a_kind_is_refused_at_once();
    void synchronous_calls_overtake_queued_requests_data() { drivers(); }
    void synchronous_calls_overtake_queued_requests();
    void server_killed_mid_batch_answers_every_request_once_and_recovers_data();
    void server_killed_mid_batch_answers_every_request_once_and_recovers();

    void sqlite_process_killed_after_acknowledgements_keeps_them();
    void unknown_database_numbers_answer_nothing();
    void null_sql_throws_and_queues_nothing();
    void large_and_invalid_utf8_statements();
    void broken_connections_answer_every_request_with_an_error();

    void close_drops_waiting_requests_and_ends_threads_and_connections();

private:
    void drivers();
    /** Skips the row when its server is not running. */
    bool available(unsigned db);
    QByteArray idColumn(unsigned db) const;

    QTemporaryDir m_dir;
    std::unique_ptr<PgServer> m_pg;
    std::unique_ptr<MariaDbServer> m_maria;
    QString m_pgSkip;
    QString m_mariaSkip;
};

void tst_Database::drivers()
{
    QTest::addColumn<unsigned>("db");
    QTest::newRow("sqlite") << unsigned(kSqlite);
    QTest::newRow("postgres") << unsigned(kPostgres);
    QTest::newRow("mariadb") << unsigned(kMariaDb);
}

bool tst_Database::available(unsigned db)
{
    if (db == kPostgres && !m_pgSkip.isEmpty())
        return false;
    if (db == kMariaDb && !m_mariaSkip.isEmpty())
        return false;
    return true;
}

#define REQUIRE_SERVER(db)                                                                                   \
    do {                                                                                                     \
        if (!available(db))                                                                                  \
            QSKIP(qPrintable((db) == kPostgres ? m_pgSkip : m_mariaSkip));                                   \
    } while (0)

QByteArray tst_Database::idColumn(unsigned db) const
{
    switch (db) {
    case kPostgres:
        return "id serial primary key";
    case kMariaDb:
        return "id int auto_increment primary key";
    default:
        return "id integer primary key autoincrement";
    }
}

void tst_Database::initTestCase()
{
    QVERIFY(m_dir.isValid());
    m_pg.reset(new PgServer);
    m_pgSkip = m_pg->unavailableReason();
    if (m_pgSkip.isEmpty() && !m_pg->start())
        m_pgSkip = QStringLiteral("PostgreSQL did not start: ") + m_pg->lastError();
    m_maria.reset(new MariaDbServer);
    m_mariaSkip = m_maria->unavailableReason();
    if (m_mariaSkip.isEmpty() && !m_maria->start(60000))
        m_mariaSkip = QStringLiteral("MariaDB did not start: ") + m_maria->lastError();

    QFile junk(m_dir.filePath("junk.db"));
    QVERIFY(junk.open(QIODevice::WriteOnly));
    junk.write(QByteArray(8192, 'j')); // not a database: the WAL switch fails
    junk.close();

    std::list<DbConnInfo> infos;
    infos.push_back({ kSqlite, "QSQLITE", "", "", "", m_dir.filePath("main db.sqlite").toStdString(), -1 });
    infos.push_back({ kPostgres, "QPSQL", "127.0.0.1", "postgres", "", "postgres", m_pg->port() });
    infos.push_back({ kMariaDb, "QMYSQL", "127.0.0.1", "root", "", "qgui", m_maria->port() });
    infos.push_back({ kNotADatabase, "QSQLITE", "", "", "", m_dir.filePath("junk.db").toStdString(), -1 });
    infos.push_back({ kBadDriver, "QNOPE\xff\xfe", "h\xc3", "u\xff", "p", "d", 1 });
    xDatabase::db_init(infos, &onResult);
}

void tst_Database::init()
{
    g_results.clear();
}

void tst_Database::cleanup()
{
    QCOMPARE(g_results.offThread, 0);
}

void tst_Database::read_returns_rows_in_column_order_with_null_as_empty()
{
    QFETCH(unsigned, db);
    REQUIRE_SERVER(db);
    sync(db, "drop table if exists t_read");
    QVERIFY(sync(db, "create table t_read (a int, b varchar(20), c varchar(20))").errorType == 0);
    std::list<std::string> fill { "insert into t_read values (1, 'one', 'x')",
        "insert into t_read values (2, NULL, '')", "insert into t_read values (3, 'drei', 'z')" };
    QCOMPARE(xDatabase::db_querySync(db, fill).errorType, 0);

    xDatabase::db_query(db, 7, "select c, a, b from t_read order by a", true);
    QVERIFY(waitForResults(1));
    const DbQueryResult& r = g_results.list.first();
    QCOMPARE(r.queryId, 7u);
    QVERIFY2(r.errorType == 0, qPrintable(describe(r)));
    QCOMPARE(r.rows.size(), size_t(3));
    const std::vector<std::string> first { "x", "1", "one" };
    const std::vector<std::string> second { "", "2", "" }; // NULL and empty text look the same
    QVERIFY(r.rows[0] == first);
    QVERIFY(r.rows[1] == second);
    QCOMPARE(r.rows[2][2], std::string("drei"));

    const DbQueryResult empty = sync(db, "select a from t_read where a > 10", true);
    QCOMPARE(empty.errorType, 0);
    QVERIFY(empty.rows.empty());
}

void tst_Database::failed_statement_leaves_the_others_of_its_request_committed()
{
    QFETCH(unsigned, db);
    REQUIRE_SERVER(db);
    sync(db, "drop table if exists t_batch");
    QVERIFY(sync(db, "create table t_batch (v int)").errorType == 0);
    std::list<std::string> sqls { "insert into t_batch values (1)", "insert into no_such_table values (2)",
        "insert into t_batch values (3)" };
    xDatabase::db_query(db, 11, sqls);
    QVERIFY(waitForResults(1));
    const DbQueryResult& r = g_results.list.first();
    QCOMPARE(r.queryId, 11u);
    QCOMPARE(r.errorType, 2); // statement error
    QVERIFY(!r.errorText.empty());

    const DbQueryResult rows = sync(db, "select v from t_batch order by v", true);
    QVERIFY2(rows.errorType == 0, qPrintable(describe(rows)));
    QCOMPARE(rows.rows.size(), size_t(2));
    QCOMPARE(rows.rows[0][0], std::string("1"));
    QCOMPARE(rows.rows[1][0], std::string("3"));
}

void tst_Database::failed_commit_is_reported_over_statement_errors_and_every_failure_is_logged_data()
{
    QTest::addColumn<QStringList>("sqls");
    QTest::addColumn<bool>("commitError"); // reported: the commit's error, else a statement's
    QTest::addColumn<QString>("errorText"); // a part of the reported error text
    QTest::addColumn<QStringList>("logged"); // the statements whose failure is logged
    QTest::addColumn<int>("kept"); // rows of t_child after the request

    const QString good = QStringLiteral("insert into t_child values (1, 1)");
    const QString notNull = QStringLiteral("insert into t_child values (NULL, 1)");
    const QString syntax = QStringLiteral("insert into t_child valuez (2, 1)");
    const QString orphan = QStringLiteral("insert into t_child values (3, 99)"); // no parent 99
    const QString commit = QStringLiteral("COMMIT");
    QTest::newRow("statements and commit fail")
        << QStringList { good, notNull, syntax, orphan } << true << QStringLiteral("FOREIGN KEY")
        << QStringList { notNull, syntax, commit } << 0;
    QTest::newRow("only the commit fails") << QStringList { good, orphan } << true
                                           << QStringLiteral("FOREIGN KEY") << QStringList { commit } << 0;
    QTest::newRow("statements fail, the commit succeeds: the first failure")
        << QStringList { good, notNull, syntax } << false << QStringLiteral("NOT NULL")
        << QStringList { notNull, syntax } << 1;
}

void tst_Database::failed_commit_is_reported_over_statement_errors_and_every_failure_is_logged()
{
    QFETCH(QStringList, sqls);
    QFETCH(bool, commitError);
    QFETCH(QString, errorText);
    QFETCH(QStringList, logged);
    QFETCH(int, kept);

    NLog::NLogger* logger = NLog::NLogger::instance();
    QVERIFY(logger->setLogFolder(m_dir.filePath(QStringLiteral("log")).toStdString()));
    QFile logFile(QString::fromStdString(logger->logFile()));

    sync(kSqlite, "drop table if exists t_child");
    sync(kSqlite, "drop table if exists t_parent");
    QVERIFY(sync(kSqlite, "create table t_parent (id integer primary key)").errorType == 0);
    QVERIFY(sync(kSqlite, "insert into t_parent values (1)").errorType == 0);
    QVERIFY(sync(kSqlite,
                "create table t_child (v int not null, parent int references t_parent (id) "
                "deferrable initially deferred)")
                .errorType
        == 0);

    // A deferred foreign key is only checked at COMMIT, and SQLite only checks foreign keys
    // on a connection that switched them on outside a transaction: the batch runs here, on
    // this thread's connection of the pool, through the same code as a worker's.
    {
        QSqlDatabase db = xDatabase::DbConn_Pool::instance()->pull(kSqlite);
        QSqlQuery pragma(db);
        QVERIFY(pragma.exec(QStringLiteral("pragma foreign_keys = on")));
    }
    logger->flush();
    const qint64 logStart = logFile.size();

    xDatabase::DQuery request { 21, {} };
    for (const QString& sql : qAsConst(sqls))
        request.sqls.push_back(sql.toStdString());
    const QList<DbQueryResult> results = xDatabase::DDatabase::doQuery(kSqlite, { request });
    QCOMPARE(results.size(), 1);
    const DbQueryResult& r = results.first();
    QCOMPARE(r.queryId, 21u);
    // SQLite's statement failures come as connection errors (1) from the driver; the commit's
    // as a transaction error (3).
    QVERIFY2(commitError ? r.errorType == 3 : r.errorType != 0 && r.errorType != 3, qPrintable(describe(r)));
    QVERIFY2(QString::fromStdString(r.errorText).contains(errorText), qPrintable(describe(r)));

    logger->flush();
    QVERIFY(logFile.open(QIODevice::ReadOnly));
    QVERIFY(logFile.seek(logStart));
    const QString log = QString::fromUtf8(logFile.readAll());
    logFile.close();
    for (const QString& sql : qAsConst(logged))
        QVERIFY2(log.contains(QStringLiteral("sql:[%1]").arg(sql)),
            qPrintable(sql + QLatin1String(" not in:\n") + log));
    QCOMPARE(log.count(QStringLiteral("Sql Error")), logged.size());

    // A refused commit ends its transaction: the next request on the same connection runs
    // in a transaction of its own and is committed.
    xDatabase::DQuery next { 22, { "insert into t_child values (5, 1)" } };
    const DbQueryResult after = xDatabase::DDatabase::doQuery(kSqlite, { next }).value(0);
    QVERIFY2(after.errorType == 0, qPrintable(describe(after)));
    const DbQueryResult rows = sync(kSqlite, "select count(*), sum(v = 5) from t_child", true);
    QVERIFY2(rows.errorType == 0, qPrintable(describe(rows)));
    QCOMPARE(rows.rows.at(0).at(0), std::to_string(kept + 1));
    QCOMPARE(rows.rows.at(0).at(1), std::string("1"));
}

void tst_Database::requests_are_answered_in_queue_order()
{
    QFETCH(unsigned, db);
    REQUIRE_SERVER(db);
    sync(db, "drop table if exists t_order");
    QVERIFY(sync(db, "create table t_order (v int)").errorType == 0);
    const int n = 100;
    for (int i = 0; i < n; ++i) {
        xDatabase::db_query(
            db, 1000 + i, QByteArray("select ").append(QByteArray::number(i)).constData(), true);
        xDatabase::db_query(db, 2000 + i,
            QByteArray("insert into t_order values (").append(QByteArray::number(i)).append(")").constData(),
            false);
    }
    QVERIFY(waitForResults(2 * n));
    int nextRead = 0, nextWrite = 0;
    for (const DbQueryResult& r : qAsConst(g_results.list)) {
        QVERIFY2(r.errorType == 0, qPrintable(describe(r)));
        if (r.queryId < 2000) {
            QCOMPARE(r.queryId, unsigned(1000 + nextRead));
            QCOMPARE(r.rows.at(0).at(0), std::to_string(nextRead));
            ++nextRead;
        } else {
            QCOMPARE(r.queryId, unsigned(2000 + nextWrite++));
        }
    }
    const DbQueryResult written = sync(db, "select v from t_order", true);
    QCOMPARE(written.rows.size(), size_t(n));
}

void tst_Database::the_8193rd_waiting_request_of_a_kind_is_refused_at_once()
{
    QFETCH(unsigned, db);
    REQUIRE_SERVER(db);
    // No event loop runs in between: the first request of each kind is taken at once and
    // 8192 wait, so the next one is the 8193rd waiting.
    const unsigned n = 1 + 8192 + 1;
    for (unsigned i = 0; i < n; ++i)
        xDatabase::db_query(db, i, "select 1", true);
    QCOMPARE(g_results.list.size(), 1); // the refusal, delivered before db_query returned
    QCOMPARE(g_results.list.first().queryId, n - 1);
    QCOMPARE(g_results.list.first().errorText, std::string("too many sqls"));
    QVERIFY(g_results.list.first().errorType != 0);

    // Writes are counted apart from reads. (A read-only statement keeps 8192 commits cheap
    // on SQLite, which syncs the disk at every commit that wrote something.)
    for (unsigned i = 0; i < n; ++i)
        xDatabase::db_query(db, 100000 + i, "select 1", false);
    QCOMPARE(g_results.list.size(), 2);
    QCOMPARE(g_results.list.last().queryId, 100000 + n - 1);
    QCOMPARE(g_results.list.last().errorText, std::string("too many sqls"));

    QVERIFY(waitForResults(2 * int(n), 120000));
    QCOMPARE(g_results.list.size(), 2 * int(n));
    for (const DbQueryResult& r : qAsConst(g_results.list))
        QCOMPARE(g_results.count(r.queryId), 1);
}

void tst_Database::synchronous_calls_overtake_queued_requests()
{
    QFETCH(unsigned, db);
    REQUIRE_SERVER(db);
    sync(db, "drop table if exists t_sync");
    QVERIFY(sync(db, "create table t_sync (" + idColumn(db) + ", tag varchar(10))").errorType == 0);
    const int n = 200;
    for (int i = 0; i < n; ++i)
        xDatabase::db_query(db, i, "insert into t_sync (tag) values ('queued')", false);
    // Only the first request has started; the others wait for the owner's event loop.
    const DbQueryResult s = sync(db, "insert into t_sync (tag) values ('sync')");
    QVERIFY2(s.errorType == 0, qPrintable(describe(s)));
    const DbQueryResult seen = sync(db, "select count(*) from t_sync", true);
    QVERIFY(std::stoi(seen.rows.at(0).at(0)) <= 2);
    QVERIFY(waitForResults(n));
    const DbQueryResult before
        = sync(db, "select count(*) from t_sync where id < (select id from t_sync where tag = 'sync')", true);
    QVERIFY2(before.errorType == 0, qPrintable(describe(before)));
    QVERIFY(std::stoi(before.rows.at(0).at(0)) <= 1);
}

void tst_Database::server_killed_mid_batch_answers_every_request_once_and_recovers_data()
{
    QTest::addColumn<unsigned>("db");
    QTest::newRow("postgres") << unsigned(kPostgres);
    QTest::newRow("mariadb") << unsigned(kMariaDb);
}

void tst_Database::server_killed_mid_batch_answers_every_request_once_and_recovers()
{
    // 20 times: a batch of writes runs when the server is killed, as a crash would; reads are queued while it
    // is down. Every request is answered exactly once, every write reported done is in the table once the
    // server is back, and the pool works again within 10 s of the server's return.
    QFETCH(unsigned, db);
    REQUIRE_SERVER(db);
    ServerProcess* server = db == kPostgres ? static_cast<ServerProcess*>(m_pg.get()) : m_maria.get();
    sync(db, "drop table if exists t_kill");
    QVERIFY(sync(db, "create table t_kill (v int)").errorType == 0);
    const QByteArray pause = db == kPostgres ? "select pg_sleep(0.01)" : "select sleep(0.01)";

    const int rounds = 20, writes = 40, reads = 5;
    int committed = 0, failedRounds = 0;
    qint64 slowestBack = 0;
    for (int round = 0; round < rounds; ++round) {
        g_results.clear();
        const unsigned base = unsigned(round) * 10000;
        for (int i = 0; i < writes; ++i) {
            std::list<std::string> sqls { "insert into t_kill values (" + std::to_string(base + i) + ")",
                pause.toStdString() };
            xDatabase::db_query(db, base + unsigned(i), sqls);
        }
        QVERIFY(waitForResults(1)); // the first batch is done, the rest runs as the next one
        QTest::qWait(50 + 10 * (round % 5));
        server->kill();
        for (int i = 0; i < reads; ++i)
            xDatabase::db_query(db, base + 1000 + unsigned(i), "select count(*) from t_kill", true);
        QVERIFY(waitForResults(writes + reads, 120000));
        QTest::qWait(100);
        QCOMPARE(g_results.list.size(), writes + reads); // exactly one answer each
        bool failed = false;
        for (const DbQueryResult& r : qAsConst(g_results.list)) {
            QCOMPARE(g_results.count(r.queryId), 1);
            if (r.queryId >= base + 1000)
                continue; // a read
            if (r.errorType == 0)
                ++committed;
            else
                failed = true;
        }
        failedRounds += failed ? 1 : 0;

        QVERIFY2(server->start(60000), qPrintable(server->lastError()));
        QElapsedTimer back;
        back.start();
        bool usable = false;
        while (!usable && back.elapsed() < 10000) {
            usable = sync(db, "select 1", true).errorType == 0;
            if (!usable)
                QTest::qWait(100);
        }
        QVERIFY2(usable, qPrintable(QStringLiteral("round %1: the pool is not usable 10 s after the server's return")
                                        .arg(round)));
        slowestBack = qMax(slowestBack, back.elapsed());
    }
    QVERIFY2(failedRounds > rounds / 2, "the server was killed while batches ran");
    // Every request reported as done was kept (one per round may have committed unseen).
    const DbQueryResult count = sync(db, "select count(*) from t_kill", true);
    QVERIFY2(count.errorType == 0, qPrintable(describe(count)));
    const int rows = std::stoi(count.rows.at(0).at(0));
    QVERIFY2(rows >= committed && rows <= committed + rounds,
        qPrintable(QStringLiteral("%1 rows, %2 reported").arg(rows).arg(committed)));
    std::printf("%s killed %d times: %d writes reported done, %d rows kept, the pool back within %lld ms\n",
        QTest::currentDataTag(), rounds, committed, rows, slowestBack);
    std::fflush(stdout);
}

void tst_Database::unknown_database_numbers_answer_nothing()
{
    xDatabase::db_query(99, 1, "select 1", true);
    std::list<std::string> sqls { "select 1" };
    xDatabase::db_query(99, 2, sqls);
    const DbQueryResult r = xDatabase::db_querySync(99, "select 1", true);
    QCOMPARE(r.queryId, 0u);
    QCOMPARE(r.errorType, 0);
    QVERIFY(r.errorCode.empty() && r.errorText.empty() && r.rows.empty());
    QVERIFY(xDatabase::db_querySync(99, sqls).rows.empty());
    QTest::qWait(200);
    QCOMPARE(g_results.list.size(), 0);
}

void tst_Database::null_sql_throws_and_queues_nothing()
{
    QVERIFY_EXCEPTION_THROWN(xDatabase::db_query(kSqlite, 1, nullptr, true), std::logic_error);
    QVERIFY_EXCEPTION_THROWN(xDatabase::db_querySync(kSqlite, nullptr, false), std::logic_error);
    QTest::qWait(200);
    QCOMPARE(g_results.list.size(), 0);
}

void tst_Database::large_and_invalid_utf8_statements()
{
    sync(kSqlite, "drop table if exists t_big");
    QVERIFY(sync(kSqlite, "create table t_big (v text)").errorType == 0);
    const QByteArray big(1 << 20, 'b');
    xDatabase::db_query(kSqlite, 1, ("insert into t_big values ('" + big + "')").constData(), false);
    QVERIFY(waitForResults(1)); // reads and writes run side by side: read after the write
    xDatabase::db_query(kSqlite, 2, "select length(v) from t_big", true);
    xDatabase::db_query(kSqlite, 3, "select 'a\xff\xfez'", true); // replaced, not rejected
    xDatabase::db_query(kSqlite, 4, "this is not sql", true);
    QVERIFY(waitForResults(4));
    QCOMPARE(g_results.find(1)->errorType, 0);
    QCOMPARE(g_results.find(2)->rows.at(0).at(0), std::to_string(1 << 20));
    QCOMPARE(QString::fromStdString(g_results.find(3)->rows.at(0).at(0)), QStringLiteral("a\uFFFD\uFFFDz"));
    QCOMPARE(g_results.find(4)->errorType, 2);
}

void tst_Database::broken_connections_answer_every_request_with_an_error()
{
    // A file that is not a database (its WAL switch fails, it is used all the same) and a
    // driver that does not exist: every request still gets its one answer.
    for (unsigned db : { unsigned(kNotADatabase), unsigned(kBadDriver) }) {
        xDatabase::db_query(db, db * 10 + 1, "select count(*) from sqlite_master", true);
        xDatabase::db_query(db, db * 10 + 2, "create table x (v int)", false);
    }
    QVERIFY(waitForResults(4));
    QTest::qWait(100);
    QCOMPARE(g_results.list.size(), 4);
    for (const DbQueryResult& r : qAsConst(g_results.list))
        QVERIFY2(r.errorType != 0 && !r.errorText.empty(), qPrintable(describe(r)));
    QCOMPARE(g_results.find(kBadDriver * 10 + 1)->errorType, 1); // connection error
    QVERIFY(xDatabase::db_querySync(kBadDriver, "select 1", true).errorType != 0);
}

void tst_Database::close_drops_waiting_requests_and_ends_threads_and_connections()
{
    for (int i = 0; i < 100; ++i)
        xDatabase::db_query(kSqlite, i, "select 1", true);
    QVERIFY(poolThreads() > 0);
    xDatabase::db_close();
    QVERIFY(g_results.list.size() <= 1); // at most the request that was running
    QTest::qWait(300);
    QVERIFY(g_results.list.size() <= 1);
    QCOMPARE(poolThreads(), 0);
    for (const QString& name : QSqlDatabase::connectionNames())
        QVERIFY2(!name.startsWith(QLatin1String("CNM0X")), qPrintable(name));
    xDatabase::db_query(kSqlite, 500, "select 1", true); // closed: ignored
    QVERIFY(xDatabase::db_querySync(kSqlite, "select 1", true).rows.empty());
    QTest::qWait(100);
    QVERIFY(g_results.list.size() <= 1);
}

/* Child mode: writes numbered rows to the SQLite file \a path through the service, one request at a time,
 * and prints "ack <n>" for each acknowledged one; the parent kills it at some point. */
int sqliteWriter(int argc, char** argv, const char* path)
{
    QCoreApplication app(argc, argv);
    std::list<DbConnInfo> infos { { 1, "QSQLITE", "", "", "", path, -1 } };
    unsigned next = 0;
    xDatabase::db_init(infos, [&next](DbQueryResult* r) {
        if (r->errorType == 0 && r->queryId > 0) {
            std::printf("ack %u\n", r->queryId);
            std::fflush(stdout);
        }
        ++next;
        xDatabase::db_query(1, next, ("insert into t_ack values (" + std::to_string(next) + ")").c_str(), false);
    });
    xDatabase::db_querySync(1, "create table if not exists t_ack (v int primary key)", false);
    xDatabase::db_query(1, 0, "select 1", true); // starts the chain of writes
    return app.exec();
}

void tst_Database::sqlite_process_killed_after_acknowledgements_keeps_them()
{
    // the panel's process dies (SIGKILL, as a power cut of the process would) while it writes: the file
    // passes SQLite's integrity check and holds every row the service reported as done
    const QString file = m_dir.filePath(QStringLiteral("killed.sqlite"));
    for (int round = 0; round < 5; ++round) {
        QProcess writer;
        writer.setProcessChannelMode(QProcess::SeparateChannels);
        writer.start(QCoreApplication::applicationFilePath(), { QStringLiteral("--sqlite-writer"), file });
        QVERIFY(writer.waitForStarted());
        QByteArray out;
        QVERIFY(QTest::qWaitFor(
            [&] {
                out += writer.readAllStandardOutput();
                return out.count('\n') >= 30 + 10 * round;
            },
            30000));
        ::kill(pid_t(writer.processId()), SIGKILL);
        QVERIFY(writer.waitForFinished(5000));
        out += writer.readAllStandardOutput();
        QList<int> acked;
        for (const QByteArray& line : out.split('\n')) {
            if (line.startsWith("ack "))
                acked << line.mid(4).toInt();
        }
        QVERIFY(!acked.isEmpty());

        const QString name = QStringLiteral("killed-check-%1").arg(round);
        {
            QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), name);
            db.setDatabaseName(file);
            QVERIFY(db.open());
            QSqlQuery q(db);
            QVERIFY(q.exec(QStringLiteral("PRAGMA integrity_check")) && q.next());
            QCOMPARE(q.value(0).toString(), QStringLiteral("ok"));
            QSet<int> stored;
            QVERIFY(q.exec(QStringLiteral("select v from t_ack")));
            while (q.next())
                stored.insert(q.value(0).toInt());
            for (int v : acked)
                QVERIFY2(stored.contains(v), qPrintable(QStringLiteral("row %1 acknowledged but missing").arg(v)));
        }
        QSqlDatabase::removeDatabase(name);
    }
}

int main(int argc, char** argv)
{
    if (argc >= 3 && qstrcmp(argv[1], "--sqlite-writer") == 0)
        return sqliteWriter(argc, argv, argv[2]);
    QCoreApplication app(argc, argv);
    tst_Database tc;
    QTEST_SET_MAIN_SOURCE_PATH
    return QTest::qExec(&tc, argc, argv);
}
#include "tst_database.moc"
