// Buttons on a real panel: presses handed to the window or popup window that
// holds them, pictures (formats, cache, hide and keep), the drag flag, the
// grey flag, the caption carousel, the tinted disabled icon, and bad input.
#include "common/eventrecorder.h"
#include "common/guiapptestmain.h"
#include "common/panelfixture.h"
#include "common/testutil.h"

#include "app/xquickview.h"
#include "config/projectmanage.h"
#include "views/qmlwindowmanage.h"
#include "views/viewmanage.h"
#include "xcomponents/qquick/picturecachemanage.h"
#include "xcomponents/qquick/xbutton.h"
#include "xcomponents/qquick/xdisenableicon.h"
#include "xcomponents/qquick/xsktextlabel.h"
#include "xcomponents/qquick/xwindow.h"

#include <QPainter>
#include <QQuickItem>
#include <QSvgGenerator>
#include <QTemporaryDir>

#include <qgui/events.h>

class tst_Buttons : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void presses_reach_the_logic_layer_through_the_holder_data();
    void presses_reach_the_logic_layer_through_the_holder();
    void pictures_load_in_every_format_data();
    void pictures_load_in_every_format();
    void same_picture_is_decoded_once();
    void image_path_null_keeps_and_empty_hides_the_picture();
    void drag_flag_makes_the_button_a_window_handle();
    void grey_flag_restores_the_stored_colour();
    void caption_carousel_and_overflow();
    void disabled_icon_tints_only_the_icon_shape();
    void bad_input_is_refused_or_repaired();

private:
    static XButton* button(unsigned id)
    {
        return qobject_cast<XButton*>(ViewManage::getInstance()->getItemById(id));
    }
    int create(unsigned id, unsigned windowId, const char* image, Rect r = Rect { 100, 100, 120, 60 },
        unsigned header = 0);
    QRgb pixelAt(const QQuickItem* item, QPointF local);

    QTemporaryDir m_project;
    PanelFixture m_panel;
    EventRecorder m_rec;
    Font m_font { nullptr, 18, 400, 0, 0, 0, 0, 0xFFFF0000u, QGUI_ALIGN_HCENTER | QGUI_ALIGN_VCENTER };
    View_TextLayout m_layout { QGUI_ALIGN_HCENTER | QGUI_ALIGN_VCENTER, 0, 0 };
    const unsigned A = PanelFixture::wid(1, 1);
    const unsigned P = PanelFixture::wid(1, 2);
};

void tst_Buttons::initTestCase()
{
    QVERIFY(m_project.isValid());
    ProjectManage::getInstance()->setPrjPath(m_project.path() + "/");
    QDir().mkpath(m_project.path() + "/tar/image/sub");
    const QString dir = m_project.path() + "/tar/image/";
    QImage green(32, 32, QImage::Format_RGB32);
    green.fill(QColor(0, 200, 0));
    QVERIFY(green.save(dir + "green.png"));
    QVERIFY(green.save(dir + "sub/green.jpg", "JPG", 100));
    QVERIFY(green.save(dir + "green.bmp"));
    QSvgGenerator svg;
    svg.setFileName(dir + "green.svg");
    svg.setSize(QSize(32, 32));
    svg.setViewBox(QRect(0, 0, 32, 32));
    {
        QPainter p(&svg);
        p.fillRect(QRect(0, 0, 32, 32), QColor(0, 200, 0));
    }
    QFile corrupt(dir + "corrupt.png");
    QVERIFY(corrupt.open(QIODevice::WriteOnly));
    corrupt.write("\x89PNG\r\n\x1a\n this is not a picture");
}

void tst_Buttons::init()
{
    QVERIFY(m_panel.start());
    m_rec.install();
    QCOMPARE(m_panel.switchWindow(A, Rect { 0, 0, 800, 480 }, 0xFFFFFFFFu), 0);
    m_rec.clear();
}

void tst_Buttons::cleanup()
{
    m_panel.stop();
}

