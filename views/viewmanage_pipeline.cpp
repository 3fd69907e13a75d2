// Pipelines: a pipe along a polyline with a flow of marks moving inside it.
#include "views/viewmanage.h"

#include "platform/guiqtadaptcore.h"
#include "views/lifecyclemanager.h"
#include "xcomponents/qquick/xpipeline.h"

using GuiQtAdapt::Core;

int ViewManage::View_CreatePipeline(const View_Pipeline* rec, unsigned int windowId)
{
    QQuickItem* window = creationParent(rec, windowId);
    if (!window)
        return -1;
    auto* pipe = new XPipeLine(window);
    const QSizeF design(qMax(0, rec->rect.width), qMax(0, rec->rect.height));
    pipe->setSize(design);
    pipe->setPipe(rec->width, Core::toQBrush(rec->pipe, QRectF(QPointF(), design)), Core::toQPen(rec->border));
    QPolygonF points;
    if (rec->points) {
        const U32 count = qMin<U32>(rec->pointCount, XPipeLine::kMaxPoints);
        points.reserve(int(count));
        for (U32 i = 0; i < count; ++i)
            points.append(QPointF(rec->points[i].x, rec->points[i].y));
    }
    pipe->setPoints(points, design); // fewer than two points: an empty pipe
    pipe->setFlowShape(int(rec->flowShape)); // unknown shapes: blocks
    pipe->setFlowColor(Core::toQColor(rec->flowColor));
    pipe->setReverse(rec->reverse != 0);
    pipe->setFlowRate(rec->flowrate);
    placeWidget(pipe, rec, windowId);
    return 0;
}

int ViewManage::View_PipelineUpdateDirect(unsigned int id, bool reverse)
{
    auto* pipe = qobject_cast<XPipeLine*>(m_lifeCycle->findItemMaybeVisible(id));
    if (!pipe)
        return -1;
    pipe->setReverse(reverse);
    return 0;
}

int ViewManage::View_PipelineUpdateFlowShapeColor(unsigned int id, unsigned int color)
{
    auto* pipe = qobject_cast<XPipeLine*>(m_lifeCycle->findItemMaybeVisible(id));
    if (!pipe)
        return -1;
    pipe->setFlowColor(Core::toQColor(color));
    return 0;
}

int ViewManage::View_PipelineUpdateFlowrate(unsigned int id, unsigned int rate)
{
    auto* pipe = qobject_cast<XPipeLine*>(m_lifeCycle->findItemMaybeVisible(id));
    if (!pipe)
        return -1;
    pipe->setFlowRate(rate);
    return 0;
}
