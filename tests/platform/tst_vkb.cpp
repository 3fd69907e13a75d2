// The built-in on-screen keyboard in a real scene: keys pressed with the mouse and
// with touch type into the focused field, layouts, the drag bar, state set before
// the item exists, and the plug-in loader's fallback.
#include <QLibraryInfo>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>
#include <QTemporaryDir>
#include <QtTest>

#include "common/testutil.h"
#include "platform/npluginhelper.h"
#include "platform/qvkbpluginloader.h"
#include "platform/xdefaultvkb.h"

namespace {

using TestUtil::findItem;

enum class Device { Mouse, Touch };

void collectKeys(QQuickItem* root, QList<QQuickItem*>* keys)
{
    if (!root->isVisible())
        return;
    if (root->objectName().startsWith(QLatin1String("key_")))
        *keys << root;
    const auto children = root->childItems();
    for (QQuickItem* child : children)
        collectKeys(child, keys);
}

/** Counts the key events that reach the field with a scan code (physical keys). */
class ScanCodeWatch : public QObject {
public:
    int physical = 0;
    int synthesised = 0;

protected:
    bool eventFilter(QObject*, QEvent* e) override
    {
        if (e->type() == QEvent::KeyPress || e->type() == QEvent::KeyRelease)
            ++(static_cast<QKeyEvent*>(e)->nativeScanCode() ? physical : synthesised);
        return false;
    }
};

} // namespace

Q_DECLARE_METATYPE(Device)

class tst_Vkb : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanupTestCase();

    void an_empty_plugin_folder_falls_back_to_the_built_in_keyboard();
    void plugin_helper_loads_only_plugins_of_the_asked_interface_data();
    void plugin_helper_loads_only_plugins_of_the_asked_interface();

    void keys_type_into_the_focused_field_and_leave_it_focused_data();
    void keys_type_into_the_focused_field_and_leave_it_focused();
    void the_panels_synthesised_double_click_does_not_swallow_a_key();
    void two_fingers_on_two_keys_type_both();
    void a_pressed_key_looks_pressed_until_released_data();
    void a_pressed_key_looks_pressed_until_released();
    void each_layout_shows_its_own_finger_sized_keys_data();
    void each_layout_shows_its_own_finger_sized_keys();
    void the_drag_bar_moves_the_keyboard_and_keeps_it_inside_its_parent_data();
    void the_drag_bar_moves_the_keyboard_and_keeps_it_inside_its_parent();
    void a_keyboard_that_grows_with_its_layout_stays_inside_its_parent();
    void state_set_before_the_item_exists_is_applied_on_creation_data();
    void state_set_before_the_item_exists_is_applied_on_creation();

private:
    void tap(const QString& keyName, Device device);
    void drag(const QPoint& from, const QPoint& by, Device device);
    QQuickItem* key(const QString& name) const { return findItem(m_vkb.item(), "key_" + name); }
    void settle();

    QQuickView* m_view = nullptr;
    QQuickItem* m_root = nullptr;
    QQuickItem* m_field = nullptr;
    QTouchDevice* m_touch = nullptr;
    ScanCodeWatch m_keys;
    XDefaultVkb m_vkb;
};

void tst_Vkb::initTestCase()
{
    m_touch = QTest::createTouchDevice();
    m_view = new QQuickView;
    m_view->setResizeMode(QQuickView::SizeRootObjectToView);
    m_view->resize(1024, 600);
    QQmlComponent c(m_view->engine());
    // The field counts Enter presses as the panel's entry line does with its "accepted".
    c.setData("import QtQuick 2.15\nimport QtQuick.Controls 2.15\n"
              "Rectangle { width: 1024; height: 600; color: 'gray'\n"
              " TextField { objectName: 'field'; x: 20; y: 20; width: 400; height: 60; focus: true\n"
              "  property int acceptedCount: 0\n"
              "  onAccepted: acceptedCount++ } }",
        QUrl());
    m_root = qobject_cast<QQuickItem*>(c.create());
    QVERIFY2(m_root, qPrintable(c.errorString()));
    m_view->setContent(QUrl(), nullptr, m_root);
    m_field = findItem(m_root, "field");
    QVERIFY(m_field);
    m_field->installEventFilter(&m_keys);

    QVERIFY2(m_vkb.createItem(m_view->engine(), m_root), qPrintable(m_vkb.errorString()));
    m_vkb.show();
    QVERIFY(TestUtil::waitForFrame(m_view));
    m_view->requestActivate();
    QVERIFY(QTest::qWaitForWindowActive(m_view));
    m_field->forceActiveFocus();
    QVERIFY(m_field->hasActiveFocus());
}

