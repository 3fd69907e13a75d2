// The parts of the charts that work without a scene: the x and y tickers'
// labels and steps, the smooth curve's control points against hand-worked
// values, and the axis's testRange against what setRange really sets.
#include "xcomponents/qquick/customlabelaxisticker.h"
#include "xcomponents/qquick/customxaxistickerpnt.h"
#include "xcomponents/qquick/customxaxistickerpntt.h"
#include "xcomponents/qquick/customxaxistickertime.h"
#include "xcomponents/qquick/smoothcurvegenerator.h"
#include "xcomponents/qquick/xcpaxis.h"
#include "xcomponents/qquick/xcpaxisrect.h"
#include "xcomponents/qquick/xcustomplot.h"

#include <QtTest>

#include <cmath>
#include <limits>

namespace {

/** The labels \a ticker gives to \a ticks (through the public generate of a range around them). */
QString labelOf(QCPAxisTicker& ticker, double tick)
{
    QVector<double> ticks;
    QVector<QString> labels;
    // a one-unit range around the tick makes the ticker produce it
    ticker.generate(QCPRange(tick - 0.5, tick + 0.5), QLocale::c(), QLatin1Char('g'), 6, ticks, nullptr, &labels);
    const int i = ticks.indexOf(tick);
    return i >= 0 ? labels.at(i) : QStringLiteral("(no tick)");
}

} // namespace

class tst_CurveParts : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void sample_number_labels_data();
    void sample_number_labels();
    void y_labels_data();
    void y_labels();
    void y_plot_values_data();
    void y_plot_values();
    void time_steps_and_labels_data();
    void time_steps_and_labels();
    void smooth_control_points_data();
    void smooth_control_points();
    void test_range_matches_set_range_data();
    void test_range_matches_set_range();
    void drags_past_the_data_ask_once_per_drag();
};

void tst_CurveParts::sample_number_labels_data()
{
    QTest::addColumn<int>("mode");
    QTest::addColumn<uint>("start");
    QTest::addColumn<double>("tick");
    QTest::addColumn<QString>("label");
    QTest::newRow("mode 0: the tick itself") << 0 << 0u << 5.0 << "5";
    QTest::newRow("mode 0: from the start number") << 0 << 10u << 5.0 << "15";
    QTest::newRow("mode 0: negative reads empty") << 0 << 10u << -20.0 << "";
    QTest::newRow("mode 0: six digits") << 0 << 0u << 1234567.0 << "1.23457e+06";
    QTest::newRow("mode 1: the sample's text") << 1 << 0u << 3.0 << "10:00:03";
    QTest::newRow("mode 1: no text, empty") << 1 << 0u << 4.0 << "";
}

void tst_CurveParts::sample_number_labels()
{
    QFETCH(int, mode);
    QFETCH(uint, start);
    QFETCH(double, tick);
    QFETCH(QString, label);
    CustomXAxisTickerPnt pnt;
    pnt.setStartTickerNo(start);
    CustomXAxisTickerPntT pntt;
    pntt.insertLabel(3.0, "10:00:03");
    pntt.insertLabel(5.0, nullptr);
    QCOMPARE(labelOf(mode == 0 ? static_cast<QCPAxisTicker&>(pnt) : pntt, tick), label);
}

void tst_CurveParts::y_labels_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<double>("tick");
    QTest::addColumn<QString>("label");
    // limits 0..1234, four ticks
    QTest::newRow("implied decimals at the top") << QStringList() << 0 << 2 << 4.0 << "12.34";
    QTest::newRow("implied decimals half way") << QStringList() << 0 << 2 << 2.0 << "6.17";
    QTest::newRow("type 10 keeps the value") << QStringList() << 10 << 2 << 4.0 << "1234.00";
    QTest::newRow("type 11 keeps the value") << QStringList() << 11 << 1 << 1.0 << "308.5";
    QTest::newRow("no decimals") << QStringList() << 3 << 0 << 1.0 << "309"; // 308.5 rounds up
    QTest::newRow("text label") << QStringList { "low", "mid", "high" } << 0 << 2 << 1.0 << "mid";
    QTest::newRow("text label of the whole part") << QStringList { "low", "mid", "high" } << 0 << 2 << 2.5 << "high";
    QTest::newRow("tick past the labels is empty") << QStringList { "low", "mid", "high" } << 0 << 2 << 3.0 << "";
    QTest::newRow("negative tick is empty") << QStringList { "low", "mid", "high" } << 0 << 2 << -1.0 << "";
}

void tst_CurveParts::y_labels()
{
    QFETCH(QStringList, texts);
    QFETCH(int, type);
    QFETCH(int, decimals);
    QFETCH(double, tick);
    QFETCH(QString, label);
    CustomLabelAxisTicker y;
    y.setTickCount(4);
    const double limits[2] = { 0, 1234 };
    y.setLimit(limits);
    y.setDecs(uchar(decimals));
    y.setDataType(type);
    y.setLabels(texts.toVector());
    QCOMPARE(y.labelFor(tick), label);
}

