// The XY curve on a real panel: the calls' results for unknown ids and other
// kinds, points replaced in list order, a rubber band dragged with the mouse
// reported in axis units and zoomed to, the restore button made on first need
// and answering once, and each curve's colour where its points lie.
#include "common/eventrecorder.h"
#include "common/guiapptestmain.h"
#include "common/panelfixture.h"
#include "common/testutil.h"

#include "app/xquickview.h"
#include "views/viewmanage.h"
#include "xcomponents/qquick/customlabelaxisticker.h"
#include "xcomponents/qquick/xcpaxis.h"
#include "xcomponents/qquick/xycurvechart.h"
#include "xcomponents/qquick/xymousearea.h"

#include <QQuickItem>

#include <qgui/events.h>

class tst_CurveXy : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void creation_and_calls_on_unknown_ids();
    void points_replace_a_curve_in_list_order();
    void rubber_band_reports_and_zooms_data();
    void rubber_band_reports_and_zooms();
    void restore_answers_once();
    void each_curve_draws_in_its_colour();

private:
    XYCurveChart* chart(unsigned id) const
    {
        return qobject_cast<XYCurveChart*>(ViewManage::getInstance()->getItemById(id));
    }
    int create(unsigned id);
    /** Drags from \a a to \a b (plot-area fractions) with mouse events sent to the window. */
    void band(XYCurveChart* c, QPointF a, QPointF b);

    PanelFixture m_panel;
    EventRecorder m_rec;
    Font m_font { nullptr, 12, 400, 0, 0, 0, 0, 0xFF202020u, 0 };
    View_CurveChannel m_channels[2] {};
    const unsigned A = PanelFixture::wid(1, 1);
};

int tst_CurveXy::create(unsigned id)
{
    m_channels[0] = View_CurveChannel {};
    m_channels[0].pen = Pen { 0xFFFF0000u, 3, PEN_SOLID };
    m_channels[0].lineStyle = CURVE_LINE_PLAIN;
    m_channels[1] = m_channels[0];
    m_channels[1].pen.color = 0xFF0000FFu;
    View_CurveXy rec {};
    rec.rect = Rect { 20, 20, 600, 400 };
    rec.id = id;
    rec.plotBrush = Brush { BRUSH_SOLID, 0xFFFFFFFFu, 0, 0 };
    for (View_CurveAxis* a : { &rec.xAxis, &rec.yAxis }) {
        a->basePen = Pen { 0xFF000000u, 1, PEN_SOLID };
        a->tickPen = a->basePen;
        a->labelFont = &m_font;
        a->gridPen = Pen { 0xFFDDDDDDu, 1, PEN_DOT };
        a->tickCount = 5;
    }
    rec.xAxis.lower = 0;
    rec.xAxis.upper = 100; // flow
    rec.yAxis.lower = 0;
    rec.yAxis.upper = 50; // head
    rec.channels = m_channels;
    rec.channelCount = 2;
    rec.selectPen = Pen { 0xFF3060D0u, 1, PEN_DASH };
    rec.selectBrush = Brush { BRUSH_SOLID, 0x403060D0u, 0, 0 };
    return View_CreateCurveXy(&rec, A);
}

void tst_CurveXy::band(XYCurveChart* c, QPointF a, QPointF b)
{
    PanelFixture::settle();
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
    const QRect area = c->plotArea();
    auto at = [&](QPointF f) {
        return m_panel.scenePoint(c, QPointF(area.left() + f.x() * area.width(), area.top() + f.y() * area.height()));
    };
    const QPoint from = at(a);
    const QPoint to = at(b);
    QTest::mousePress(m_panel.view(), Qt::LeftButton, Qt::NoModifier, from);
    for (int step = 1; step <= 10; ++step) {
        const QPoint p = from + (to - from) * step / 10;
        QMouseEvent move(QEvent::MouseMove, p, p, m_panel.view()->mapToGlobal(p), Qt::NoButton, Qt::LeftButton,
            Qt::NoModifier);
        QCoreApplication::sendEvent(m_panel.view(), &move);
    }
    QTest::mouseRelease(m_panel.view(), Qt::LeftButton, Qt::NoModifier, to, 5);
    PanelFixture::settle();
}

void tst_CurveXy::init()
{
    QVERIFY(m_panel.start());
    m_rec.install();
    m_rec.clear();
    QCOMPARE(m_panel.switchWindow(A, Rect { 0, 0, 800, 480 }, 0xFFFFFFFFu), 0);
}

