#include "xcomponents/qquick/curvesamplechart.h"

#include "platform/logiclayercaller.h"
#include "xcomponents/qquick/curvecursor.h"
#include "xcomponents/qquick/customlabelaxisticker.h"
#include "xcomponents/qquick/customxaxistickerpnt.h"
#include "xcomponents/qquick/customxaxistickerpntt.h"
#include "xcomponents/qquick/customxaxistickertime.h"
#include "xcomponents/qquick/xcpaxis.h"
#include "xcomponents/qquick/xcpaxisrect.h"
#include "xcomponents/qquick/xcpgraph.h"
#include "xcomponents/qquick/xcustomplot.h"

#include <qgui/events.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr double kTapDistance = 10; // a release this close to its press is a tap

} // namespace

CurveSampleChart::CurveSampleChart(QQuickItem* parent)
    : CustomPlotItem(parent)
{
}

CurveSampleChart::~CurveSampleChart() = default;

void CurveSampleChart::setXAxisMode(int mode, int subTicks, const QString& clockFormat)
{
    XCPAxis* x = xAxis();
    if (!x)
        return;
    m_xAxisMode = (mode == SampleLabelAxis || mode == TimeAxis) ? mode : SampleAxis;
    QSharedPointer<BaseCustomAxisTicker> ticker;
    if (m_xAxisMode == SampleLabelAxis) {
        ticker.reset(new CustomXAxisTickerPntT);
    } else if (m_xAxisMode == TimeAxis) {
        auto* time = new CustomXAxisTickerTime;
        time->setStartOffset(timeOffset());
        ticker.reset(time);
    } else {
        ticker.reset(new CustomXAxisTickerPnt);
    }
    ticker->setSubTickCount(subTicks);
    ticker->setClockFormat(clockFormat);
    ticker->setTickCount(x->ticker() ? x->ticker()->tickCount() : 5);
    x->setTicker(ticker);
    if (!yAxis()->ticker().dynamicCast<CustomLabelAxisTicker>()) {
        QSharedPointer<CustomLabelAxisTicker> y(new CustomLabelAxisTicker);
        y->setTickCount(yAxis()->ticker()->tickCount());
        yAxis()->setTicker(y);
        yAxis()->setRange(0, y->tickCount());
    }
    connect(x, QOverload<const QCPRange&>::of(&QCPAxis::rangeChanged), this, &CurveSampleChart::onXRangeChanged,
        Qt::UniqueConnection);
}

void CurveSampleChart::setTimeOffset(double seconds)
{
    CustomPlotItem::setTimeOffset(seconds);
    if (auto* time = dynamic_cast<CustomXAxisTickerTime*>(xTicker()))
        time->setStartOffset(seconds);
}

BaseCustomAxisTicker* CurveSampleChart::xTicker() const
{
    return xAxis() ? dynamic_cast<BaseCustomAxisTicker*>(xAxis()->ticker().data()) : nullptr;
}

CustomLabelAxisTicker* CurveSampleChart::yTicker() const
{
    return yAxis() ? dynamic_cast<CustomLabelAxisTicker*>(yAxis()->ticker().data()) : nullptr;
}

void CurveSampleChart::setOrgRange(const QCPRange& range)
{
    if (!QCPRange::validRange(range.lower, range.upper) || !(range.upper > range.lower))
        return;
    m_orgRange = range;
    m_scale = 1.0;
    if (xAxis())
        xAxis()->setRange(range);
    Q_EMIT xScaleChanged();
    queueReplot();
}

void CurveSampleChart::setXScale(double scale)
{
    XCPAxis* x = xAxis();
    if (!x || !std::isfinite(scale) || scale <= 0)
        return;
    m_scale = scale;
    const double span = m_orgRange.size() * scale;
    const double lower = x->range().lower;
    const QCPRange tested = x->testRange(lower, span, Qt::AlignLeft);
    if (tested.lower >= m_orgRange.lower && tested.upper > m_orgRange.upper)
        x->setRange(lower, span, Qt::AlignLeft);
    else
        x->setRange(m_orgRange.lower, tested.size(), Qt::AlignLeft);
    m_scale = scale; // the range change above re-derives the scale from the span; keep the exact one
    setZoomed(scale != 1.0);
    if (m_realTime && !axisRect()->isDragging())
        scroolToLast();
    Q_EMIT xScaleChanged();
    queueReplot();
}

