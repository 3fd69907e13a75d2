// Graphic shapes, images and widget groups on a real panel: rendered pixels of every shape kind,
// the tank fill, turning and resizing about the nine points, the pen, the generic move per kind,
// image fill modes and states, and groups acting on their members.
#include "common/eventrecorder.h"
#include "common/guiapptestmain.h"
#include "common/panelfixture.h"
#include "common/testutil.h"

#include "app/xquickview.h"
#include "views/lifecyclemanager.h"
#include "views/qmlwindowmanage.h"
#include "views/viewmanage.h"
#include "xcomponents/qquick/xgroup.h"
#include "xcomponents/qquick/xshapearc.h"
#include "xcomponents/qquick/xshapeimage.h"
#include "xcomponents/qquick/xshapeitem.h"
#include "xcomponents/qquick/xshapescale.h"

#include <QImage>
#include <QQuickItem>
#include <QTemporaryDir>

#include <qgui/events.h>

#include <functional>
#include <vector>

Q_DECLARE_METATYPE(std::function<int()>)
Q_DECLARE_METATYPE(std::function<int(unsigned)>)
Q_DECLARE_METATYPE(std::function<void()>)

namespace {
const U32 kRed = 0xFFFF0000u;
const U32 kBlue = 0xFF0000FFu;
const U32 kGreen = 0xFF00C000u;
const QColor kBackground(0xE0, 0xE0, 0xE0);

bool near(const QColor& a, const QColor& b, int tolerance = 40)
{
    return qAbs(a.red() - b.red()) <= tolerance && qAbs(a.green() - b.green()) <= tolerance
        && qAbs(a.blue() - b.blue()) <= tolerance;
}
} // namespace

class tst_Shapes : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void shapes_draw_where_they_should_data();
    void shapes_draw_where_they_should();
    void fill_colours_up_to_the_level_data();
    void fill_colours_up_to_the_level();
    void rotation_and_zoom_keep_the_chosen_point_data();
    void rotation_and_zoom_keep_the_chosen_point();
    void pen_changes_only_on_shapes();
    void scale_ticks_and_labels_data();
    void scale_ticks_and_labels();
    void generic_calls_on_each_kind_data();
    void generic_calls_on_each_kind();
    void shapes_report_presses_inside_only();
    void hostile_shape_records_data();
    void hostile_shape_records();
    void image_fill_modes_and_states();
    void groups_act_on_their_members();
    void groups_never_hold_themselves();

private:
    QColor pixel(QPoint at) const { return m_panel.view()->grabWindow().pixelColor(at); }
    QQuickItem* item(unsigned id) const { return ViewManage::getInstance()->getItemById(id); }
    int rect(unsigned id, Rect r, U32 colour = kRed, int radius = 0, unsigned window = 0);

    PanelFixture m_panel;
    EventRecorder m_rec;
    const unsigned A = PanelFixture::wid(1, 1);
    const unsigned P = PanelFixture::wid(1, 2);
};

void tst_Shapes::init()
{
    QVERIFY(m_panel.start());
    m_rec.install();
    m_rec.clear();
    QCOMPARE(m_panel.switchWindow(A, Rect { 0, 0, 800, 480 }), 0);
}

void tst_Shapes::cleanup()
{
    m_panel.stop();
}

int tst_Shapes::rect(unsigned id, Rect r, U32 colour, int radius, unsigned window)
{
    View_GraphRect rec {};
    rec.rect = r;
    rec.id = id;
    rec.pen = Pen { 0xFF000000u, 2, PEN_SOLID };
    rec.brush = Brush { BRUSH_SOLID, colour, 0, 0 };
    rec.radius = radius;
    return View_CreateGraphRect(&rec, window ? window : A);
}

