// Every QML file shipped in the library's resources compiles and creates
// without a warning.
#include <QDirIterator>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QtTest>

#include "config/qmltypes.h"

namespace {
QStringList g_warnings;

void collect(QtMsgType type, const QMessageLogContext&, const QString& msg)
{
    if (type != QtDebugMsg && type != QtInfoMsg)
        g_warnings << msg;
}
} // namespace

class tst_QmlSanity : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { registerQmlTypes(); }
    void every_shipped_qml_file_loads_cleanly_data();
    void every_shipped_qml_file_loads_cleanly();
};

void tst_QmlSanity::every_shipped_qml_file_loads_cleanly_data()
{
    QTest::addColumn<QString>("url");
    QDirIterator it(":/", { "*.qml" }, QDir::Files, QDirIterator::Subdirectories);
    int n = 0;
    while (it.hasNext()) {
        const QString path = it.next();
        if (path.startsWith(":/qt-project.org"))
            continue; // Qt's own resources
        QTest::newRow(qPrintable(path)) << ("qrc" + path);
        ++n;
    }
    QVERIFY(n >= 8);
}

void tst_QmlSanity::every_shipped_qml_file_loads_cleanly()
{
    QFETCH(QString, url);
    QQmlEngine engine;
    QQuickItem host; // a parent, as every component gets one in the panel
    host.setSize({ 800, 480 });
    g_warnings.clear();
    QtMessageHandler old = qInstallMessageHandler(collect);
    QQmlComponent c(&engine, QUrl(url));
    QObject* obj = c.beginCreate(engine.rootContext());
    if (auto* item = qobject_cast<QQuickItem*>(obj))
        item->setParentItem(&host);
    if (obj)
        c.completeCreate();
    QCoreApplication::processEvents();
    delete obj;
    qInstallMessageHandler(old);
    QVERIFY2(!c.isError(), qPrintable(c.errorString()));
    QVERIFY2(obj, qPrintable(url));
    QVERIFY2(g_warnings.isEmpty(), qPrintable(g_warnings.join('\n')));
}

QTEST_MAIN(tst_QmlSanity)
#include "tst_qmlsanity.moc"
