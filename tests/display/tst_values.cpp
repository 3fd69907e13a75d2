// Value displays on a real panel: bar graphs (levels from an origin, target band, labels), dial
// meters (needle angle, swings that never hold an update back, alarm arc), sliders driven by real
// drags (events 2, 4, 3 with the values), and pipelines whose flow moves only while it can be seen.
#include "common/eventrecorder.h"
#include "common/guiapptestmain.h"
#include "common/panelfixture.h"

#include "app/xquickview.h"
#include "views/viewmanage.h"
#include "views/virtualkeyboardmanager.h"
#include "xcomponents/qquick/baseslider.h"
#include "xcomponents/qquick/sliderruler.h"
#include "xcomponents/qquick/xbar.h"
#include "xcomponents/qquick/xmeter.h"
#include "xcomponents/qquick/xpipeline.h"

#include <QImage>
#include <QMouseEvent>
#include <QQuickItem>
#include <QtMath>

#include <qgui/events.h>

#include <cmath>
#include <cstring>
#include <limits>

namespace {
bool near(const QColor& a, const QColor& b, int tolerance = 40)
{
    return qAbs(a.red() - b.red()) <= tolerance && qAbs(a.green() - b.green()) <= tolerance
        && qAbs(a.blue() - b.blue()) <= tolerance;
}

double valueOf(const EventRecorder::Event& e)
{
    double v = std::numeric_limits<double>::quiet_NaN();
    if (e.payload.size() == int(sizeof(double)))
        std::memcpy(&v, e.payload.constData(), sizeof(double));
    return v;
}
} // namespace

class tst_Values : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void bar_levels_grow_from_the_origin_data();
    void bar_levels_grow_from_the_origin();
    void bar_target_labels_and_results();
    void meter_needle_points_at_the_value();
    void meter_updates_are_never_held_back_by_a_swing();
    void meter_alarm_arc_labels_and_results();
    void slider_drag_reports_the_values_under_the_finger();
    void slider_keeps_the_finger_while_the_logic_echoes();
    void slider_ruler_takes_presses_and_labels();
    void pipeline_flows_only_while_it_can_be_seen();
    void pipeline_results_and_hostile_records();

private:
    template <class T> T* widget(unsigned id) const
    {
        return qobject_cast<T*>(ViewManage::getInstance()->getItemById(id));
    }
    int bar(unsigned id, U32 direction, U8 origin, U8 bars = 1, U8 scale = 0);
    int meter(unsigned id);
    int slider(unsigned id, U32 direction, double step, int majors = 0);
    int pipeline(unsigned id, U32 rate);
    void drag(QPoint from, QPoint to, int steps);
    QColor pixel(QPoint at) const { return m_panel.view()->grabWindow().pixelColor(at); }

    PanelFixture m_panel;
    EventRecorder m_rec;
    Font m_font { nullptr, 12, 400, 0, 0, 0, 0, 0xFF202020u, 0 };
    const unsigned A = PanelFixture::wid(1, 1);
};

void tst_Values::init()
{
    QVERIFY(m_panel.start());
    m_rec.install();
    m_rec.clear();
    m_rec.setPressPayloadSize(int(sizeof(double)));
    QCOMPARE(m_panel.switchWindow(A, Rect { 0, 0, 800, 480 }), 0);
}

void tst_Values::cleanup()
{
    m_panel.stop();
}

int tst_Values::bar(unsigned id, U32 direction, U8 origin, U8 bars, U8 scale)
{
    View_Bar rec {};
    rec.rect = Rect { 100, 100, 100, 200 };
    rec.id = id;
    rec.direction = direction;
    rec.barCount = bars;
    rec.origin = origin;
    rec.showScale = scale;
    rec.showTarget = 1;
    rec.background = Brush { BRUSH_SOLID, 0xFFFFFFFFu, 0, 0 };
    rec.border = Pen { 0xFF000000u, 1, PEN_SOLID };
    rec.scalePen = Pen { 0xFF000000u, 1, PEN_SOLID };
    rec.targetPen = Pen { 0xFF00C000u, 3, PEN_SOLID };
    rec.majorCount = 4;
    rec.minorCount = 1;
    rec.font = &m_font;
    return View_CreateBar(&rec, A);
}

