// The package dialogs on a real panel over storage folders the test fills: the "plugged" dialog's
// choices and its 2305/2307 from real presses, a second plug while a dialog is up (2305 with the
// storage number and 1), the explorer listing only packages of its storage and opening the
// confirmation (2306 with the path), a medium appearing under an open dialog, and ejecting:
// a plain folder, a real mount point (tmpfs), and numbers that name no removable storage.
#include "common/eventrecorder.h"
#include "common/guiapptestmain.h"
#include "common/panelfixture.h"
#include "common/testutil.h"

#include "config/projectmanage.h"
#include "views/usbpackagestate.h"
#include "views/viewmanage.h"
#include "xcomponents/qquick/xusbpackagedialog.h"
#include "xcomponents/qquick/xusbselectfiledata.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStorageInfo>
#include <QTemporaryDir>
#include <QtTest>

#include <qgui/events.h>
#include <qgui/view.h>

class tst_UsbPackages : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void plugged_dialog_reports_the_choices_data();
    void plugged_dialog_reports_the_choices();
    void a_second_plug_while_a_dialog_is_up();
    void the_explorer_lists_packages_and_asks_to_confirm();
    void a_confirmation_asked_by_the_logic_layer_data();
    void a_confirmation_asked_by_the_logic_layer();
    void a_medium_appearing_refreshes_the_dialog();
    void eject_results_data();
    void eject_results();
    void ejecting_a_mounted_medium_unmounts_it();

private:
    static void touchFile(const QString& path, int bytes = 100);
    QString store(int n) const { return QDir::cleanPath(ProjectManage::getInstance()->getStorePath(unsigned(n))); }
    QList<XUsbPackageDialog*> dialogs() const { return ViewManage::getInstance()->usbPackages()->dialogs(); }
    XUsbPackageDialog* top() const { return dialogs().isEmpty() ? nullptr : dialogs().constLast(); }
    void press(const char* name);
    QStringList listed() const;
    /** The package events recorded (panel presses left out). */
    QList<EventRecorder::Event> packageEvents() const;

    QTemporaryDir m_project;
    PanelFixture m_panel;
    EventRecorder m_rec;
    const unsigned A = PanelFixture::wid(1, 1);
};

void tst_UsbPackages::touchFile(const QString& path, int bytes)
{
    QFile f(path);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write(QByteArray(bytes, 'p'));
}

void tst_UsbPackages::initTestCase()
{
    QVERIFY(m_project.isValid());
    QDir root(m_project.path());
    for (const char* d : { "disk/hmi", "disk/sd", "disk/usb1/old", "disk/usb2" })
        QVERIFY(root.mkpath(QString::fromLatin1(d)));
    ProjectManage::getInstance()->setPrjPath(m_project.path() + QLatin1Char('/'));
    touchFile(store(3) + "/line3.pkg", 4096);
    touchFile(store(3) + "/recipes.zip");
    touchFile(store(3) + "/readme.txt");
    touchFile(store(3) + "/old/line3-v1.7z");
    touchFile(store(1) + "/panel.pkg");
    QVERIFY(QFile::link(store(1) + "/panel.pkg", store(3) + "/elsewhere.pkg")); // a link to another storage
}

void tst_UsbPackages::init()
{
    QVERIFY(m_panel.start());
    m_rec.install();
    m_rec.clear();
    QCOMPARE(m_panel.switchWindow(A, Rect { 0, 0, 800, 480 }), 0);
}

void tst_UsbPackages::cleanup()
{
    m_panel.stop();
}

void tst_UsbPackages::press(const char* name)
{
    XUsbPackageDialog* d = top();
    QVERIFY(d);
    QQuickItem* item = TestUtil::findItem(d, QString::fromLatin1(name));
    QVERIFY2(item, name);
    m_panel.click(m_panel.sceneCenter(item));
    PanelFixture::settle();
}