void tst_Vkb::init()
{
    m_field->setProperty("text", QString());
    m_field->setProperty("acceptedCount", 0);
    m_field->forceActiveFocus();
    m_keys.physical = m_keys.synthesised = 0;
}

void tst_Vkb::cleanupTestCase()
{
    delete m_vkb.item();
    delete m_view;
}

void tst_Vkb::settle()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    // The first frame may have been under way before the change: only after the
    // second are the rows polished (laid out) and the keyboard docked again.
    QVERIFY(TestUtil::waitForFrame(m_view));
    QVERIFY(TestUtil::waitForFrame(m_view));
}

void tst_Vkb::tap(const QString& keyName, Device device)
{
    settle(); // a key that switched the page has new keys laid out on the next frame
    QQuickItem* k = key(keyName);
    QVERIFY2(k, qPrintable("no visible key " + keyName));
    const QPoint p = TestUtil::sceneCenter(k);
    if (device == Device::Mouse) {
        QTest::mouseClick(m_view, Qt::LeftButton, Qt::NoModifier, p);
    } else {
        QTest::touchEvent(m_view, m_touch).press(0, p, m_view);
        QTest::touchEvent(m_view, m_touch).release(0, p, m_view);
    }
}

void tst_Vkb::drag(const QPoint& from, const QPoint& by, Device device)
{
    const int steps = 10;
    if (device == Device::Mouse)
        QTest::mousePress(m_view, Qt::LeftButton, Qt::NoModifier, from);
    else
        QTest::touchEvent(m_view, m_touch).press(0, from, m_view);
    for (int i = 1; i <= steps; ++i) {
        const QPoint p = from + by * i / steps;
        if (device == Device::Mouse)
            QTest::mouseMove(m_view, p);
        else
            QTest::touchEvent(m_view, m_touch).move(0, p, m_view);
    }
    if (device == Device::Mouse)
        QTest::mouseRelease(m_view, Qt::LeftButton, Qt::NoModifier, from + by);
    else
        QTest::touchEvent(m_view, m_touch).release(0, from + by, m_view);
}

// --- plug-ins ---------------------------------------------------------------

void tst_Vkb::an_empty_plugin_folder_falls_back_to_the_built_in_keyboard()
{
    // Must run before anything else asks the loader: it looks for plug-ins once.
    QTemporaryDir empty;
    QVERIFY(empty.isValid());
    qputenv(QVkbPluginLoader::pathVariable, empty.path().toLocal8Bit());

    XVkbInterface* vkb = QVkbPluginLoader::instance()->vkb();
    QVERIFY(vkb);
    QVERIFY(dynamic_cast<XDefaultVkb*>(vkb));
    QVERIFY(QVkbPluginLoader::instance()->pluginFile().isEmpty());
    QCOMPARE(QVkbPluginLoader::instance()->vkb(), vkb);
}

void tst_Vkb::plugin_helper_loads_only_plugins_of_the_asked_interface_data()
{
    QTest::addColumn<QString>("folder"); // "<empty>", "<garbage>" or a path
    QTest::addColumn<QString>("iid");
    QTest::addColumn<bool>("loads");
    QTest::addColumn<bool>("fails");

    const QString images = QLibraryInfo::location(QLibraryInfo::PluginsPath) + "/imageformats";
    const QString imageIid = "org.qt-project.Qt.QImageIOHandlerFactoryInterface";
    QTest::newRow("empty folder") << "<empty>" << XVkbInterface_iid << false << false;
    QTest::newRow("a library that is no plug-in") << "<garbage>" << XVkbInterface_iid << false << true;
    QTest::newRow("plug-ins of another interface") << images << XVkbInterface_iid << false << false;
    QTest::newRow("plug-ins of the asked interface") << images << imageIid << true << false;
}

void tst_Vkb::plugin_helper_loads_only_plugins_of_the_asked_interface()
{
    QFETCH(QString, folder);
    QFETCH(QString, iid);
    QFETCH(bool, loads);
    QFETCH(bool, fails);

    QTemporaryDir tmp;
    if (folder == "<empty>" || folder == "<garbage>") {
        QVERIFY(tmp.isValid());
        if (folder == "<garbage>") {
            QFile f(tmp.filePath("libnotaplugin.so"));
            QVERIFY(f.open(QIODevice::WriteOnly));
            f.write("not an ELF file");
        }
        folder = tmp.path();
    } else if (!QFileInfo::exists(folder)) {
        QSKIP("Qt's image format plug-ins are not installed");
    }

    const NPluginHelper::LoadResult r = NPluginHelper::loadPlugins(folder, iid);
    QCOMPARE(!r.instances.isEmpty(), loads);
    QCOMPARE(r.files.size(), r.instances.size());
    QVERIFY2(r.errors.isEmpty() != fails, qPrintable(r.errors.join('\n')));
    for (const QString& file : r.files)
        QCOMPARE(NPluginHelper::pluginIid(file), iid);
}