int tst_Buttons::create(unsigned id, unsigned windowId, const char* image, Rect r, unsigned header)
{
    View_ImageText rec { header, r, id, image, "OK", &m_font, &m_layout };
    return View_CreateButton(&rec, windowId);
}

QRgb tst_Buttons::pixelAt(const QQuickItem* item, QPointF local)
{
    if (!TestUtil::waitForFrame(m_panel.view()))
        return 0;
    return m_panel.view()->grabWindow().pixel(m_panel.scenePoint(item, local));
}

void tst_Buttons::presses_reach_the_logic_layer_through_the_holder_data()
{
    QTest::addColumn<bool>("inPopup");
    QTest::addColumn<bool>("touch");
    QTest::newRow("window, mouse") << false << false;
    QTest::newRow("window, touch") << false << true;
    QTest::newRow("popup, mouse") << true << false;
    QTest::newRow("popup, touch") << true << true;
}

void tst_Buttons::presses_reach_the_logic_layer_through_the_holder()
{
    QFETCH(bool, inPopup);
    QFETCH(bool, touch);
    unsigned holder = A;
    if (inPopup) {
        QCOMPARE(m_panel.popup(P, Rect { 200, 50, 400, 300 }), 0);
        holder = P;
    }
    QCOMPARE(create(41, holder, nullptr, Rect { 60, 100, 120, 60 }), 0);
    m_rec.clear();
    const QPoint at = m_panel.sceneCenter(button(41));
    touch ? m_panel.touch(at) : m_panel.click(at);
    QList<EventRecorder::Event> events;
    for (const auto& e : m_rec.events()) {
        if (e.code == EVT_WIDGET_PRESS || e.code == EVT_WIDGET_RELEASE)
            events << e;
    }
    QCOMPARE(events.size(), 2);
    QCOMPARE(events[0].code, int(EVT_WIDGET_PRESS));
    QCOMPARE(events[0].id, 41u);
    QVERIFY(events[0].nullData);
    QCOMPARE(events[1].code, int(EVT_WIDGET_RELEASE));
    QCOMPARE(events[1].id, 41u);
}

void tst_Buttons::pictures_load_in_every_format_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("png") << "green.png";
    QTest::newRow("jpeg in a sub-folder, backslashes") << "sub\\green.jpg";
    QTest::newRow("bmp") << "green.bmp";
    QTest::newRow("svg") << "green.svg";
    QTest::newRow("absolute path") << m_project.path() + "/tar/image/green.png";
}

void tst_Buttons::pictures_load_in_every_format()
{
    QFETCH(QString, path);
    const QByteArray utf8 = path.toUtf8();
    QCOMPARE(create(42, A, utf8.constData()), 0);
    XButton* b = button(42);
    QVERIFY(b->imageItem());
    QCOMPARE(b->imageItem()->status(), QQuickImageBase::Ready);
    const QColor c = pixelAt(b, QPointF(10, 10));
    QVERIFY2(qAbs(c.green() - 200) < 8 && c.red() < 8 && c.blue() < 8, qPrintable(c.name()));
}

void tst_Buttons::same_picture_is_decoded_once()
{
    PictureCacheManage::getInstance()->clear();
    for (unsigned i = 0; i < 20; ++i)
        QCOMPARE(create(50 + i, A, "green.png", Rect { int(i) * 30, 300, 20 + int(i), 40 }), 0);
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
    QCOMPARE(PictureCacheManage::getInstance()->decodeCount(), 1);
    QCOMPARE(button(50)->imageItem()->status(), QQuickImageBase::Ready);
    QCOMPARE(button(69)->imageItem()->status(), QQuickImageBase::Ready);
}