QList<EventRecorder::Event> tst_UsbPackages::packageEvents() const
{
    QList<EventRecorder::Event> out;
    for (const EventRecorder::Event& e : m_rec.events()) {
        if (e.code >= EVT_USB_PKG_DOWNLOAD && e.code <= EVT_USB_PKG_BROWSE)
            out.append(e);
    }
    return out;
}

QStringList tst_UsbPackages::listed() const
{
    QStringList names;
    XUsbSelectFileData* files = top()->files();
    for (int r = 0; r < files->rowCount(); ++r)
        names.append(files->data(files->index(r), XUsbSelectFileData::NameRole).toString());
    return names;
}

void tst_UsbPackages::plugged_dialog_reports_the_choices_data()
{
    QTest::addColumn<QStringList>("presses");
    QTest::addColumn<int>("code");
    QTest::addColumn<unsigned>("word");
    QTest::newRow("download both") << QStringList { "downloadButton" } << int(EVT_USB_PKG_DOWNLOAD) << 0x303u;
    QTest::newRow("download the project only")
        << QStringList { "chooseData", "downloadButton" } << int(EVT_USB_PKG_DOWNLOAD) << 0x103u;
    QTest::newRow("browse with the data only")
        << QStringList { "chooseProject", "browseButton" } << int(EVT_USB_PKG_BROWSE) << 0x203u;
    QTest::newRow("nothing chosen: download does nothing, cancel closes")
        << QStringList { "chooseProject", "chooseData", "downloadButton", "cancelButton" } << 0 << 0u;
}

void tst_UsbPackages::plugged_dialog_reports_the_choices()
{
    QFETCH(QStringList, presses);
    QFETCH(int, code);
    QFETCH(unsigned, word);
    QCOMPARE(View_PopupExtDevPlugin(A, STORE_USB1), 0);
    PanelFixture::settle();
    XUsbPackageDialog* d = top();
    QVERIFY(d);
    QCOMPARE(d->kind(), int(XUsbPackageDialog::Plugged));
    QVERIFY(d->mediumPresent());
    QCOMPARE(d->packageCount(), 3); // line3.pkg, recipes.zip, old/line3-v1.7z; links are not followed
    QVERIFY(!d->freeSpace().isEmpty());
    for (const QString& p : presses)
        press(p.toLatin1().constData());
    QTRY_VERIFY(dialogs().isEmpty());
    const QList<EventRecorder::Event> events = packageEvents();
    if (code == 0) {
        QCOMPARE(events.size(), 0);
        return;
    }
    QCOMPARE(events.size(), 1);
    QCOMPARE(events.first().id, A);
    QCOMPARE(events.first().code, code);
    QCOMPARE(unsigned(events.first().intAt(0)), word);
    if (code == EVT_USB_PKG_DOWNLOAD)
        QCOMPARE(events.first().intAt(1), 0);
}

void tst_UsbPackages::a_second_plug_while_a_dialog_is_up()
{
    QCOMPARE(View_PopupPKGFileExplorer(A, STORE_USB1), 0);
    QCOMPARE(View_PopupExtDevPlugin(A, STORE_USB2), 0);
    QCOMPARE(dialogs().size(), 1); // no second dialog: the logic layer is told
    QCOMPARE(top()->kind(), int(XUsbPackageDialog::Explorer));
    const auto events = m_rec.eventsWithCode(EVT_USB_PKG_DOWNLOAD);
    QCOMPARE(events.size(), 1);
    QCOMPARE(events.first().intAt(0), int(STORE_USB2));
    QCOMPARE(events.first().intAt(1), 1);
    // unknown windows and storage numbers: nothing opens, nothing is sent
    m_rec.clear();
    QCOMPARE(View_PopupExtDevPlugin(PanelFixture::wid(9, 9), STORE_USB1), -1);
    QCOMPARE(View_PopupExtDevPlugin(A, 0), -1);
    QCOMPARE(View_PopupExtDevPlugin(A, 7), -1);
    QCOMPARE(View_PopupExtDevPlugin(A, -3), -1);
    QCOMPARE(View_PopupPKGFileExplorer(A, 99), -1);
    QCOMPARE(packageEvents().size(), 0);
    QCOMPARE(dialogs().size(), 1);
}

