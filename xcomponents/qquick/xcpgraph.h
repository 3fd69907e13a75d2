#ifndef XCPGRAPH_H
#define XCPGRAPH_H

#include <qcustomplot.h>

/**
 * A plot graph that can draw its plain line as a smooth curve through its
 * points (SmoothCurveGenerator). Other line styles, the fill under the line
 * and the scatter marks are drawn as by QCPGraph.
 */
class XCPGraph : public QCPGraph {
    Q_OBJECT

public:
    XCPGraph(QCPAxis* keyAxis, QCPAxis* valueAxis);

    bool smooth() const { return m_smooth; }
    /** With lsLine, draws a smooth curve through the points instead of straight segments. */
    void setSmooth(bool smooth) { m_smooth = smooth; }

protected:
    /* inherits documentation from base class */
    void drawLinePlot(QCPPainter* painter, const QVector<QPointF>& lines) const override;

private:
    bool m_smooth = false;
};

#endif // XCPGRAPH_H
