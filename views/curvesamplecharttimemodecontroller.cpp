#include "views/curvesamplecharttimemodecontroller.h"

#include "config/globalconfig.h"
#include "platform/logiclayercaller.h"
#include "views/curvesampledlg.h"
#include "views/qmlwindowmanage.h"
#include "xcomponents/qquick/basecustomaxisticker.h"
#include "xcomponents/qquick/curvesamplechart.h"
#include "xcomponents/qquick/xcpaxis.h"
#include "xcomponents/qquick/xcpaxisrect.h"
#include "xcomponents/qquick/xcpgraph.h"

#include <qgui/events.h>
#include <qgui/ids.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr double kDefaultSpan = 600; // seconds shown by a time axis whose record gives no span
const char* const kTimeForm = "yyyy-MM-dd hh:mm:ss";

} // namespace

CurveSampleChartTimeModeController::CurveSampleChartTimeModeController(QmlWindowManage* windows, QObject* parent)
    : QObject(parent)
    , m_windows(windows)
{
}

CurveSampleChartTimeModeController::~CurveSampleChartTimeModeController()
{
    delete m_dialog.data();
}

QDateTime CurveSampleChartTimeModeController::parseTime(const std::string& label)
{
    if (label.size() < 19 || label.size() > 40)
        return QDateTime();
    const QString text = QString::fromUtf8(label.data(), int(label.size()));
    QDateTime t = QDateTime::fromString(text, QStringLiteral("yyyy-MM-dd hh:mm:ss.zzz"));
    if (!t.isValid())
        t = QDateTime::fromString(text, QString::fromLatin1(kTimeForm));
    return t;
}

void CurveSampleChartTimeModeController::attach(CurveSampleChart* chart)
{
    if (!chart)
        return;
    m_states.insert(chart, ChartState());
    connect(chart, &QObject::destroyed, this, [this, chart] { m_states.remove(chart); });
    auto request = [this, chart](int code) {
        auto it = m_states.find(chart);
        if (it == m_states.end())
            return;
        if (it->state == RealTime)
            it->requestPending = true;
        LogicLayerCaller::call(chart->getId(), code, nullptr);
    };
    connect(chart->axisRect(), &XCPAxisRect::preLoadingData, this, [request] { request(EVT_CURVE_PRELOAD); });
    connect(chart->axisRect(), &XCPAxisRect::nextLoadingData, this, [request] { request(EVT_CURVE_NEXTLOAD); });
    connect(chart, &CurveSampleChart::settingRequested, this, [this, chart] { openSearchDialog(chart); });
    connect(chart, &CurveSampleChart::realTimeRequested, this, [this, chart] {
        leaveSearch(chart);
        chart->resumeRealMode();
        sendSearchEvent(chart, CURVE_REAL_TIME, CURVE_SEARCH_DOUBLE_CLICK, QString(), QString());
    });
}

void CurveSampleChartTimeModeController::setOrgRange(CurveSampleChart* chart, double lower, double upper)
{
    const bool given = std::isfinite(lower) && std::isfinite(upper) && upper > lower && upper - lower < 3.2e9;
    const double span = given ? upper - lower : kDefaultSpan;
    chart->setTimeOffset(double(QDateTime::currentMSecsSinceEpoch()) / 1000.0 - span);
    chart->setOrgRange(QCPRange(0, span));
}

void CurveSampleChartTimeModeController::init(CurveSampleChart* chart, const QString& text)
{
    const double span = chart->orgRange().size();
    QDateTime at = parseTime(text.toStdString());
    const double offset = at.isValid() ? double(at.toMSecsSinceEpoch()) / 1000.0
                                       : double(QDateTime::currentMSecsSinceEpoch()) / 1000.0 - span;
    chart->setTimeOffset(offset);
    chart->axisRect()->resetData();
    chart->setXMinData(0);
    chart->setXMaxData(0);
    chart->setOrgRange(QCPRange(0, span));
}

