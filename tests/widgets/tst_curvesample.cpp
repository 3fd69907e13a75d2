// The sample curve chart on a real panel: creation and the results of every
// call for unknown ids and bad input, the push, scale and scroll rules, real
// mouse drags asking for history, a history search round trip answered by
// the test as the logic layer, the search dialog, and the rendered pixels of
// each channel.
#include "common/eventrecorder.h"
#include "common/guiapptestmain.h"
#include "common/panelfixture.h"
#include "common/testutil.h"

#include "app/xquickview.h"
#include "config/globalconfig.h"
#include "platform/xpopup.h"
#include "views/curvesampledlg.h"
#include "views/curvesamplecharttimemodecontroller.h"
#include "views/viewmanage.h"
#include "xcomponents/qquick/basecustomaxisticker.h"
#include "xcomponents/qquick/curvecursor.h"
#include "xcomponents/qquick/curvemousearea.h"
#include "xcomponents/qquick/curvesamplechart.h"
#include "xcomponents/qquick/customlabelaxisticker.h"
#include "xcomponents/qquick/xcpaxis.h"
#include "xcomponents/qquick/xcpaxisrect.h"
#include "xcomponents/qquick/xcpgraph.h"

#include <QQuickItem>

#include <cmath>
#include <cstring>
#include <limits>

#include <qgui/events.h>

class tst_CurveSample : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void creation_needs_a_record_and_a_window();
    void calls_on_unknown_ids_and_other_kinds_data();
    void calls_on_unknown_ids_and_other_kinds();
    void keys_count_per_channel_and_the_view_follows();
    void a_key_below_the_upper_bound_leaves_the_view();
    void scale_percent_data();
    void scale_percent();
    void hide_channel_results();
    void y_limits_and_labels_reach_the_axis();
    void double_scale_repeats_the_y_axis_on_the_right();
    void bad_values_leave_gaps();
    void press_release_and_double_click_events();
    void drags_ask_for_pages_and_pages_come_in();
    void a_late_page_is_ignored();
    void search_dialog_confirms_and_is_offered_again();
    void wheel_zoom_shows_the_restore_button();
    void each_channel_draws_in_its_colour();
    void cursor_window_shows_each_channel_at_the_cursor();
    void cursor_window_follows_samples_that_arrive_after_it_data();
    void cursor_window_follows_samples_that_arrive_after_it();
    void cursor_calls_on_unknown_ids();
    void two_fingers_pinch_the_span();
    void a_chart_deleted_in_a_drag();

private:
    CurveSampleChart* chart(unsigned id) const
    {
        return qobject_cast<CurveSampleChart*>(ViewManage::getInstance()->getItemById(id));
    }
    int create(unsigned id, int mode = CURVE_X_SAMPLE, U32 channels = 3);
    /** Pushes \a samples values per channel, channel c at 10 * (c + 1) + i % 5. */
    void push(unsigned id, int samples, int channels = 3);
    /** Drags on the plot by \a widths plot-area widths (right: positive), in steps. */
    void drag(CurveSampleChart* c, double widths);

    PanelFixture m_panel;
    EventRecorder m_rec;
    Font m_font { nullptr, 12, 400, 0, 0, 0, 0, 0xFF202020u, 0 };
    View_CurveChannel m_channels[3] {};
    const unsigned A = PanelFixture::wid(1, 1);
    U8 m_doubleScale = 0;
};

int tst_CurveSample::create(unsigned id, int mode, U32 channels)
{
    const U32 colours[3] = { 0xFFFF0000u, 0xFF00C000u, 0xFF0000FFu };
    for (int c = 0; c < 3; ++c) {
        m_channels[c] = View_CurveChannel {};
        m_channels[c].pen = Pen { colours[c], 3, PEN_SOLID };
        m_channels[c].lineStyle = CURVE_LINE_PLAIN;
    }
    View_CurveSample rec {};
    rec.rect = Rect { 20, 20, 600, 360 };
    rec.id = id;
    rec.xAxisMode = U32(mode);
    rec.plotBrush = Brush { BRUSH_SOLID, 0xFFFFFFFFu, 0, 0 };
    rec.interactions = CURVE_DRAG_X | CURVE_ZOOM_X;
    for (View_CurveAxis* a : { &rec.xAxis, &rec.yAxis }) {
        a->basePen = Pen { 0xFF000000u, 1, PEN_SOLID };
        a->tickPen = a->basePen;
        a->subTickPen = a->basePen;
        a->tickLengthIn = 5;
        a->labelFont = &m_font;
        a->gridPen = Pen { 0xFFDDDDDDu, 1, PEN_DOT };
        a->tickCount = 5;
    }
    rec.xAxis.lower = 0;
    rec.xAxis.upper = 100;
    rec.yAxis.tickCount = 4;
    rec.yAxis.lower = 0;
    rec.yAxis.upper = 100;
    rec.channels = m_channels;
    rec.channelCount = channels;
    rec.disp = 100;
    rec.cursorPen = Pen { 0xFF808080u, 1, PEN_SOLID };
    rec.settingButton = 1;
    rec.restoreButton = 1;
    rec.doubleScale = m_doubleScale;
    return View_CreateCurveSample(&rec, A);
}

