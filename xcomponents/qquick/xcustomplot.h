#ifndef XCUSTOMPLOT_H
#define XCUSTOMPLOT_H

#include <qcustomplot.h>

class XCPAxisRect;

/**
 * The plot of a chart item. It is never shown as a widget: the item feeds it
 * pointer events (route*) and draws its paint buffers (QWidget::render, which
 * copies the layers replot() has drawn). Its one axis rectangle is an
 * XCPAxisRect with XCPAxis axes; xAxis, yAxis, xAxis2 and yAxis2 point to
 * them, and there is no legend.
 */
class XCustomPlot : public QCustomPlot {
    Q_OBJECT

public:
    explicit XCustomPlot(QWidget* parent = nullptr);

    XCPAxisRect* chartRect() const { return m_rect; }

    void routeMousePress(QMouseEvent* event) { mousePressEvent(event); }
    void routeMouseMove(QMouseEvent* event) { mouseMoveEvent(event); }
    void routeMouseRelease(QMouseEvent* event) { mouseReleaseEvent(event); }
    void routeMouseDoubleClick(QMouseEvent* event) { mouseDoubleClickEvent(event); }
    void routeWheel(QWheelEvent* event) { wheelEvent(event); }

    /** Resizes the plot and its viewport at once (a hidden widget gets no resize event). */
    void setPlotSize(const QSize& size);

private:
    XCPAxisRect* m_rect = nullptr;
};

#endif // XCUSTOMPLOT_H