void tst_Values::bar_levels_grow_from_the_origin_data()
{
    // one red bar in (100, 100, 100 x 200); probes: a point that must be red, one that must be white
    QTest::addColumn<uint>("direction");
    QTest::addColumn<int>("origin");
    QTest::addColumn<QByteArray>("value");
    QTest::addColumn<QPoint>("red");
    QTest::addColumn<QPoint>("white");
    QTest::newRow("up, half") << uint(BAR_UP) << 0 << QByteArray("50") << QPoint(150, 250) << QPoint(150, 150);
    QTest::newRow("down, a quarter") << uint(BAR_DOWN) << 0 << QByteArray("25.0") << QPoint(150, 140) << QPoint(150, 200);
    QTest::newRow("right, three quarters") << uint(BAR_RIGHT) << 0 << QByteArray(" 75 ") << QPoint(170, 200) << QPoint(190, 200);
    QTest::newRow("left, half") << uint(BAR_LEFT) << 0 << QByteArray("50") << QPoint(180, 200) << QPoint(120, 200);
    QTest::newRow("origin in the middle, value below it grows down")
        << uint(BAR_UP) << 50 << QByteArray("20") << QPoint(150, 230) << QPoint(150, 180);
    QTest::newRow("origin in the middle, value above it grows up")
        << uint(BAR_UP) << 50 << QByteArray("80") << QPoint(150, 170) << QPoint(150, 230);
    QTest::newRow("beyond 100 is full") << uint(BAR_UP) << 0 << QByteArray("1e9") << QPoint(150, 105) << QPoint(-1, -1);
    QTest::newRow("unknown direction grows up") << 99u << 0 << QByteArray("50") << QPoint(150, 250) << QPoint(150, 150);
}

void tst_Values::bar_levels_grow_from_the_origin()
{
    QFETCH(uint, direction);
    QFETCH(int, origin);
    QFETCH(QByteArray, value);
    QFETCH(QPoint, red);
    QFETCH(QPoint, white);
    QCOMPARE(bar(10, direction, U8(origin)), 0);
    QCOMPARE(View_BarUpdateVar(10, 0, value.constData(), Brush { BRUSH_SOLID, 0xFFFF0000u, 0, 0 }), 0);
    PanelFixture::settle();
    const QImage shot = m_panel.view()->grabWindow();
    QVERIFY2(near(shot.pixelColor(red), Qt::red), qPrintable(shot.pixelColor(red).name()));
    if (white.x() >= 0)
        QVERIFY2(near(shot.pixelColor(white), Qt::white), qPrintable(shot.pixelColor(white).name()));
}