// --- typing -----------------------------------------------------------------

void tst_Vkb::keys_type_into_the_focused_field_and_leave_it_focused_data()
{
    QTest::addColumn<Device>("device");
    QTest::addColumn<int>("layout");
    QTest::addColumn<QStringList>("keys");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("accepted"); // Enter presses the field saw

    const struct {
        const char* name;
        int layout;
        QStringList keys;
        QString text;
        int accepted;
    } rows[] = {
        { "decimal number", 0, { "1", "2", ".", "5" }, "12.5", 0 },
        { "negative decimal", 0, { "-", "0", ".", "7" }, "-0.7", 0 },
        { "same key twice", 0, { "1", "1" }, "11", 0 },
        { "backspace deletes", 0, { "1", "2", "3", "backspace" }, "12", 0 },
        { "clear empties", 0, { "4", "5", "clear" }, "", 0 },
        { "typing after clear", 0, { "4", "5", "clear", "7" }, "7", 0 },
        { "left and right move the cursor", 0, { "1", "2", "left", "3", "right", "4" }, "1324", 0 },
        { "enter reaches the field", 0, { "4", "2", "enter" }, "42", 1 },
        { "hexadecimal", 1, { "1", "F" }, "1F", 0 },
        { "hexadecimal enter", 1, { "A", "0", "enter" }, "A0", 1 },
        { "date and time", 2, { "2", "0", "-", "1", "space", "0", "9", ":", "3" }, "20-1 09:3", 0 },
        { "date", 3, { "1", "-", "2" }, "1-2", 0 },
        { "time", 4, { "1", ":", "2" }, "1:2", 0 },
        { "text in lower case", 5, { "o", "k" }, "ok", 0 },
        { "shift capitalises the next letter", 5, { "shift", "h", "i" }, "Hi", 0 },
        { "shift twice locks capitals", 6, { "shift", "shift", "a", "b", "shift", "c" }, "ABc", 0 },
        { "symbols page and back", 99, { "page", "@", "page", "x" }, "@x", 0 },
        { "space and enter in text", 5, { "a", "space", "b", "enter" }, "a b", 1 },
    };
    for (Device device : { Device::Mouse, Device::Touch }) {
        const char* dev = device == Device::Mouse ? "mouse" : "touch";
        for (const auto& r : rows) {
            QTest::addRow("%s: %s", dev, r.name) << device << r.layout << r.keys << r.text << r.accepted;
        }
    }
}

void tst_Vkb::keys_type_into_the_focused_field_and_leave_it_focused()
{
    QFETCH(Device, device);
    QFETCH(int, layout);
    QFETCH(QStringList, keys);
    QFETCH(QString, text);
    QFETCH(int, accepted);

    m_vkb.setLayoutType(layout);
    settle();
    for (const QString& k : keys) {
        tap(k, device);
        if (QTest::currentTestFailed())
            return;
    }
    QCOMPARE(m_field->property("text").toString(), text);
    QCOMPARE(m_field->property("acceptedCount").toInt(), accepted);
    QVERIFY(m_field->hasActiveFocus());
    // Synthesised keys carry no scan code, so the view does not report them as physical keys.
    QCOMPARE(m_keys.physical, 0);
    QVERIFY(m_keys.synthesised > 0);
}

void tst_Vkb::the_panels_synthesised_double_click_does_not_swallow_a_key()
{
    // The panel switches off Qt's double-click and sends its own after the second
    // press (XEventFilter); two quick taps on a key must still type twice.
    m_vkb.setLayoutType(0);
    settle();
    const QPoint p = TestUtil::sceneCenter(key("1"));
    QTest::mouseClick(m_view, Qt::LeftButton, Qt::NoModifier, p);
    QTest::mousePress(m_view, Qt::LeftButton, Qt::NoModifier, p);
    QMouseEvent e(QEvent::MouseButtonDblClick, p, m_view->mapToGlobal(p), Qt::LeftButton, Qt::LeftButton,
        Qt::NoModifier);
    QCoreApplication::sendEvent(m_view, &e);
    QTest::mouseRelease(m_view, Qt::LeftButton, Qt::NoModifier, p);
    QCOMPARE(m_field->property("text").toString(), QString("11"));
}