void CurveSampleChart::currentScaleChange(double scale)
{
    setXScale(scale);
}

void CurveSampleChart::setRealTimeCurve(bool on)
{
    if (m_realTime == on)
        return;
    m_realTime = on;
    Q_EMIT realTimeChanged();
}

int CurveSampleChart::getTickerCount() const
{
    return xAxis() ? xAxis()->ticker()->tickCount() : 0;
}

void CurveSampleChart::setTickerCount(int count)
{
    if (xAxis())
        xAxis()->ticker()->setTickCount(qBound(1, count, 1000));
}

XCPGraph* CurveSampleChart::addChannel(const CurveChannelStyle& style)
{
    if (!customPlot() || m_graphs.size() >= kMaxChannels)
        return nullptr;
    auto* graph = new XCPGraph(xAxis(), yAxis()); // the plot owns it
    graph->setPen(style.pen);
    graph->setBrush(style.brush);
    static const QCPGraph::LineStyle styles[] = { QCPGraph::lsNone, QCPGraph::lsLine, QCPGraph::lsStepLeft,
        QCPGraph::lsStepRight, QCPGraph::lsImpulse };
    graph->setLineStyle(style.lineStyle >= 0 && style.lineStyle <= 4 ? styles[style.lineStyle] : QCPGraph::lsLine);
    graph->setSmooth(style.smooth);
    graph->setScatterStyle(style.scatter);
    graph->setVisible(!style.hidden);
    graph->setAdaptiveSampling(true);
    m_graphs.append(graph);
    return graph;
}

XCPGraph* CurveSampleChart::graphAt(int channel) const
{
    return channel >= 0 && channel < m_graphs.size() ? m_graphs.at(channel) : nullptr;
}

bool CurveSampleChart::hideChannel(unsigned channel, bool hide)
{
    XCPGraph* graph = channel < unsigned(m_graphs.size()) ? m_graphs.at(int(channel)) : nullptr;
    if (!graph)
        return false;
    graph->setVisible(!hide);
    queueReplot();
    return true;
}

double CurveSampleChart::plotValue(double value) const
{
    const CustomLabelAxisTicker* y = yTicker();
    return std::isfinite(value) && y ? y->toPlot(value) : std::numeric_limits<double>::quiet_NaN();
}

void CurveSampleChart::tookSamples(double minKey, double maxKey)
{
    XCPAxisRect* rect = axisRect();
    if (!rect || !(maxKey >= minKey))
        return;
    rect->setMaxData(std::max(rect->maxData(), maxKey));
    rect->setMinData(std::min(rect->minData(), minKey));
    m_xMax = std::max(m_xMax, maxKey);
    scroolToNext(maxKey);
    if (!m_cursorSettled)
        refreshCursorWindow();
    queueReplot();
}

void CurveSampleChart::refreshCursorWindow()
{
    if (!m_cursorWindow || !m_cursorEnabled || !m_cursorInited || m_cursorContentFromLogic)
        return;
    fillCursorWindow();
    if (!pointInCurrent(m_cursorKey))
        m_cursorWindow->setVisible(false); // it goes with its line, out of sight
}