void tst_Values::bar_target_labels_and_results()
{
    QCOMPARE(bar(11, BAR_UP, 0, 3, 1), 0);
    XBar* b = widget<XBar>(11);
    QVERIFY(b);
    QCOMPARE(b->barCount(), 3);
    // three bars side by side, in order, none overlapping
    const Brush blue { BRUSH_SOLID, 0xFF0000FFu, 0, 0 };
    for (unsigned char i = 0; i < 3; ++i)
        QCOMPARE(View_BarUpdateVar(11, i, "60", blue), 0);
    QVERIFY(b->barRect(0).right() < b->barRect(1).left());
    QVERIFY(b->barRect(1).right() < b->barRect(2).left());
    QCOMPARE(View_BarUpdateVar(11, 3, "60", blue), -1); // no fourth bar
    QCOMPARE(View_BarUpdateVar(99, 0, "60", blue), -1);
    // texts that are no number change only the fill
    for (const char* text : { "abc", "", "nan", "inf" })
        QCOMPARE(View_BarUpdateVar(11, 0, text, blue), 0);
    QCOMPARE(View_BarUpdateVar(11, 0, nullptr, blue), 0);
    QCOMPARE(b->value(0), 60.0);
    QCOMPARE(View_BarUpdateVar(11, 0, "-20", blue), 0);
    QCOMPARE(b->value(0), 0.0);
    // the target band: lines at 80 % and 90 % in the target colour
    QCOMPARE(View_BarUpdateTarget(11, 90, 80), 0);
    QCOMPARE(View_BarUpdateTarget(99, 1, 2), -1);
    PanelFixture::settle();
    const QRectF area = b->barArea();
    const int y80 = qRound(b->y() + area.bottom() - 0.8 * area.height());
    QVERIFY2(near(pixel(QPoint(int(b->x() + area.center().x()), y80)), QColor(0, 0xC0, 0)),
        qPrintable(pixel(QPoint(int(b->x() + area.center().x()), y80)).name()));
    // labels: numbers until texts come, then the texts from the start, the rest empty
    QCOMPARE(b->labelAt(0), QStringLiteral("0"));
    QCOMPARE(b->labelAt(4), QStringLiteral("100"));
    QCOMPARE(View_BarUpdateScaleLabels(11, { "low", "\xff" }), 0);
    QCOMPARE(b->labelAt(0), QStringLiteral("low"));
    QCOMPARE(b->labelAt(1), QString(QChar::ReplacementCharacter));
    QCOMPARE(b->labelAt(2), QString());
    QCOMPARE(View_BarUpdateScaleLabels(99, {}), -1);
    QCOMPARE(View_BarUpdateOrigin(11, 250), 0); // beyond 100 %: the end
    QCOMPARE(b->origin(), 100.0);
    QCOMPARE(View_BarUpdateOrigin(99, 1), -1);
}

int tst_Values::meter(unsigned id)
{
    View_Meter rec {};
    rec.rect = Rect { 100, 50, 300, 300 };
    rec.id = id;
    rec.startAngle = 225;
    rec.spanAngle = -270;
    rec.minimum = 0;
    rec.maximum = 100;
    rec.dialBrush = Brush { BRUSH_SOLID, 0xFFFFFFFFu, 0, 0 };
    rec.scalePen = Pen { 0xFF000000u, 2, PEN_SOLID };
    rec.majorCount = 10;
    rec.minorCount = 4;
    rec.font = &m_font;
    rec.needlePen = Pen { 0xFFFF0000u, 4, PEN_SOLID };
    rec.alarmColor = 0xFF0000FFu;
    return View_CreateMeter(&rec, A);
}

void tst_Values::meter_needle_points_at_the_value()
{
    QCOMPARE(meter(20), 0);
    XMeter* m = widget<XMeter>(20);
    QVERIFY(m);
    for (int value : { 0, 50, 100, 75 }) {
        QCOMPARE(View_MeterUpdateVal(20, value), 0);
        QTRY_COMPARE(m->needleValue(), qreal(value));
        const qreal angle = 225 - 2.7 * value;
        QCOMPARE(m->needleAngle(), angle);
        PanelFixture::settle();
        // half way along the needle, in the needle's colour
        const QPointF c = m->mapToScene(m->centre());
        const qreal r = m->radius() * 0.4;
        const QPoint at(qRound(c.x() + r * std::cos(qDegreesToRadians(angle))),
            qRound(c.y() - r * std::sin(qDegreesToRadians(angle))));
        QVERIFY2(near(pixel(at), Qt::red), qPrintable(QStringLiteral("%1 at %2: %3").arg(value).arg(angle).arg(pixel(at).name())));
    }
    QCOMPARE(View_MeterUpdateVal(20, 1000), 0); // clamped to the range
    QCOMPARE(m->value(), 100.0);
    QCOMPARE(View_MeterUpdateVal(20, INT_MIN), 0);
    QCOMPARE(m->value(), 0.0);
}

