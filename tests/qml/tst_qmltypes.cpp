// The QML module's types, read from qmltypes.txt: each registered row resolves to its own class,
// each row still to come is not registered yet, and nothing is registered that the list lacks.
#include <QFile>
#include <QtQml/private/qhashedstring_p.h>
#include <QtQml/private/qqmlmetatype_p.h>
#include <QtTest>

#include "config/qmltypes.h"

class tst_QmlTypes : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { registerQmlTypes(); }
    void every_listed_type_is_registered_under_its_class_or_still_to_come_data();
    void every_listed_type_is_registered_under_its_class_or_still_to_come();
    void nothing_is_registered_that_the_list_lacks();

private:
    struct Row {
        QString kind, type, cls;
    };
    static QList<Row> rows();
};

QList<tst_QmlTypes::Row> tst_QmlTypes::rows()
{
    QFile f(QString::fromLocal8Bit(qgetenv("QGUI_TEST_SOURCE_DIR")) + "/tests/qml/qmltypes.txt");
    if (!f.open(QIODevice::ReadOnly | QIODevice::Text))
        qFatal("qmltypes.txt not found (QGUI_TEST_SOURCE_DIR)");
    QList<Row> out;
    while (!f.atEnd()) {
        const QString line = QString::fromUtf8(f.readLine()).trimmed();
        if (line.isEmpty() || line.startsWith('#'))
            continue;
        const QStringList w = line.split(QRegularExpression("[:\\s]+"), Qt::SkipEmptyParts);
        if (w.size() < 2)
            qFatal("bad row: %s", qPrintable(line));
        out.append({ w[0], w[1], w.value(2, w[1]) });
    }
    return out;
}

void tst_QmlTypes::every_listed_type_is_registered_under_its_class_or_still_to_come_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("cls");
    for (const Row& r : rows())
        QTest::newRow(qPrintable(r.type)) << r.kind << r.type << r.cls;
}

void tst_QmlTypes::every_listed_type_is_registered_under_its_class_or_still_to_come()
{
    QFETCH(QString, kind);
    QFETCH(QString, type);
    QFETCH(QString, cls);
    const QQmlType t = QQmlMetaType::qmlType(QStringLiteral(QGUI_QML_URI "/") + type, 1, 0);
    if (kind == "to-come") {
        QVERIFY2(!t.isValid(), "registered now: move its row to the registered ones");
        return;
    }
    QVERIFY2(t.isValid(), "not registered");
    QVERIFY(t.metaObject());
    QCOMPARE(QString::fromLatin1(t.metaObject()->className()), cls);
}

void tst_QmlTypes::nothing_is_registered_that_the_list_lacks()
{
    QSet<QString> listed;
    for (const Row& r : rows())
        listed.insert(r.type);
    QStringList unlisted;
    for (const QQmlType& t : QQmlMetaType::qmlTypes()) {
        if (t.module() == QLatin1String(QGUI_QML_URI) && !listed.contains(t.elementName()))
            unlisted << t.elementName();
    }
    QVERIFY2(unlisted.isEmpty(), qPrintable(unlisted.join(' ')));
}

QTEST_MAIN(tst_QmlTypes)
#include "tst_qmltypes.moc"