void tst_CurveXy::cleanup()
{
    m_panel.stop();
}

void tst_CurveXy::creation_and_calls_on_unknown_ids()
{
    QCOMPARE(View_CreateCurveXy(nullptr, A), -1);
    View_CurveXy rec {};
    rec.id = 5;
    QCOMPARE(View_CreateCurveXy(&rec, PanelFixture::wid(1, 77)), -1);
    QVERIFY(!chart(5));
    QCOMPARE(create(10), 0);
    QVERIFY(chart(10));
    QCOMPARE(chart(10)->curveList().size(), 2);
    QVERIFY(!chart(10)->curveAt(2));
    QVERIFY(!chart(10)->curveAt(-1));
    for (unsigned id : { 4242u, 0u, 10u }) {
        QCOMPARE(View_CurveXyClearData(id, { 0, 7, 0xFFFFFFFFu }), 0);
        QCOMPARE(View_CurveXyUpdateData(id, { 9 }, { { FPoint { 1, 2 } } }), 0);
        QCOMPARE(View_CurveXyUpdateXLabel(id, { "low", "high" }), 0);
        QCOMPARE(View_CurveXyUpdateYLabel(id, {}), 0);
    }
    QCOMPARE(View_CurveXyShowCursor(), 0);
    // hiding a curve of an XY chart always answers 0
    QCOMPARE(View_CurveHideChannel(10, 1, true), 0);
    QVERIFY(!chart(10)->curveAt(1)->visible());
    QCOMPARE(View_CurveHideChannel(10, 99, true), 0);
    QCOMPARE(chart(10)->xTicker()->labelFor(1), QStringLiteral("high"));
    QCOMPARE(chart(10)->xTicker()->labelFor(0.5), QString()); // between two labels: none
}

void tst_CurveXy::points_replace_a_curve_in_list_order()
{
    QCOMPARE(create(11), 0);
    XYCurveChart* c = chart(11);
    const double nan = std::numeric_limits<double>::quiet_NaN();
    std::list<FPoint> loop { { 10, 40 }, { 50, 30 }, { 30, 10 }, { nan, 5 }, { 10, 40 } };
    QCOMPARE(View_CurveXyUpdateData(11, { 0, 1 }, { loop }), 0); // a channel without its list is left alone
    QCOMPARE(c->curveAt(0)->dataCount(), 5);
    QCOMPARE(c->curveAt(1)->dataCount(), 0);
    // the order of the list, not of x: the curve goes back on itself
    QCOMPARE(c->curveAt(0)->data()->at(2)->key, 30.0);
    QCOMPARE(c->curveAt(0)->data()->at(2)->value, 10.0);
    QVERIFY(std::isnan(c->curveAt(0)->data()->at(3)->key)); // a gap
    QCOMPARE(View_CurveXyUpdateData(11, { 0 }, { { FPoint { 1, 1 } } }), 0);
    QCOMPARE(c->curveAt(0)->dataCount(), 1);
    QCOMPARE(View_CurveXyClearData(11, { 0 }), 0);
    QCOMPARE(c->curveAt(0)->dataCount(), 0);
}

void tst_CurveXy::rubber_band_reports_and_zooms_data()
{
    QTest::addColumn<QPointF>("from");
    QTest::addColumn<QPointF>("to");
    QTest::addColumn<bool>("zoom");
    QTest::newRow("top-left to bottom-right") << QPointF(0.2, 0.2) << QPointF(0.6, 0.8) << true;
    QTest::newRow("dragged backwards") << QPointF(0.6, 0.8) << QPointF(0.2, 0.2) << true;
    QTest::newRow("too small: a tap") << QPointF(0.5, 0.5) << QPointF(0.505, 0.505) << false;
}