void tst_Values::meter_updates_are_never_held_back_by_a_swing()
{
    QCOMPARE(meter(21), 0);
    XMeter* m = widget<XMeter>(21);
    PanelFixture::settle();
    QCOMPARE(View_MeterUpdateVal(21, 100), 0);
    QTest::qWait(XMeter::kSwingMs / 3);
    const qreal during = m->needleValue();
    QVERIFY2(during > 0 && during < 100, qPrintable(QString::number(during))); // on its way
    // a new value during the swing counts at once and the needle turns from where it is
    QCOMPARE(View_MeterUpdateVal(21, 10), 0);
    QCOMPARE(m->value(), 10.0);
    QVERIFY(qAbs(m->needleValue() - during) < 15);
    QTRY_COMPARE(m->needleValue(), 10.0);
    // every 10 ms cycle a new value: the needle ends on the last one
    for (int v = 0; v <= 60; v += 2) {
        View_MeterUpdateVal(21, v);
        QTest::qWait(10);
    }
    QTRY_COMPARE(m->needleValue(), 60.0);
}

void tst_Values::meter_alarm_arc_labels_and_results()
{
    QCOMPARE(meter(22), 0);
    XMeter* m = widget<XMeter>(22);
    QVERIFY(!m->hasAlarmRange());
    QCOMPARE(View_MeterUpdateAlarmRange(22, 100, 80), 0); // either order
    QVERIFY(m->hasAlarmRange());
    PanelFixture::settle();
    // the arc at 85 (angle 225 - 229.5 = -4.5 degrees, between two ticks) just inside the scale line
    const QPointF c = m->mapToScene(m->centre());
    const qreal r = m->radius() * 0.86 - 4;
    const qreal a = qDegreesToRadians(-4.5);
    const QPoint at(qRound(c.x() + r * std::cos(a)), qRound(c.y() - r * std::sin(a)));
    QVERIFY2(near(pixel(at), Qt::blue), qPrintable(pixel(at).name()));
    QCOMPARE(View_MeterUpdateAlarmRange(22, 5, 5), 0); // equal ends: no arc
    QVERIFY(!m->hasAlarmRange());
    QCOMPARE(m->labelAt(10), QStringLiteral("100"));
    std::vector<std::string> many(5000, "x");
    QCOMPARE(View_MeterUpdateScaleLabels(22, many), 0);
    QCOMPARE(m->labelAt(10), QStringLiteral("x"));
    QCOMPARE(m->labelAt(11), QString());
    QCOMPARE(View_MeterUpdateAlarmRange(99, 1, 2), -1);
    QCOMPARE(View_MeterUpdateScaleLabels(99, {}), -1);
    QCOMPARE(View_MeterUpdateVal(99, 1), -1);
    // a record with minimum == maximum and a span beyond a turn
    View_Meter odd {};
    odd.rect = Rect { 500, 50, 100, 100 };
    odd.id = 23;
    odd.minimum = odd.maximum = 7;
    odd.spanAngle = 100000;
    odd.majorCount = -5;
    QCOMPARE(View_CreateMeter(&odd, A), 0);
    QCOMPARE(View_MeterUpdateVal(23, 50), 0);
    QCOMPARE(widget<XMeter>(23)->value(), 7.0);
    PanelFixture::settle();
}

int tst_Values::slider(unsigned id, U32 direction, double step, int majors)
{
    View_Slider rec {};
    rec.rect = Rect { 100, 200, 400, 60 };
    rec.id = id;
    rec.direction = direction;
    rec.minimum = 0;
    rec.maximum = 100;
    rec.value = 10;
    rec.step = step;
    rec.groove = Brush { BRUSH_SOLID, 0xFFC0C0C0u, 0, 0 };
    rec.handleBrush = Brush { BRUSH_SOLID, 0xFF2060D0u, 0, 0 };
    rec.majorCount = majors;
    rec.font = &m_font;
    return View_CreateSlider(&rec, A);
}