void CurveSampleChart::pushData(const std::vector<std::string>& labels, const std::vector<std::vector<double>>& values)
{
    BaseCustomAxisTicker* xt = xTicker();
    const size_t channels = std::min(values.size(), size_t(m_graphs.size()));
    double maxKey = -std::numeric_limits<double>::infinity();
    double minKey = std::numeric_limits<double>::infinity();
    QVector<double> keys;
    QVector<double> shown;
    QVector<double> firstKeys; // the key of sample 0 of each channel, for the labels
    firstKeys.reserve(int(channels));
    for (size_t c = 0; c < channels; ++c) {
        XCPGraph* graph = m_graphs.at(int(c));
        const size_t n = std::min(values[c].size(), kMaxPush);
        const double base = graph->dataCount();
        firstKeys.append(base);
        if (!n)
            continue;
        keys.resize(int(n));
        shown.resize(int(n));
        for (size_t i = 0; i < n; ++i) {
            keys[int(i)] = base + double(i);
            shown[int(i)] = plotValue(values[c][i]);
        }
        graph->addData(keys, shown, true);
        maxKey = std::max(maxKey, base + double(n - 1));
        minKey = std::min(minKey, base);
    }
    // label i goes under the key of sample i of the first channel holding a value at i
    if (xt) {
        const size_t n = std::min(labels.size(), kMaxPush);
        for (size_t i = 0; i < n; ++i) {
            for (size_t c = 0; c < channels; ++c) {
                if (i < std::min(values[c].size(), kMaxPush)) {
                    xt->insertLabel(firstKeys[int(c)] + double(i), labels[i].c_str());
                    break;
                }
            }
        }
    }
    tookSamples(minKey, maxKey);
}

void CurveSampleChart::pushKeyed(
    const QVector<double>& keys, const std::vector<std::string>& labels, const std::vector<std::vector<double>>& values)
{
    const size_t channels = std::min(values.size(), size_t(m_graphs.size()));
    double maxKey = -std::numeric_limits<double>::infinity();
    double minKey = std::numeric_limits<double>::infinity();
    const bool sorted = std::is_sorted(keys.begin(), keys.end());
    QVector<double> k;
    QVector<double> shown;
    for (size_t c = 0; c < channels; ++c) {
        XCPGraph* graph = m_graphs.at(int(c));
        const int n = int(std::min(values[c].size(), size_t(keys.size())));
        if (!n)
            continue;
        k = keys.mid(0, n);
        shown.resize(n);
        for (int i = 0; i < n; ++i)
            shown[i] = plotValue(values[c][size_t(i)]);
        const bool after = graph->data()->isEmpty() || k.first() >= (graph->data()->constEnd() - 1)->key;
        if (!after)
            m_cursorSettled = false; // samples among the held ones may be nearer the cursor
        graph->addData(k, shown, sorted && after);
        for (double key : qAsConst(k)) {
            maxKey = std::max(maxKey, key);
            minKey = std::min(minKey, key);
        }
    }
    if (BaseCustomAxisTicker* xt = xTicker()) {
        const size_t n = std::min(labels.size(), size_t(keys.size()));
        for (size_t i = 0; i < n; ++i)
            xt->insertLabel(keys[int(i)], labels[i].c_str());
    }
    tookSamples(minKey, maxKey);
}

void CurveSampleChart::replaceData(const std::vector<unsigned>& channels, const std::vector<std::string>& labels,
    const std::vector<std::vector<double>>& values, double start)
{
    if (!std::isfinite(start))
        return;
    size_t n = std::min(labels.size(), kMaxPush);
    for (const auto& v : values)
        n = std::max(n, std::min(v.size(), kMaxPush));
    QVector<double> keys(static_cast<int>(n));
    for (size_t k = 0; k < n; ++k)
        keys[int(k)] = start + double(k);
    replaceDataKeyed(channels, labels, values, keys);
}

