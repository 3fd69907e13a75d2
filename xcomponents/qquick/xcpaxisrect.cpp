#include "xcomponents/qquick/xcpaxisrect.h"

#include "xcomponents/qquick/xcpaxis.h"

XCPAxisRect::XCPAxisRect(QCustomPlot* plot)
    : QCPAxisRect(plot, false)
{
    QCPAxis* x = addAxis(QCPAxis::atBottom, new XCPAxis(this, QCPAxis::atBottom));
    QCPAxis* y = addAxis(QCPAxis::atLeft, new XCPAxis(this, QCPAxis::atLeft));
    QCPAxis* x2 = addAxis(QCPAxis::atTop, new XCPAxis(this, QCPAxis::atTop));
    QCPAxis* y2 = addAxis(QCPAxis::atRight, new XCPAxis(this, QCPAxis::atRight));
    x2->setVisible(false);
    y2->setVisible(false);
    x->grid()->setVisible(true);
    y->grid()->setVisible(true);
    setRangeDrag(Qt::Horizontal);
    setRangeZoom(Qt::Horizontal);
    setRangeDragAxes(x, y);
    setRangeZoomAxes(x, y);
}

void XCPAxisRect::setDoubleScale(bool on)
{
    m_doubleScale = on;
    QCPAxis* left = axis(QCPAxis::atLeft);
    QCPAxis* right = axis(QCPAxis::atRight);
    right->setVisible(on);
    disconnect(left, QOverload<const QCPRange&>::of(&QCPAxis::rangeChanged), right, nullptr);
    if (!on)
        return;
    right->setTicker(left->ticker());
    right->setTickLabels(true);
    right->setTickLabelFont(left->tickLabelFont());
    right->setTickLabelColor(left->tickLabelColor());
    right->setBasePen(left->basePen());
    right->setTickPen(left->tickPen());
    right->setSubTickPen(left->subTickPen());
    right->setRange(left->range());
    connect(left, QOverload<const QCPRange&>::of(&QCPAxis::rangeChanged), right,
        QOverload<const QCPRange&>::of(&QCPAxis::setRange));
}

void XCPAxisRect::resetData()
{
    m_minData = std::numeric_limits<double>::infinity();
    m_maxData = -std::numeric_limits<double>::infinity();
}

void XCPAxisRect::mousePressEvent(QMouseEvent* event, const QVariant& details)
{
    m_preSent = false;
    m_nextSent = false;
    m_dragStart = axis(QCPAxis::atBottom)->range();
    QCPAxisRect::mousePressEvent(event, details);
}

void XCPAxisRect::mouseMoveEvent(QMouseEvent* event, const QPointF& startPos)
{
    QCPAxisRect::mouseMoveEvent(event, startPos);
    if (!mDragging || m_minData > m_maxData)
        return;
    const QCPRange range = axis(QCPAxis::atBottom)->range();
    if (!m_preSent && range.lower < m_minData && range.lower < m_dragStart.lower) {
        m_preSent = true;
        Q_EMIT preLoadingData();
    }
    if (!m_nextSent && range.upper > m_maxData && range.upper > m_dragStart.upper) {
        m_nextSent = true;
        Q_EMIT nextLoadingData();
    }
}