void CurveSampleChartTimeModeController::push(
    CurveSampleChart* chart, const std::vector<std::string>& labels, const std::vector<std::vector<double>>& values)
{
    auto it = m_states.find(chart);
    const bool aside = it != m_states.end() && it->state != RealTime;
    const bool timed = chart->xAxisMode() == CurveSampleChart::TimeAxis;
    size_t samples = std::min(labels.size(), CurveSampleChart::kMaxPush);
    for (const auto& v : values)
        samples = std::max(samples, std::min(v.size(), CurveSampleChart::kMaxPush));
    QVector<double> keys;
    if (timed) {
        const double now = chart->dateTimeToKey(QDateTime::currentDateTime());
        keys.resize(int(samples));
        for (size_t i = 0; i < samples; ++i) {
            const QDateTime t = i < labels.size() ? parseTime(labels[i]) : QDateTime();
            keys[int(i)] = t.isValid() ? chart->dateTimeToKey(t) : now;
        }
    }
    if (!aside) {
        if (timed)
            chart->pushKeyed(keys, labels, values);
        else
            chart->pushData(labels, values);
        return;
    }
    // searching: the samples join the data put aside, shown again when real time comes back
    const size_t channels = std::min(values.size(), size_t(it->aside.size()));
    for (size_t c = 0; c < channels; ++c) {
        QCPGraphDataContainer* data = it->aside[int(c)].data();
        const double base = data->size();
        const size_t n = std::min(values[c].size(), samples);
        for (size_t i = 0; i < n; ++i) {
            const double key = timed ? keys[int(i)] : base + double(i);
            data->add(QCPGraphData(key, chart->plotValue(values[c][i])));
            it->asideMax = std::max(it->asideMax, key);
            it->asideMin = std::min(it->asideMin, key);
            if (c == 0 && i < labels.size())
                it->asideLabels.insert(key, QString::fromStdString(labels[i]));
        }
    }
}

void CurveSampleChartTimeModeController::clearData(CurveSampleChart* chart, const std::vector<unsigned>& channels)
{
    chart->clearData(channels);
    auto it = m_states.find(chart);
    if (it == m_states.end() || it->state == RealTime)
        return;
    for (unsigned c : channels) {
        if (c < unsigned(it->aside.size()))
            it->aside[int(c)]->clear();
    }
    it->asideLabels.clear();
}

void CurveSampleChartTimeModeController::updateData(CurveSampleChart* chart, const std::vector<unsigned>& channels,
    const std::vector<std::string>& labels, const std::vector<std::vector<double>>& values, unsigned start, bool last)
{
    auto it = m_states.find(chart);
    if (it == m_states.end())
        return;
    if (it->state == RealTime) {
        if (!it->requestPending)
            return; // a page of a search already left
        enterSearch(chart, Searching);
        it = m_states.find(chart);
    }
    it->requestPending = false;
    it->lastPage = last;
    if (chart->xAxisMode() == CurveSampleChart::TimeAxis) {
        size_t n = std::min(labels.size(), CurveSampleChart::kMaxPush);
        for (const auto& v : values)
            n = std::max(n, std::min(v.size(), CurveSampleChart::kMaxPush));
        QVector<double> keys(static_cast<int>(n));
        for (size_t k = 0; k < n; ++k) {
            const QDateTime t = k < labels.size() ? parseTime(labels[k]) : QDateTime();
            keys[int(k)] = t.isValid() ? chart->dateTimeToKey(t) : double(start) + double(k);
        }
        chart->replaceDataKeyed(channels, labels, values, keys);
    } else {
        chart->replaceData(channels, labels, values, double(start));
    }
    LogicLayerCaller::call(chart->getId(), EVT_CURVE_DATA_APPLIED, nullptr);
}

void CurveSampleChartTimeModeController::enterSearch(CurveSampleChart* chart, State state)
{
    auto it = m_states.find(chart);
    if (it == m_states.end())
        return;
    if (it->state == RealTime) {
        // the live data goes aside; the plot shows the pages from now on
        it->aside.clear();
        for (int c = 0; c < chart->channelCount(); ++c) {
            XCPGraph* graph = chart->graphAt(c);
            it->aside.append(graph->data());
            graph->setData(QSharedPointer<QCPGraphDataContainer>::create());
        }
        it->asideMin = chart->axisRect()->minData();
        it->asideMax = chart->axisRect()->maxData();
        if (BaseCustomAxisTicker* xt = chart->xTicker()) {
            it->asideLabels = xt->labels();
            xt->clearLabel();
        }
        chart->axisRect()->resetData();
    }
    it->state = state;
    it->lastPage = false;
    chart->setRealTimeCurve(false);
    chart->setSearchState(true);
    chart->queueReplot();
}