void CurveSampleChart::replaceDataKeyed(const std::vector<unsigned>& channels, const std::vector<std::string>& labels,
    const std::vector<std::vector<double>>& values, const QVector<double>& keys)
{
    XCPAxisRect* rect = axisRect();
    if (!rect)
        return;
    double maxKey = -std::numeric_limits<double>::infinity();
    double minKey = std::numeric_limits<double>::infinity();
    const size_t listed = std::min(channels.size(), values.size());
    const bool sorted = std::is_sorted(keys.begin(), keys.end());
    for (size_t i = 0; i < listed; ++i) {
        XCPGraph* graph = graphAt(channels[i] < unsigned(kMaxChannels) ? int(channels[i]) : -1);
        if (!graph)
            continue;
        const int n = int(std::min(values[i].size(), size_t(keys.size())));
        QVector<QCPGraphData> data(n);
        for (int k = 0; k < n; ++k) {
            data[k] = QCPGraphData(keys[k], plotValue(values[i][size_t(k)]));
            maxKey = std::max(maxKey, keys[k]);
            minKey = std::min(minKey, keys[k]);
        }
        graph->data()->set(data, sorted);
    }
    if (BaseCustomAxisTicker* xt = xTicker()) {
        xt->clearLabel();
        const size_t n = std::min(labels.size(), size_t(keys.size()));
        for (size_t k = 0; k < n; ++k)
            xt->insertLabel(keys[int(k)], labels[k].c_str());
    }
    rect->resetData();
    if (maxKey >= minKey) {
        rect->setMinData(minKey);
        rect->setMaxData(maxKey);
        m_xMin = minKey;
        m_xMax = maxKey;
    }
    refreshCursorWindow();
    queueReplot();
}

void CurveSampleChart::clearData(const std::vector<unsigned>& channels)
{
    for (unsigned c : channels) {
        if (XCPGraph* graph = graphAt(c < unsigned(kMaxChannels) ? int(c) : -1))
            graph->data()->clear();
    }
    if (BaseCustomAxisTicker* xt = xTicker())
        xt->clearLabel();
    if (XCPAxisRect* rect = axisRect()) {
        rect->resetData();
        // what the other channels still hold keeps counting as held
        for (XCPGraph* graph : qAsConst(m_graphs)) {
            if (graph->dataCount()) {
                rect->setMinData(std::min(rect->minData(), graph->data()->constBegin()->key));
                rect->setMaxData(std::max(rect->maxData(), (graph->data()->constEnd() - 1)->key));
            }
        }
    }
    m_xMin = 0;
    m_xMax = 0;
    if (xAxis()) {
        xAxis()->setRange(m_orgRange.lower, m_orgRange.size() * m_scale, Qt::AlignLeft);
    }
    refreshCursorWindow();
    queueReplot();
}

void CurveSampleChart::setYLabels(const QVector<QString>& labels)
{
    if (CustomLabelAxisTicker* y = yTicker())
        y->setLabels(labels);
    queueReplot();
}

void CurveSampleChart::setYLimit(int dataType, unsigned char decimals, const double* limits)
{
    if (CustomLabelAxisTicker* y = yTicker()) {
        y->setDecs(decimals);
        y->setDataType(dataType);
        y->setLimit(limits);
    }
    queueReplot();
}

void CurveSampleChart::changeDispNum(unsigned count)
{
    setTickerCount(int(std::min<unsigned>(count, 1000)));
    queueReplot();
}

void CurveSampleChart::resumeRealMode()
{
    setRealTimeCurve(true);
    scroolToLast();
}

void CurveSampleChart::scroolToLast()
{
    XCPAxisRect* rect = axisRect();
    XCPAxis* x = xAxis();
    if (!rect || !x)
        return;
    const double span = m_orgRange.size() * m_scale;
    if (rect->maxData() < rect->minData()) { // nothing held
        x->setRange(m_orgRange.lower, span, Qt::AlignLeft);
    } else {
        const double last = rect->maxData();
        const double start = last - span;
        if (start >= m_orgRange.lower && last >= m_orgRange.upper)
            x->setRange(start, last);
        else
            x->setRange(std::max(start, rect->minData()), span, Qt::AlignLeft);
    }
    queueReplot();
}

void CurveSampleChart::scroolToNext(double x)
{
    XCPAxis* axis = xAxis();
    if (!m_realTime || !axis || axisRect()->isDragging())
        return;
    if (x >= axis->range().upper)
        axis->setRange(x, m_orgRange.size() * m_scale, Qt::AlignRight);
}