void tst_CurveSample::push(unsigned id, int samples, int channels)
{
    std::vector<std::vector<double>> values(static_cast<size_t>(channels));
    std::vector<std::string> labels;
    for (int i = 0; i < samples; ++i) {
        for (int c = 0; c < channels; ++c)
            values[size_t(c)].push_back(10.0 * (c + 1) + i % 5);
        labels.push_back("s" + std::to_string(i));
    }
    QCOMPARE(View_CurveSamplePushData(id, labels, values), 0);
}

void tst_CurveSample::drag(CurveSampleChart* c, double widths)
{
    PanelFixture::settle(); // the plot area is laid out by the first replot
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
    const QRect area = c->plotArea();
    const QPoint from = m_panel.scenePoint(c, area.center());
    const int dx = int(widths * area.width());
    QTest::mousePress(m_panel.view(), Qt::LeftButton, Qt::NoModifier, from);
    // the moves go to the window as the platform would send them, buttons held
    for (int step = 1; step <= 10; ++step) {
        const QPoint to = from + QPoint(dx * step / 10, 0);
        QMouseEvent move(QEvent::MouseMove, to, to, m_panel.view()->mapToGlobal(to), Qt::NoButton, Qt::LeftButton,
            Qt::NoModifier);
        QCoreApplication::sendEvent(m_panel.view(), &move);
    }
    QTest::mouseRelease(m_panel.view(), Qt::LeftButton, Qt::NoModifier, from + QPoint(dx, 0), 5);
    PanelFixture::settle();
}

void tst_CurveSample::init()
{
    QVERIFY(m_panel.start());
    m_rec.install();
    m_rec.clear();
    m_rec.setPressPayloadSize(int(sizeof(View_EvtCurveCursor)));
    QCOMPARE(m_panel.switchWindow(A, Rect { 0, 0, 800, 480 }, 0xFFFFFFFFu), 0);
}

void tst_CurveSample::cleanup()
{
    m_panel.stop();
}

void tst_CurveSample::creation_needs_a_record_and_a_window()
{
    QCOMPARE(View_CreateCurveSample(nullptr, A), -1);
    View_CurveSample rec {};
    rec.id = 5;
    rec.rect = Rect { 0, 0, 100, 100 };
    QCOMPARE(View_CreateCurveSample(&rec, PanelFixture::wid(1, 99)), -1);
    QVERIFY(!chart(5));
    // no channels, no axes given: a chart all the same, showing 0..100
    QCOMPARE(View_CreateCurveSample(&rec, A), 0);
    QVERIFY(chart(5));
    QCOMPARE(chart(5)->channelCount(), 0);
    QCOMPARE(chart(5)->xAxis()->range().upper, 100.0);
    // a channel count with no channel array means no channels
    rec.id = 6;
    rec.channelCount = 1000;
    QCOMPARE(View_CreateCurveSample(&rec, A), 0);
    QCOMPARE(chart(6)->channelCount(), 0);
}

void tst_CurveSample::calls_on_unknown_ids_and_other_kinds_data()
{
    QTest::addColumn<unsigned>("id");
    QTest::newRow("unknown id") << 4242u;
    QTest::newRow("id 0") << 0u;
    QTest::newRow("a button") << 77u;
}

void tst_CurveSample::calls_on_unknown_ids_and_other_kinds()
{
    QFETCH(unsigned, id);
    QVERIFY(PanelFixture::control(77, A)); // a button with id 77
    double limits[2] = { 0, 10 };
    QCOMPARE(View_CurveHideChannel(id, 0, true), 0);
    QCOMPARE(View_CurveSampleChangeDispNum(id, 5), 0);
    QCOMPARE(View_CurveSampleClearData(id, { 0 }), 0);
    QCOMPARE(View_CurveSampleInit(id, "x"), 0);
    QCOMPARE(View_CurveSamplePopData(id, 3), 0);
    QCOMPARE(View_CurveSamplePushData(id, {}, { { 1.0 } }), 0);
    QCOMPARE(View_CurveSampleScale(id, 50, 0), 0);
    QCOMPARE(View_CurveSampleUpdateData(id, { 0 }, {}, { { 1.0 } }, 0, true), 0);
    QCOMPARE(View_CurveSampleUpdateDataLabel(id, { "a" }), 0);
    QCOMPARE(View_CurveSampleUpdateDataLimit(id, 0, 2, limits), 0);
    QCOMPARE(View_CurveSampleResumeRealMode(id), -1);
    QCOMPARE(View_CurveSampleSetSearchMode(id, true), -1);
    QCOMPARE(View_RestoreCurveSampleSearchState(id), -1);
    QCOMPARE(m_rec.count(EVT_CURVE_DATA_APPLIED), 0);
}

