// Sample curve charts (trend charts). Modes 0 and 1 (sample-number axes) are
// handled here; in mode 2 (time axis) the data calls go to the time-mode
// controller, which also runs the history search of every mode.
#include "views/viewmanage.h"

#include "platform/guiqtadaptcore.h"
#include "utils/utils.h"
#include "views/curvesamplecharttimemodecontroller.h"
#include "views/curvesetup.h"
#include "views/lifecyclemanager.h"
#include "xcomponents/qquick/curvecursor.h"
#include "xcomponents/qquick/curvemousearea.h"
#include "xcomponents/qquick/curvesamplechart.h"
#include "xcomponents/qquick/customlabelaxisticker.h"
#include "xcomponents/qquick/xcpaxis.h"
#include "xcomponents/qquick/xcpaxisrect.h"
#include "xcomponents/qquick/xqmlcomponentmanage.h"

#include <cmath>

using GuiQtAdapt::Core;

namespace {

constexpr int kDefaultTicks = 5;
constexpr int kMaxTicks = 1000;

int tickCountOf(int wanted)
{
    return wanted > 0 ? qMin(wanted, kMaxTicks) : kDefaultTicks;
}

} // namespace

CurveSampleChart* ViewManage::curveSampleChart(unsigned int id) const
{
    return qobject_cast<CurveSampleChart*>(m_lifeCycle->findItemMaybeVisible(id));
}

int ViewManage::View_CreateCurveSample(const View_CurveSample* rec, unsigned int windowId)
{
    QQuickItem* window = creationParent(rec, windowId);
    if (!window)
        return -1; // null record or unknown window: nothing is made
    QQuickItem* item = XQmlComponentManage::getInstance()->createItem(
        QUrl(QStringLiteral("qrc:/chart/QmlCurveSampleChart.qml")), window);
    auto* chart = qobject_cast<CurveSampleChart*>(item);
    if (!QGUI_CHECK_AT(chart, "qgui/views/ViewManage")) {
        delete item;
        return -1;
    }
    // the plot, its size and origin, background, interactions, drag and zoom orientations, the axes
    CurveSetup::setUpPlot(chart, rec->rect, rec->interactions, rec->plotBrush, rec->xAxis, rec->yAxis);
    // the tickers, the tick counts and the display number
    chart->yAxis()->ticker()->setTickCount(tickCountOf(rec->yAxis.tickCount));
    chart->setXAxisMode(int(rec->xAxisMode), rec->xAxis.subTickCount, CurveSetup::toDateTimeFormat(rec->clockFormat));
    chart->setTickerCount(tickCountOf(rec->xAxis.tickCount));
    chart->setDisp(rec->disp);
    CustomLabelAxisTicker* y = chart->yTicker();
    const double limits[2] = { rec->yAxis.lower, rec->yAxis.upper };
    if (std::isfinite(limits[0]) && std::isfinite(limits[1]) && limits[1] != limits[0])
        y->setLimit(limits);
    y->setSubTickCount(qBound(0, rec->yAxis.subTickCount, 100));
    chart->yAxis()->setRange(0, y->tickCount());
    chart->axisRect()->setDoubleScale(rec->doubleScale != 0);
    // one graph per channel
    const U32 channels = rec->channels ? qMin(rec->channelCount, CurveSetup::kMaxChannels) : 0;
    for (U32 c = 0; c < channels; ++c)
        chart->addChannel(CurveSetup::toChannelStyle(rec->channels[c]));
    // the initial x range
    if (chart->xAxisMode() == CurveSampleChart::TimeAxis) {
        m_timeMode->setOrgRange(chart, rec->xAxis.lower, rec->xAxis.upper);
    } else {
        const bool given = std::isfinite(rec->xAxis.lower) && std::isfinite(rec->xAxis.upper)
            && rec->xAxis.upper > rec->xAxis.lower;
        chart->setOrgRange(given ? QCPRange(rec->xAxis.lower, rec->xAxis.upper)
                                 : QCPRange(0, rec->disp > 0 ? double(qMin(rec->disp, 100000000u)) : 100.0));
    }
    if (auto* area = chart->findChild<CurveMouseArea*>(QStringLiteral("mouseArea")))
        area->setYOriginalRange(chart->yAxis()->range());
    // the cursor line and window, hidden until enabled
    chart->setCursorLinePen(Core::toQPen(rec->cursorPen));
    auto* cursor = new CurveCursor(chart);
    cursor->setStyle(CurveSetup::toCursorStyle(rec->cursor));
    chart->setCursorWindow(cursor);
    // the buttons and the chart's requests
    chart->setSettingBtnVisible(rec->settingButton != 0);
    chart->setRestoreBtnVisible(rec->restoreButton != 0);
    m_timeMode->attach(chart);
    placeWidget(chart, rec, windowId);
    chart->queueReplot();
    return 0;
}