bool CurveSampleChart::inRange(const QCPRange& range) const
{
    const XCPAxisRect* rect = axisRect();
    if (!rect || rect->maxData() < rect->minData())
        return false;
    const double last = rect->maxData();
    return last >= range.lower && last <= range.upper + 0.5;
}

bool CurveSampleChart::pointInCurrent(double x) const
{
    const XCPAxis* axis = xAxis();
    return axis && x >= axis->range().lower && x <= axis->range().upper;
}

void CurveSampleChart::setCursorLinePen(const QPen& pen)
{
    m_cursorPen = pen;
    if (m_cursorLine)
        m_cursorLine->setPen(pen);
}

void CurveSampleChart::setCursorEnabled(bool on)
{
    m_cursorEnabled = on;
    if (!m_cursorLine && customPlot()) {
        m_cursorLine = new QCPItemStraightLine(customPlot());
        m_cursorLine->setPen(m_cursorPen);
        m_cursorLine->setClipToAxisRect(true);
        m_cursorLine->point1->setCoords(m_cursorKey, 0);
        m_cursorLine->point2->setCoords(m_cursorKey, 100);
    }
    if (m_cursorLine)
        m_cursorLine->setVisible(on);
    if (on && m_cursorInited)
        fillCursorWindow();
    if (m_cursorWindow)
        m_cursorWindow->setVisible(on && m_cursorWindow->hasContent());
    queueReplot();
}

void CurveSampleChart::setCursorWindow(CurveCursor* window)
{
    m_cursorWindow = window;
    if (window) {
        window->setParentItem(this);
        window->setVisible(false);
    }
}

void CurveSampleChart::setChannelNames(const QStringList& names, const QStringList& units)
{
    m_channelNames = names;
    m_channelUnits = units;
    if (m_cursorInited)
        fillCursorWindow();
}

void CurveSampleChart::fillCursorWindow()
{
    CurveCursor* window = m_cursorWindow.data();
    if (!window || !xAxis())
        return;
    const double key = m_cursorKey;
    QString title;
    if (m_xAxisMode == TimeAxis) {
        title = keyToDateTime(key).toString(QStringLiteral("yyyy-MM-dd hh:mm:ss"));
    } else if (m_xAxisMode == SampleLabelAxis && xTicker() && !xTicker()->labelAt(key).isEmpty()) {
        title = xTicker()->labelAt(key);
    } else {
        const auto* pnt = dynamic_cast<CustomXAxisTickerPnt*>(xTicker());
        title = QStringLiteral("#") + QString::number(double(pnt ? pnt->startTickerNo() : 0) + key, 'g', 10);
    }
    QVector<QVector<XTableCell>> rows;
    QVector<QColor> marks;
    const CustomLabelAxisTicker* y = yTicker();
    bool settled = true;
    for (int c = 0; c < m_graphs.size(); ++c) {
        XCPGraph* graph = m_graphs.at(c);
        if (!graph->visible())
            continue;
        settled = settled && !graph->data()->isEmpty() && (graph->data()->constEnd() - 1)->key >= key;
        // the sample nearest the cursor
        QString value = QStringLiteral("-");
        const auto data = graph->data();
        if (!data->isEmpty()) {
            auto it = data->findBegin(key, false);
            auto best = it;
            if (it != data->constEnd() && it + 1 != data->constEnd()
                && std::fabs((it + 1)->key - key) < std::fabs(it->key - key))
                best = it + 1;
            if (best == data->constEnd())
                best = data->constEnd() - 1;
            if (y && std::isfinite(best->value))
                value = y->valueText(best->value);
        }
        XTableCell name;
        name.text = c < m_channelNames.size() && !m_channelNames[c].isEmpty() ? m_channelNames[c]
                                                                            : QStringLiteral("Channel %1").arg(c + 1);
        XTableCell v;
        v.text = value;
        XTableCell unit;
        unit.text = m_channelUnits.value(c);
        rows.append({ name, v, unit });
        marks.append(graph->pen().color());
    }
    window->setTitle(title);
    m_cursorSettled = settled;
    window->setRows(rows, marks);
    if (XCPAxis* x = xAxis())
        window->placeBeside(x->coordToPixel(key) + orgPosition().x(), QRectF(plotArea()));
    window->setVisible(m_cursorEnabled && window->hasContent());
}