void tst_CurveSample::keys_count_per_channel_and_the_view_follows()
{
    QCOMPARE(create(10), 0);
    CurveSampleChart* c = chart(10);
    // unequal vectors: each channel counts its own keys
    QCOMPARE(View_CurveSamplePushData(10, { "a", "b", "c" }, { { 1, 2, 3 }, { 1 }, {} }), 0);
    QCOMPARE(c->graphAt(0)->dataCount(), 3);
    QCOMPARE(c->graphAt(1)->dataCount(), 1);
    QCOMPARE(c->graphAt(2)->dataCount(), 0);
    QCOMPARE(View_CurveSamplePushData(10, {}, { { 4 }, { 2 } }), 0);
    QCOMPARE(c->graphAt(0)->data()->at(3)->key, 3.0);
    QCOMPARE(c->graphAt(1)->data()->at(1)->key, 1.0);
    QCOMPARE(c->xTicker()->labelAt(2), QStringLiteral("c"));
    // more than one span of samples: the newest is the right edge, the span kept
    push(10, 150);
    QCOMPARE(c->axisRect()->maxData(), 153.0);
    QCOMPARE(c->xAxis()->range().upper, 153.0);
    QCOMPARE(c->xAxis()->range().size(), 100.0);
    QVERIFY(c->isRealTimeCurve());
    // pop removes nothing
    QCOMPARE(View_CurveSamplePopData(10, 50), 0);
    QCOMPARE(c->graphAt(0)->dataCount(), 154);
    // clear: the listed graph and the labels go, the range goes back
    QCOMPARE(View_CurveSampleClearData(10, { 0, 99 }), 0);
    QCOMPARE(c->graphAt(0)->dataCount(), 0);
    QCOMPARE(c->graphAt(1)->dataCount(), 152);
    QCOMPARE(c->xTicker()->labelCount(), 0);
    QCOMPARE(c->xAxis()->range().lower, 0.0);
}

void tst_CurveSample::a_key_below_the_upper_bound_leaves_the_view()
{
    QCOMPARE(create(11), 0);
    CurveSampleChart* c = chart(11);
    push(11, 40); // keys 0..39, all below the upper bound 100
    QCOMPARE(c->xAxis()->range().lower, 0.0);
    QCOMPARE(c->xAxis()->range().upper, 100.0);
    QVERIFY(c->inRange(c->xAxis()->range()));
    QVERIFY(c->pointInCurrent(100.0));
    QVERIFY(!c->pointInCurrent(100.5));
}

void tst_CurveSample::scale_percent_data()
{
    QTest::addColumn<uint>("percent");
    QTest::addColumn<uint>("reserved");
    QTest::addColumn<double>("span");
    QTest::newRow("200: half the span") << 200u << 0u << 50.0;
    QTest::newRow("50: twice the span") << 50u << 0u << 200.0;
    QTest::newRow("100 restores") << 100u << 7u << 100.0;
    QTest::newRow("third argument ignored") << 200u << 12345u << 50.0;
    QTest::newRow("0 changes nothing") << 0u << 0u << 100.0;
}

void tst_CurveSample::scale_percent()
{
    QFETCH(uint, percent);
    QFETCH(uint, reserved);
    QFETCH(double, span);
    QCOMPARE(create(12), 0);
    CurveSampleChart* c = chart(12);
    push(12, 30);
    QCOMPARE(View_CurveSampleScale(12, 400, 0), 0); // something else first
    QCOMPARE(View_CurveSampleScale(12, 100, 0), 0);
    QCOMPARE(c->xAxis()->range().size(), 100.0);
    QCOMPARE(View_CurveSampleScale(12, percent, reserved), 0);
    QCOMPARE(c->xAxis()->range().size(), span);
    QVERIFY(std::isfinite(c->xScale()));
}

void tst_CurveSample::hide_channel_results()
{
    QCOMPARE(create(13), 0);
    CurveSampleChart* c = chart(13);
    QCOMPARE(View_CurveHideChannel(13, 1, true), 0);
    QVERIFY(!c->graphAt(1)->visible());
    QCOMPARE(View_CurveHideChannel(13, 1, false), 0);
    QVERIFY(c->graphAt(1)->visible());
    QCOMPARE(View_CurveHideChannel(13, 3, true), -1); // == the number of channels
    QCOMPARE(View_CurveHideChannel(13, 0xFFFFFFFFu, true), -1);
    for (int g = 0; g < 3; ++g)
        QVERIFY(c->graphAt(g)->visible());
}

void tst_CurveSample::y_limits_and_labels_reach_the_axis()
{
    QCOMPARE(create(14), 0);
    CurveSampleChart* c = chart(14);
    double limits[2] = { 0, 1234 };
    QCOMPARE(View_CurveSampleUpdateDataLimit(14, 3, 2, limits), 0);
    QCOMPARE(c->yTicker()->labelFor(4), QStringLiteral("12.34"));
    QCOMPARE(View_CurveSampleUpdateDataLimit(14, 3, 2, nullptr), 0); // limits kept
    QCOMPARE(c->yTicker()->high(), 1234.0);
    // a million labels: kept up to the cap, nothing breaks
    std::vector<std::string> many(1000000, "label");
    QCOMPARE(View_CurveSampleUpdateDataLabel(14, many), 0);
    QCOMPARE(c->yTicker()->labels().size(), CustomLabelAxisTicker::kMaxLabels);
    QCOMPARE(View_CurveSampleUpdateDataLabel(14, { "off", "\xff\xfe on" }), 0);
    QCOMPARE(c->yTicker()->labelFor(0), QStringLiteral("off"));
    QCOMPARE(c->yTicker()->labelFor(2), QString());
}