void tst_Buttons::image_path_null_keeps_and_empty_hides_the_picture()
{
    QCOMPARE(create(43, A, "green.png"), 0);
    XButton* b = button(43);
    QVERIFY(b->imageItem()->isVisible());

    // a null font: the picture changes, the caption stays
    View_ImageText rec { 0, Rect { 100, 100, 120, 60 }, 43, "green.bmp", "changed", nullptr, nullptr };
    QCOMPARE(View_ChangeButtonParam(43, &rec), -1);
    QVERIFY(b->imageItem()->source().isValid());
    QCOMPARE(b->text(), QStringLiteral("OK"));
    const QUrl bmp = b->imageItem()->source();

    rec.image = nullptr;
    rec.font = &m_font;
    QCOMPARE(View_ChangeButtonParam(43, &rec), -1);
    QCOMPARE(b->imageItem()->source(), bmp);
    QVERIFY(b->imageItem()->isVisible());
    QCOMPARE(b->text(), QStringLiteral("changed"));

    rec.image = "";
    QCOMPARE(View_ChangeButtonParam(43, &rec), -1);
    QVERIFY(!b->imageItem()->isVisible());
    rec.image = "green.png";
    QCOMPARE(View_ChangeButtonParam(43, &rec), -1);
    QVERIFY(b->imageItem()->isVisible());
    rec.image = "missing.png";
    QCOMPARE(View_ChangeButtonParam(43, &rec), -1);
    QVERIFY(!b->imageItem()->isVisible());

    // a missing picture at creation: no face at all, the caption only
    QCOMPARE(create(44, A, "missing.png"), 0);
    QVERIFY(!button(44)->imageItem());
    QCOMPARE(button(44)->text(), QStringLiteral("OK"));
    // a corrupt picture: a face that shows nothing
    QCOMPARE(create(45, A, "corrupt.png", Rect { 300, 100, 50, 50 }), 0);
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
    QCOMPARE(button(45)->imageItem()->status(), QQuickImageBase::Error);
}

void tst_Buttons::drag_flag_makes_the_button_a_window_handle()
{
    QCOMPARE(create(46, A, nullptr, Rect { 10, 10, 80, 40 }, 0x10000u), 0);
    QQuickItem* area = button(46)->dragArea();
    QVERIFY(area);
    QObject* drag = area->property("drag").value<QObject*>();
    QCOMPARE(drag->property("target").value<QQuickItem*>(),
        ViewManage::getInstance()->windowManage()->getWindowObj(A));

    QCOMPARE(m_panel.popup(P, Rect { 300, 100, 300, 200 }), 0);
    QCOMPARE(create(47, P, nullptr, Rect { 10, 60, 80, 40 }, 0x10000u), 0);
    QVERIFY(!button(47)->dragArea()); // a popup window is not a window item: a plain button
    QCOMPARE(create(48, A, nullptr, Rect { 10, 100, 80, 40 }, 0), 0);
    QVERIFY(!button(48)->dragArea());
}

void tst_Buttons::grey_flag_restores_the_stored_colour()
{
    QCOMPARE(create(49, A, nullptr), 0);
    XButton* b = button(49);
    XskTextLabel* caption = b->textItem()->mainLabel();
    QCOMPARE(caption->color(), QColor(Qt::red));
    QCOMPARE(View_SetDisableFlag(49, 4), 0);
    QCOMPARE(caption->color(), QColor("gray"));
    Font blue = m_font;
    blue.color = 0xFF0000FFu;
    View_ImageText rec { 0, Rect { 100, 100, 120, 60 }, 49, nullptr, "OK", &blue, nullptr };
    View_ChangeButtonParam(49, &rec);
    QCOMPARE(caption->color(), QColor("gray"));
    QCOMPARE(View_ClrDisableFlag(49, 4), 0);
    QCOMPARE(caption->color(), QColor(Qt::blue));

    // the disabled icon is made on first use and then only shown or hidden
    QCOMPARE(View_SetDisableFlag(49, 2), 0);
    QVERIFY(b->disEnableIcon() && b->disEnableIcon()->isVisible());
    QCOMPARE(View_ClrDisableFlag(49, 2), 0);
    QVERIFY(!b->disEnableIcon()->isVisible());
}