void tst_Values::drag(QPoint from, QPoint to, int steps)
{
    QWindow* view = m_panel.view();
    m_panel.press(from);
    for (int i = 1; i <= steps; ++i) {
        const QPointF at = QPointF(from) + QPointF(to - from) * i / steps;
        QMouseEvent move(QEvent::MouseMove, at, at, view->mapToGlobal(at.toPoint()), Qt::NoButton, Qt::LeftButton,
            Qt::NoModifier);
        QCoreApplication::sendEvent(view, &move);
    }
    m_panel.release(to);
}

void tst_Values::slider_drag_reports_the_values_under_the_finger()
{
    QCOMPARE(slider(30, BAR_RIGHT, 5), 0);
    BaseSlider* s = widget<BaseSlider>(30);
    QVERIFY(s);
    QCOMPARE(s->value(), 10.0);
    PanelFixture::settle();
    const QLineF groove = s->grooveLine();
    auto scene = [s](const QPointF& p) { return s->mapToScene(p).toPoint(); };
    // from a quarter of the groove to three quarters
    drag(scene(groove.pointAt(0.25)), scene(groove.pointAt(0.75)), 10);
    const auto presses = m_rec.eventsWithCode(EVT_WIDGET_PRESS);
    const auto drags = m_rec.eventsWithCode(EVT_SLIDER_DRAG);
    const auto releases = m_rec.eventsWithCode(EVT_WIDGET_RELEASE);
    QCOMPARE(presses.size(), 1);
    QCOMPARE(presses.first().id, 30u);
    QCOMPARE(valueOf(presses.first()), 25.0);
    QVERIFY(drags.size() >= 5);
    double last = 25;
    for (const auto& e : drags) {
        const double v = valueOf(e);
        QVERIFY2(v > last && std::fmod(v, 5.0) == 0.0, qPrintable(QString::number(v))); // rising, on the step
        last = v;
    }
    QCOMPARE(last, 75.0);
    QCOMPARE(releases.size(), 1);
    QCOMPARE(valueOf(releases.first()), 75.0);
    QCOMPARE(s->value(), 75.0);
    // dragged far past the end: the maximum, and nothing beyond
    m_rec.clear();
    drag(scene(groove.pointAt(0.5)), scene(groove.pointAt(1.0)) + QPoint(300, 0), 4);
    QCOMPARE(valueOf(m_rec.eventsWithCode(EVT_WIDGET_RELEASE).first()), 100.0);
    // upwards: the minimum at the bottom
    QCOMPARE(slider(31, BAR_UP, 0), 0);
    BaseSlider* up = widget<BaseSlider>(31);
    QVERIFY(up->grooveLine().p1().y() > up->grooveLine().p2().y());
}

void tst_Values::slider_keeps_the_finger_while_the_logic_echoes()
{
    QCOMPARE(slider(32, BAR_RIGHT, 1), 0);
    BaseSlider* s = widget<BaseSlider>(32);
    PanelFixture::settle();
    const QLineF groove = s->grooveLine();
    const QPoint start = s->mapToScene(groove.pointAt(0.2)).toPoint();
    m_panel.press(start);
    QVERIFY(s->isDragging());
    QCOMPARE(View_ChangeSliderPos(32, 90), 0); // the logic says something else meanwhile
    QCOMPARE(s->value(), 20.0); // the handle stays under the finger
    m_panel.release(start);
    QCOMPARE(s->value(), 90.0); // the logic spoke last: its value is shown
    QCOMPARE(View_ChangeSliderPos(32, std::numeric_limits<double>::quiet_NaN()), 0);
    QCOMPARE(View_ChangeSliderPos(32, -1e300), 0);
    QCOMPARE(s->value(), 0.0);
    QCOMPARE(View_ChangeSliderPos(99, 1), -1);
}