void tst_Shapes::shapes_draw_where_they_should_data()
{
    // each row makes one shape in the box (100, 100, 200, 100) and probes the window: points that
    // must show the shape's colour and points that must show the background
    QTest::addColumn<std::function<int(unsigned)>>("create");
    QTest::addColumn<QColor>("colour");
    QTest::addColumn<QList<QPoint>>("inside");
    QTest::addColumn<QList<QPoint>>("outside");
    const Rect box { 100, 100, 200, 100 };
    const Pen thick { kBlue, 6, PEN_SOLID };
    const Brush red { BRUSH_SOLID, kRed, 0, 0 };
    static const Point triangle[] = { { 0, 100 }, { 100, 0 }, { 200, 100 } };
    static const Point zigzag[] = { { 0, 0 }, { 100, 100 }, { 200, 0 } };
    static const Point bezier[] = { { 0, 50 }, { 60, 0 }, { 140, 100 }, { 200, 50 } };

    QTest::newRow("rectangle") << std::function<int(unsigned)>([=](unsigned id) {
        View_GraphRect r { 0, box, id, thick, red, 0 };
        return View_CreateGraphRect(&r, PanelFixture::wid(1, 1));
    }) << QColor(Qt::red) << QList<QPoint> { { 200, 150 }, { 110, 110 }, { 290, 190 } }
                                   << QList<QPoint> { { 95, 150 }, { 305, 150 }, { 200, 205 } };
    QTest::newRow("rounded corners") << std::function<int(unsigned)>([=](unsigned id) {
        View_GraphRect r { 0, box, id, thick, red, 40 };
        return View_CreateGraphRect(&r, PanelFixture::wid(1, 1));
    }) << QColor(Qt::red) << QList<QPoint> { { 200, 150 }, { 110, 150 } }
                                         << QList<QPoint> { { 103, 103 }, { 297, 197 } };
    QTest::newRow("ellipse") << std::function<int(unsigned)>([=](unsigned id) {
        View_GraphEllipse r { 0, box, id, thick, red };
        return View_CreateGraphEllipse(&r, PanelFixture::wid(1, 1));
    }) << QColor(Qt::red) << QList<QPoint> { { 200, 150 }, { 120, 150 } }
                                 << QList<QPoint> { { 110, 110 }, { 290, 190 } };
    QTest::newRow("pie slice, first quarter") << std::function<int(unsigned)>([=](unsigned id) {
        View_GraphPie r { 0, box, id, thick, red, 0, 90 };
        return View_CreateGraphPie(&r, PanelFixture::wid(1, 1));
    }) << QColor(Qt::red) << QList<QPoint> { { 240, 130 } }
                                                  << QList<QPoint> { { 160, 130 }, { 160, 170 }, { 240, 170 } };
    QTest::newRow("pie slice, clockwise span") << std::function<int(unsigned)>([=](unsigned id) {
        View_GraphPie r { 0, box, id, thick, red, 0, -90 };
        return View_CreateGraphPie(&r, PanelFixture::wid(1, 1));
    }) << QColor(Qt::red) << QList<QPoint> { { 240, 170 } } << QList<QPoint> { { 240, 130 } };
    QTest::newRow("polygon") << std::function<int(unsigned)>([=](unsigned id) {
        View_GraphPolygon r { 0, box, id, thick, red, triangle, 3 };
        return View_CreateGraphPolygon(&r, PanelFixture::wid(1, 1));
    }) << QColor(Qt::red) << QList<QPoint> { { 200, 170 } } << QList<QPoint> { { 115, 115 }, { 285, 115 } };
    QTest::newRow("polyline") << std::function<int(unsigned)>([=](unsigned id) {
        View_GraphPolyline r { 0, box, id, thick, zigzag, 3 };
        return View_CreateGraphPolyline(&r, PanelFixture::wid(1, 1));
    }) << QColor(Qt::blue) << QList<QPoint> { { 150, 150 }, { 250, 150 } }
                                  << QList<QPoint> { { 200, 120 }, { 120, 180 } };
    QTest::newRow("arc, upper half") << std::function<int(unsigned)>([=](unsigned id) {
        View_GraphArc r { 0, box, id, thick, 0, 180 };
        return View_CreateGraphArc(&r, PanelFixture::wid(1, 1));
    }) << QColor(Qt::blue) << QList<QPoint> { { 200, 104 } } << QList<QPoint> { { 200, 150 }, { 200, 196 } };
    QTest::newRow("Bezier curve") << std::function<int(unsigned)>([=](unsigned id) {
        View_GraphBezierCurve r { 0, box, id, thick, bezier, 4 };
        return View_CreateGraphBezierCurve(&r, PanelFixture::wid(1, 1));
    }) << QColor(Qt::blue) << QList<QPoint> { { 200, 150 }, { 104, 150 } }
                                      << QList<QPoint> { { 200, 110 }, { 200, 190 } };
    QTest::newRow("grid 2 x 4") << std::function<int(unsigned)>([=](unsigned id) {
        View_GraphGrid r { 0, box, id, thick, Brush {}, 2, 4 };
        return View_CreateGraphGrid(&r, PanelFixture::wid(1, 1));
    }) << QColor(Qt::blue) << QList<QPoint> { { 125, 150 }, { 150, 125 }, { 200, 175 } }
                                    << QList<QPoint> { { 125, 125 }, { 275, 175 } };
}