void tst_Vkb::two_fingers_on_two_keys_type_both()
{
    m_vkb.setLayoutType(5);
    settle();
    const QPoint a = TestUtil::sceneCenter(key("a"));
    const QPoint b = TestUtil::sceneCenter(key("b"));
    QTest::touchEvent(m_view, m_touch).press(0, a, m_view);
    QTest::touchEvent(m_view, m_touch).stationary(0).press(1, b, m_view);
    QTest::touchEvent(m_view, m_touch).release(0, a, m_view).stationary(1);
    QTest::touchEvent(m_view, m_touch).release(1, b, m_view);
    QCOMPARE(m_field->property("text").toString(), QString("ab"));
}

void tst_Vkb::a_pressed_key_looks_pressed_until_released_data()
{
    QTest::addColumn<Device>("device");
    QTest::newRow("mouse") << Device::Mouse;
    QTest::newRow("touch") << Device::Touch;
}

void tst_Vkb::a_pressed_key_looks_pressed_until_released()
{
    QFETCH(Device, device);

    m_vkb.setLayoutType(0);
    settle();
    QQuickItem* k = key("5");
    QVERIFY(k);
    const QPoint centre = TestUtil::sceneCenter(k);
    // Beside the label, on the key's face.
    const QPoint face = centre - QPoint(int(k->width() / 4), 0);
    const QColor released = m_view->grabWindow().pixelColor(face);

    if (device == Device::Mouse)
        QTest::mousePress(m_view, Qt::LeftButton, Qt::NoModifier, centre);
    else
        QTest::touchEvent(m_view, m_touch).press(0, centre, m_view);
    settle();
    const QColor pressed = m_view->grabWindow().pixelColor(face);
    QVERIFY2(pressed != released, qPrintable(pressed.name()));
    QVERIFY(m_field->hasActiveFocus());

    if (device == Device::Mouse)
        QTest::mouseRelease(m_view, Qt::LeftButton, Qt::NoModifier, centre);
    else
        QTest::touchEvent(m_view, m_touch).release(0, centre, m_view);
    settle();
    QCOMPARE(m_view->grabWindow().pixelColor(face), released);
    QCOMPARE(m_field->property("text").toString(), QString("5"));
}

void tst_Vkb::each_layout_shows_its_own_finger_sized_keys_data()
{
    QTest::addColumn<int>("layout");
    QTest::addColumn<QString>("present");
    QTest::addColumn<QString>("absent");

    QTest::newRow("decimal has a point, no letters") << 0 << "."
                                                     << "A";
    QTest::newRow("decimal has left and right") << 0 << "right"
                                                << "space";
    QTest::newRow("hexadecimal has F, no point") << 1 << "F"
                                                 << ".";
    QTest::newRow("date and time has a space, no point") << 2 << "space"
                                                         << ".";
    QTest::newRow("date has a dash, no colon") << 3 << "-"
                                               << ":";
    QTest::newRow("time has a colon, no dash") << 4 << ":"
                                               << "-";
    QTest::newRow("free text 5 has letters, no clear") << 5 << "q"
                                                       << "clear";
    QTest::newRow("free text 6 has shift") << 6 << "shift"
                                           << "F";
    QTest::newRow("unknown type is free text") << 42 << "page"
                                               << "right";
    QTest::newRow("negative type is free text") << -1 << "m"
                                                << "clear";
}

void tst_Vkb::each_layout_shows_its_own_finger_sized_keys()
{
    QFETCH(int, layout);
    QFETCH(QString, present);
    QFETCH(QString, absent);

    m_vkb.setLayoutType(layout);
    QCOMPARE(m_vkb.layoutType(), layout);
    settle();
    QVERIFY(key(present));
    QVERIFY(!key(absent));

    QList<QQuickItem*> keys;
    collectKeys(m_vkb.item(), &keys);
    QVERIFY(keys.size() > 10);
    for (QQuickItem* k : qAsConst(keys)) {
        QVERIFY2(k->width() >= 48 && k->height() >= 48, qPrintable(k->objectName()));
        const QRectF r = k->mapRectToItem(m_vkb.item(), QRectF(0, 0, k->width(), k->height()));
        QVERIFY2(QRectF(0, 0, m_vkb.item()->width(), m_vkb.item()->height()).contains(r),
            qPrintable(k->objectName() + " sticks out of the keyboard"));
    }
}

// --- placing ----------------------------------------------------------------

void tst_Vkb::the_drag_bar_moves_the_keyboard_and_keeps_it_inside_its_parent_data()
{
    QTest::addColumn<Device>("device");
    QTest::newRow("mouse") << Device::Mouse;
    QTest::newRow("touch") << Device::Touch;
}

