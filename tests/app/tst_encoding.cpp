// Encoding conversion between the panel's four encodings, the identifier
// helpers, and the small file and name services.
#include <QTemporaryFile>
#include <QtTest>

#include <cstring>

#include <qgui/ids.h>
#include <qgui/view.h>

class tst_Encoding : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void conversion_between_the_four_encodings_data();
    void conversion_between_the_four_encodings();
    void output_is_bounded_and_never_splits_a_character_data();
    void output_is_bounded_and_never_splits_a_character();
    void unknown_codes_and_null_buffers_data();
    void unknown_codes_and_null_buffers();
    void string_conversion_and_local_encoding();
    void identifier_helpers_data();
    void identifier_helpers();
    void storage_paths();
    void uuid_file_and_device_name();
};

static QByteArray gb(const char* hex)
{
    return QByteArray::fromHex(hex);
}

void tst_Encoding::conversion_between_the_four_encodings_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<QByteArray>("src");
    QTest::addColumn<QByteArray>("expected");
    const QByteArray zh = QString::fromUtf8("中文").toUtf8();
    QTest::newRow("UTF-8 -> GB2312") << 2 << 0 << zh << gb("d6d0cec4");
    QTest::newRow("GB2312 -> UTF-8") << 0 << 2 << gb("d6d0cec4") << zh;
    QTest::newRow("UTF-8 -> UTF-16LE") << 2 << 1 << QByteArray("Ab") << QByteArray("A\0b\0", 4);
    QTest::newRow("UTF-16LE -> UTF-8") << 1 << 2 << QByteArray("\x2d\x4e", 2) << zh.left(3);
    QTest::newRow("Latin-1 -> UTF-8") << 3 << 2 << QByteArray("caf\xe9") << QByteArray("caf\xc3\xa9");
    QTest::newRow("UTF-8 -> Latin-1") << 2 << 3 << QByteArray("caf\xc3\xa9") << QByteArray("caf\xe9");
    QTest::newRow("GB2312 -> UTF-16LE") << 0 << 1 << gb("d6d0") << QByteArray("\x2d\x4e", 2);
    QTest::newRow("invalid UTF-8 becomes U+FFFD")
        << 2 << 1 << QByteArray("a\xff") << QByteArray("a\0\xfd\xff", 4);
    QTest::newRow("same code copies bytes") << 2 << 2 << QByteArray("\xff\xfe") << QByteArray("\xff\xfe");
    QTest::newRow("unknown source read as UTF-8") << 9 << 0 << zh << gb("d6d0cec4");
    QTest::newRow("unknown target written as UTF-8") << 0 << 8 << gb("d6d0cec4") << zh;
}

void tst_Encoding::conversion_between_the_four_encodings()
{
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(QByteArray, src);
    QFETCH(QByteArray, expected);
    char dst[64];
    std::memset(dst, '#', sizeof(dst));
    const int n = View_CvtEncode(from, to, src.constData(), unsigned(src.size()), dst, sizeof(dst));
    QCOMPARE(n, expected.size());
    QCOMPARE(QByteArray(dst, n), expected);
    QCOMPARE(dst[n], '\0');
    QCOMPARE(QByteArray::fromStdString(View_CvtEncode2(from, to, src.toStdString())), expected);
}

void tst_Encoding::output_is_bounded_and_never_splits_a_character_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<QByteArray>("src");
    QTest::addColumn<int>("dstSize");
    QTest::addColumn<QByteArray>("expected");
    const QByteArray zh = QString::fromUtf8("中文字").toUtf8(); // 9 bytes
    QTest::newRow("same code copies dstSize bytes")
        << 2 << 2 << QByteArray("0123456789") << 4 << QByteArray("0123");
    QTest::newRow("UTF-8 cut before a character") << 0 << 2 << gb("d6d0cec4d7d6") << 8 << zh.left(6);
    QTest::newRow("GB2312 cut before a character") << 2 << 0 << zh << 3 << gb("d6d0");
    QTest::newRow("UTF-16LE even length") << 2 << 1 << QByteArray("abc") << 5 << QByteArray("a\0b\0", 4);
    QTest::newRow("UTF-16LE keeps surrogate pairs whole")
        << 2 << 1 << QString::fromUtf8("a😀").toUtf8() << 5 << QByteArray("a\0", 2);
    QTest::newRow("Latin-1 any byte") << 2 << 3 << QByteArray("abcdef") << 3 << QByteArray("abc");
    QTest::newRow("zero-size buffer") << 2 << 0 << zh << 0 << QByteArray();
}

void tst_Encoding::output_is_bounded_and_never_splits_a_character()
{
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(QByteArray, src);
    QFETCH(int, dstSize);
    QFETCH(QByteArray, expected);
    QByteArray buffer(dstSize + 8, '#'); // guard bytes after the allowed size
    const int n
        = View_CvtEncode(from, to, src.constData(), unsigned(src.size()), buffer.data(), unsigned(dstSize));
    QCOMPARE(n, expected.size());
    QCOMPARE(buffer.left(n), expected);
    QCOMPARE(buffer.mid(dstSize), QByteArray(8, '#')); // nothing written past dstSize
}