void tst_Shapes::shapes_draw_where_they_should()
{
    QFETCH(std::function<int(unsigned)>, create);
    QFETCH(QColor, colour);
    QFETCH(QList<QPoint>, inside);
    QFETCH(QList<QPoint>, outside);
    QCOMPARE(create(10), 0);
    QVERIFY(item(10));
    PanelFixture::settle();
    const QImage shot = m_panel.view()->grabWindow();
    for (const QPoint& p : inside)
        QVERIFY2(near(shot.pixelColor(p), colour), qPrintable(QStringLiteral("(%1, %2) is %3")
                                                                 .arg(p.x())
                                                                 .arg(p.y())
                                                                 .arg(shot.pixelColor(p).name())));
    for (const QPoint& p : outside)
        QVERIFY2(near(shot.pixelColor(p), kBackground, 12),
            qPrintable(QStringLiteral("(%1, %2) is %3").arg(p.x()).arg(p.y()).arg(shot.pixelColor(p).name())));
}

void tst_Shapes::fill_colours_up_to_the_level_data()
{
    // a red tank (100, 100, 100 x 200), filled blue; probes at a quarter and three quarters of it
    QTest::addColumn<int>("direction");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<QPoint>("blue");
    QTest::addColumn<QPoint>("red");
    QTest::newRow("half, from the bottom") << int(BAR_UP) << 50 << 100 << QPoint(150, 250) << QPoint(150, 150);
    QTest::newRow("half, from the top") << int(BAR_DOWN) << 5 << 10 << QPoint(150, 150) << QPoint(150, 250);
    QTest::newRow("half, from the left") << int(BAR_RIGHT) << 1 << 2 << QPoint(125, 200) << QPoint(175, 200);
    QTest::newRow("half, from the right") << int(BAR_LEFT) << 50 << 100 << QPoint(175, 200) << QPoint(125, 200);
    QTest::newRow("over the maximum: full") << int(BAR_UP) << 500 << 100 << QPoint(150, 110) << QPoint(-1, -1);
    QTest::newRow("negative: empty") << int(BAR_UP) << -5 << 100 << QPoint(-1, -1) << QPoint(150, 290);
    QTest::newRow("maximum 0: empty") << int(BAR_UP) << 5 << 0 << QPoint(-1, -1) << QPoint(150, 290);
    QTest::newRow("unknown direction: from the bottom") << 42 << 50 << 100 << QPoint(150, 250) << QPoint(150, 150);
}

void tst_Shapes::fill_colours_up_to_the_level()
{
    QFETCH(int, direction);
    QFETCH(int, value);
    QFETCH(int, maximum);
    QFETCH(QPoint, blue);
    QFETCH(QPoint, red);
    QCOMPARE(rect(11, Rect { 100, 100, 100, 200 }), 0);
    QCOMPARE(View_FillWidget(11, direction, value, maximum, Brush { BRUSH_SOLID, kBlue, 0, 0 }), 0);
    PanelFixture::settle();
    const QImage shot = m_panel.view()->grabWindow();
    if (blue.x() >= 0)
        QVERIFY2(near(shot.pixelColor(blue), Qt::blue), qPrintable(shot.pixelColor(blue).name()));
    if (red.x() >= 0)
        QVERIFY2(near(shot.pixelColor(red), Qt::red), qPrintable(shot.pixelColor(red).name()));
    // a fill on a widget that is not a shape, or on an unknown id, is ignored
    QCOMPARE(View_FillWidget(999, direction, value, maximum, Brush {}), 0);
}

void tst_Shapes::rotation_and_zoom_keep_the_chosen_point_data()
{
    // a red 100 x 50 rectangle at (300, 200); after the call, points that must be red and points
    // that must be background
    QTest::addColumn<std::function<void()>>("call");
    QTest::addColumn<QPoint>("isRed");
    QTest::addColumn<QPoint>("isBackground");
    QTest::newRow("quarter turn about the top-left")
        << std::function<void()>([] { View_RotateWidget(12, 90, 0); }) << QPoint(275, 280) << QPoint(350, 225);
    QTest::newRow("half turn about the centre")
        << std::function<void()>([] { View_RotateWidget(12, 180, 4); }) << QPoint(350, 225) << QPoint(290, 225);
    QTest::newRow("turn beyond 360 (450 = 90) about the bottom-right")
        << std::function<void()>([] { View_RotateWidget(12, 450, 8); }) << QPoint(425, 225) << QPoint(320, 225);
    QTest::newRow("unknown origin turns about the centre")
        << std::function<void()>([] { View_RotateWidget(12, 90, 77); }) << QPoint(350, 185) << QPoint(310, 225);
    QTest::newRow("zoom twice about the bottom-right")
        << std::function<void()>([] { View_ZoomWidget(12, 200, 100, 8); }) << QPoint(220, 170) << QPoint(420, 225);
    QTest::newRow("zoom half about the centre")
        << std::function<void()>([] { View_ZoomWidget(12, 50, 25, 4); }) << QPoint(350, 225) << QPoint(310, 210);
    QTest::newRow("negative size: nothing drawn")
        << std::function<void()>([] { View_ZoomWidget(12, -50, 25, 0); }) << QPoint(-1, -1) << QPoint(350, 225);
}