void tst_Values::slider_ruler_takes_presses_and_labels()
{
    QCOMPARE(slider(33, BAR_RIGHT, 0, 4), 0);
    BaseSlider* s = widget<BaseSlider>(33);
    SliderRuler* ruler = s->ruler();
    QVERIFY(ruler);
    QCOMPARE(ruler->labelAt(2), QStringLiteral("50"));
    QCOMPARE(View_ChangeSliderLabels(33, { "slow", "", "half" }), 0);
    QCOMPARE(ruler->labelAt(2), QStringLiteral("half"));
    QCOMPARE(ruler->labelAt(3), QString());
    PanelFixture::settle();
    // a press on the ruler below the middle of the groove moves the handle there
    const QPointF middle = s->grooveLine().pointAt(0.5);
    m_panel.click(s->mapToScene(QPointF(middle.x(), ruler->y() + ruler->height() / 2)).toPoint());
    QCOMPARE(valueOf(m_rec.eventsWithCode(EVT_WIDGET_PRESS).value(0)), 50.0);
    QCOMPARE(s->value(), 50.0);
    // a slider without a scale has no ruler: labels are accepted and go nowhere
    QCOMPARE(slider(34, BAR_RIGHT, 0, 0), 0);
    QVERIFY(!widget<BaseSlider>(34)->ruler());
    QCOMPARE(View_ChangeSliderLabels(34, { "a" }), 0);
    QCOMPARE(View_ChangeSliderLabels(99, { "a" }), -1);
    // a record with a non-finite range keeps 0..100
    View_Slider odd {};
    odd.rect = Rect { 10, 10, 100, 30 };
    odd.id = 35;
    odd.minimum = std::numeric_limits<double>::infinity();
    odd.maximum = std::numeric_limits<double>::quiet_NaN();
    odd.value = 1e308;
    odd.step = -3;
    odd.direction = 7;
    QCOMPARE(View_CreateSlider(&odd, A), 0);
    QCOMPARE(widget<BaseSlider>(35)->maximum(), 100.0);
    QCOMPARE(widget<BaseSlider>(35)->value(), 100.0);
}

int tst_Values::pipeline(unsigned id, U32 rate)
{
    static const Point route[] = { { 10, 20 }, { 300, 20 }, { 300, 150 }, { 500, 150 } };
    View_Pipeline rec {};
    rec.rect = Rect { 50, 50, 520, 180 };
    rec.id = id;
    rec.points = route;
    rec.pointCount = 4;
    rec.width = 24;
    rec.pipe = Brush { BRUSH_SOLID, 0xFF808890u, 0, 0 };
    rec.border = Pen { 0xFF303030u, 1, PEN_SOLID };
    rec.flowShape = FLOW_ARROW;
    rec.flowColor = 0xFFFFFFFFu;
    rec.flowrate = rate;
    return View_CreatePipeline(&rec, A);
}