void CurveSampleChartTimeModeController::leaveSearch(CurveSampleChart* chart)
{
    auto it = m_states.find(chart);
    if (it == m_states.end())
        return;
    it->requestPending = false;
    if (it->state == RealTime)
        return;
    for (int c = 0; c < chart->channelCount() && c < it->aside.size(); ++c)
        chart->graphAt(c)->setData(it->aside[c]);
    it->aside.clear();
    chart->axisRect()->resetData();
    if (it->asideMax >= it->asideMin) {
        chart->axisRect()->setMinData(it->asideMin);
        chart->axisRect()->setMaxData(it->asideMax);
    }
    if (BaseCustomAxisTicker* xt = chart->xTicker())
        xt->setLabels(it->asideLabels);
    it->asideLabels.clear();
    it->state = RealTime;
    chart->setSearchState(false);
}

void CurveSampleChartTimeModeController::setSearchMode(CurveSampleChart* chart, bool on)
{
    if (on) {
        if (state(chart) == RealTime)
            enterSearch(chart, Searching);
    } else {
        leaveSearch(chart);
        chart->resumeRealMode();
    }
}

void CurveSampleChartTimeModeController::resumeRealMode(CurveSampleChart* chart)
{
    leaveSearch(chart);
    chart->resumeRealMode();
}

void CurveSampleChartTimeModeController::restoreSearchState(CurveSampleChart* chart)
{
    const QPair<QString, QString> saved = GlobalConfig::getInstance()->getCurveSampleSearchTime(chart->getId());
    if (saved.first.isEmpty() && saved.second.isEmpty())
        return; // nothing confirmed yet
    enterSearch(chart, Restored);
    showSearchSpan(chart, saved.first, saved.second);
    sendSearchEvent(chart, CURVE_SEARCHING, CURVE_SEARCH_RESTORED, saved.first, saved.second);
}

void CurveSampleChartTimeModeController::confirmSearch(CurveSampleChart* chart, const QString& start, const QString& end)
{
    if (!m_states.contains(chart))
        return;
    GlobalConfig::getInstance()->saveCurveSampleSearchTime(chart->getId(), qMakePair(start, end));
    enterSearch(chart, Searching);
    showSearchSpan(chart, start, end);
    sendSearchEvent(chart, CURVE_SEARCHING, CURVE_SEARCH_CONFIRMED, start, end);
}

void CurveSampleChartTimeModeController::showSearchSpan(CurveSampleChart* chart, const QString& start, const QString& end)
{
    if (chart->xAxisMode() != CurveSampleChart::TimeAxis)
        return; // sample numbers: the pages say where they lie
    const QDateTime s = QDateTime::fromString(start, QString::fromLatin1(kTimeForm));
    const QDateTime e = QDateTime::fromString(end, QString::fromLatin1(kTimeForm));
    const double span = chart->xAxis()->range().size();
    if (s.isValid() && e.isValid() && e > s)
        chart->xAxis()->setRange(chart->dateTimeToKey(s), chart->dateTimeToKey(e));
    else if (s.isValid())
        chart->xAxis()->setRange(chart->dateTimeToKey(s), span, Qt::AlignLeft);
    else if (e.isValid())
        chart->xAxis()->setRange(chart->dateTimeToKey(e), span, Qt::AlignRight);
    chart->queueReplot();
}

void CurveSampleChartTimeModeController::sendSearchEvent(
    CurveSampleChart* chart, int state, int source, const QString& start, const QString& end)
{
    const QByteArray s = start.toUtf8();
    const QByteArray e = end.toUtf8();
    View_EvtCurveSearch evt { state, source, s.constData(), e.constData() };
    LogicLayerCaller::call(chart->getId(), EVT_CURVE_SEARCH, &evt);
}

void CurveSampleChartTimeModeController::openSearchDialog(CurveSampleChart* chart)
{
    delete m_dialog.data();
    if (!m_windows || !chart)
        return;
    XOverlay* overlay = m_windows->getOverlay(GetDeskNoFromWndId(chart->getWindowId()));
    const QPair<QString, QString> saved = GlobalConfig::getInstance()->getCurveSampleSearchTime(chart->getId());
    m_dialog = CurveSampleDlg::open(chart, overlay, saved.first, saved.second);
    if (m_dialog)
        connect(m_dialog.data(), &CurveSampleDlg::confirmed, this, &CurveSampleChartTimeModeController::confirmSearch);
}

CurveSampleChartTimeModeController::State CurveSampleChartTimeModeController::state(const CurveSampleChart* chart) const
{
    return m_states.value(chart).state;
}

CurveSampleDlg* CurveSampleChartTimeModeController::searchDialog() const
{
    return m_dialog.data();
}