void tst_CurveParts::y_plot_values_data()
{
    QTest::addColumn<double>("low");
    QTest::addColumn<double>("high");
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("plot");
    // four ticks: the axis runs over 0..4
    QTest::newRow("bottom") << 0.0 << 200.0 << 0.0 << 0.0;
    QTest::newRow("middle") << 0.0 << 200.0 << 100.0 << 2.0;
    QTest::newRow("top") << 0.0 << 200.0 << 200.0 << 4.0;
    QTest::newRow("below the range") << 100.0 << 200.0 << 50.0 << -2.0;
    QTest::newRow("low == high shows 0") << 5.0 << 5.0 << 7.0 << 0.0;
}

void tst_CurveParts::y_plot_values()
{
    QFETCH(double, low);
    QFETCH(double, high);
    QFETCH(double, value);
    QFETCH(double, plot);
    CustomLabelAxisTicker y;
    y.setTickCount(4);
    const double limits[2] = { low, high };
    y.setLimit(limits);
    QCOMPARE(y.toPlot(value), plot);
    // limits that are not numbers change nothing
    const double bad[2] = { std::numeric_limits<double>::quiet_NaN(), 1 };
    y.setLimit(bad);
    y.setLimit(nullptr);
    QCOMPARE(y.low(), low);
}

void tst_CurveParts::time_steps_and_labels_data()
{
    QTest::addColumn<double>("span");
    QTest::addColumn<int>("ticks");
    QTest::addColumn<double>("step");
    QTest::addColumn<QString>("firstLabel");
    // key 0 is local midnight of 2026-03-02; the range starts 1 s after it
    QTest::newRow("a minute in 10 s steps") << 60.0 << 6 << 10.0 << "00:00:10";
    QTest::newRow("an hour in 10 min steps") << 3600.0 << 6 << 600.0 << "00:10";
    QTest::newRow("a day in 6 h steps, crossing midnight") << 86400.0 << 6 << 21600.0 << "03-02\n06:00";
    QTest::newRow("half a day in 2 h steps") << 43200.0 << 6 << 7200.0 << "02:00";
    QTest::newRow("a month in 7 day steps") << 30 * 86400.0 << 5 << 7 * 86400.0 << "03-09"; // Mondays
    QTest::newRow("a year in 3 month steps") << 365 * 86400.0 << 5 << 90 * 86400.0 << "2026-04";
    QTest::newRow("ten years in 2 year steps") << 3650 * 86400.0 << 5 << 730 * 86400.0 << "2028";
}

void tst_CurveParts::time_steps_and_labels()
{
    QFETCH(double, span);
    QFETCH(int, ticks);
    QFETCH(double, step);
    QFETCH(QString, firstLabel);
    CustomXAxisTickerTime t;
    const QDateTime midnight(QDate(2026, 3, 2), QTime(0, 0));
    t.setStartOffset(double(midnight.toMSecsSinceEpoch()) / 1000.0);
    t.setTickCount(ticks);
    QVector<double> tickKeys;
    QVector<QString> labels;
    t.generate(QCPRange(1, 1 + span), QLocale::c(), QLatin1Char('g'), 6, tickKeys, nullptr, &labels);
    QVERIFY(tickKeys.size() >= 2);
    QVERIFY2(tickKeys.size() <= ticks + 2, qPrintable(QString::number(tickKeys.size())));
    QCOMPARE(labels.first(), firstLabel);
    if (step < 28 * 86400.0)
        QCOMPARE(tickKeys.at(1) - tickKeys.at(0), step);
    // the keys turn back into the dates the labels show
    QCOMPARE(t.dateTimeToKey(t.keyToDateTime(tickKeys.first())), tickKeys.first());
}

void tst_CurveParts::smooth_control_points_data()
{
    QTest::addColumn<QVector<QPointF>>("knots");
    QTest::addColumn<QVector<QPointF>>("first");
    QTest::addColumn<QVector<QPointF>>("second");
    QTest::newRow("one knot: nothing") << QVector<QPointF> { { 1, 1 } } << QVector<QPointF>() << QVector<QPointF>();
    // one segment: a third of the way, then mirrored about it: on the straight line
    QTest::newRow("two knots") << QVector<QPointF> { { 0, 0 }, { 3, 3 } } << QVector<QPointF> { { 1, 1 } }
                               << QVector<QPointF> { { 2, 2 } };
    // worked by hand through the tridiagonal system
    QTest::newRow("five knots") << QVector<QPointF> { { 0, 0 }, { 1, 2 }, { 2, 0 }, { 3, 2 }, { 4, 0 } }
                                << QVector<QPointF> { { 1.0 / 3, 8.0 / 7 }, { 4.0 / 3, 12.0 / 7 }, { 7.0 / 3, 0 },
                                       { 10.0 / 3, 16.0 / 7 } }
                                << QVector<QPointF> { { 2.0 / 3, 16.0 / 7 }, { 5.0 / 3, 0 }, { 8.0 / 3, 12.0 / 7 },
                                       { 11.0 / 3, 8.0 / 7 } };
}