void tst_Vkb::the_drag_bar_moves_the_keyboard_and_keeps_it_inside_its_parent()
{
    QFETCH(Device, device);

    m_vkb.setLayoutType(0);
    m_vkb.showDragBar(true);
    m_vkb.move(QPointF(400, 250));
    settle();
    QQuickItem* bar = findItem(m_vkb.item(), "dragBar");
    QVERIFY(bar);

    const QRectF before = m_vkb.rect();
    drag(TestUtil::sceneCenter(bar), QPoint(-150, -100), device);
    QCOMPARE(m_vkb.rect().topLeft(), before.topLeft() + QPointF(-150, -100));
    QCOMPARE(m_vkb.rect().size(), before.size());

    // The finger goes to the window's corners; the keyboard stops at its parent's edges.
    QPoint from = TestUtil::sceneCenter(bar);
    drag(from, QPoint(m_view->width() - 1, m_view->height() - 1) - from, device);
    QCOMPARE(m_vkb.rect().right(), m_root->width());
    QCOMPARE(m_vkb.rect().bottom(), m_root->height());

    from = TestUtil::sceneCenter(bar);
    drag(from, QPoint(1, 1) - from, device); // QTest moves to the window's centre for (0, 0)
    QCOMPARE(m_vkb.rect().topLeft(), QPointF(0, 0));
    QVERIFY(m_field->hasActiveFocus());

    m_vkb.showDragBar(false);
    QVERIFY(!m_vkb.isDragBarVisible());
    settle();
    QVERIFY(!findItem(m_vkb.item(), "dragBar"));
    m_vkb.showDragBar(true);
}

void tst_Vkb::a_keyboard_that_grows_with_its_layout_stays_inside_its_parent()
{
    m_vkb.setLayoutType(0);
    m_vkb.move(QPointF(5000, 5000)); // the bottom-right corner
    settle();
    const QRectF parent(0, 0, m_root->width(), m_root->height());
    const qreal narrow = m_vkb.rect().width();
    QCOMPARE(m_vkb.rect().bottomRight(), parent.bottomRight());

    m_vkb.setLayoutType(5);
    settle();
    QVERIFY(m_vkb.rect().width() > narrow);
    QVERIFY(parent.contains(m_vkb.rect()));
}

void tst_Vkb::state_set_before_the_item_exists_is_applied_on_creation_data()
{
    QTest::addColumn<bool>("shown");
    QTest::addColumn<bool>("moved"); // else docked at the bottom centre
    QTest::addColumn<bool>("dragBar");
    QTest::addColumn<int>("layout");
    QTest::addColumn<QString>("layoutKey");

    QTest::newRow("shown, moved, hexadecimal, no drag bar") << true << true << false << 1 << "F";
    QTest::newRow("hidden, docked, free text, drag bar") << false << false << true << 5 << "q";
}

void tst_Vkb::state_set_before_the_item_exists_is_applied_on_creation()
{
    QFETCH(bool, shown);
    QFETCH(bool, moved);
    QFETCH(bool, dragBar);
    QFETCH(int, layout);
    QFETCH(QString, layoutKey);

    XDefaultVkb vkb;
    QVERIFY(!vkb.item());
    if (shown)
        vkb.show();
    else
        vkb.hide();
    if (moved)
        vkb.move(QPointF(30, 40));
    vkb.showDragBar(dragBar);
    vkb.setLayoutType(layout);
    QCOMPARE(vkb.isVisible(), shown);
    if (moved)
        QCOMPARE(vkb.rect(), QRectF(30, 40, 0, 0));

    QQuickItem* item = vkb.createItem(m_view->engine(), m_root);
    QVERIFY2(item, qPrintable(vkb.errorString()));
    QCOMPARE(vkb.createItem(m_view->engine(), m_root), item);
    settle();

    QCOMPARE(vkb.isVisible(), shown);
    QCOMPARE(vkb.isDragBarVisible(), dragBar);
    QCOMPARE(vkb.layoutType(), layout);
    const QRectF r = vkb.rect();
    QVERIFY(r.width() > 0 && r.height() > 0);
    if (moved) {
        QCOMPARE(r.topLeft(), QPointF(30, 40));
    } else {
        QCOMPARE(r.center().x(), m_root->width() / 2);
        QCOMPARE(r.bottom(), m_root->height());
    }
    vkb.show(); // findItem sees visible items only
    QCOMPARE(findItem(item, "dragBar") != nullptr, dragBar);
    QVERIFY(findItem(item, "key_" + layoutKey));
}

QTEST_MAIN(tst_Vkb)
#include "tst_vkb.moc"