void tst_Buttons::caption_carousel_and_overflow()
{
    QCOMPARE(create(51, A, nullptr, Rect { 100, 100, 60, 30 }), 0);
    XButton* b = button(51);
    b->setCarouse(QPoint(0, 0));
    QVERIFY(!b->textItem()->carouselLabel());
    b->setCarouse(QPoint(-4, 0));
    QVERIFY(b->textItem()->carouselLabel()->isVisible());
    QCOMPARE(b->textItem()->carouselLabel()->x(), 56.0);
    QVERIFY(!b->isTextOutOfRange(2)); // "OK" fits
    QVERIFY(!b->textItem()->carouselLabel()->isVisible());
    b->setText("a caption much longer than sixty pixels");
    QVERIFY(b->isTextOutOfRange(3));
    QVERIFY(!b->isTextOutOfRange(1));
    QVERIFY(!b->isTextOutOfRange(5));

    // a caption taken away is given back by the next restyle
    b->textItem()->setParentItem(nullptr);
    View_ImageText rec { 0, Rect { 100, 100, 60, 30 }, 51, nullptr, "back", &m_font, nullptr };
    View_ChangeButtonParam(51, &rec);
    QCOMPARE(b->textItem()->parentItem(), b);
    QCOMPARE(b->text(), QStringLiteral("back"));
}

void tst_Buttons::disabled_icon_tints_only_the_icon_shape()
{
    QPixmap shape(16, 16);
    shape.fill(Qt::transparent);
    {
        QPainter p(&shape);
        p.fillRect(QRect(0, 0, 8, 16), QColor(10, 20, 30)); // left half opaque
    }
    XDisEnableIcon icon;
    icon.setIcon(QIcon(shape));
    icon.setIconSize(QSize(16, 16));
    icon.setColor(QColor(255, 0, 0));
    icon.setDisabledColor(QColor(0, 0, 255));
    QCOMPARE(icon.boundingRect(), QRectF(0, 0, 20, 20));

    QImage out(20, 20, QImage::Format_ARGB32_Premultiplied);
    for (bool enabled : { true, false }) {
        icon.setEnabled(enabled);
        out.fill(Qt::transparent);
        QPainter p(&out);
        icon.paint(&p);
        p.end();
        QCOMPARE(QColor(out.pixel(4, 10)), enabled ? QColor(255, 0, 0) : QColor(0, 0, 255));
        QCOMPARE(qAlpha(out.pixel(14, 10)), 0); // the transparent half stays transparent
        QCOMPARE(qAlpha(out.pixel(1, 1)), 0); // the 2-pixel border
    }
}

void tst_Buttons::bad_input_is_refused_or_repaired()
{
    QCOMPARE(View_CreateButton(nullptr, A), -1);
    View_ImageText rec { 0, Rect { 0, 0, -5, -5 }, 52, nullptr, nullptr, nullptr, nullptr };
    QCOMPARE(View_CreateButton(&rec, PanelFixture::wid(1, 99)), -1);
    QVERIFY(!button(52));
    // no font: no caption; a negative size is an empty button
    QCOMPARE(View_CreateButton(&rec, A), 0);
    QCOMPARE(button(52)->text(), QString());
    QCOMPARE(button(52)->size(), QSizeF(0, 0));
    QCOMPARE(View_ChangeButtonParam(52, nullptr), -1);
    QCOMPARE(View_ChangeButtonParam(999, &rec), -1);
    rec.font = &m_font;
    rec.text = "\xc3\x28 bad";
    QCOMPARE(View_ChangeButtonParam(52, &rec), -1);
    QCOMPARE(button(52)->text(), QChar(0xFFFD) + QString("( bad"));
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
}

QGUI_GUIAPP_TEST_MAIN(tst_Buttons)
#include "tst_buttons.moc"