void tst_Shapes::rotation_and_zoom_keep_the_chosen_point()
{
    QFETCH(std::function<void()>, call);
    QFETCH(QPoint, isRed);
    QFETCH(QPoint, isBackground);
    QCOMPARE(rect(12, Rect { 300, 200, 100, 50 }), 0);
    call();
    PanelFixture::settle();
    const QImage shot = m_panel.view()->grabWindow();
    if (isRed.x() >= 0)
        QVERIFY2(near(shot.pixelColor(isRed), Qt::red), qPrintable(shot.pixelColor(isRed).name()));
    QVERIFY2(near(shot.pixelColor(isBackground), kBackground, 12), qPrintable(shot.pixelColor(isBackground).name()));
}

void tst_Shapes::pen_changes_only_on_shapes()
{
    QCOMPARE(rect(13, Rect { 100, 100, 100, 100 }), 0);
    const Pen green { kGreen, 8, PEN_SOLID };
    QCOMPARE(View_ChangePen(13, &green), 0);
    PanelFixture::settle();
    QVERIFY(near(pixel(QPoint(102, 150)), QColor(0, 0xC0, 0)));
    QCOMPARE(View_ChangePen(13, nullptr), -1);
    QCOMPARE(View_ChangePen(999, &green), -1);
    PanelFixture::control(14, A); // a widget that is not a shape
    QCOMPARE(View_ChangePen(14, &green), -1);
}

void tst_Shapes::scale_ticks_and_labels_data()
{
    QTest::addColumn<QByteArray>("timeFormat");
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<int>("majors");
    QTest::addColumn<QStringList>("labels");
    QTest::addColumn<double>("firstAt"); // where the first and last major ticks lie along the line, 0 .. 1
    QTest::addColumn<double>("lastAt");
    QTest::newRow("numbers with a decimal") << QByteArray() << 0.0 << 10.0 << 5
                                            << QStringList { "0.0", "2.0", "4.0", "6.0", "8.0", "10.0" } << 0.0 << 1.0;
    QTest::newRow("falling numbers") << QByteArray() << 100.0 << 0.0 << 2 << QStringList { "100.0", "50.0", "0.0" }
                                     << 0.0 << 1.0;
    QTest::newRow("clock, ticks on the ends") << QByteArray("mm:ss") << 30.0 << 150.0 << 4
                                              << QStringList { "00:30", "01:00", "01:30", "02:00", "02:30" } << 0.0
                                              << 1.0;
    QTest::newRow("clock, whole steps inside the range") << QByteArray("mm:ss") << 10.0 << 100.0 << 3
                                                         << QStringList { "00:30", "01:00", "01:30" } << 20.0 / 90.0
                                                         << 80.0 / 90.0;
    QTest::newRow("clock, one hour in quarters") << QByteArray("mm") << 0.0 << 3600.0 << 4
                                                 << QStringList { "00", "15", "30", "45", "00" } << 0.0 << 1.0;
}

void tst_Shapes::scale_ticks_and_labels()
{
    QFETCH(QByteArray, timeFormat);
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFETCH(int, majors);
    QFETCH(QStringList, labels);
    QFETCH(double, firstAt);
    QFETCH(double, lastAt);
    Font font { nullptr, 12, 400, 0, 0, 0, 0, 0xFF000000u, 0 };
    View_GraphScale rec {};
    rec.rect = Rect { 50, 100, 600, 50 };
    rec.id = 18;
    rec.pen = Pen { 0xFF0000FFu, 3, PEN_SOLID };
    rec.direction = SCALE_LABELS_BELOW;
    rec.majorCount = majors;
    rec.minorCount = 1;
    rec.majorLength = 10;
    rec.minorLength = 5;
    rec.minimum = minimum;
    rec.maximum = maximum;
    rec.decimals = 1;
    rec.showLabels = 1;
    rec.font = &font;
    rec.timeFormat = timeFormat.isEmpty() ? nullptr : timeFormat.constData();
    QCOMPARE(View_CreateGraphScale(&rec, A), 0);
    auto* scale = qobject_cast<XShapeScale*>(item(18));
    QVERIFY(scale);
    QStringList shown;
    for (int i = 0; i < int(scale->majorTicks().size()); ++i)
        shown.append(scale->labelAt(i));
    QCOMPARE(shown, labels);
    // ticks lie along the line in proportion to their values
    const QPointF start = scale->tickPoint(-1); // no such tick: the minimum end
    const QPointF first = scale->tickPoint(0);
    const QPointF last = scale->tickPoint(labels.size() - 1);
    const qreal length = (last.x() - start.x()) / lastAt;
    QVERIFY(length > 400);
    QVERIFY(qAbs((first.x() - start.x()) - firstAt * length) < 1.5);
    PanelFixture::settle();
    // the major tick at the start is drawn in the pen's colour below the line
    const QPoint tick = scale->mapToScene(first + QPointF(0, 6)).toPoint();
    QVERIFY2(near(pixel(tick), Qt::blue), qPrintable(pixel(tick).name()));
}