int ViewManage::View_CurveHideChannel(unsigned int id, unsigned int channel, bool hide)
{
    QQuickItem* item = m_lifeCycle->findItemMaybeVisible(id);
    if (auto* chart = qobject_cast<CurveSampleChart*>(item))
        return chart->hideChannel(channel, hide) ? 0 : -1;
    return hideXyCurve(item, channel, hide);
}

int ViewManage::View_CurveSampleChangeDispNum(unsigned int id, unsigned int count)
{
    if (CurveSampleChart* chart = curveSampleChart(id))
        chart->changeDispNum(count);
    return 0;
}

int ViewManage::View_CurveSampleClearData(unsigned int id, const std::vector<unsigned int>& channels)
{
    if (CurveSampleChart* chart = curveSampleChart(id))
        m_timeMode->clearData(chart, channels);
    return 0;
}

int ViewManage::View_CurveSampleInit(unsigned int id, const std::string& text)
{
    CurveSampleChart* chart = curveSampleChart(id);
    if (!chart)
        return 0;
    if (chart->xAxisMode() == CurveSampleChart::TimeAxis) {
        m_timeMode->init(chart, Core::fromUtf8(text.c_str()));
    } else {
        chart->setXMinData(0);
        chart->setXMaxData(0);
    }
    return 0;
}

int ViewManage::View_CurveSamplePopData(unsigned int id, unsigned int)
{
    if (CurveSampleChart* chart = curveSampleChart(id))
        chart->queueReplot(); // nothing is removed
    return 0;
}

int ViewManage::View_CurveSamplePushData(
    unsigned int id, const std::vector<std::string>& labels, const std::vector<std::vector<double>>& values)
{
    if (CurveSampleChart* chart = curveSampleChart(id))
        m_timeMode->push(chart, labels, values);
    return 0;
}

int ViewManage::View_CurveSampleScale(unsigned int id, unsigned int percent, unsigned int)
{
    CurveSampleChart* chart = curveSampleChart(id);
    if (!chart || percent == 0)
        return 0; // a percent of 0 changes nothing
    chart->setXScale(100.0 / double(percent));
    return 0;
}

int ViewManage::View_CurveSampleUpdateData(unsigned int id, const std::vector<unsigned int>& channels,
    const std::vector<std::string>& labels, const std::vector<std::vector<double>>& values, unsigned int start,
    bool last)
{
    if (CurveSampleChart* chart = curveSampleChart(id))
        m_timeMode->updateData(chart, channels, labels, values, start, last);
    return 0;
}

int ViewManage::View_CurveSampleUpdateDataLabel(unsigned int id, const std::vector<std::string>& labels)
{
    CurveSampleChart* chart = curveSampleChart(id);
    if (!chart)
        return 0;
    QVector<QString> texts;
    const size_t n = std::min(labels.size(), size_t(CustomLabelAxisTicker::kMaxLabels));
    texts.reserve(int(n));
    for (size_t i = 0; i < n; ++i)
        texts.append(Core::cutText(Core::fromUtf8(labels[i].c_str()), Core::kMaxShownText));
    chart->setYLabels(texts);
    return 0;
}

int ViewManage::View_CurveSampleUpdateDataLimit(unsigned int id, int dataType, unsigned char decimals, double* limits)
{
    if (CurveSampleChart* chart = curveSampleChart(id))
        chart->setYLimit(dataType, decimals, limits);
    return 0;
}
