// XY curves: curves of (x, y) points over two value axes, zoomed by a dragged
// rectangle that is reported to the logic layer.
#include "views/viewmanage.h"

#include "platform/guiqtadaptcore.h"
#include "utils/utils.h"
#include "views/curvesetup.h"
#include "views/lifecyclemanager.h"
#include "xcomponents/qquick/customlabelaxisticker.h"
#include "xcomponents/qquick/xcpaxis.h"
#include "xcomponents/qquick/xcpaxisrect.h"
#include "xcomponents/qquick/xqmlcomponentmanage.h"
#include "xcomponents/qquick/xycurvechart.h"
#include "xcomponents/qquick/xymousearea.h"

#include <cmath>

using GuiQtAdapt::Core;

namespace {

XYCurveChart* xyChart(LifeCycleManager* registry, unsigned id)
{
    return qobject_cast<XYCurveChart*>(registry->findItemMaybeVisible(id));
}

QCPRange rangeOf(const View_CurveAxis& axis)
{
    const bool given = std::isfinite(axis.lower) && std::isfinite(axis.upper) && axis.upper > axis.lower;
    return given ? QCPRange(axis.lower, axis.upper) : QCPRange(0, 100);
}

QVector<QString> labelsOf(const std::vector<std::string>& labels)
{
    QVector<QString> texts;
    const size_t n = std::min(labels.size(), size_t(CustomLabelAxisTicker::kMaxLabels));
    texts.reserve(int(n));
    for (size_t i = 0; i < n; ++i)
        texts.append(Core::cutText(Core::fromUtf8(labels[i].c_str()), Core::kMaxShownText));
    return texts;
}

} // namespace

int ViewManage::View_CreateCurveXy(const View_CurveXy* rec, unsigned int windowId)
{
    QQuickItem* window = creationParent(rec, windowId);
    if (!window)
        return -1; // null record or unknown window: nothing is made
    QQuickItem* item = XQmlComponentManage::getInstance()->createItem(
        QUrl(QStringLiteral("qrc:/chart/QmlXYCurveChart.qml")), window);
    auto* chart = qobject_cast<XYCurveChart*>(item);
    if (!QGUI_CHECK_AT(chart, "qgui/views/ViewManage")) {
        delete item;
        return -1;
    }
    CurveSetup::setUpPlot(chart, rec->rect, rec->interactions, rec->plotBrush, rec->xAxis, rec->yAxis);
    if (rec->xAxis.tickCount > 0)
        chart->xAxis()->ticker()->setTickCount(qMin(rec->xAxis.tickCount, 1000));
    if (rec->yAxis.tickCount > 0)
        chart->yAxis()->ticker()->setTickCount(qMin(rec->yAxis.tickCount, 1000));
    chart->installTickers();
    chart->xTicker()->setSubTickCount(qBound(0, rec->xAxis.subTickCount, 100));
    chart->yTicker()->setSubTickCount(qBound(0, rec->yAxis.subTickCount, 100));
    const U32 channels = rec->channels ? qMin(rec->channelCount, CurveSetup::kMaxChannels) : 0;
    for (U32 c = 0; c < channels; ++c)
        chart->addCurve(CurveSetup::toChannelStyle(rec->channels[c]));
    chart->setXRange(rangeOf(rec->xAxis));
    chart->setYRange(rangeOf(rec->yAxis));
    if (auto* area = chart->findChild<XYMouseArea*>(QStringLiteral("mouseArea"))) {
        area->setSelectPen(Core::toQPen(rec->selectPen));
        area->setSelectBrush(rec->selectBrush.style == BRUSH_NONE ? QBrush(Qt::NoBrush)
                                                                  : Core::toQBrush(rec->selectBrush, QRectF(0, 0, 100, 100)));
    }
    placeWidget(chart, rec, windowId);
    chart->queueReplot();
    return 0;
}

int ViewManage::View_CurveXyClearData(unsigned int id, const std::vector<unsigned int>& channels)
{
    if (XYCurveChart* chart = xyChart(m_lifeCycle.get(), id)) {
        for (unsigned c : channels)
            chart->clearCurve(c < unsigned(CurveSetup::kMaxChannels) ? int(c) : -1);
    }
    return 0;
}

int ViewManage::View_CurveXyShowCursor()
{
    return 0; // the XY curve has no cursor
}

int ViewManage::View_CurveXyUpdateData(
    unsigned int id, const std::vector<unsigned int>& channels, const std::vector<std::list<FPoint>>& points)
{
    XYCurveChart* chart = xyChart(m_lifeCycle.get(), id);
    if (!chart)
        return 0;
    const size_t listed = std::min(channels.size(), points.size());
    for (size_t i = 0; i < listed; ++i) {
        QVector<QPointF> pts;
        pts.reserve(int(std::min(points[i].size(), XYCurveChart::kMaxPoints)));
        for (const FPoint& p : points[i]) {
            if (size_t(pts.size()) >= XYCurveChart::kMaxPoints)
                break;
            pts.append(QPointF(p.x, p.y));
        }
        chart->setPoints(channels[i] < unsigned(CurveSetup::kMaxChannels) ? int(channels[i]) : -1, pts);
    }
    return 0;
}

int ViewManage::View_CurveXyUpdateXLabel(unsigned int id, const std::vector<std::string>& labels)
{
    if (XYCurveChart* chart = xyChart(m_lifeCycle.get(), id)) {
        chart->xTicker()->setLabels(labelsOf(labels));
        chart->queueReplot();
    }
    return 0;
}

int ViewManage::View_CurveXyUpdateYLabel(unsigned int id, const std::vector<std::string>& labels)
{
    if (XYCurveChart* chart = xyChart(m_lifeCycle.get(), id)) {
        chart->yTicker()->setLabels(labelsOf(labels));
        chart->queueReplot();
    }
    return 0;
}

int ViewManage::hideXyCurve(QQuickItem* item, unsigned int channel, bool hide)
{
    if (auto* chart = qobject_cast<XYCurveChart*>(item))
        chart->hideCurve(channel < unsigned(CurveSetup::kMaxChannels) ? int(channel) : -1, hide);
    return 0; // an XY curve answers 0 whatever the channel; an unknown id or another kind ends the call
}