void tst_CurveSample::double_scale_repeats_the_y_axis_on_the_right()
{
    QCOMPARE(create(15), 0);
    m_doubleScale = 1;
    QCOMPARE(create(16), 0);
    m_doubleScale = 0;
    CurveSampleChart* single = chart(15);
    CurveSampleChart* both = chart(16);
    QVERIFY(!single->axisRect()->axis(QCPAxis::atRight)->visible());
    QCPAxis* right = both->axisRect()->axis(QCPAxis::atRight);
    QVERIFY(right->visible());
    // limits and zoom given to the left axis reach the right one
    double limits[2] = { -50, 50 };
    QCOMPARE(View_CurveSampleUpdateDataLimit(16, 3, 2, limits), 0);
    both->yAxis()->setRange(1, 3);
    QCOMPARE(right->range(), both->yAxis()->range());
    QCOMPARE(right->ticker(), both->yAxis()->ticker());
    // the labels on the right take room: the plot area is narrower
    m_panel.settle();
    QVERIFY(both->plotArea().width() < single->plotArea().width() - 10);
}

void tst_CurveSample::bad_values_leave_gaps()
{
    QCOMPARE(create(15), 0);
    CurveSampleChart* c = chart(15);
    const double inf = std::numeric_limits<double>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    QCOMPARE(View_CurveSamplePushData(15, {}, { { 1, nan, inf, -inf, 5 }, {}, {}, { 1, 2 } }), 0);
    QCOMPARE(c->graphAt(0)->dataCount(), 5);
    QVERIFY(std::isnan(c->graphAt(0)->data()->at(1)->value));
    QVERIFY(std::isnan(c->graphAt(0)->data()->at(2)->value));
    QVERIFY(std::isnan(c->graphAt(0)->data()->at(3)->value));
    QCOMPARE(c->graphAt(0)->data()->at(4)->value, c->plotValue(5));
    // limits low == high: every value at 0, no division by zero
    double same[2] = { 7, 7 };
    QCOMPARE(View_CurveSampleUpdateDataLimit(15, 0, 0, same), 0);
    push(15, 3);
    QCOMPARE(c->graphAt(1)->data()->at(0)->value, 0.0);
    PanelFixture::settle();
}

void tst_CurveSample::press_release_and_double_click_events()
{
    QCOMPARE(create(16), 0);
    CurveSampleChart* c = chart(16);
    push(16, 50);
    QCOMPARE(View_CurveEnableCursor(4242, true), -1);
    QCOMPARE(View_CurveEnableCursor(16, true), 0);
    QVERIFY(c->cursorEnabled());
    PanelFixture::settle();
    const QRect area = c->plotArea();
    const QPointF at(area.left() + area.width() * 0.3, area.center().y());
    const double key = c->xAxis()->pixelToCoord(at.x() - c->orgPosition().x());
    m_rec.clear();
    m_panel.click(m_panel.scenePoint(c, at));
    PanelFixture::settle();
    QCOMPARE(m_rec.count(EVT_WIDGET_PRESS), 1);
    QVERIFY(m_rec.eventsWithCode(EVT_WIDGET_PRESS).first().nullData);
    const QList<EventRecorder::Event> rel = m_rec.eventsWithCode(EVT_WIDGET_RELEASE);
    QCOMPARE(rel.size(), 1);
    QCOMPARE(rel.first().id, 16u);
    View_EvtCurveCursor cursor;
    std::memcpy(&cursor, rel.first().payload.constData(), sizeof(cursor));
    QCOMPARE(cursor.key, std::round(key)); // the cursor stands on the nearest sample
    QCOMPARE(cursor.x, int(std::lround(at.x())));
    QCOMPARE(c->cursorKey(), std::round(key));

    // a double click: 5, then the search event for real time from the double click
    m_rec.clear();
    QTest::mouseDClick(m_panel.view(), Qt::LeftButton, Qt::NoModifier, m_panel.scenePoint(c, at));
    PanelFixture::settle();
    QCOMPARE(m_rec.count(EVT_CURVE_DOUBLE_CLICK), 1);
    const QList<EventRecorder::Event> search = m_rec.eventsWithCode(EVT_CURVE_SEARCH);
    QCOMPARE(search.size(), 1);
    QCOMPARE(search.first().text(), QStringLiteral("0|1||"));
}

