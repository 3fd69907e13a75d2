// MD5 and operator password blocks.
#include <QtTest>

#include <qgui/xmd5.h>

#include "utils/md5.h"

#include <QCryptographicHash>
#include <QRandomGenerator>

#include <ctime>
#include <thread>
#include <vector>

namespace {

QByteArray md5(const QByteArray& data)
{
    QByteArray out(16, '\0');
    XMD5::get_md5_hash(reinterpret_cast<unsigned char*>(const_cast<char*>(data.constData())), data.size(),
        reinterpret_cast<unsigned char*>(out.data()));
    return out;
}

QByteArray block(const char* password)
{
    QByteArray b(64, '\0');
    XMD5::encrypt(password, reinterpret_cast<unsigned char*>(b.data()));
    return b;
}

int check(const char* password, const QByteArray& b)
{
    return XMD5::check_pwd(password, reinterpret_cast<const unsigned char*>(b.constData()));
}

/* Waits (bounded) until the wall clock enters a new second. */
bool waitForNextSecond()
{
    const std::time_t start = std::time(nullptr);
    for (int i = 0; i < 300 && std::time(nullptr) == start; ++i)
        QTest::qSleep(10);
    return std::time(nullptr) != start;
}

} // namespace

class tst_PasswordBlocks : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void md5_matches_the_rfc1321_test_suite_data();
    void md5_matches_the_rfc1321_test_suite();
    void md5_matches_qcryptographichash_on_random_data_data();
    void md5_matches_qcryptographichash_on_random_data();
    void md5_append_in_pieces_equals_one_shot();
    void md5_bad_arguments_hash_nothing_and_do_not_crash();

    void block_of_a_password_passes_and_others_fail_data();
    void block_of_a_password_passes_and_others_fail();
    void blocks_of_different_seconds_differ_and_both_pass();
    void blocks_made_by_threads_at_once_are_the_same_within_a_second();
    void every_hidden_digest_byte_counts();
    void decrypt_recovers_the_digest_of_the_normalised_password();
    void i2c_blocks_are_ordinary_blocks();
    void length_taking_variants_hash_exact_bytes();
    void null_passwords_and_blocks_are_refused();
};