void tst_UsbPackages::the_explorer_lists_packages_and_asks_to_confirm()
{
    QCOMPARE(View_PopupPKGFileExplorer(A, STORE_USB1), 0);
    PanelFixture::settle();
    QCOMPARE(listed(), (QStringList { "old", "line3.pkg", "recipes.zip" })); // no link out of the storage
    // into a folder and back, never above the storage
    m_panel.click(m_panel.sceneCenter(TestUtil::findItem(top(), QStringLiteral("packageRow0"))));
    PanelFixture::settle();
    QCOMPARE(listed(), QStringList { "line3-v1.7z" });
    press("upButton");
    press("upButton"); // at the storage's root: the button does nothing
    QCOMPARE(top()->files()->shownPath(), QStringLiteral("usb1"));
    // a package: its confirmation above the explorer; cancelling goes back to the explorer
    m_panel.click(m_panel.sceneCenter(TestUtil::findItem(top(), QStringLiteral("packageRow1"))));
    PanelFixture::settle();
    QCOMPARE(dialogs().size(), 2);
    QCOMPARE(top()->kind(), int(XUsbPackageDialog::Confirm));
    QCOMPARE(top()->packageName(), QStringLiteral("line3.pkg"));
    QCOMPARE(top()->packageSize(), QStringLiteral("4.0 KB"));
    press("cancelButton");
    QTRY_COMPARE(dialogs().size(), 1);
    QCOMPARE(packageEvents().size(), 0);
    // confirming sends 2306 with the path and closes both
    m_panel.click(m_panel.sceneCenter(TestUtil::findItem(top(), QStringLiteral("packageRow2"))));
    PanelFixture::settle();
    press("confirmButton");
    const auto events = m_rec.eventsWithCode(EVT_USB_PKG_CONFIRM);
    QCOMPARE(events.size(), 1);
    QCOMPARE(events.first().id, A);
    QCOMPARE(events.first().text(), QFileInfo(store(3) + "/recipes.zip").canonicalFilePath());
    QTRY_VERIFY(dialogs().isEmpty());
    QCOMPARE(packageEvents().size(), 1);
}

void tst_UsbPackages::a_confirmation_asked_by_the_logic_layer_data()
{
    QTest::addColumn<int>("storeNo");
    QTest::addColumn<QString>("path"); // "@" stands for the storage folder
    QTest::addColumn<int>("result");
    QTest::newRow("relative to the storage") << int(STORE_USB1) << "line3.pkg" << 0;
    QTest::newRow("absolute") << int(STORE_USB1) << "@/old/line3-v1.7z" << 0;
    QTest::newRow("dot-dot out of the storage") << int(STORE_USB1) << "../hmi/panel.pkg" << -1;
    QTest::newRow("a link to another storage") << int(STORE_USB1) << "elsewhere.pkg" << -1;
    QTest::newRow("the wrong storage") << int(STORE_USB2) << "line3.pkg" << -1;
    QTest::newRow("a folder") << int(STORE_USB1) << "old" << -1;
    QTest::newRow("nothing there") << int(STORE_USB1) << "none.pkg" << -1;
    QTest::newRow("empty") << int(STORE_USB1) << "" << -1;
    QTest::newRow("outside the project") << int(STORE_USB1) << "/etc/passwd" << -1;
    QTest::newRow("unknown storage") << 12 << "line3.pkg" << -1;
}

