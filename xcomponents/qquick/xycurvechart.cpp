#include "xcomponents/qquick/xycurvechart.h"

#include "platform/logiclayercaller.h"
#include "xcomponents/qquick/customlabelaxisticker.h"
#include "xcomponents/qquick/xcpaxis.h"
#include "xcomponents/qquick/xcpaxisrect.h"
#include "xcomponents/qquick/xcustomplot.h"
#include "xcomponents/qquick/xqmlcomponentmanage.h"

#include <qgui/events.h>

#include <cmath>
#include <limits>

XYCurveChart::XYCurveChart(QQuickItem* parent)
    : CustomPlotItem(parent)
{
}

XYCurveChart::~XYCurveChart() = default;

QCPCurve* XYCurveChart::curveAt(int index) const
{
    return index >= 0 && index < m_curves.size() ? m_curves.at(index) : nullptr;
}

QCPCurve* XYCurveChart::addCurve(const CurveChannelStyle& style)
{
    if (!customPlot())
        return nullptr;
    auto* curve = new QCPCurve(xAxis(), yAxis()); // the plot owns it
    curve->setPen(style.pen);
    curve->setBrush(style.brush);
    curve->setLineStyle(style.lineStyle == 0 ? QCPCurve::lsNone : QCPCurve::lsLine);
    curve->setScatterStyle(style.scatter);
    curve->setVisible(!style.hidden);
    m_curves.append(curve);
    return curve;
}

void XYCurveChart::setXRange(const QCPRange& range)
{
    if (!QCPRange::validRange(range.lower, range.upper) || !(range.upper > range.lower))
        return;
    m_xRange = range;
    if (xAxis())
        xAxis()->setRange(range);
    queueReplot();
}

void XYCurveChart::setYRange(const QCPRange& range)
{
    if (!QCPRange::validRange(range.lower, range.upper) || !(range.upper > range.lower))
        return;
    m_yRange = range;
    if (yAxis())
        yAxis()->setRange(range);
    queueReplot();
}

CustomLabelAxisTicker* XYCurveChart::xTicker() const
{
    return xAxis() ? dynamic_cast<CustomLabelAxisTicker*>(xAxis()->ticker().data()) : nullptr;
}

CustomLabelAxisTicker* XYCurveChart::yTicker() const
{
    return yAxis() ? dynamic_cast<CustomLabelAxisTicker*>(yAxis()->ticker().data()) : nullptr;
}

void XYCurveChart::installTickers()
{
    for (XCPAxis* axis : { xAxis(), yAxis() }) {
        if (!axis)
            continue;
        QSharedPointer<CustomLabelAxisTicker> ticker(new CustomLabelAxisTicker);
        ticker->setFlagXY(true);
        ticker->setTickCount(axis->ticker()->tickCount());
        axis->setTicker(ticker);
    }
}

bool XYCurveChart::setPoints(int index, const QVector<QPointF>& points)
{
    QCPCurve* curve = curveAt(index);
    if (!curve)
        return false;
    QVector<QCPCurveData> data;
    data.reserve(points.size());
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (int i = 0; i < points.size(); ++i) {
        const QPointF& p = points.at(i);
        const bool ok = std::isfinite(p.x()) && std::isfinite(p.y());
        data.append(QCPCurveData(i, ok ? p.x() : nan, ok ? p.y() : nan));
    }
    curve->data()->set(data, true);
    queueReplot();
    return true;
}

bool XYCurveChart::clearCurve(int index)
{
    QCPCurve* curve = curveAt(index);
    if (!curve)
        return false;
    curve->data()->clear();
    queueReplot();
    return true;
}

bool XYCurveChart::hideCurve(int index, bool hide)
{
    QCPCurve* curve = curveAt(index);
    if (!curve)
        return false;
    curve->setVisible(!hide);
    queueReplot();
    return true;
}

QQuickItem* XYCurveChart::mouseArea() const
{
    return findChild<QQuickItem*>(QStringLiteral("mouseArea"));
}

void XYCurveChart::onSelectedRectChanged(const QRectF& rect)
{
    XCPAxis* x = xAxis();
    XCPAxis* y = yAxis();
    if (!x || !y)
        return;
    // the mouse area starts at the plot area: plot pixels are the area's plus its left and top margins
    const QRect area = plotArea();
    const QPointF offset = QPointF(area.topLeft()) - QPointF(orgPosition());
    const QRectF r = rect.normalized().translated(offset);
    View_EvtXyRect evt { x->pixelToCoord(r.left()), x->pixelToCoord(r.right()), y->pixelToCoord(r.top()),
        y->pixelToCoord(r.bottom()) };
    LogicLayerCaller::call(getId(), EVT_CURVE_XY_SELECT, &evt);
    x->setRange(std::min(evt.left, evt.right), std::max(evt.left, evt.right));
    y->setRange(std::min(evt.top, evt.bottom), std::max(evt.top, evt.bottom));
    queueReplot();
    if (!m_restore) {
        m_restore = XQmlComponentManage::getInstance()->createItem(
            QUrl(QStringLiteral("qrc:/chart/QmlXYRestoreButton.qml")), this);
        if (m_restore) {
            m_restore->setParent(this); // deleted with the chart
            if (QObject* button = m_restore->findChild<QObject*>(QStringLiteral("restoreBtn")))
                connect(button, SIGNAL(qmlclicked()), this, SLOT(onRestoreBtnClicked()));
        }
    }
    if (m_restore) {
        m_restore->setProperty("mouseAreaRect", QRectF(area));
        m_restore->setVisible(true);
        m_restore->setProperty("enabled", true);
    }
    if (QQuickItem* mouse = mouseArea())
        mouse->setProperty("scaleState", true);
}

void XYCurveChart::onRestoreBtnClicked()
{
    if (!m_restore || !m_restore->isVisible())
        return;
    m_restore->setVisible(false);
    m_restore->setProperty("enabled", false);
    int zero = 0;
    LogicLayerCaller::call(getId(), EVT_CURVE_XY_RESTORE, &zero);
    if (QQuickItem* mouse = mouseArea())
        mouse->setProperty("scaleState", false);
    if (xAxis())
        xAxis()->setRange(m_xRange);
    if (yAxis())
        yAxis()->setRange(m_yRange);
    queueReplot();
}
