// Archives packed and unpacked by the real 7z.
#include <QtTest>

#include <qgui/xdzip.h>

#include <QStandardPaths>
#include <QTemporaryDir>

namespace {

bool writeFile(const QString& path, const QByteArray& data)
{
    QFile f(path);
    return f.open(QIODevice::WriteOnly) && f.write(data) == data.size();
}

QByteArray readFile(const QString& path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

QByteArray u8(const QString& s)
{
    return s.toUtf8();
}

} // namespace

class tst_Archives : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void initTestCase();
    void init();

    void pack_and_unpack_restore_the_files_data();
    void pack_and_unpack_restore_the_files();
    void wrong_or_missing_password_gives_1_data();
    void wrong_or_missing_password_gives_1();
    void path_without_zip_gives_2_without_running_the_packer();
    void missing_archive_gives_2();
    void packing_a_missing_source_gives_1();
    void delete_source_removes_the_packed_files();
    void null_arguments();
    void check_result_reads_the_verdict_data();
    void check_result_reads_the_verdict();

private:
    std::unique_ptr<QTemporaryDir> m_dir;
};

void tst_Archives::initTestCase()
{
    if (QStandardPaths::findExecutable(QStringLiteral("7z")).isEmpty())
        QSKIP("7z is not installed (Debian package p7zip-full)");
}

void tst_Archives::init()
{
    m_dir.reset(new QTemporaryDir);
    QVERIFY(m_dir->isValid());
}

void tst_Archives::pack_and_unpack_restore_the_files_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QByteArray>("password");
    QTest::newRow("plain") << "plain" << QByteArray();
    QTest::newRow("password") << "pw" << QByteArray("s3cret");
    QTest::newRow("blanks and quotes in paths") << "my \"odd\" folder's name" << QByteArray();
    QTest::newRow("blanks and quotes in password") << "a b" << QByteArray("pa ss\"wo'rd $HOME");
    QTest::newRow("utf-8 path") << "配方 数据" << QByteArray("pw"); // zip passwords are ASCII
}

void tst_Archives::pack_and_unpack_restore_the_files()
{
    QFETCH(QString, folder);
    QFETCH(QByteArray, password);
    const QString base = m_dir->filePath(folder);
    QVERIFY(QDir().mkpath(base + "/src"));
    QVERIFY(writeFile(base + "/src/recipe 1.csv", "a;b;c\n1;2;3\n"));
    QVERIFY(writeFile(base + "/src/log.txt", QByteArray(100000, 'x')));
    const QString archive = base + "/out put.zip";
    const char* pw = password.isNull() ? nullptr : password.constData();

    QCOMPARE(XDZip::compress(u8(base + "/src").constData(), u8(archive).constData(), pw, false), 0);
    QVERIFY(QFileInfo::exists(archive));
    QVERIFY(QFileInfo::exists(base + "/src/log.txt")); // source kept

    const QString out = base + "/unpacked here";
    QCOMPARE(XDZip::unCompress(u8(archive).constData(), pw, u8(out).constData()), 0);
    QCOMPARE(readFile(out + "/recipe 1.csv"), QByteArray("a;b;c\n1;2;3\n"));
    QCOMPARE(readFile(out + "/log.txt"), QByteArray(100000, 'x'));
}

void tst_Archives::wrong_or_missing_password_gives_1_data()
{
    QTest::addColumn<QByteArray>("given");
    QTest::newRow("wrong") << QByteArray("guess");
    QTest::newRow("none") << QByteArray();
}

void tst_Archives::wrong_or_missing_password_gives_1()
{
    QFETCH(QByteArray, given);
    const QString src = m_dir->filePath("data.txt");
    QVERIFY(writeFile(src, "payload"));
    const QString archive = m_dir->filePath("locked.zip");
    QCOMPARE(XDZip::compress(u8(src).constData(), u8(archive).constData(), "right", false), 0);
    const char* pw = given.isNull() ? nullptr : given.constData();
    QCOMPARE(XDZip::unCompress(u8(archive).constData(), pw, u8(m_dir->filePath("out")).constData()), 1);
}

void tst_Archives::path_without_zip_gives_2_without_running_the_packer()
{
    // A valid zip archive under another name: had the packer run, it would unpack it.
    const QString src = m_dir->filePath("data.txt");
    QVERIFY(writeFile(src, "payload"));
    const QString zip = m_dir->filePath("real.zip");
    QCOMPARE(XDZip::compress(u8(src).constData(), u8(zip).constData(), nullptr, false), 0);
    const QString renamed = m_dir->filePath("real.archive");
    QVERIFY(QFile::rename(zip, renamed));
    const QString out = m_dir->filePath("out");
    QCOMPARE(XDZip::unCompress(u8(renamed).constData(), nullptr, u8(out).constData()), 2);
    QVERIFY(!QFileInfo::exists(out + "/data.txt"));
}

void tst_Archives::missing_archive_gives_2()
{
    QCOMPARE(XDZip::unCompress(u8(m_dir->filePath("nothing here.zip")).constData(), nullptr,
                 u8(m_dir->filePath("out")).constData()),
        2);
}

void tst_Archives::packing_a_missing_source_gives_1()
{
    const QString archive = m_dir->filePath("empty.zip");
    QCOMPARE(XDZip::compress(
                 u8(m_dir->filePath("no such file")).constData(), u8(archive).constData(), nullptr, false),
        1);
}

void tst_Archives::delete_source_removes_the_packed_files()
{
    const QString src = m_dir->filePath("to be moved.txt");
    QVERIFY(writeFile(src, "moved"));
    const QString archive = m_dir->filePath("moved.zip");
    QCOMPARE(XDZip::compress(u8(src).constData(), u8(archive).constData(), "", true), 0);
    QVERIFY(!QFileInfo::exists(src));
    QCOMPARE(XDZip::unCompress(u8(archive).constData(), "", u8(m_dir->path()).constData()), 0);
    QCOMPARE(readFile(src), QByteArray("moved"));
}

void tst_Archives::null_arguments()
{
    QCOMPARE(XDZip::compress(nullptr, u8(m_dir->filePath("a.zip")).constData(), nullptr, false), 1);
    QCOMPARE(XDZip::compress(u8(m_dir->path()).constData(), nullptr, nullptr, false), 1);
    QCOMPARE(XDZip::unCompress(nullptr, nullptr, nullptr), 2);
    QCOMPARE(XDZip::checkResult(nullptr), 2);
}

void tst_Archives::check_result_reads_the_verdict_data()
{
    QTest::addColumn<QByteArray>("output");
    QTest::addColumn<int>("result");
    QTest::newRow("ok") << QByteArray("Extracting archive: a.zip\n\nEverything is Ok\n\nSize: 7\n") << 0;
    QTest::newRow("wrong password") << QByteArray("ERROR: Wrong password : data.txt\n") << 1;
    QTest::newRow("ok wins") << QByteArray("Wrong password\nEverything is Ok\n") << 0;
    QTest::newRow("other error") << QByteArray("ERROR: a.zip\nCan not open the file as archive\n") << 2;
    QTest::newRow("empty") << QByteArray("") << 2;
}

void tst_Archives::check_result_reads_the_verdict()
{
    QFETCH(QByteArray, output);
    QFETCH(int, result);
    QCOMPARE(XDZip::checkResult(output.constData()), result);
}

QTEST_GUILESS_MAIN(tst_Archives)
#include "tst_archives.moc"
