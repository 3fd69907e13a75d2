// Every function of the exported catalogue is a dynamic symbol of libqgui.so,
// so none can go missing.
#include <QFile>
#include <QProcess>
#include <QSet>
#include <QtTest>

class tst_Catalogue : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void every_catalogue_entry_is_exported();
};

void tst_Catalogue::every_catalogue_entry_is_exported()
{
    const QString build = qEnvironmentVariable("QGUI_BUILD_DIR");
    const QString source = qEnvironmentVariable("QGUI_TEST_SOURCE_DIR");
    QFile cat(source + "/tests/catalogue/catalogue.txt");
    QVERIFY2(cat.open(QIODevice::ReadOnly), qPrintable(cat.fileName()));
    QProcess nm;
    nm.start("nm", { "-DC", "--defined-only", build + "/libqgui.so" });
    QVERIFY(nm.waitForFinished(30000));
    QCOMPARE(nm.exitCode(), 0);
    QSet<QString> symbols;
    for (const QByteArray& line : nm.readAllStandardOutput().split('\n')) {
        const QList<QByteArray> parts = line.split(' ');
        if (parts.size() >= 3)
            symbols.insert(QString::fromUtf8(line.mid(parts[0].size() + parts[1].size() + 2)));
    }
    int entries = 0, views = 0;
    QStringList missing;
    for (const QByteArray& raw : cat.readAll().split('\n')) {
        const QString entry = QString::fromUtf8(raw).trimmed();
        if (entry.isEmpty() || entry.startsWith('#'))
            continue;
        ++entries;
        if (entry.startsWith("View_"))
            ++views;
        if (!symbols.contains(entry))
            missing << entry;
    }
    QCOMPARE(views, 202); // the 198 panel calls and the keyboard's validator and three range calls
    QVERIFY2(missing.isEmpty(), qPrintable("not exported:\n" + missing.join('\n')));
    QVERIFY(entries > 198);
}

QTEST_GUILESS_MAIN(tst_Catalogue)
#include "tst_catalogue.moc"