void tst_CurveSample::drags_ask_for_pages_and_pages_come_in()
{
    QCOMPARE(create(17), 0);
    CurveSampleChart* c = chart(17);
    push(17, 300); // keys 0..299, the view shows 199..299
    QCOMPARE(c->xAxis()->range().upper, 299.0);
    // a drag within the data asks for nothing and stops following
    m_rec.clear();
    drag(c, 0.25);
    QCOMPARE(m_rec.count(EVT_CURVE_PRELOAD), 0);
    QVERIFY(!c->isRealTimeCurve());
    // pushes no longer move the view
    const QCPRange held = c->xAxis()->range();
    push(17, 1);
    QCOMPARE(c->xAxis()->range(), held);
    // past the first key: one request for the page before
    drag(c, 4);
    QCOMPARE(m_rec.count(EVT_CURVE_PRELOAD), 1);
    QVERIFY(c->xAxis()->range().lower < 0);
    // the logic layer answers with samples -100..-1: the chart shows history now
    std::vector<double> page;
    for (int i = 0; i < 100; ++i)
        page.push_back(50);
    QCOMPARE(View_CurveSampleUpdateData(17, { 0, 2 }, {}, { page, page }, 0, false), 0);
    QCOMPARE(m_rec.count(EVT_CURVE_DATA_APPLIED), 1);
    QCOMPARE(ViewManage::getInstance()->getCurveSampleChartTimeModeController()->state(c),
        CurveSampleChartTimeModeController::Searching);
    QVERIFY(c->isSearchState());
    QCOMPARE(c->graphAt(0)->dataCount(), 100);
    QCOMPARE(c->graphAt(1)->dataCount(), 0); // not listed: shows nothing of the live data
    // samples pushed while searching are kept aside and come back with real time
    push(17, 5);
    QCOMPARE(c->graphAt(0)->dataCount(), 100);
    QCOMPARE(View_CurveSampleResumeRealMode(17), 0);
    QVERIFY(!c->isSearchState());
    QVERIFY(c->isRealTimeCurve());
    QCOMPARE(c->graphAt(0)->dataCount(), 306);
    QCOMPARE(c->xAxis()->range().upper, 305.0);
}

void tst_CurveSample::a_late_page_is_ignored()
{
    QCOMPARE(create(18), 0);
    CurveSampleChart* c = chart(18);
    push(18, 50);
    // no request pending: a page is a late answer and changes nothing
    QCOMPARE(View_CurveSampleUpdateData(18, { 0 }, {}, { { 1, 2, 3 } }, 0, true), 0);
    QCOMPARE(m_rec.count(EVT_CURVE_DATA_APPLIED), 0);
    QCOMPARE(c->graphAt(0)->dataCount(), 50);
    // in a search the same page is taken
    QCOMPARE(View_CurveSampleSetSearchMode(18, true), 0);
    QCOMPARE(View_CurveSampleUpdateData(18, { 0, 1000000 }, { "a" }, { { 1, 2, 3 }, { 4 } }, 7, true), 0);
    QCOMPARE(m_rec.count(EVT_CURVE_DATA_APPLIED), 1);
    QCOMPARE(c->graphAt(0)->dataCount(), 3);
    QCOMPARE(c->graphAt(0)->data()->at(0)->key, 7.0);
    QCOMPARE(c->xTicker()->labelAt(7), QStringLiteral("a"));
    // leaving the search: a page answering it arrives late and is ignored
    QCOMPARE(View_CurveSampleSetSearchMode(18, false), 0);
    QCOMPARE(c->graphAt(0)->dataCount(), 50);
    QCOMPARE(View_CurveSampleUpdateData(18, { 0 }, {}, { { 9 } }, 0, true), 0);
    QCOMPARE(m_rec.count(EVT_CURVE_DATA_APPLIED), 1);
    QCOMPARE(c->graphAt(0)->dataCount(), 50);
    // a chart deleted with a request pending: the answer finds no chart
    drag(c, 4);
    QVERIFY(m_rec.count(EVT_CURVE_PRELOAD) >= 1);
    QCOMPARE(View_DeleteWidgets({ 18u }), 0);
    PanelFixture::settle();
    QCOMPARE(View_CurveSampleUpdateData(18, { 0 }, {}, { { 9 } }, 0, true), 0);
    QCOMPARE(m_rec.count(EVT_CURVE_DATA_APPLIED), 1);
}

