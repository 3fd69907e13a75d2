// Process-wide configuration: language mapping, zoom scale, curve search times,
// the shell's rotation, project paths, fonts and double-click recognition.
#include "common/guiapptestmain.h"

#include "app/guishell.h"
#include "app/xquickview.h"
#include "common/testutil.h"
#include "config/fontmange.h"
#include "config/globalconfig.h"
#include "config/projectmanage.h"
#include "config/xeventfilter.h"
#include "platform/globalinfo.h"

#include <QFontDatabase>
#include <QQmlEngine>
#include <QQuickItem>
#include <QTemporaryDir>

class tst_Config : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void scale_is_one_without_a_view();
    void language_mapping_data();
    void language_mapping();
    void curve_search_times();
    void project_paths_derive_from_the_project();
    void project_fonts_load_and_unload();
    void shell_rotation_and_zoom_follow_the_view();
    void double_click_recognition_data();
    void double_click_recognition();

private:
    std::unique_ptr<XQuickView> m_view;
};

void tst_Config::scale_is_one_without_a_view()
{
    QVERIFY(!GuiApplication::instance()->view());
    QCOMPARE(GlobalConfig::getInstance()->scale(), 1.0);
    QVERIFY(!GlobalConfig::getInstance()->canMutiTouch());
}

void tst_Config::language_mapping_data()
{
    QTest::addColumn<uint>("lang");
    QTest::addColumn<bool>("chinese");
    QTest::newRow("1 is English") << 1u << false;
    QTest::newRow("0 is Chinese") << 0u << true;
    QTest::newRow("2 is Chinese") << 2u << true;
    QTest::newRow("7 is Chinese") << 7u << true;
    QTest::newRow("largest is Chinese") << 0xFFFFFFFFu << true;
}

void tst_Config::language_mapping()
{
    QFETCH(uint, lang);
    QFETCH(bool, chinese);
    auto* cfg = GlobalConfig::getInstance();
    QSignalSpy spy(cfg, &GlobalConfig::langTokenChanged);
    cfg->setLocale(lang);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(cfg->getLocale().language(), chinese ? QLocale::Chinese : QLocale::English);
    QCOMPARE(GlobalInfo::instance()->locale(), cfg->getLocale());
    QCOMPARE(QCoreApplication::translate("QmlMessageBox", "Message"),
        chinese ? QString::fromUtf8("消息") : QString("Message")); // the embedded translation
    cfg->setLocale(1u);
}

void tst_Config::curve_search_times()
{
    auto* cfg = GlobalConfig::getInstance();
    QCOMPARE(cfg->getCurveSampleSearchTime(42), qMakePair(QString(), QString()));
    cfg->saveCurveSampleSearchTime(42, { "2026-01-01 00:00:00", "2026-01-02 00:00:00" });
    QCOMPARE(cfg->getCurveSampleSearchTime(42).second, QString("2026-01-02 00:00:00"));
    QCOMPARE(cfg->getCurveSampleSearchTime(43), qMakePair(QString(), QString()));
}

void tst_Config::project_paths_derive_from_the_project()
{
    auto* pm = ProjectManage::getInstance();
    pm->setPrjPath("/srv/prj/");
    QCOMPARE(pm->getFontPath(), QString("/srv/prj/fontstring/"));
    QCOMPARE(pm->getImagePath(), QString("/srv/prj/tar/image/"));
    QCOMPARE(pm->getSysImagePath(), QString("/srv/prj/tar/image/sysimage/"));
    QCOMPARE(pm->getMediaPath(), QString("/srv/prj/sound/"));
    QVERIFY(pm->getDefaultFontPath().endsWith("/DefaultFont"));
    pm->setPrjPath(QString());
}