void tst_CurveParts::smooth_control_points()
{
    QFETCH(QVector<QPointF>, knots);
    QFETCH(QVector<QPointF>, first);
    QFETCH(QVector<QPointF>, second);
    QVector<QPointF> c1;
    QVector<QPointF> c2;
    SmoothCurveGenerator::calculateControlPoints(knots, &c1, &c2);
    QCOMPARE(c1.size(), first.size());
    QCOMPARE(c2.size(), second.size());
    for (int i = 0; i < first.size(); ++i) {
        QVERIFY2(QLineF(c1[i], first[i]).length() < 1e-9, qPrintable(QString("first %1").arg(i)));
        QVERIFY2(QLineF(c2[i], second[i]).length() < 1e-9, qPrintable(QString("second %1").arg(i)));
    }
    // the path: a move to the first knot, then one cubic segment per interval ending on each knot
    const QPainterPath path = SmoothCurveGenerator::createSmoothCurve(knots);
    QCOMPARE(path.elementCount(), first.isEmpty() ? 0 : 1 + 3 * first.size());
    for (int i = 0; i < first.size(); ++i)
        QCOMPARE(QPointF(path.elementAt(3 * i + 3)), knots[i + 1]);
}

void tst_CurveParts::test_range_matches_set_range_data()
{
    QTest::addColumn<double>("position");
    QTest::addColumn<double>("size");
    QTest::addColumn<int>("alignment");
    const double nan = std::numeric_limits<double>::quiet_NaN();
    QTest::newRow("left") << 10.0 << 5.0 << int(Qt::AlignLeft);
    QTest::newRow("right") << 10.0 << 5.0 << int(Qt::AlignRight);
    QTest::newRow("centre") << 10.0 << 5.0 << int(Qt::AlignCenter);
    QTest::newRow("negative size") << 10.0 << -5.0 << int(Qt::AlignLeft);
    QTest::newRow("not a number") << nan << 5.0 << int(Qt::AlignLeft);
    QTest::newRow("beyond the axis limits") << 1e300 << 1e300 << int(Qt::AlignLeft);
    QTest::newRow("tiny") << 1.0 << 1e-300 << int(Qt::AlignLeft);
}

void tst_CurveParts::test_range_matches_set_range()
{
    QFETCH(double, position);
    QFETCH(double, size);
    QFETCH(int, alignment);
    XCustomPlot plot;
    auto* x = static_cast<XCPAxis*>(plot.xAxis);
    x->setRange(3, 7);
    const QCPRange tested = x->testRange(position, size, Qt::AlignmentFlag(alignment));
    x->setRange(position, size, Qt::AlignmentFlag(alignment));
    QCOMPARE(tested.lower, x->range().lower);
    QCOMPARE(tested.upper, x->range().upper);
}

void tst_CurveParts::drags_past_the_data_ask_once_per_drag()
{
    XCustomPlot plot;
    plot.setPlotSize(QSize(400, 300));
    plot.setInteractions(QCP::iRangeDrag);
    plot.xAxis->setRange(10, 20);
    plot.replot();
    XCPAxisRect* rect = plot.chartRect();
    rect->setMinData(5);
    rect->setMaxData(25);
    QSignalSpy pre(rect, &XCPAxisRect::preLoadingData);
    QSignalSpy next(rect, &XCPAxisRect::nextLoadingData);
    const QPoint centre = rect->rect().center();
    auto drag = [&](int dx) {
        QMouseEvent press(QEvent::MouseButtonPress, centre, Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        plot.routeMousePress(&press);
        for (int step = 1; step <= 10; ++step) {
            QMouseEvent move(QEvent::MouseMove, centre + QPoint(dx * step / 10, 0), Qt::NoButton, Qt::LeftButton,
                Qt::NoModifier);
            plot.routeMouseMove(&move);
        }
        QMouseEvent release(QEvent::MouseButtonRelease, centre + QPoint(dx, 0), Qt::LeftButton, Qt::NoButton,
            Qt::NoModifier);
        plot.routeMouseRelease(&release);
    };
    // dragged to the right: older keys come in; the first key (5) is passed once
    drag(rect->width());
    QCOMPARE(pre.count(), 1);
    QCOMPARE(next.count(), 0);
    QVERIFY(plot.xAxis->range().lower < 5);
    // back to the left past the last key (25): the page after
    drag(-3 * rect->width());
    QCOMPARE(pre.count(), 1);
    QCOMPARE(next.count(), 1);
    // a drag that stays inside the data asks for nothing
    plot.xAxis->setRange(10, 20);
    drag(rect->width() / 10);
    QCOMPARE(pre.count(), 1);
    QCOMPARE(next.count(), 1);
}

QTEST_MAIN(tst_CurveParts)
#include "tst_curveparts.moc"