void tst_Encoding::unknown_codes_and_null_buffers_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("to");
    QTest::addColumn<bool>("nullSrc");
    QTest::addColumn<bool>("nullDst");
    QTest::addColumn<int>("expected");
    QTest::newRow("both codes unknown") << 9 << 8 << false << false << -1;
    QTest::newRow("negative codes") << -1 << -2 << false << false << -1;
    QTest::newRow("null source") << 2 << 0 << true << false << -1;
    QTest::newRow("null destination") << 2 << 0 << false << true << -1;
}

void tst_Encoding::unknown_codes_and_null_buffers()
{
    QFETCH(int, from);
    QFETCH(int, to);
    QFETCH(bool, nullSrc);
    QFETCH(bool, nullDst);
    QFETCH(int, expected);
    char dst[8];
    std::memset(dst, '#', sizeof(dst));
    const char* src = "abc";
    QCOMPARE(
        View_CvtEncode(from, to, nullSrc ? nullptr : src, 3, nullDst ? nullptr : dst, sizeof(dst)), expected);
    QCOMPARE(QByteArray(dst, 8), QByteArray(8, '#'));
}

void tst_Encoding::string_conversion_and_local_encoding()
{
    QVERIFY(View_CvtEncode2(9, 8, "abc").empty());
    QCOMPARE(View_CvtEncode2(2, 0, std::string()), std::string());
    const std::string big(1 << 20, 'x'); // 1 MB of text converts whole
    QCOMPARE(View_CvtEncode2(2, 1, big).size(), big.size() * 2);

    char dst[64];
    QCOMPARE(View_CvtUtf82Local("", dst), -1);
    QCOMPARE(View_CvtUtf82Local(nullptr, dst), -1);
    QCOMPARE(View_CvtUtf82Local("abc", nullptr), -1);
    QVERIFY(View_CvtUtf82Local("abc", dst) == 3);
    QCOMPARE(QByteArray(dst), QByteArray("abc"));
    QCOMPARE(View_CvtLocal2Utf8(nullptr, dst), -1);
    QCOMPARE(View_CvtLocal2Utf8("xyz", dst), 3);
    QCOMPARE(QByteArray(dst), QByteArray("xyz"));
}

void tst_Encoding::identifier_helpers_data()
{
    QTest::addColumn<uint>("value");
    QTest::addColumn<uint>("desk");
    QTest::addColumn<uint>("option");
    QTest::newRow("desk 3 window 5") << 0x00030005u << 3u << 1u;
    QTest::newRow("low word only") << 0xFFFFu << 0u << 3u;
    QTest::newRow("largest id") << 0xFFFFFFFFu << 0xFFFFu << 3u;
    QTest::newRow("zero") << 0u << 0u << 0u;
    QTest::newRow("kind 2") << 0x10006u << 1u << 2u;
}

void tst_Encoding::identifier_helpers()
{
    QFETCH(uint, value);
    QFETCH(uint, desk);
    QFETCH(uint, option);
    QCOMPARE(unsigned(GetDeskNoFromWndId(value)), desk);
    QCOMPARE(unsigned(GetTypeOfOption(value)), option);
    QVERIFY(IsValidStrEncode(0) && IsValidStrEncode(3));
    QVERIFY(!IsValidStrEncode(4) && !IsValidStrEncode(-1) && !IsValidStrEncode(-2147483647 - 1));
}

void tst_Encoding::storage_paths()
{
    const char* expected[] = { "disk/tmp/", "disk/hmi/", "disk/sd/", "disk/usb1/", "disk/usb2/" };
    for (unsigned n = 0; n < 5; ++n)
        QCOMPARE(QByteArray(getStorePath(n)), QByteArray(expected[n]));
    QCOMPARE(QByteArray(getStorePath(5)), QByteArray());
    QCOMPARE(QByteArray(getStorePath(0xFFFFFFFFu)), QByteArray());
}

void tst_Encoding::uuid_file_and_device_name()
{
    QVERIFY(View_MakeUUID(1) != View_MakeUUID(1)); // a new UUID every time
    QTemporaryFile f;
    QVERIFY(f.open());
    const QByteArray data("bin\0ary", 7);
    f.write(data);
    f.flush();
    QCOMPARE(QByteArray::fromStdString(View_FileReadBytes(f.fileName().toUtf8().constData())), data);
    QVERIFY(View_FileReadBytes("/nonexistent/file").empty());
    QVERIFY(View_FileReadBytes(nullptr).empty());
    QVERIFY(!View_GetLocalDevName().empty());
}

QTEST_GUILESS_MAIN(tst_Encoding)
#include "tst_encoding.moc"
