// The file dialog on a real panel over storage folders the test fills: folders first, filters,
// never a step outside the storage roots (.., links out, names that are no UTF-8), and the 770
// events of real presses: a chosen file's path, or no data when cancelled.
#include "common/eventrecorder.h"
#include "common/guiapptestmain.h"
#include "common/panelfixture.h"
#include "common/testutil.h"

#include "app/xquickview.h"
#include "config/projectmanage.h"
#include "views/qmlwindowmanage.h"
#include "views/viewmanage.h"
#include "xcomponents/qquick/xquickfiledialog.h"
#include "xcomponents/qquick/xusbselectfiledata.h"

#include <QDir>
#include <QFile>
#include <QQuickItem>
#include <QTemporaryDir>

#include <fcntl.h>
#include <unistd.h>

#include <qgui/events.h>

class tst_FileDialog : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void init();
    void cleanup();
    void folders_first_then_filtered_files_data();
    void folders_first_then_filtered_files();
    void never_a_step_outside_the_roots_data();
    void never_a_step_outside_the_roots();
    void a_file_chosen_by_touch_is_reported();
    void cancel_and_a_second_dialog_report_no_data();

private:
    static void touchFile(const QString& path, int bytes = 10);
    QStringList names() const;
    QQuickItem* row(int n) const { return TestUtil::findItem(dialog(), QStringLiteral("fileRow%1").arg(n)); }
    XQuickFileDialog* dialog() const { return ViewManage::getInstance()->windowManage()->fileDialog(); }
    void roots(XUsbSelectFileData& files) const;

    QTemporaryDir m_project;
    PanelFixture m_panel;
    EventRecorder m_rec;
    const unsigned A = PanelFixture::wid(1, 1);
};

void tst_FileDialog::touchFile(const QString& path, int bytes)
{
    QFile f(path);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write(QByteArray(bytes, 'x'));
}

void tst_FileDialog::initTestCase()
{
    QVERIFY(m_project.isValid());
    QDir root(m_project.path());
    for (const char* d : { "disk/hmi", "disk/sd", "disk/usb1/logs", "disk/usb1/Archive", "disk/usb2" })
        QVERIFY(root.mkpath(QString::fromLatin1(d)));
    const QString usb1 = root.filePath(QStringLiteral("disk/usb1"));
    touchFile(usb1 + "/report.pdf", 2048);
    touchFile(usb1 + "/Data.csv");
    touchFile(usb1 + "/notes.txt");
    touchFile(usb1 + "/.hidden");
    touchFile(usb1 + "/logs/a.log");
    touchFile(root.filePath(QStringLiteral("outside.pdf")));
    touchFile(root.filePath(QStringLiteral("disk/hmi/panel.pdf")));
    QVERIFY(QFile::link(QStringLiteral("/etc"), usb1 + "/escape")); // a link out of the roots
    QVERIFY(QFile::link(root.filePath(QStringLiteral("outside.pdf")), usb1 + "/sneaky.pdf"));
    QVERIFY(QFile::link(root.filePath(QStringLiteral("disk/hmi")), usb1 + "/panel")); // into another root
    // a name that is no UTF-8, made with its raw bytes
    const QByteArray bad = QFile::encodeName(usb1) + "/bad\xff\xfe.pdf";
    const int fd = ::open(bad.constData(), O_CREAT | O_WRONLY, 0644);
    QVERIFY(fd >= 0);
    ::close(fd);
    ProjectManage::getInstance()->setPrjPath(m_project.path() + QLatin1Char('/'));
}

void tst_FileDialog::cleanupTestCase()
{
    // a name that is no UTF-8 is removed by its bytes: the temporary folder cannot name it
    const QByteArray bad = QFile::encodeName(QDir(m_project.path()).filePath(QStringLiteral("disk/usb1"))) + "/bad\xff\xfe.pdf";
    ::unlink(bad.constData());
}