void CurveSampleChart::moveCursorTo(double key)
{
    if (!std::isfinite(key))
        return;
    m_cursorKey = m_xAxisMode == TimeAxis ? key : std::round(key);
    m_cursorInited = true;
    m_cursorContentFromLogic = false;
    if (m_cursorLine) {
        m_cursorLine->point1->setCoords(m_cursorKey, 0);
        m_cursorLine->point2->setCoords(m_cursorKey, 100);
    }
    fillCursorWindow();
    Q_EMIT cursorMoved(m_cursorKey);
    queueReplot();
}

void CurveSampleChart::setSettingBtnVisible(bool on)
{
    if (m_settingBtn == on)
        return;
    m_settingBtn = on;
    Q_EMIT buttonsChanged();
}

void CurveSampleChart::setRestoreBtnVisible(bool on)
{
    if (m_restoreBtn == on)
        return;
    m_restoreBtn = on;
    Q_EMIT buttonsChanged();
}

void CurveSampleChart::setZoomed(bool zoomed)
{
    if (m_zoomed == zoomed)
        return;
    m_zoomed = zoomed;
    if (m_restoreBtn)
        Q_EMIT buttonsChanged();
}

void CurveSampleChart::pressAt(QMouseEvent* event)
{
    m_pressPos = event->localPos();
    routeMouseEvents(event);
    LogicLayerCaller::call(getId(), EVT_WIDGET_PRESS, nullptr);
}

void CurveSampleChart::releaseAt(QMouseEvent* event)
{
    routeMouseEvents(event);
    const QPointF at = event->localPos();
    const double key = xAxis() ? xAxis()->pixelToCoord(toPlot(at).x()) : 0;
    if (QLineF(at, m_pressPos).length() <= kTapDistance && m_cursorEnabled)
        moveCursorTo(key);
    // a drag that ends with the newest sample in view follows new samples again
    if (!m_realTime && xAxis() && inRange(xAxis()->range()) && m_xAxisMode != TimeAxis)
        setRealTimeCurve(true);
    View_EvtCurveCursor cursor { m_cursorEnabled ? m_cursorKey : key, int(std::lround(at.x())),
        int(std::lround(at.y())) };
    LogicLayerCaller::call(getId(), EVT_WIDGET_RELEASE, &cursor);
}

void CurveSampleChart::doubleClickAt(QMouseEvent* event)
{
    routeMouseEvents(event);
    LogicLayerCaller::call(getId(), EVT_CURVE_DOUBLE_CLICK, nullptr);
    Q_EMIT realTimeRequested();
}

void CurveSampleChart::slotSettingBtnClicked()
{
    Q_EMIT settingRequested();
}

void CurveSampleChart::onRestoreBtnClicked()
{
    currentScaleChange(1.0);
}

void CurveSampleChart::onXRangeChanged(const QCPRange& range)
{
    if (m_orgRange.size() > 0) {
        const double scale = range.size() / m_orgRange.size();
        if (std::fabs(scale - m_scale) > 1e-9) {
            m_scale = scale; // wheel or pinch zoom
            setZoomed(std::fabs(scale - 1.0) > 1e-9);
            Q_EMIT xScaleChanged();
        }
    }
    if (axisRect() && axisRect()->isDragging())
        setRealTimeCurve(false);
    // the cursor window goes with its line, and out of sight with it
    if (m_cursorWindow && m_cursorEnabled && m_cursorInited) {
        const bool inView = pointInCurrent(m_cursorKey);
        m_cursorWindow->setVisible(inView && m_cursorWindow->hasContent());
        if (inView)
            m_cursorWindow->placeBeside(xAxis()->coordToPixel(m_cursorKey) + orgPosition().x(), QRectF(plotArea()));
    }
}