void tst_Config::project_fonts_load_and_unload()
{
    const QStringList candidates = { "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf",
        "/usr/share/fonts/truetype/dejavu/DejaVuSansMono.ttf" };
    QTemporaryDir prj;
    QDir().mkpath(prj.path() + "/fontstring/sub");
    int copied = 0;
    for (const QString& c : candidates) {
        if (QFile::copy(c, prj.path() + "/fontstring/sub/" + QFileInfo(c).fileName()))
            ++copied;
    }
    if (copied == 0)
        QSKIP("no font files to copy");
    QFile bad(prj.path() + "/fontstring/broken.ttf"); // not a font: skipped with a warning
    QVERIFY(bad.open(QIODevice::WriteOnly));
    bad.write("not a font");
    bad.close();
    ProjectManage::getInstance()->setPrjPath(prj.path() + "/");
    auto* fm = FontMange::getInstance();
    QCOMPARE(fm->loadFontFile(), copied);
    QVERIFY(
        fm->loadedFamilies().contains("DejaVu Sans") || fm->loadedFamilies().contains("DejaVu Sans Mono"));
    fm->unloadFontFile();
    QVERIFY(fm->loadedFamilies().isEmpty());
    QCOMPARE(fm->loadFontFilesFrom(QString(), true), 0);
    ProjectManage::getInstance()->setPrjPath(QString());
}

void tst_Config::shell_rotation_and_zoom_follow_the_view()
{
    m_view = std::make_unique<XQuickView>();
    GuiApplication::instance()->setView(m_view.get());
    m_view->setSource(QUrl("qrc:/shell/halvex.qml"));
    QCOMPARE(m_view->status(), QQuickView::Ready);
    QVERIFY(TestUtil::waitForFrame(m_view.get()));
    GuiShell* shell = GuiShell::instance();
    QVERIFY(shell);
    QVERIFY(shell->getGuiRect());
    QCOMPARE(shell->getGuiRect()->width(), 1024.0);

    QSignalSpy rot(shell, &GuiShell::windowRotationChanged);
    shell->setWindowRotation(90);
    shell->setWindowRotation(90.0 + 1e-14); // equal within the fuzzy tolerance
    QCOMPARE(rot.count(), 1);
    QCOMPARE(shell->getGuiRect()->rotation(), 90.0);
    shell->setWindowRotation(0);

    auto* cfg = GlobalConfig::getInstance();
    QCOMPARE(cfg->scale(), 1.0);
    QSignalSpy scale(cfg, &GlobalConfig::scaleChanged);
    m_view->onChangeZoom(1, "150");
    QCOMPARE(scale.count(), 1);
    QCOMPARE(cfg->scale(), 1.5);
    QCOMPARE(shell->getGuiRect()->scale(), 1.5);
    m_view->setRootItemScale(1.0); // emits nothing
    QCOMPARE(scale.count(), 1);
    GuiApplication::instance()->setView(nullptr);
    m_view.reset();
}

void tst_Config::double_click_recognition_data()
{
    QTest::addColumn<QPoint>("second"); // offset of the second press
    QTest::addColumn<bool>("clearBetween");
    QTest::addColumn<int>("doubleClicks");
    QTest::newRow("same place") << QPoint(0, 0) << false << 1;
    QTest::newRow("within the press distance") << QPoint(10, 5) << false << 1;
    QTest::newRow("too far away") << QPoint(60, 0) << false << 0;
    QTest::newRow("state cleared") << QPoint(0, 0) << true << 0;
}

void tst_Config::double_click_recognition()
{
    QFETCH(QPoint, second);
    QFETCH(bool, clearBetween);
    QFETCH(int, doubleClicks);
    QApplication::setDoubleClickInterval(0); // Qt itself never makes double clicks
    QQuickView view;
    view.installEventFilter(XEventFilter::getInstance());
    view.setSource(QUrl());
    QQmlComponent c(view.engine());
    c.setData("import QtQuick 2.15\nMouseArea { width: 300; height: 200; property int dbl: 0;"
              " onDoubleClicked: dbl++ }",
        QUrl());
    auto* area = qobject_cast<QQuickItem*>(c.create());
    QVERIFY(area);
    area->setParentItem(view.contentItem());
    view.resize(300, 200);
    QVERIFY(TestUtil::waitForFrame(&view));
    auto* filter = XEventFilter::getInstance();
    filter->clearState();
    filter->setDoubleInterval(60000); // generous, so a slow machine still counts both presses
    const QPoint first(100, 100);
    QTest::mouseClick(&view, Qt::LeftButton, Qt::NoModifier, first);
    if (clearBetween)
        filter->clearState();
    QTest::mouseClick(&view, Qt::LeftButton, Qt::NoModifier, first + second);
    QCOMPARE(area->property("dbl").toInt(), doubleClicks);
    filter->setDoubleInterval(200);
    filter->clearState();
    delete area;
}

QGUI_GUIAPP_TEST_MAIN(tst_Config)
#include "tst_config.moc"