void tst_FileDialog::init()
{
    QVERIFY(m_panel.start());
    m_rec.install();
    m_rec.clear();
    QCOMPARE(m_panel.switchWindow(A, Rect { 0, 0, 800, 480 }), 0);
}

void tst_FileDialog::cleanup()
{
    m_panel.stop();
}

void tst_FileDialog::roots(XUsbSelectFileData& files) const
{
    const ProjectManage* p = ProjectManage::getInstance();
    files.setRoots({ { "hmi", p->getStorePath(1) }, { "sd", p->getStorePath(2) }, { "usb1", p->getStorePath(3) },
        { "usb2", p->getStorePath(4) } });
}

QStringList tst_FileDialog::names() const
{
    QStringList out;
    XUsbSelectFileData* files = dialog()->files();
    for (int r = 0; r < files->rowCount(); ++r)
        out.append(files->data(files->index(r), XUsbSelectFileData::NameRole).toString());
    return out;
}

void tst_FileDialog::folders_first_then_filtered_files_data()
{
    QTest::addColumn<QStringList>("filters");
    QTest::addColumn<QStringList>("listed");
    QTest::newRow("every file") << QStringList {}
                                << QStringList { "Archive", "logs", "panel", "Data.csv", "notes.txt", "report.pdf" };
    QTest::newRow("pdf only") << QStringList { "*.pdf" } << QStringList { "Archive", "logs", "panel", "report.pdf" };
    QTest::newRow("pdf and csv") << QStringList { "*.pdf", "*.CSV" }
                                 << QStringList { "Archive", "logs", "panel", "Data.csv", "report.pdf" };
    QTest::newRow("nothing matches") << QStringList { "*.xyz" } << QStringList { "Archive", "logs", "panel" };
}

void tst_FileDialog::folders_first_then_filtered_files()
{
    QFETCH(QStringList, filters);
    QFETCH(QStringList, listed);
    XUsbSelectFileData files;
    roots(files);
    files.setNameFilters(filters);
    QVERIFY(files.atTop());
    QCOMPARE(files.rowCount(), 4); // hmi, sd, usb1, usb2
    QVERIFY(files.cd(ProjectManage::getInstance()->getStorePath(3)));
    QStringList got;
    for (int r = 0; r < files.rowCount(); ++r)
        got.append(files.data(files.index(r), XUsbSelectFileData::NameRole).toString());
    QCOMPARE(got, listed);
    QCOMPARE(files.shownPath(), QStringLiteral("usb1"));
    const int pdf = got.indexOf(QStringLiteral("report.pdf"));
    if (pdf >= 0) {
        QCOMPARE(files.data(files.index(pdf), XUsbSelectFileData::SizeRole).toString(), QStringLiteral("2.0 KB"));
        QVERIFY(!files.data(files.index(pdf), XUsbSelectFileData::DateRole).toString().isEmpty());
    }
}

void tst_FileDialog::never_a_step_outside_the_roots_data()
{
    QTest::addColumn<QString>("path"); // relative to the project
    QTest::addColumn<bool>("entered");
    QTest::newRow("a root") << "disk/usb2" << true;
    QTest::newRow("a folder inside") << "disk/usb1/logs" << true;
    QTest::newRow("dot-dot back inside") << "disk/usb1/logs/../Archive" << true;
    QTest::newRow("dot-dot out") << "disk/usb1/../.." << false;
    QTest::newRow("the project itself") << "." << false;
    QTest::newRow("the temporary storage is no root") << "disk" << false;
    QTest::newRow("a link out") << "disk/usb1/escape" << false;
    QTest::newRow("a link into another root") << "disk/usb1/panel" << true;
    QTest::newRow("a file is no folder") << "disk/usb1/report.pdf" << false;
    QTest::newRow("nothing there") << "disk/usb1/none" << false;
    QTest::newRow("absolute, outside") << "/etc" << false;
}

