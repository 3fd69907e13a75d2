#ifndef CUSTOMPLOTITEM_H
#define CUSTOMPLOTITEM_H

#include "xcomponents/qquick/curveplotstyle.h"
#include "xcomponents/qquick/xbasepainteditem.h"

#include <QDateTime>
#include <QPoint>

#include <memory>

class XCustomPlot;
class XCPAxisRect;
class XCPAxis;

/**
 * A Qt Quick item showing one plot (XCustomPlot): base of the chart widgets.
 *
 * The plot lies at the origin setOrgPoinsion() inside the item and is as
 * large as the item unless setViewPlotWidth()/setViewPlotHeight() fix its
 * size (at most kMaxPlotSide either way). Whenever the plot has replotted,
 * the item repaints by copying the plot's paint buffers, so a replot draws
 * the data once. Mouse presses, moves, releases, double clicks and the wheel
 * reach the plot in its own coordinates; subclasses hear of them through
 * the plot's signals or by overriding the item's mouse handlers and calling
 * the base.
 *
 * Keys of time axes are seconds after timeOffset() (seconds since
 * 1970-01-01 UTC): keyToDateTime() and dateTimeToKey() convert.
 */
class CustomPlotItem : public XBasePaintedItem {
    Q_OBJECT
    Q_PROPERTY(QRect plotArea READ plotArea NOTIFY plotAreaChanged)

public:
    /** Longest side of a plot, pixels (and never more than its window's): a larger item shows the plot at
     *  its origin. */
    static constexpr int kMaxPlotSide = 4096;

    explicit CustomPlotItem(QQuickItem* parent = nullptr);
    ~CustomPlotItem() override;

    /** Builds the plot (once; later calls keep it); \a flags are QCP::Interaction bits. */
    Q_INVOKABLE void initCustomPlot(int flags);
    XCustomPlot* customPlot() const { return m_plot.get(); }
    XCPAxisRect* axisRect() const;
    XCPAxis* xAxis() const;
    XCPAxis* yAxis() const;

    /** Fixes the plot's width (0: the item's width). */
    void setViewPlotWidth(int width);
    /** Fixes the plot's height (0: the item's height). */
    void setViewPlotHeight(int height);
    /** The plot's top-left corner inside the item. */
    void setOrgPoinsion(const QPoint& origin);
    QPoint orgPosition() const { return m_origin; }
    /** Brings the plot's size in line with the item (or the fixed sizes). */
    void updateCustomPlotSize();

    void setSearchState(bool searching) { m_searchState = searching; }
    bool isSearchState() const { return m_searchState; }

    double timeOffset() const { return m_timeOffset; }
    /** Seconds since 1970-01-01 UTC at key 0 of a time axis. */
    virtual void setTimeOffset(double seconds) { m_timeOffset = seconds; }
    /** The local date and time of time key \a key; invalid for a key beyond the calendar. */
    QDateTime keyToDateTime(double key) const;
    /** The time key of \a dateTime; 0 for an invalid one. */
    double dateTimeToKey(const QDateTime& dateTime) const;

    /** Hands \a event (item coordinates) to the plot, by type. */
    void routeMouseEvents(QMouseEvent* event);
    /** A wheel turn of \a delta (120 per notch) at \a point (item coordinates). */
    void routeWheelEvents(const QPointF& point, int delta);
    void routeWheelEvents(QWheelEvent* event);
    /** Item coordinates to plot coordinates. */
    QPointF toPlot(const QPointF& itemPoint) const { return itemPoint - QPointF(m_origin); }

    /** Asks the plot for a replot on the next pass of the event loop (several requests: one replot). */
    void queueReplot();

    /** Applies \a style to \a axis (pens, tick lengths, label font and colour, grids). */
    static void styleAxis(QCPAxis* axis, const CurveAxisStyle& style);
    /** Background of the plot area. */
    void setPlotBrush(const QBrush& brush);
    /** The plot area (axis rectangle) in item coordinates, as laid out by the last replot. */
    QRect plotArea() const;

    /* inherits documentation from base class */
    void paint(QPainter* painter) override;

Q_SIGNALS:
    /** A replot laid the plot area out anew. */
    void plotAreaChanged();

protected:
    void geometryChanged(const QRectF& newGeometry, const QRectF& oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData& value) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    std::unique_ptr<XCustomPlot> m_plot;
    QPoint m_origin;
    int m_viewWidth = 0;
    int m_viewHeight = 0;
    double m_timeOffset = 0;
    QRect m_lastPlotArea;
    bool m_searchState = false;
};

#endif // CUSTOMPLOTITEM_H
