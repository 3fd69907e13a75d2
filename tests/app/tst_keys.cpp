// Physical keys on the top-level view: reported as 259/260 before the scene
// sees them, auto-repeat dropped, synthesised keys passed on unreported.
#include <QQmlEngine>
#include <QQuickItem>
#include <QtTest>

#include "app/xquickview.h"
#include "common/eventrecorder.h"
#include "common/testutil.h"

class tst_Keys : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void key_events_are_reported_then_passed_on_data();
    void key_events_are_reported_then_passed_on();
    void a_held_key_reports_one_press_and_one_release();
    void zoom_sets_the_panel_scale();

private:
    void send(QEvent::Type type, int key, const QString& text, quint32 scanCode, bool autoRepeat);
    QString fieldText() const;

    XQuickView* m_view = nullptr;
    QQuickItem* m_field = nullptr;
    EventRecorder m_rec;
};

void tst_Keys::initTestCase()
{
    m_rec.install();
    m_view = new XQuickView;
    m_view->setXResizeMode(XQuickView::SizeRootObjectToViewFirst);
    QQmlComponent c(m_view->engine());
    c.setData("import QtQuick 2.15\nItem { width: 200; height: 100\n"
              " TextInput { objectName: 'field'; anchors.fill: parent; focus: true } }",
        QUrl());
    auto* root = qobject_cast<QQuickItem*>(c.create());
    QVERIFY2(root, qPrintable(c.errorString()));
    root->setParentItem(m_view->contentItem());
    root->setParent(m_view->contentItem());
    m_field = root->findChild<QQuickItem*>("field");
    QVERIFY(m_field);
    m_view->resize(300, 150);
    QVERIFY(TestUtil::waitForFrame(m_view));
    m_view->requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(m_view));
    m_field->forceActiveFocus();
}

void tst_Keys::init()
{
    m_rec.clear();
    m_field->setProperty("text", QString());
}

QString tst_Keys::fieldText() const
{
    return m_field->property("text").toString();
}

void tst_Keys::send(QEvent::Type type, int key, const QString& text, quint32 scanCode, bool autoRepeat)
{
    QKeyEvent e(type, key, Qt::NoModifier, scanCode, 0, 0, text, autoRepeat);
    QCoreApplication::sendEvent(m_view, &e);
}

void tst_Keys::key_events_are_reported_then_passed_on_data()
{
    QTest::addColumn<int>("key");
    QTest::addColumn<QString>("text");
    QTest::addColumn<uint>("scanCode");
    QTest::addColumn<bool>("autoRepeat");
    QTest::addColumn<int>("reported"); // -1000: nothing reported
    QTest::addColumn<QString>("typed");

    QTest::newRow("letter") << int(Qt::Key_A) << "a" << 38u << false << 97 << "a";
    QTest::newRow("escape") << int(Qt::Key_Escape) << "" << 9u << false << 27 << "";
    QTest::newRow("backspace without text") << int(Qt::Key_Backspace) << "" << 22u << false << 8 << "";
    QTest::newRow("return with text") << int(Qt::Key_Return) << "\r" << 36u << false << 13 << "";
    QTest::newRow("keypad enter") << int(Qt::Key_Enter) << "" << 104u << false << 13 << "";
    QTest::newRow("delete") << int(Qt::Key_Delete) << "" << 119u << false << 127 << "";
    QTest::newRow("function key") << int(Qt::Key_F1) << "" << 67u << false << int(Qt::Key_F1) << "";
    QTest::newRow("latin-1 letter is a signed byte")
        << int(Qt::Key_Eacute) << QString::fromUtf8("é") << 40u << false << -23 << QString::fromUtf8("é");
    QTest::newRow("auto-repeat dropped") << int(Qt::Key_B) << "b" << 56u << true << -1000 << "";
    QTest::newRow("synthesised key passed on") << int(Qt::Key_C) << "c" << 0u << false << -1000 << "c";
}

void tst_Keys::key_events_are_reported_then_passed_on()
{
    QFETCH(int, key);
    QFETCH(QString, text);
    QFETCH(uint, scanCode);
    QFETCH(bool, autoRepeat);
    QFETCH(int, reported);
    QFETCH(QString, typed);

    send(QEvent::KeyPress, key, text, scanCode, autoRepeat);
    send(QEvent::KeyRelease, key, text, scanCode, autoRepeat);
    const auto events = m_rec.events();
    if (reported == -1000) {
        QCOMPARE(events.size(), 0);
    } else {
        QCOMPARE(events.size(), 2);
        QCOMPARE(events[0].code, 259);
        QCOMPARE(events[1].code, 260);
        for (const auto& e : events) {
            QCOMPARE(e.id, 0u);
            QCOMPARE(e.intAt(0), reported);
        }
    }
    QCOMPARE(fieldText(), typed);
}

void tst_Keys::a_held_key_reports_one_press_and_one_release()
{
    send(QEvent::KeyPress, Qt::Key_X, "x", 53, false);
    for (int i = 0; i < 5; ++i) { // the repeats a held key produces
        send(QEvent::KeyRelease, Qt::Key_X, "x", 53, true);
        send(QEvent::KeyPress, Qt::Key_X, "x", 53, true);
    }
    send(QEvent::KeyRelease, Qt::Key_X, "x", 53, false);
    QCOMPARE(m_rec.count(259), 1);
    QCOMPARE(m_rec.count(260), 1);
    QCOMPARE(fieldText(), QString("x"));
}

void tst_Keys::zoom_sets_the_panel_scale()
{
    QSignalSpy spy(m_view, &XQuickView::rootItemScaleChanged);
    m_view->onChangeZoom(2, "150");
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.first().first().toDouble(), 1.5);
    QCOMPARE(m_view->zoomIndex(), 2);
    m_view->onChangeZoom(3, "abc"); // not a number: nothing changes
    m_view->onChangeZoom(3, "-20");
    QCOMPARE(spy.count(), 1);
    QCOMPARE(m_view->zoomIndex(), 2);
}

QTEST_MAIN(tst_Keys)
#include "tst_keys.moc"
