#include "xcomponents/qquick/customplotitem.h"

#include "xcomponents/qquick/xcpaxis.h"
#include "xcomponents/qquick/xcpaxisrect.h"
#include "xcomponents/qquick/xcustomplot.h"

#include <QPainter>
#include <QQuickWindow>

#include <cmath>

CustomPlotItem::CustomPlotItem(QQuickItem* parent)
    : XBasePaintedItem(parent)
{
    setAcceptedMouseButtons(Qt::LeftButton);
    setOpaquePainting(false);
}

CustomPlotItem::~CustomPlotItem() = default;

void CustomPlotItem::initCustomPlot(int flags)
{
    if (m_plot)
        return;
    m_plot = std::make_unique<XCustomPlot>();
    m_plot->setInteractions(QCP::Interactions(flags));
    connect(m_plot.get(), &QCustomPlot::afterReplot, this, [this] {
        update();
        const QRect area = plotArea();
        if (area != m_lastPlotArea) {
            m_lastPlotArea = area;
            Q_EMIT plotAreaChanged();
        }
    });
    updateCustomPlotSize();
}

XCPAxisRect* CustomPlotItem::axisRect() const
{
    return m_plot ? m_plot->chartRect() : nullptr;
}

XCPAxis* CustomPlotItem::xAxis() const
{
    return m_plot ? static_cast<XCPAxis*>(m_plot->xAxis) : nullptr;
}

XCPAxis* CustomPlotItem::yAxis() const
{
    return m_plot ? static_cast<XCPAxis*>(m_plot->yAxis) : nullptr;
}

void CustomPlotItem::styleAxis(QCPAxis* axis, const CurveAxisStyle& style)
{
    axis->setBasePen(style.basePen);
    axis->setTickPen(style.tickPen);
    axis->setSubTickPen(style.subTickPen);
    axis->setTickLength(qBound(0, style.tickLengthIn, 1000), qBound(0, style.tickLengthOut, 1000));
    axis->setSubTickLength(qBound(0, style.subTickLengthIn, 1000), qBound(0, style.subTickLengthOut, 1000));
    axis->setTickLabelFont(style.labelFont);
    axis->setTickLabelColor(style.labelColor);
    axis->grid()->setPen(style.gridPen);
    axis->grid()->setSubGridPen(style.subGridPen);
    axis->grid()->setSubGridVisible(style.subGridVisible);
}

void CustomPlotItem::setPlotBrush(const QBrush& brush)
{
    if (m_plot)
        m_plot->chartRect()->setBackground(brush);
}

QRect CustomPlotItem::plotArea() const
{
    return m_plot ? m_plot->chartRect()->rect().translated(m_origin) : QRect();
}

void CustomPlotItem::setViewPlotWidth(int width)
{
    m_viewWidth = qBound(0, width, kMaxPlotSide);
    updateCustomPlotSize();
}

void CustomPlotItem::setViewPlotHeight(int height)
{
    m_viewHeight = qBound(0, height, kMaxPlotSide);
    updateCustomPlotSize();
}

void CustomPlotItem::setOrgPoinsion(const QPoint& origin)
{
    m_origin = origin;
    update();
}

void CustomPlotItem::updateCustomPlotSize()
{
    if (!m_plot)
        return;
    // never larger than the window that shows it (what lies beyond cannot be seen), nor than kMaxPlotSide
    const QQuickWindow* win = window();
    const double maxW = win && win->width() > 0 ? qMin(kMaxPlotSide, win->width()) : kMaxPlotSide;
    const double maxH = win && win->height() > 0 ? qMin(kMaxPlotSide, win->height()) : kMaxPlotSide;
    const int w = int(qBound(1.0, m_viewWidth > 0 ? double(m_viewWidth) : width(), maxW));
    const int h = int(qBound(1.0, m_viewHeight > 0 ? double(m_viewHeight) : height(), maxH));
    if (m_plot->size() == QSize(w, h) && m_plot->viewport().size() == QSize(w, h))
        return;
    m_plot->setPlotSize(QSize(w, h));
    queueReplot();
}

QDateTime CustomPlotItem::keyToDateTime(double key) const
{
    const double ms = std::round((m_timeOffset + key) * 1000.0);
    if (!std::isfinite(ms) || std::fabs(ms) > 8.64e15)
        return QDateTime();
    return QDateTime::fromMSecsSinceEpoch(qint64(ms));
}

double CustomPlotItem::dateTimeToKey(const QDateTime& dateTime) const
{
    if (!dateTime.isValid())
        return 0;
    return double(dateTime.toMSecsSinceEpoch()) / 1000.0 - m_timeOffset;
}

void CustomPlotItem::queueReplot()
{
    if (m_plot)
        m_plot->replot(QCustomPlot::rpQueuedReplot);
}

void CustomPlotItem::paint(QPainter* painter)
{
    if (!m_plot)
        return;
    // copies the layers the last replot drew; nothing is drawn again
    m_plot->render(painter, m_origin, QRegion(), QWidget::RenderFlags());
}

void CustomPlotItem::itemChange(ItemChange change, const ItemChangeData& value)
{
    XBasePaintedItem::itemChange(change, value);
    if (change == ItemSceneChange)
        updateCustomPlotSize(); // the window bounds the plot
}

void CustomPlotItem::geometryChanged(const QRectF& newGeometry, const QRectF& oldGeometry)
{
    XBasePaintedItem::geometryChanged(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        updateCustomPlotSize();
}

void CustomPlotItem::routeMouseEvents(QMouseEvent* event)
{
    if (!m_plot || !event)
        return;
    QMouseEvent e(event->type(), toPlot(event->localPos()), event->windowPos(), event->screenPos(),
        event->button(), event->buttons(), event->modifiers(), event->source());
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        m_plot->routeMousePress(&e);
        break;
    case QEvent::MouseMove:
        m_plot->routeMouseMove(&e);
        break;
    case QEvent::MouseButtonRelease:
        m_plot->routeMouseRelease(&e);
        break;
    case QEvent::MouseButtonDblClick:
        m_plot->routeMouseDoubleClick(&e);
        break;
    default:
        break;
    }
}

void CustomPlotItem::routeWheelEvents(const QPointF& point, int delta)
{
    if (!m_plot)
        return;
    const QPointF at = toPlot(point);
    QWheelEvent e(at, mapToScene(point), QPoint(), QPoint(0, delta), Qt::NoButton, Qt::NoModifier,
        Qt::NoScrollPhase, false);
    m_plot->routeWheel(&e);
}

void CustomPlotItem::routeWheelEvents(QWheelEvent* event)
{
    if (!m_plot || !event)
        return;
    QWheelEvent e(toPlot(event->position()), event->globalPosition(), event->pixelDelta(), event->angleDelta(),
        event->buttons(), event->modifiers(), event->phase(), event->inverted(), event->source());
    m_plot->routeWheel(&e);
}

void CustomPlotItem::mousePressEvent(QMouseEvent* event)
{
    routeMouseEvents(event);
    event->accept();
}

void CustomPlotItem::mouseMoveEvent(QMouseEvent* event)
{
    routeMouseEvents(event);
    event->accept();
}

void CustomPlotItem::mouseReleaseEvent(QMouseEvent* event)
{
    routeMouseEvents(event);
    event->accept();
}

void CustomPlotItem::mouseDoubleClickEvent(QMouseEvent* event)
{
    routeMouseEvents(event);
    event->accept();
}

void CustomPlotItem::wheelEvent(QWheelEvent* event)
{
    routeWheelEvents(event);
    event->accept();
}
