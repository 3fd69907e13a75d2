// The tumbler columns of the date/time picker: hours 0..23 and minutes/seconds 0..59, as plain
// numbers without leading zeros, also when the model is made from QML.
#include "xcomponents/qquick/xtumblertimemodel.h"

#include "config/qmltypes.h"

#include <QAbstractItemModelTester>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QSignalSpy>
#include <QtTest>

class tst_TumblerModel : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { registerQmlTypes(); }
    void columns_show_plain_numbers_data();
    void columns_show_plain_numbers();
    void size_changes_reset_the_model_once();
    void made_from_qml();
};

void tst_TumblerModel::columns_show_plain_numbers_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("text");
    QTest::newRow("hours: first") << 24 << 0 << "0";
    QTest::newRow("hours: no leading zero") << 24 << 7 << "7";
    QTest::newRow("hours: last") << 24 << 23 << "23";
    QTest::newRow("hours: past the end") << 24 << 24 << "";
    QTest::newRow("minutes: last") << 60 << 59 << "59";
    QTest::newRow("negative row") << 60 << -1 << "";
}

void tst_TumblerModel::columns_show_plain_numbers()
{
    QFETCH(int, size);
    QFETCH(int, row);
    QFETCH(QString, text);
    XTumblerTimeModel model;
    QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
    model.setSize(size);
    QCOMPARE(model.rowCount(), size);
    QCOMPARE(model.getText(row), text);
    QCOMPARE(model.data(model.index(row, 0)).toString(), text);
}

void tst_TumblerModel::size_changes_reset_the_model_once()
{
    XTumblerTimeModel model;
    QSignalSpy sizes(&model, &XTumblerTimeModel::sizeChanged);
    QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    model.setSize(60);
    model.setSize(60);
    QCOMPARE(sizes.count(), 1);
    QCOMPARE(resets.count(), 1);
    model.setSize(-5); // counts as empty
    QCOMPARE(model.size(), 0);
    QCOMPARE(model.rowCount(), 0);
}

void tst_TumblerModel::made_from_qml()
{
    QQmlEngine engine;
    QQmlComponent c(&engine);
    c.setData("import QQuickHalvex 1.0\nXTumblerTimeModel { size: 24 }", QUrl());
    QScopedPointer<QObject> o(c.create());
    QVERIFY2(o, qPrintable(c.errorString()));
    auto* model = qobject_cast<XTumblerTimeModel*>(o.data());
    QVERIFY(model);
    QCOMPARE(model->rowCount(), 24);
    QString nine;
    QVERIFY(QMetaObject::invokeMethod(model, "getText", Q_RETURN_ARG(QString, nine), Q_ARG(int, 9)));
    QCOMPARE(nine, QStringLiteral("9"));
}

QTEST_MAIN(tst_TumblerModel)
#include "tst_tumblermodel.moc"
