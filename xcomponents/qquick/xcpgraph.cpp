#include "xcomponents/qquick/xcpgraph.h"

#include "xcomponents/qquick/smoothcurvegenerator.h"

XCPGraph::XCPGraph(QCPAxis* keyAxis, QCPAxis* valueAxis)
    : QCPGraph(keyAxis, valueAxis)
{
}

void XCPGraph::drawLinePlot(QCPPainter* painter, const QVector<QPointF>& lines) const
{
    if (!m_smooth || lineStyle() != lsLine) {
        QCPGraph::drawLinePlot(painter, lines);
        return;
    }
    if (painter->pen().style() == Qt::NoPen || painter->pen().color().alpha() == 0)
        return;
    applyDefaultAntialiasingHint(painter);
    const QBrush brush = painter->brush();
    painter->setBrush(Qt::NoBrush);
    painter->drawPath(SmoothCurveGenerator::createSmoothCurve(lines));
    painter->setBrush(brush);
}