void tst_Shapes::generic_calls_on_each_kind_data()
{
    QTest::addColumn<std::function<int(unsigned)>>("create");
    QTest::addColumn<int>("result");
    const Rect box { 10, 10, 80, 60 };
    QTest::newRow("shape") << std::function<int(unsigned)>([=](unsigned id) {
        View_GraphEllipse r { 0, box, id, Pen { kBlue, 1, PEN_SOLID }, Brush {} };
        return View_CreateGraphEllipse(&r, PanelFixture::wid(1, 1));
    }) << 0;
    QTest::newRow("image") << std::function<int(unsigned)>([=](unsigned id) {
        View_Image r { 0, box, id, nullptr, IMAGE_FIT };
        return View_CreateImage(&r, PanelFixture::wid(1, 1));
    }) << 0;
    QTest::newRow("text") << std::function<int(unsigned)>([=](unsigned id) {
        View_Text r { 0, box, id, "t", nullptr, nullptr };
        return View_CreateText(&r, PanelFixture::wid(1, 1));
    }) << 0;
    QTest::newRow("group: does not move") << std::function<int(unsigned)>([=](unsigned id) {
        View_Group r { 0, box, id, 0, Brush {}, Pen {} };
        return View_CreateGroup(&r, PanelFixture::wid(1, 1));
    }) << -1;
    QTest::newRow("button: does not move") << std::function<int(unsigned)>([=](unsigned id) {
        View_ImageText r { 0, box, id, nullptr, "b", nullptr, nullptr };
        return View_CreateButton(&r, PanelFixture::wid(1, 1));
    }) << -1;
    QTest::newRow("bar") << std::function<int(unsigned)>([=](unsigned id) {
        View_Bar r {};
        r.rect = box;
        r.id = id;
        return View_CreateBar(&r, PanelFixture::wid(1, 1));
    }) << 0;
    QTest::newRow("meter") << std::function<int(unsigned)>([=](unsigned id) {
        View_Meter r {};
        r.rect = box;
        r.id = id;
        r.maximum = 10;
        return View_CreateMeter(&r, PanelFixture::wid(1, 1));
    }) << 0;
    QTest::newRow("slider") << std::function<int(unsigned)>([=](unsigned id) {
        View_Slider r {};
        r.rect = box;
        r.id = id;
        r.maximum = 10;
        return View_CreateSlider(&r, PanelFixture::wid(1, 1));
    }) << 0;
    QTest::newRow("pipeline: does not move") << std::function<int(unsigned)>([=](unsigned id) {
        static const Point line[] = { { 0, 10 }, { 80, 10 } };
        View_Pipeline r {};
        r.rect = box;
        r.id = id;
        r.points = line;
        r.pointCount = 2;
        r.width = 8;
        r.flowrate = 10;
        return View_CreatePipeline(&r, PanelFixture::wid(1, 1));
    }) << -1;
}