void tst_FileDialog::never_a_step_outside_the_roots()
{
    QFETCH(QString, path);
    QFETCH(bool, entered);
    XUsbSelectFileData files;
    roots(files);
    QVERIFY(files.cd(ProjectManage::getInstance()->getStorePath(1)));
    const QString before = files.folder();
    const QString full = QDir::isAbsolutePath(path) ? path : QDir(m_project.path()).filePath(path);
    QCOMPARE(files.cd(full), entered);
    if (!entered)
        QCOMPARE(files.folder(), before);
    // whatever is listed lies inside the roots
    for (int r = 0; r < files.rowCount(); ++r)
        QVERIFY(files.isInside(files.pathAt(r)));
    // up from a root goes to the list of roots, never above
    for (int i = 0; i < 6; ++i)
        files.up();
    QVERIFY(files.atTop());
}

void tst_FileDialog::a_file_chosen_by_touch_is_reported()
{
    QCOMPARE(View_PopupFileDialog(A, "disk/usb1/*.pdf"), 0);
    QVERIFY(dialog());
    PanelFixture::settle();
    QCOMPARE(names(), (QStringList { "Archive", "logs", "panel", "report.pdf" }));
    QCOMPARE(dialog()->filterText(), QStringLiteral("*.pdf"));
    // into a folder and back up by touch
    m_panel.click(m_panel.sceneCenter(row(1)));
    PanelFixture::settle();
    QCOMPARE(dialog()->files()->shownPath(), QStringLiteral("usb1/logs"));
    QCOMPARE(m_rec.count(EVT_FILE_DIALOG), 0);
    m_panel.click(m_panel.sceneCenter(TestUtil::findItem(dialog(), QStringLiteral("upButton"))));
    PanelFixture::settle();
    QCOMPARE(dialog()->files()->shownPath(), QStringLiteral("usb1"));
    // a file: chosen, reported once with its path, and the dialog closes
    m_panel.click(m_panel.sceneCenter(row(3)));
    const auto events = m_rec.eventsWithCode(EVT_FILE_DIALOG);
    QCOMPARE(events.size(), 1);
    QCOMPARE(events.first().id, A);
    QCOMPARE(events.first().text(),
        QFileInfo(ProjectManage::getInstance()->getStorePath(3) + QStringLiteral("/report.pdf")).absoluteFilePath());
    QTRY_VERIFY(!dialog());
    QCOMPARE(m_rec.count(EVT_FILE_DIALOG), 1);
    // a start outside the roots shows the list of roots; an unknown window gets no dialog
    QCOMPARE(View_PopupFileDialog(A, "/etc"), 0);
    QVERIFY(dialog()->files()->atTop());
    QCOMPARE(View_PopupFileDialog(PanelFixture::wid(9, 9), "disk/usb1"), -1);
}

void tst_FileDialog::cancel_and_a_second_dialog_report_no_data()
{
    QCOMPARE(View_PopupFileDialog(A, "disk/hmi/panel.pdf"), 0); // a file: its folder opens
    PanelFixture::settle();
    QCOMPARE(dialog()->files()->shownPath(), QStringLiteral("hmi"));
    m_panel.click(m_panel.sceneCenter(TestUtil::findItem(dialog(), QStringLiteral("cancelButton"))));
    auto events = m_rec.eventsWithCode(EVT_FILE_DIALOG);
    QCOMPARE(events.size(), 1);
    QVERIFY(events.first().nullData);
    // a dialog opened over another: the first answers with no data
    QCOMPARE(View_PopupFileDialog(A, nullptr), 0);
    QCOMPARE(View_PopupFileDialog(A, "disk/usb2"), 0);
    events = m_rec.eventsWithCode(EVT_FILE_DIALOG);
    QCOMPARE(events.size(), 2);
    QVERIFY(events.last().nullData);
    QCOMPARE(dialog()->files()->shownPath(), QStringLiteral("usb2"));
    QCOMPARE(names(), QStringList());
}

QGUI_GUIAPP_TEST_MAIN(tst_FileDialog)
#include "tst_filedialog.moc"