void tst_PasswordBlocks::md5_matches_the_rfc1321_test_suite_data()
{
    QTest::addColumn<QByteArray>("input");
    QTest::addColumn<QByteArray>("hex");
    QTest::newRow("empty") << QByteArray("") << QByteArray("d41d8cd98f00b204e9800998ecf8427e");
    QTest::newRow("a") << QByteArray("a") << QByteArray("0cc175b9c0f1b6a831c399e269772661");
    QTest::newRow("abc") << QByteArray("abc") << QByteArray("900150983cd24fb0d6963f7d28e17f72");
    QTest::newRow("message digest") << QByteArray("message digest")
                                    << QByteArray("f96b697d7cb7938d525a2f31aaf161d0");
    QTest::newRow("alphabet") << QByteArray("abcdefghijklmnopqrstuvwxyz")
                              << QByteArray("c3fcd3d76192e4007dfb496cca67e13b");
    QTest::newRow("alphanumeric") << QByteArray(
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789")
                                  << QByteArray("d174ab98d277d9f5a5611c2c9f419d9f");
    QTest::newRow("digits x8") << QByteArray("1234567890").repeated(8)
                               << QByteArray("57edf4a22be3c955ac49da2e2107b67a");
}

void tst_PasswordBlocks::md5_matches_the_rfc1321_test_suite()
{
    QFETCH(QByteArray, input);
    QFETCH(QByteArray, hex);
    QCOMPARE(md5(input).toHex(), hex);
}

void tst_PasswordBlocks::md5_matches_qcryptographichash_on_random_data_data()
{
    QTest::addColumn<int>("length");
    // around the padding boundaries (55/56/64 bytes) and a large input
    for (int n : { 1, 15, 55, 56, 57, 63, 64, 65, 119, 120, 127, 128, 1000, 1 << 20 })
        QTest::newRow(qPrintable(QString::number(n))) << n;
}

void tst_PasswordBlocks::md5_matches_qcryptographichash_on_random_data()
{
    QFETCH(int, length);
    QByteArray data(length, Qt::Uninitialized);
    for (char& c : data)
        c = char(QRandomGenerator::global()->bounded(256));
    QCOMPARE(md5(data).toHex(), QCryptographicHash::hash(data, QCryptographicHash::Md5).toHex());
}

void tst_PasswordBlocks::md5_append_in_pieces_equals_one_shot()
{
    QByteArray data(5000, Qt::Uninitialized);
    for (char& c : data)
        c = char(QRandomGenerator::global()->bounded(256));
    MD5::md5_state st;
    MD5::md5_init(&st);
    int pos = 0;
    while (pos < data.size()) {
        const int n = qMin(data.size() - pos, QRandomGenerator::global()->bounded(1, 130));
        MD5::md5_append(&st, reinterpret_cast<const uint8_t*>(data.constData()) + pos, size_t(n));
        pos += n;
    }
    QByteArray out(16, '\0');
    MD5::md5_finish(&st, reinterpret_cast<uint8_t*>(out.data()));
    QCOMPARE(out, md5(data));
}

void tst_PasswordBlocks::md5_bad_arguments_hash_nothing_and_do_not_crash()
{
    const QByteArray empty = QByteArray::fromHex("d41d8cd98f00b204e9800998ecf8427e");
    unsigned char data[3] = { 'a', 'b', 'c' };
    QByteArray out(16, '\0');
    auto* o = reinterpret_cast<unsigned char*>(out.data());
    XMD5::get_md5_hash(nullptr, 5, o);
    QCOMPARE(out, empty);
    XMD5::get_md5_hash(data, -1, o);
    QCOMPARE(out, empty);
    XMD5::get_md5_hash(data, 3, nullptr); // nothing to write to: nothing happens
}

void tst_PasswordBlocks::block_of_a_password_passes_and_others_fail_data()
{
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<QByteArray>("entered");
    QTest::addColumn<int>("result");
    QTest::newRow("same") << QByteArray("operator1") << QByteArray("operator1") << 1;
    QTest::newRow("other") << QByteArray("operator1") << QByteArray("operator2") << 0;
    QTest::newRow("padding zeros are the padding") << QByteArray("abc") << QByteArray("abc000") << 1;
    QTest::newRow("not any character") << QByteArray("abc") << QByteArray("abc   ") << 0;
    QTest::newRow("empty is fifteen zeros") << QByteArray("") << QByteArray("000000000000000") << 1;
    QTest::newRow("empty is not zero") << QByteArray("") << QByteArray("1") << 0;
    QTest::newRow("16th character ignored")
        << QByteArray("abcdefghijklmnoX") << QByteArray("abcdefghijklmnoY") << 1;
    QTest::newRow("15th character counts")
        << QByteArray("abcdefghijklmnX") << QByteArray("abcdefghijklmnY") << 0;
    QTest::newRow("utf-8") << QByteArray("密码口令") << QByteArray("密码口令") << 1;
}

void tst_PasswordBlocks::block_of_a_password_passes_and_others_fail()
{
    QFETCH(QByteArray, stored);
    QFETCH(QByteArray, entered);
    QFETCH(int, result);
    QCOMPARE(check(entered.constData(), block(stored.constData())), result);
}

void tst_PasswordBlocks::blocks_of_different_seconds_differ_and_both_pass()
{
    QVERIFY(waitForNextSecond());
    const std::time_t t = std::time(nullptr);
    const QByteArray first = block("secret");
    const QByteArray again = block("secret");
    if (std::time(nullptr) == t)
        QCOMPARE(again, first); // same second, same seed
    QVERIFY(waitForNextSecond());
    const QByteArray second = block("secret");
    QVERIFY(second != first);
    QCOMPARE(check("secret", first), 1);
    QCOMPARE(check("secret", second), 1);
}

void tst_PasswordBlocks::blocks_made_by_threads_at_once_are_the_same_within_a_second()
{
    // the seed and its draws belong together: a thread seeding in between must not mix two blocks
    for (int attempt = 0; attempt < 5; ++attempt) {
        QVERIFY(waitForNextSecond());
        const std::time_t t = std::time(nullptr);
        std::vector<QByteArray> blocks(8);
        std::vector<std::thread> threads;
        for (size_t i = 0; i < blocks.size(); ++i)
            threads.emplace_back([&blocks, i]() {
                for (int n = 0; n < 200; ++n)
                    blocks[i] = block("shift-lead");
            });
        for (std::thread& th : threads)
            th.join();
        if (std::time(nullptr) != t)
            continue; // crossed into the next second: try again
        for (const QByteArray& b : blocks)
            QCOMPARE(b, blocks.front());
        return;
    }
    QSKIP("every attempt crossed a second");
}

void tst_PasswordBlocks::every_hidden_digest_byte_counts()
{
    // Changing any single byte that carries the digest must make the check fail, so the
    // comparison looks at all 16 bytes. Some bytes are random filler and change nothing.
    const QByteArray good = block("pass-word");
    int carrying = 0;
    for (int i = 0; i < 64; ++i) {
        QByteArray b = good;
        b[i] = char(b[i] ^ 0x5a);
        unsigned char before[16], after[16];
        XMD5::decrypt_hash(before, reinterpret_cast<const unsigned char*>(good.constData()));
        XMD5::decrypt_hash(after, reinterpret_cast<const unsigned char*>(b.constData()));
        const bool digestChanged = memcmp(before, after, 16) != 0;
        QCOMPARE(check("pass-word", b), digestChanged ? 0 : 1);
        carrying += digestChanged;
    }
    QVERIFY2(carrying >= 16, qPrintable(QString::number(carrying)));
}

void tst_PasswordBlocks::decrypt_recovers_the_digest_of_the_normalised_password()
{
    const QByteArray b = block("abc");
    QByteArray digest(16, '\0');
    XMD5::decrypt_hash(reinterpret_cast<unsigned char*>(digest.data()),
        reinterpret_cast<const unsigned char*>(b.constData()));
    QCOMPARE(digest, md5("abc000000000000"));
}

void tst_PasswordBlocks::i2c_blocks_are_ordinary_blocks()
{
    const QByteArray digest = md5("plc-user0000000");
    QByteArray b(64, '\0');
    XMD5::i2c_encrypt_hash(reinterpret_cast<const unsigned char*>(digest.constData()),
        reinterpret_cast<unsigned char*>(b.data()));
    QCOMPARE(check("plc-user", b), 1);
}

void tst_PasswordBlocks::length_taking_variants_hash_exact_bytes()
{
    uint8_t b[64];
    QCOMPARE(MD5::encrypt("abc", 3, b), 1);
    QCOMPARE(MD5::check_encryption("abc", 3, b), 1);
    QCOMPARE(MD5::check_encryption("abc000", 6, b), 0); // no normalisation
    QCOMPARE(MD5::check_pwd("abc", b), 0);
    QCOMPARE(MD5::encrypt("abc", 0, b), 0);
    QCOMPARE(MD5::encrypt(nullptr, 3, b), 0);
    QCOMPARE(MD5::check_encryption("abc", -1, b), 0);
    QCOMPARE(MD5::check_encryption(nullptr, 3, b), 0);
}

void tst_PasswordBlocks::null_passwords_and_blocks_are_refused()
{
    QByteArray b(64, 'x');
    QCOMPARE(XMD5::encrypt(nullptr, reinterpret_cast<unsigned char*>(b.data())), 0);
    QCOMPARE(b, QByteArray(64, 'x'));
    QCOMPARE(XMD5::encrypt("a", nullptr), 0);
    QCOMPARE(XMD5::check_pwd(nullptr, reinterpret_cast<const unsigned char*>(block("").constData())), 0);
    QCOMPARE(XMD5::check_pwd("a", nullptr), 0);
    XMD5::encrypt_hash(nullptr, reinterpret_cast<unsigned char*>(b.data()));
    XMD5::decrypt_hash(nullptr, reinterpret_cast<const unsigned char*>(b.constData()));
    QCOMPARE(b, QByteArray(64, 'x'));
}

QTEST_GUILESS_MAIN(tst_PasswordBlocks)
#include "tst_passwordblocks.moc"