void tst_Shapes::generic_calls_on_each_kind()
{
    QFETCH(std::function<int(unsigned)>, create);
    QFETCH(int, result);
    LifeCycleManager* lc = ViewManage::getInstance()->lifeCycle();
    const int before = lc->visibleCount() + lc->invisibleCount();
    QCOMPARE(create(15), 0);
    QCOMPARE(lc->visibleCount() + lc->invisibleCount(), before + 1);
    QCOMPARE(View_MoveWidget(15, 300, 200), result);
    QCOMPARE(item(15)->position(), result == 0 ? QPointF(300, 200) : QPointF(10, 10));
    // the registry's other generic calls: hide, show, opacity, rectangle, rotate, zoom, delete
    QCOMPARE(View_HideWidget(15, ITEM_SLASH_WHOLE), 0);
    QVERIFY(!item(15)->isVisible());
    QCOMPARE(View_ShowWidget(15, 0, ITEM_SLASH_WHOLE), 0);
    QVERIFY(item(15)->isVisible());
    QCOMPARE(View_ChangeOpacity(15, 50), 0);
    QCOMPARE(item(15)->opacity(), 0.5);
    QCOMPARE(View_RotateWidget(15, 30, 4), 0);
    QCOMPARE(item(15)->rotation(), 30.0);
    QCOMPARE(View_ZoomWidget(15, 160, 120, 0), 0);
    QCOMPARE(item(15)->size(), QSizeF(160, 120));
    PanelFixture::settle();
    QCOMPARE(View_DeleteWidgets({ 15 }), 0);
    QVERIFY(!item(15));
    QCOMPARE(lc->visibleCount() + lc->invisibleCount(), before);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void tst_Shapes::shapes_report_presses_inside_only()
{
    // an ellipse over a button: its corner is outside the ellipse, so the button takes the press
    View_ImageText button { 0, Rect { 100, 100, 200, 100 }, 16, nullptr, "under", nullptr, nullptr };
    QCOMPARE(View_CreateButton(&button, A), 0);
    View_GraphEllipse e { 0, Rect { 100, 100, 200, 100 }, 17, Pen { kBlue, 2, PEN_SOLID },
        Brush { BRUSH_SOLID, kRed, 0, 0 } };
    QCOMPARE(View_CreateGraphEllipse(&e, A), 0);
    PanelFixture::settle();
    m_panel.click(QPoint(200, 150));
    m_panel.click(QPoint(104, 104));
    QList<unsigned> pressed;
    for (const auto& ev : m_rec.eventsWithCode(EVT_WIDGET_PRESS))
        pressed.append(ev.id);
    QCOMPARE(pressed, (QList<unsigned> { 17, 16 }));
    QCOMPARE(m_rec.eventsWithCode(EVT_WIDGET_RELEASE).size(), 2);
}

void tst_Shapes::hostile_shape_records_data()
{
    QTest::addColumn<std::function<int()>>("create");
    QTest::addColumn<int>("result");
    static std::vector<Point> many;
    if (many.empty()) {
        for (int i = 0; i < 100000; ++i)
            many.push_back(Point { i % 400, (i * 7) % 300 });
    }
    QTest::newRow("null record") << std::function<int()>([] { return View_CreateGraphRect(nullptr, PanelFixture::wid(1, 1)); }) << -1;
    QTest::newRow("unknown window") << std::function<int()>([] {
        View_GraphRect r {};
        r.id = 20;
        return View_CreateGraphRect(&r, PanelFixture::wid(7, 7));
    }) << -1;
    QTest::newRow("100,000 polygon points") << std::function<int()>([] {
        View_GraphPolygon r { 0, Rect { 0, 0, 400, 300 }, 20, Pen { kBlue, 1, PEN_SOLID },
            Brush { BRUSH_SOLID, kRed, 0, 0 }, many.data(), U32(many.size()) };
        return View_CreateGraphPolygon(&r, PanelFixture::wid(1, 1));
    }) << 0;
    QTest::newRow("null points with a count") << std::function<int()>([] {
        View_GraphPolyline r { 0, Rect { 0, 0, 400, 300 }, 20, Pen {}, nullptr, 5000000 };
        return View_CreateGraphPolyline(&r, PanelFixture::wid(1, 1));
    }) << 0;
    QTest::newRow("Bezier with a broken last segment") << std::function<int()>([] {
        static const Point p[] = { { 0, 0 }, { 10, 10 }, { 20, 0 }, { 30, 10 }, { 40, 40 } };
        View_GraphBezierCurve r { 0, Rect { 0, 0, 40, 40 }, 20, Pen { kBlue, 1, PEN_SOLID }, p, 5 };
        return View_CreateGraphBezierCurve(&r, PanelFixture::wid(1, 1));
    }) << 0;
    QTest::newRow("negative size") << std::function<int()>([] {
        View_GraphEllipse r { 0, Rect { 10, 10, -100, -5 }, 20, Pen {}, Brush {} };
        return View_CreateGraphEllipse(&r, PanelFixture::wid(1, 1));
    }) << 0;
    QTest::newRow("angles beyond a turn") << std::function<int()>([] {
        View_GraphArc r { 0, Rect { 10, 10, 100, 100 }, 20, Pen { kBlue, 3, PEN_SOLID }, 1000, -5000 };
        return View_CreateGraphArc(&r, PanelFixture::wid(1, 1));
    }) << 0;
    QTest::newRow("grid of a million rows") << std::function<int()>([] {
        View_GraphGrid r { 0, Rect { 10, 10, 100, 100 }, 20, Pen { kBlue, 1, PEN_SOLID }, Brush {}, 1000000, -3 };
        return View_CreateGraphGrid(&r, PanelFixture::wid(1, 1));
    }) << 0;
    QTest::newRow("scale with unknown direction, huge counts") << std::function<int()>([] {
        View_GraphScale r {};
        r.rect = Rect { 10, 10, 300, 50 };
        r.id = 20;
        r.pen = Pen { kBlue, 1, PEN_SOLID };
        r.direction = 99;
        r.majorCount = INT_MAX;
        r.minorCount = INT_MAX;
        r.minimum = std::numeric_limits<double>::quiet_NaN();
        r.maximum = std::numeric_limits<double>::infinity();
        r.showLabels = 1;
        return View_CreateGraphScale(&r, PanelFixture::wid(1, 1));
    }) << 0;
}

void tst_Shapes::hostile_shape_records()
{
    QFETCH(std::function<int()>, create);
    QFETCH(int, result);
    QCOMPARE(create(), result);
    PanelFixture::settle(); // drawn without a crash
    QCOMPARE(bool(item(20)), result == 0);
    if (auto* arc = qobject_cast<XShapeArc*>(item(20))) {
        QVERIFY(arc->startAngle() >= 0 && arc->startAngle() < 360);
        QCOMPARE(arc->spanAngle(), -360.0);
    }
    // the widget still takes the generic calls
    QCOMPARE(View_RotateWidget(20, INT_MIN, 4), 0);
    QCOMPARE(View_ZoomWidget(20, INT_MAX, INT_MIN, 8), 0);
    QCOMPARE(View_FillWidget(20, 0, INT_MIN, INT_MAX, Brush {}), 0);
    PanelFixture::settle();
}

void tst_Shapes::image_fill_modes_and_states()
{
    QTemporaryDir dir;
    // a 100 x 50 picture: left half green, right half blue
    QImage picture(100, 50, QImage::Format_RGB32);
    picture.fill(Qt::blue);
    for (int y = 0; y < 50; ++y)
        for (int x = 0; x < 50; ++x)
            picture.setPixelColor(x, y, QColor(0, 0xC0, 0));
    const QString path = dir.filePath(QStringLiteral("half.png"));
    QVERIFY(picture.save(path));
    const QByteArray file = path.toUtf8();
    View_Image stretched { 0, Rect { 100, 100, 200, 200 }, 21, file.constData(), IMAGE_STRETCH };
    View_Image fitted { 0, Rect { 400, 100, 200, 200 }, 22, file.constData(), IMAGE_FIT };
    View_Image missing { 0, Rect { 100, 320, 50, 50 }, 23, "no/such/picture.png", 77 };
    QCOMPARE(View_CreateImage(&stretched, A), 0);
    QCOMPARE(View_CreateImage(&fitted, A), 0);
    QCOMPARE(View_CreateImage(&missing, A), 0); // made, shows nothing
    PanelFixture::settle();
    QTRY_VERIFY(near(pixel(QPoint(150, 290)), QColor(0, 0xC0, 0)));
    QImage shot = m_panel.view()->grabWindow();
    QVERIFY(near(shot.pixelColor(250, 110), Qt::blue)); // stretched over the whole box
    QVERIFY(near(shot.pixelColor(550, 190), Qt::blue)); // fitted: 200 x 100 in the middle
    QVERIFY(near(shot.pixelColor(500, 120), kBackground, 12)); // above the fitted picture
    QCOMPARE(qobject_cast<XShapeImage*>(item(23))->fillMode(), int(XShapeImage::Stretch));
    // greyed out the picture is faint; hiding with the slash hides only the picture
    QCOMPARE(View_SetDisableFlag(21, 4), 0);
    PanelFixture::settle();
    QVERIFY(!near(pixel(QPoint(250, 110)), Qt::blue, 40));
    QCOMPARE(View_ClrDisableFlag(21, 4), 0);
    // hiding the picture alone is for buttons and inputs: an image stays; hidden whole, it goes
    QCOMPARE(View_HideWidget(21, ITEM_SLASH_IMAGE), 0);
    PanelFixture::settle();
    QVERIFY(near(pixel(QPoint(250, 110)), Qt::blue));
    QCOMPARE(View_HideWidget(21, ITEM_SLASH_WHOLE), 0);
    PanelFixture::settle();
    QVERIFY(near(pixel(QPoint(250, 110)), kBackground, 12));
    QCOMPARE(View_ShowWidget(21, 0, ITEM_SLASH_WHOLE), 0);
    QCOMPARE(View_SetBusy(21), 0);
    PanelFixture::settle();
    QVERIFY(near(pixel(QPoint(120, 280)), QColor(0, 0xC0, 0)));
    // a press on the picture is reported
    m_panel.click(QPoint(150, 150));
    QCOMPARE(m_rec.eventsWithCode(EVT_WIDGET_PRESS).value(0).id, 21u);
}

void tst_Shapes::groups_act_on_their_members()
{
    LifeCycleManager* lc = ViewManage::getInstance()->lifeCycle();
    QCOMPARE(m_panel.popup(P, Rect { 100, 50, 500, 350 }), 0);
    View_Group group { 0, Rect { 20, 20, 300, 200 }, 30, 1, Brush { BRUSH_SOLID, 0xFFFFFFFFu, 0, 0 },
        Pen { 0xFF000000u, 1, PEN_SOLID } };
    QCOMPARE(View_CreateGroup(&group, P), 0);
    QCOMPARE(rect(31, Rect { 10, 10, 50, 50 }, kRed, 0, P), 0);
    QCOMPARE(rect(32, Rect { 100, 10, 50, 50 }, kBlue, 0, P), 0);
    QCOMPARE(View_SetWidgetParent(31, 30), 0);
    QCOMPARE(View_SetWidgetParent(32, 30), 0);
    QCOMPARE(item(31)->parentItem(), item(30));
    PanelFixture::settle();
    // members sit relative to the group: popup content (100, 90) + group (20, 20) + (10, 10)
    QVERIFY(near(pixel(QPoint(155, 145)), Qt::red));
    QVERIFY(near(pixel(QPoint(245, 145)), Qt::blue));
    // hiding the group hides its members; showing it brings them back
    QCOMPARE(View_HideWidget(30, ITEM_SLASH_WHOLE), 0);
    QVERIFY(!item(31)->isVisible() && !item(32)->isVisible());
    QCOMPARE(View_ShowWidget(30, 0, ITEM_SLASH_WHOLE), 0);
    QVERIFY(item(31)->isVisible());
    // closing the window takes the group away with its members inside; shown again, they are there
    // (the members stay addressable: a value changed meanwhile shows when the group is back)
    QCOMPARE(View_CloseWindow(P), 0);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(lc->findItemMaybeInvisible(30) && !lc->findItemMaybeInvisible(30)->window());
    QVERIFY(lc->findItemMaybeInvisible(31) && !lc->findItemMaybeInvisible(31)->window());
    QCOMPARE(lc->findItemMaybeInvisible(31)->parentItem(), lc->findItemMaybeInvisible(30));
    QCOMPARE(View_SetWidgetParent(30, A), 0);
    PanelFixture::settle();
    QVERIFY(near(pixel(QPoint(55, 55)), Qt::red));
    // a press on a member reports the member; on the group's background, the group
    m_rec.clear();
    m_panel.click(QPoint(55, 55));
    m_panel.click(QPoint(200, 200));
    QCOMPARE(m_rec.eventsWithCode(EVT_WIDGET_PRESS).value(0).id, 31u);
    QCOMPARE(m_rec.eventsWithCode(EVT_WIDGET_PRESS).value(1).id, 30u);
    // deleting the group deletes its members
    const int before = lc->visibleCount() + lc->invisibleCount();
    QCOMPARE(View_DeleteWidgets({ 30 }), 0);
    QCOMPARE(lc->visibleCount() + lc->invisibleCount(), before - 3);
    QVERIFY(!lc->findItemMaybeInvisible(31) && !lc->findItemMaybeInvisible(32));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void tst_Shapes::groups_never_hold_themselves()
{
    View_Group outer { 0, Rect { 20, 20, 300, 200 }, 40, 0, Brush {}, Pen {} };
    View_Group inner { 0, Rect { 10, 10, 100, 100 }, 41, 0, Brush {}, Pen {} };
    QCOMPARE(View_CreateGroup(&outer, A), 0);
    QCOMPARE(View_CreateGroup(&inner, A), 0);
    QCOMPARE(View_SetWidgetParent(41, 40), 0);
    QCOMPARE(View_SetWidgetParent(40, 40), -1); // into itself
    QCOMPARE(View_SetWidgetParent(40, 41), -1); // into its own member
    QCOMPARE(item(40)->parentItem(), ViewManage::getInstance()->windowManage()->getWindow(A));
    QCOMPARE(item(41)->parentItem(), item(40));
    QCOMPARE(View_SetWidgetParent(A, 40), 0); // a window id is no widget: nothing moves
    QCOMPARE(View_CreateGroupBar(), -1);
    QCOMPARE(View_CreateGroupMeter(), -1);
    View_GroupIOList io {};
    io.group = View_Group { 0, Rect { 0, 0, 50, 50 }, 42, 0, Brush {}, Pen {} };
    QCOMPARE(View_CreateGroupIOList(&io, A), 0);
    QVERIFY(qobject_cast<XGroup*>(item(42)));
    QCOMPARE(View_CreateGroupIOList(nullptr, A), -1);
}

QGUI_GUIAPP_TEST_MAIN(tst_Shapes)
#include "tst_shapes.moc"