void tst_UsbPackages::a_confirmation_asked_by_the_logic_layer()
{
    QFETCH(int, storeNo);
    QFETCH(QString, path);
    QFETCH(int, result);
    path.replace(QLatin1Char('@'), store(storeNo));
    QCOMPARE(View_PopupPKGDownloadCfm(A, storeNo, path.isEmpty() ? nullptr : path.toUtf8().constData()), result);
    QCOMPARE(dialogs().size(), result == 0 ? 1 : 0);
    if (result != 0)
        return;
    QCOMPARE(top()->kind(), int(XUsbPackageDialog::Confirm));
    press("confirmButton");
    const auto events = m_rec.eventsWithCode(EVT_USB_PKG_CONFIRM);
    QCOMPARE(events.size(), 1);
    QVERIFY(events.first().text().startsWith(QFileInfo(store(storeNo)).canonicalFilePath() + "/"));
}

void tst_UsbPackages::a_medium_appearing_refreshes_the_dialog()
{
    QCOMPARE(View_PopupPKGFileExplorer(A, STORE_USB2), 0);
    XUsbPackageDialog* d = top();
    QVERIFY(!d->mediumPresent());
    QCOMPARE(listed(), QStringList());
    // files arrive on the medium: the listing follows, no event is sent
    touchFile(store(4) + "/update.pkg");
    QTRY_VERIFY(d->mediumPresent());
    QTRY_COMPARE(listed(), QStringList { "update.pkg" });
    QCOMPARE(d->packageCount(), 1);
    QCOMPARE(packageEvents().size(), 0);
    QVERIFY(QFile::remove(store(4) + "/update.pkg"));
    QTRY_VERIFY(!d->mediumPresent());
}

void tst_UsbPackages::eject_results_data()
{
    QTest::addColumn<int>("storeNo");
    QTest::addColumn<int>("result");
    QTest::newRow("usb1, a plain folder: synced, nothing to unmount") << int(STORE_USB1) << 0;
    QTest::newRow("sd") << int(STORE_SD) << 0;
    QTest::newRow("the panel's own storage is not removable") << int(STORE_HMI) << -1;
    QTest::newRow("the temporary storage") << 0 << -1;
    QTest::newRow("unknown number") << 5 << -1;
    QTest::newRow("negative") << -1 << -1;
}

void tst_UsbPackages::eject_results()
{
    QFETCH(int, storeNo);
    QFETCH(int, result);
    QCOMPARE(View_PopupPKGFileExplorer(A, STORE_USB1), 0);
    QCOMPARE(View_ExtDevEject(storeNo), result);
    // the dialogs on an ejected storage close; others stay
    QTRY_COMPARE(dialogs().size(), storeNo == STORE_USB1 ? 0 : 1);
}

void tst_UsbPackages::ejecting_a_mounted_medium_unmounts_it()
{
    const QString usb2 = store(4);
    QProcess mount;
    mount.start(QStringLiteral("mount"), { "-t", "tmpfs", "-o", "size=4m", "qgui-test-medium", usb2 });
    if (!mount.waitForFinished(10000) || mount.exitCode() != 0)
        QSKIP("mounting a tmpfs is not permitted here");
    touchFile(usb2 + "/fresh.pkg");
    QCOMPARE(QStorageInfo(usb2).rootPath(), usb2);
    QCOMPARE(View_PopupExtDevPlugin(A, STORE_USB2), 0);
    QVERIFY(top()->mediumPresent());
    QCOMPARE(top()->packageCount(), 1);
    QCOMPARE(View_ExtDevEject(STORE_USB2), 0);
    QVERIFY(QStorageInfo(usb2).rootPath() != usb2); // unmounted: the folder is a plain folder again
    QVERIFY(!QFile::exists(usb2 + "/fresh.pkg"));
    QTRY_VERIFY(dialogs().isEmpty());
    QCOMPARE(View_ExtDevEject(STORE_USB2), 0); // again: a plain folder now
}

QGUI_GUIAPP_TEST_MAIN(tst_UsbPackages)
#include "tst_usbpackages.moc"