void tst_Values::pipeline_flows_only_while_it_can_be_seen()
{
    QCOMPARE(pipeline(40, 200), 0);
    XPipeLine* p = widget<XPipeLine>(40);
    QVERIFY(p);
    PanelFixture::settle();
    QVERIFY(p->isFlowing());
    QVERIFY(qAbs(p->length() - (290.0 + 130.0 + 200.0)) < 3); // the route, inside the border's half width
    // the keyboard, made while the panel is idle, has had its first frames (drawn almost transparent
    // over the window): nothing but the pipe changes from here
    VirtualKeyboardManager* keyboard = VirtualKeyboardManager::instance();
    QTRY_VERIFY_WITH_TIMEOUT(keyboard->isInitialised() && !keyboard->isWarmingUp(), 10000);
    // the marks move between two frames: the pixels inside the pipe change
    const auto pipePixels = [this] {
        const QImage shot = m_panel.view()->grabWindow().copy(50, 50, 520, 180);
        QVector<QRgb> inside;
        for (const QRect& band : { QRect(14, 14, 276, 12), QRect(294, 28, 12, 112), QRect(312, 144, 176, 12) }) {
            for (int y = band.top(); y <= band.bottom(); ++y) {
                for (int x = band.left(); x <= band.right(); ++x)
                    inside.append(shot.pixel(x, y));
            }
        }
        return inside;
    };
    const QImage first = m_panel.view()->grabWindow().copy(50, 50, 520, 180);
    const QVector<QRgb> firstInside = pipePixels();
    const qreal d0 = p->flowDistance();
    QTest::qWait(120);
    QVERIFY(p->flowDistance() > d0 + 5);
    QVERIFY(pipePixels() != firstInside);
    // the pipe body is drawn along its route, with white marks inside it
    int white = 0;
    for (int x = 60; x < 290; ++x)
        white += near(first.pixelColor(x, 20), Qt::white, 30) ? 1 : 0;
    QVERIFY2(white > 20 && white < 200, qPrintable(QString::number(white)));
    // rate 0: it stands still, and the frames are no longer asked for
    QCOMPARE(View_PipelineUpdateFlowrate(40, 0), 0);
    QVERIFY(!p->isFlowing());
    const qreal stopped = p->flowDistance();
    PanelFixture::settle();
    const QVector<QRgb> a = pipePixels();
    QTest::qWait(100);
    QCOMPARE(p->flowDistance(), stopped);
    QVERIFY(pipePixels() == a);
    // flowing again but hidden: nothing moves until it is shown
    QCOMPARE(View_PipelineUpdateFlowrate(40, 300), 0);
    QCOMPARE(View_HideWidget(40, ITEM_SLASH_WHOLE), 0);
    QVERIFY(!p->isFlowing());
    const qreal hidden = p->flowDistance();
    QTest::qWait(80);
    QCOMPARE(p->flowDistance(), hidden);
    QCOMPARE(View_ShowWidget(40, 0, ITEM_SLASH_WHOLE), 0);
    QVERIFY(p->isFlowing());
    QTRY_VERIFY(p->flowDistance() > hidden);
}

void tst_Values::pipeline_results_and_hostile_records()
{
    QCOMPARE(pipeline(41, 50), 0);
    XPipeLine* p = widget<XPipeLine>(41);
    QCOMPARE(View_PipelineUpdateDirect(41, true), 0);
    QVERIFY(p->isReverse());
    QCOMPARE(View_PipelineUpdateFlowShapeColor(41, 0xFF00FF00u), 0);
    QCOMPARE(p->flowColor(), QColor(Qt::green));
    QCOMPARE(View_PipelineUpdateDirect(99, true), -1);
    QCOMPARE(View_PipelineUpdateFlowShapeColor(99, 0), -1);
    QCOMPARE(View_PipelineUpdateFlowrate(99, 0), -1);
    QCOMPARE(View_MoveWidget(41, 5, 5), -1); // pipelines are not among the kinds that move
    // one point, no points, a null list with a count, a huge width, an unknown flow shape
    View_Pipeline odd {};
    odd.rect = Rect { 10, 300, 100, 100 };
    odd.id = 42;
    odd.points = nullptr;
    odd.pointCount = 100000000;
    odd.width = INT_MAX;
    odd.flowShape = 77;
    odd.flowrate = UINT_MAX;
    QCOMPARE(View_CreatePipeline(&odd, A), 0);
    QVERIFY(!widget<XPipeLine>(42)->isFlowing());
    QCOMPARE(widget<XPipeLine>(42)->flowShape(), 0);
    std::vector<Point> many;
    for (int i = 0; i < 100000; ++i)
        many.push_back(Point { i % 100, (i / 100) % 100 });
    odd.id = 43;
    odd.points = many.data();
    odd.pointCount = U32(many.size());
    odd.width = 4;
    QCOMPARE(View_CreatePipeline(&odd, A), 0);
    PanelFixture::settle();
    QCOMPARE(widget<XPipeLine>(43)->points().size(), 100000);
}

QGUI_GUIAPP_TEST_MAIN(tst_Values)
#include "tst_values.moc"