void tst_CurveXy::rubber_band_reports_and_zooms()
{
    QFETCH(QPointF, from);
    QFETCH(QPointF, to);
    QFETCH(bool, zoom);
    QCOMPARE(create(12), 0);
    XYCurveChart* c = chart(12);
    band(c, from, to);
    QCOMPARE(m_rec.count(EVT_CURVE_XY_PRESS), 1);
    QCOMPARE(m_rec.count(EVT_CURVE_XY_RELEASE), 1);
    QCOMPARE(m_rec.eventsWithCode(EVT_CURVE_XY_PRESS).first().intAt(0), 0);
    const auto selects = m_rec.eventsWithCode(EVT_CURVE_XY_SELECT);
    QCOMPARE(selects.size(), zoom ? 1 : 0);
    auto* area = c->findChild<XYMouseArea*>(QStringLiteral("mouseArea"));
    QCOMPARE(area->scaleState(), zoom);
    if (!zoom) {
        QVERIFY(!c->restoreButton());
        return;
    }
    // x 0..100 and y 0..50 across the plot area: 20 %..60 % and 20 %..80 % from the top
    const QStringList v = selects.first().text().split('|');
    QCOMPARE(v.size(), 4);
    QVERIFY2(std::fabs(v[0].toDouble() - 20) < 1.5 && std::fabs(v[1].toDouble() - 60) < 1.5, qPrintable(v.join(' ')));
    QVERIFY2(std::fabs(v[2].toDouble() - 40) < 1.5 && std::fabs(v[3].toDouble() - 10) < 1.5, qPrintable(v.join(' ')));
    QVERIFY(std::fabs(c->xAxis()->range().lower - 20) < 1.5);
    QVERIFY(std::fabs(c->yAxis()->range().upper - 40) < 1.5);
    QVERIFY(c->restoreButton() && c->restoreButton()->isVisible());
}

void tst_CurveXy::restore_answers_once()
{
    QCOMPARE(create(13), 0);
    XYCurveChart* c = chart(13);
    // no button yet: a restore does nothing
    c->onRestoreBtnClicked();
    QCOMPARE(m_rec.count(EVT_CURVE_XY_RESTORE), 0);
    band(c, QPointF(0.1, 0.1), QPointF(0.5, 0.5));
    QQuickItem* button = c->restoreButton();
    QVERIFY(button && button->isVisible());
    QQuickItem* image = TestUtil::findItem(button, "restoreBtn");
    QVERIFY(image);
    m_panel.click(m_panel.sceneCenter(image));
    PanelFixture::settle();
    const auto restores = m_rec.eventsWithCode(EVT_CURVE_XY_RESTORE);
    QCOMPARE(restores.size(), 1);
    QCOMPARE(restores.first().intAt(0), 0);
    QVERIFY(!button->isVisible());
    QCOMPARE(button->property("enabled").toBool(), false);
    QCOMPARE(c->xAxis()->range().lower, 0.0);
    QCOMPARE(c->xAxis()->range().upper, 100.0);
    QVERIFY(!c->findChild<XYMouseArea*>(QStringLiteral("mouseArea"))->scaleState());
    // hidden: a second restore sends nothing
    c->onRestoreBtnClicked();
    QCOMPARE(m_rec.count(EVT_CURVE_XY_RESTORE), 1);
    // the next zoom shows the same button again
    band(c, QPointF(0.1, 0.1), QPointF(0.5, 0.5));
    QCOMPARE(c->restoreButton(), button);
    QVERIFY(button->isVisible());
    // a double click reports a release
    m_rec.clear();
    QTest::mouseDClick(m_panel.view(), Qt::LeftButton, Qt::NoModifier, m_panel.scenePoint(c, c->plotArea().center()));
    PanelFixture::settle();
    QVERIFY(m_rec.count(EVT_CURVE_XY_RELEASE) >= 2);
}

void tst_CurveXy::each_curve_draws_in_its_colour()
{
    QCOMPARE(create(14), 0);
    XYCurveChart* c = chart(14);
    // two horizontal lines: red at head 40, blue at head 10
    QCOMPARE(View_CurveXyUpdateData(14, { 0, 1 }, { { { 0, 40 }, { 100, 40 } }, { { 0, 10 }, { 100, 10 } } }), 0);
    PanelFixture::settle();
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
    const QImage shot = m_panel.view()->grabWindow();
    const struct {
        double head;
        QColor colour;
    } lines[] = { { 40, QColor(255, 0, 0) }, { 10, QColor(0, 0, 255) } };
    for (const auto& line : lines) {
        const QPoint p = m_panel.scenePoint(c, QPointF(c->xAxis()->coordToPixel(50), c->yAxis()->coordToPixel(line.head)));
        bool found = false;
        for (int dy = -2; dy <= 2 && !found; ++dy)
            found = shot.pixelColor(p + QPoint(0, dy)) == line.colour;
        QVERIFY2(found, qPrintable(line.colour.name()));
    }
}

QGUI_GUIAPP_TEST_MAIN(tst_CurveXy)
#include "tst_curvexy.moc"