void tst_CurveSample::search_dialog_confirms_and_is_offered_again()
{
    QCOMPARE(create(19, CURVE_X_TIME), 0);
    CurveSampleChart* c = chart(19);
    PanelFixture::settle();
    auto* controller = ViewManage::getInstance()->getCurveSampleChartTimeModeController();
    // nothing confirmed yet: restoring does nothing
    QCOMPARE(View_RestoreCurveSampleSearchState(19), 0);
    QCOMPARE(m_rec.count(EVT_CURVE_SEARCH), 0);
    // the setting button opens the dialog
    QQuickItem* setting = TestUtil::findItem(c, "settingBtn");
    QVERIFY(setting && setting->isVisible());
    m_panel.click(m_panel.sceneCenter(setting));
    PanelFixture::settle();
    CurveSampleDlg* dlg = controller->searchDialog();
    QVERIFY(dlg);
    QVERIFY(dlg->popup()->isOpened());
    QMetaObject::invokeMethod(dlg->popup(), "initDateTime", Q_ARG(QVariant, "2026-11-20 08:00:00"),
        Q_ARG(QVariant, "2026-11-20 09:00:00"));
    QQuickItem* ok = TestUtil::findItem(dlg->popup(), "okButton");
    QVERIFY(ok);
    m_panel.click(m_panel.sceneCenter(ok));
    PanelFixture::settle();
    const QList<EventRecorder::Event> search = m_rec.eventsWithCode(EVT_CURVE_SEARCH);
    QCOMPARE(search.size(), 1);
    QCOMPARE(search.first().text(), QStringLiteral("1|0|2026-11-20 08:00:00|2026-11-20 09:00:00"));
    QCOMPARE(controller->state(c), CurveSampleChartTimeModeController::Searching);
    // the time axis shows the span searched
    QCOMPARE(c->keyToDateTime(c->xAxis()->range().lower), QDateTime(QDate(2026, 11, 20), QTime(8, 0)));
    QCOMPARE(c->keyToDateTime(c->xAxis()->range().upper), QDateTime(QDate(2026, 11, 20), QTime(9, 0)));
    // a page with its times as labels lands at those times
    QCOMPARE(View_CurveSampleUpdateData(19, { 0 }, { "2026-11-20 08:30:00", "2026-11-20 08:30:10" }, { { 10, 20 } },
                 0, true),
        0);
    QCOMPARE(c->keyToDateTime(c->graphAt(0)->data()->at(1)->key), QDateTime(QDate(2026, 11, 20), QTime(8, 30, 10)));
    // back to real time, then restored: the same span again
    QCOMPARE(View_CurveSampleResumeRealMode(19), 0);
    QCOMPARE(controller->state(c), CurveSampleChartTimeModeController::RealTime);
    QCOMPARE(View_RestoreCurveSampleSearchState(19), 0);
    QCOMPARE(controller->state(c), CurveSampleChartTimeModeController::Restored);
    QCOMPARE(m_rec.eventsWithCode(EVT_CURVE_SEARCH).last().text(),
        QStringLiteral("1|2|2026-11-20 08:00:00|2026-11-20 09:00:00"));
    // the dialog offers the last search again
    QCOMPARE(GlobalConfig::getInstance()->getCurveSampleSearchTime(19).first, QStringLiteral("2026-11-20 08:00:00"));
    c->slotSettingBtnClicked();
    PanelFixture::settle();
    QVERIFY(controller->searchDialog());
    QQuickItem* start = TestUtil::findItem(controller->searchDialog()->popup(), "startPicker");
    QVERIFY(start && start->property("checked").toBool());
    // the chart goes, the dialog with it
    QCOMPARE(View_DeleteWidgets({ 19u }), 0);
    PanelFixture::settle();
    QVERIFY(!controller->searchDialog());
}

