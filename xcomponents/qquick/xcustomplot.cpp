#include "xcomponents/qquick/xcustomplot.h"

#include "xcomponents/qquick/xcpaxisrect.h"

XCustomPlot::XCustomPlot(QWidget* parent)
    : QCustomPlot(parent)
{
    setAttribute(Qt::WA_DontShowOnScreen);
    // the default axis rectangle (and its legend) make way for the chart's own
    plotLayout()->clear();
    legend = nullptr;
    m_rect = new XCPAxisRect(this);
    plotLayout()->addElement(0, 0, m_rect);
    xAxis = m_rect->axis(QCPAxis::atBottom);
    yAxis = m_rect->axis(QCPAxis::atLeft);
    xAxis2 = m_rect->axis(QCPAxis::atTop);
    yAxis2 = m_rect->axis(QCPAxis::atRight);
}

void XCustomPlot::setPlotSize(const QSize& size)
{
    const QSize s(qMax(1, size.width()), qMax(1, size.height()));
    resize(s);
    setViewport(QRect(QPoint(), s));
}