void tst_CurveSample::wheel_zoom_shows_the_restore_button()
{
    QCOMPARE(create(20), 0);
    CurveSampleChart* c = chart(20);
    push(20, 60);
    PanelFixture::settle();
    auto* restore = c->findChild<QQuickItem*>(QStringLiteral("restoreBtn"));
    QVERIFY(restore);
    QVERIFY(!restore->isVisible());
    const QPoint at = m_panel.scenePoint(c, c->plotArea().center());
    QWheelEvent wheel(QPointF(at), QPointF(m_panel.view()->mapToGlobal(at)), QPoint(), QPoint(0, 120), Qt::NoButton,
        Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(m_panel.view(), &wheel);
    PanelFixture::settle();
    QVERIFY(c->xAxis()->range().size() < 100.0);
    QVERIFY(restore->isVisible());
    m_panel.click(m_panel.sceneCenter(restore));
    PanelFixture::settle();
    QCOMPARE(c->xAxis()->range().size(), 100.0);
    QVERIFY(!restore->isVisible());
    // a pinch of two fingers zooms at their centre by wheel notches
    auto* area = c->findChild<CurveMouseArea*>(QStringLiteral("mouseArea"));
    QVERIFY(area);
    area->onPinchScale(c->plotArea().center(), 1.0);
    area->onPinchScale(c->plotArea().center(), 1.5);
    QVERIFY(c->xAxis()->range().size() < 100.0);
    QCOMPARE(area->pinchStartX().size(), 100.0);
    area->endPinch();
}

void tst_CurveSample::each_channel_draws_in_its_colour()
{
    QCOMPARE(create(21), 0);
    CurveSampleChart* c = chart(21);
    // three flat lines at 25 %, 50 % and 75 % of the y range
    std::vector<std::vector<double>> values(3);
    for (int i = 0; i < 100; ++i) {
        values[0].push_back(25);
        values[1].push_back(50);
        values[2].push_back(75);
    }
    QCOMPARE(View_CurveSamplePushData(21, {}, values), 0);
    PanelFixture::settle();
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
    const QImage shot = m_panel.view()->grabWindow();
    const QColor colours[3] = { QColor(255, 0, 0), QColor(0, 192, 0), QColor(0, 0, 255) };
    for (int ch = 0; ch < 3; ++ch) {
        const double y = c->yAxis()->coordToPixel(c->plotValue(values[size_t(ch)][0]));
        const double x = c->xAxis()->coordToPixel(50);
        const QPoint p = m_panel.scenePoint(c, QPointF(x, y) + c->orgPosition());
        bool found = false;
        for (int dy = -2; dy <= 2 && !found; ++dy)
            found = shot.pixelColor(p + QPoint(0, dy)) == colours[ch];
        QVERIFY2(found, qPrintable(QString("channel %1 at %2,%3").arg(ch).arg(p.x()).arg(p.y())));
    }
}

void tst_CurveSample::cursor_window_shows_each_channel_at_the_cursor()
{
    QCOMPARE(create(22, CURVE_X_SAMPLE_LABEL), 0);
    CurveSampleChart* c = chart(22);
    double limits[2] = { 0, 10000 };
    QCOMPARE(View_CurveSampleUpdateDataLimit(22, 3, 2, limits), 0); // raw values with two implied decimals
    std::vector<std::vector<double>> values(3);
    std::vector<std::string> labels;
    for (int i = 0; i < 40; ++i) {
        values[0].push_back(100 * i); // 1.00 per sample
        values[1].push_back(5000);
        labels.push_back("08:00:" + std::string(i < 10 ? "0" : "") + std::to_string(i));
    }
    QCOMPARE(View_CurveSamplePushData(22, labels, values), 0);
    QCOMPARE(View_CurveHideChannel(22, 2, true), 0); // a hidden channel has no row
    QCOMPARE(View_CurveSampleShowCursor(22, "", { { 0, "Flow\tm3/h" }, { 1, "Level" }, { 999, "ignored" } }), 0);
    CurveCursor* w = c->cursorWindow();
    QVERIFY(w);
    QVERIFY(w->isVisible());
    // a tap at sample 12 moves the line and fills the window for that sample
    PanelFixture::settle();
    const QRect area = c->plotArea();
    const double x = c->xAxis()->coordToPixel(12) + c->orgPosition().x();
    m_panel.click(m_panel.scenePoint(c, QPointF(x, area.center().y())));
    PanelFixture::settle();
    QCOMPARE(c->cursorKey(), 12.0);
    QCOMPARE(w->title(), QStringLiteral("08:00:12")); // the sample's own label
    QCOMPARE(w->rows().size(), 2);
    QCOMPARE(w->cellText(0, 0), QStringLiteral("Flow"));
    QCOMPARE(w->cellText(0, 1), QStringLiteral("12.00"));
    QCOMPARE(w->cellText(0, 2), QStringLiteral("m3/h"));
    QCOMPARE(w->cellText(1, 0), QStringLiteral("Level"));
    QCOMPARE(w->cellText(1, 1), QStringLiteral("50.00"));
    QVERIFY(w->x() > x); // beside the line
    // the logic layer replaces the title, heads and cells
    QCOMPARE(View_CurveUpdateCursorTitle(22, View_Text { 0, Rect {}, 0, "Batch 7", nullptr, nullptr }), 0);
    QCOMPARE(w->title(), QStringLiteral("Batch 7"));
    QCOMPARE(View_CurveUpdateCursorParams(22, { View_Text { 0, Rect {}, 0, "Name", nullptr, nullptr } }, { nullptr }), 0);
    QCOMPARE(w->heads(), QStringList { "Name" });
    QCOMPARE(View_CurveUpdateCursorContent(22, nullptr, { { View_ListColData { "a", nullptr, nullptr, 0, 0 } } }), 0);
    QCOMPARE(w->title(), QStringLiteral("Batch 7")); // a null title keeps it
    QCOMPARE(w->rows().size(), 1);
    QCOMPARE(w->cellText(0, 0), QStringLiteral("a"));
    // the cursor switched off: the window goes
    QCOMPARE(View_CurveEnableCursor(22, false), 0);
    QVERIFY(!w->isVisible());
}

void tst_CurveSample::cursor_window_follows_samples_that_arrive_after_it_data()
{
    QTest::addColumn<QByteArray>("title"); // given with the cursor; empty: the chart's own
    QTest::addColumn<bool>("follows");
    QTest::newRow("the chart's own content") << QByteArray() << true;
    QTest::newRow("a title from the logic layer stays") << QByteArray("Batch 7") << false;
}

void tst_CurveSample::cursor_window_follows_samples_that_arrive_after_it()
{
    // a cursor shown on an empty chart (a trend opened before its history is read) shows the samples
    // that arrive afterwards, unless the logic layer wrote the window itself
    QFETCH(QByteArray, title);
    QFETCH(bool, follows);
    QCOMPARE(create(23, CURVE_X_SAMPLE_LABEL), 0);
    CurveSampleChart* c = chart(23);
    double limits[2] = { 0, 10000 };
    QCOMPARE(View_CurveSampleUpdateDataLimit(23, 3, 2, limits), 0);
    QCOMPARE(View_CurveSampleShowCursor(23, title.toStdString(), { { 0, "Flow" } }), 0);
    CurveCursor* w = c->cursorWindow();
    QVERIFY(w);
    QCOMPARE(w->cellText(0, 1), QStringLiteral("-"));
    const double key = c->cursorKey();
    QVERIFY(key > 2);
    auto push = [&](int from, int to) {
        std::vector<std::vector<double>> values(1);
        std::vector<std::string> labels;
        for (int i = from; i < to; ++i) {
            values[0].push_back(100 * i); // i.00 at sample i
            labels.push_back("s" + std::to_string(i));
        }
        QCOMPARE(View_CurveSamplePushData(23, labels, values), 0);
    };
    push(0, 2); // all before the cursor: the nearest is the last
    QCOMPARE(w->cellText(0, 1), follows ? QStringLiteral("1.00") : QStringLiteral("-"));
    push(2, int(key) + 5);
    const QString atCursor = QString::number(key, 'f', 2);
    QCOMPARE(w->cellText(0, 1), follows ? atCursor : QStringLiteral("-"));
    QCOMPARE(w->title() == QString::fromUtf8(title), !follows);
    // the logic layer writes the window: later samples leave it alone
    QCOMPARE(View_CurveUpdateCursorContent(23, "mine", { { View_ListColData { "x", nullptr, nullptr, 0, 0 } } }), 0);
    push(int(key) + 5, int(key) + 10);
    QCOMPARE(w->cellText(0, 0), QStringLiteral("x"));
    QCOMPARE(w->title(), QStringLiteral("mine"));
    // a move of the cursor fills it again from the samples
    c->moveCursorTo(1);
    QCOMPARE(w->cellText(0, 1), QStringLiteral("1.00"));
}

void tst_CurveSample::cursor_calls_on_unknown_ids()
{
    QVERIFY(PanelFixture::control(77, A));
    for (unsigned id : { 4242u, 0u, 77u }) {
        QCOMPARE(View_CurveEnableCursor(id, true), -1);
        QCOMPARE(View_CurveSampleShowCursor(id, "t", {}), -1);
        QCOMPARE(View_CurveUpdateCursorContent(id, "t", {}), -1);
        QCOMPARE(View_CurveUpdateCursorParams(id, {}, {}), -1);
        QCOMPARE(View_CurveUpdateCursorTitle(id, View_Text {}), -1);
    }
}

void tst_CurveSample::two_fingers_pinch_the_span()
{
    QCOMPARE(create(23), 0);
    CurveSampleChart* c = chart(23);
    push(23, 80);
    PanelFixture::settle();
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
    const QPoint centre = m_panel.scenePoint(c, c->plotArea().center());
    QWindow* w = m_panel.view();
    // two fingers land together and spread apart: the span shrinks, nothing is pressed
    m_rec.clear();
    QTest::touchEvent(w, m_panel.touchDevice()).press(0, centre - QPoint(30, 0), w).press(1, centre + QPoint(30, 0), w);
    for (int step = 1; step <= 5; ++step) {
        QTest::touchEvent(w, m_panel.touchDevice())
            .move(0, centre - QPoint(30 + 20 * step, 0), w)
            .move(1, centre + QPoint(30 + 20 * step, 0), w);
    }
    QTest::touchEvent(w, m_panel.touchDevice()).release(0, centre - QPoint(130, 0), w).release(1, centre + QPoint(130, 0), w);
    PanelFixture::settle();
    const double pinched = c->xAxis()->range().size();
    QVERIFY2(pinched < 100.0, qPrintable(QString::number(pinched)));
    QCOMPARE(m_rec.count(EVT_WIDGET_PRESS), 0);
    // one finger still drags the plot (as the mouse does) and reports press and release
    QTest::touchEvent(w, m_panel.touchDevice()).press(0, centre, w);
    for (int step = 1; step <= 5; ++step)
        QTest::touchEvent(w, m_panel.touchDevice()).move(0, centre + QPoint(20 * step, 0), w);
    QTest::touchEvent(w, m_panel.touchDevice()).release(0, centre + QPoint(100, 0), w);
    PanelFixture::settle();
    QCOMPARE(m_rec.count(EVT_WIDGET_PRESS), 1);
    QCOMPARE(m_rec.count(EVT_WIDGET_RELEASE), 1);
    QVERIFY(!c->isRealTimeCurve());
}

void tst_CurveSample::a_chart_deleted_in_a_drag()
{
    QCOMPARE(create(24), 0);
    CurveSampleChart* c = chart(24);
    push(24, 300);
    PanelFixture::settle();
    QVERIFY(TestUtil::waitForFrame(m_panel.view()));
    const QPoint from = m_panel.scenePoint(c, c->plotArea().center());
    QTest::mousePress(m_panel.view(), Qt::LeftButton, Qt::NoModifier, from);
    QCOMPARE(View_DeleteWidgets({ 24u }), 0); // the logic layer deletes it under the finger
    PanelFixture::settle();
    for (int step = 1; step <= 5; ++step) {
        const QPoint p = from + QPoint(40 * step, 0);
        QMouseEvent move(QEvent::MouseMove, p, p, m_panel.view()->mapToGlobal(p), Qt::NoButton, Qt::LeftButton,
            Qt::NoModifier);
        QCoreApplication::sendEvent(m_panel.view(), &move);
    }
    QTest::mouseRelease(m_panel.view(), Qt::LeftButton, Qt::NoModifier, from + QPoint(200, 0), 5);
    PanelFixture::settle();
    QVERIFY(!chart(24));
    QCOMPARE(m_rec.count(EVT_CURVE_PRELOAD), 0);
}

QGUI_GUIAPP_TEST_MAIN(tst_CurveSample)
#include "tst_curvesample.moc"
