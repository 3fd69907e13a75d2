#ifndef XYMOUSEAREA_H
#define XYMOUSEAREA_H

#include <QBrush>
#include <QPen>
#include <QPointer>
#include <QQuickPaintedItem>
#include <QRect>

#include "xcomponents/qquick/xycurvechart.h"

/**
 * The pointer area over the plot area of an XY curve ("mouseArea" in
 * "qrc:/chart/QmlXYCurveChart.qml"). A press sends 1541 (int 0) after taking
 * its position as the rectangle's start; a move draws the rubber band
 * (selectPen, selectBrush); a release sends 1542 (int 0) and, when the band
 * is at least kMinSide pixels both ways, hands it to the chart
 * (onSelectedRectChanged). A double click sends 1542 as well.
 */
class XYMouseArea : public QQuickPaintedItem {
    Q_OBJECT
    Q_PROPERTY(XYCurveChart* customItem READ customItem WRITE setCustomItem NOTIFY customItemChanged)
    Q_PROPERTY(QRect rectMargin READ rectMargin WRITE setRectMargin NOTIFY rectMarginChanged)
    Q_PROPERTY(bool scaleState READ scaleState WRITE setScaleState NOTIFY scaleStateChanged)

public:
    /** Smallest width and height of a band that counts as a zoom request, pixels. */
    static constexpr int kMinSide = 10;

    explicit XYMouseArea(QQuickItem* parent = nullptr);

    XYCurveChart* customItem() const { return m_chart.data(); }
    void setCustomItem(XYCurveChart* chart);
    QRect rectMargin() const { return m_margin; }
    /** Left, top, right and bottom margins of the plot area inside the chart, as x, y, width, height. */
    void setRectMargin(const QRect& margin);
    bool scaleState() const { return m_scaleState; }
    /** True while a zoomed region is shown. */
    void setScaleState(bool zoomed);
    void setSelectPen(const QPen& pen) { m_pen = pen; }
    void setSelectBrush(const QBrush& brush) { m_brush = brush; }
    /** The band being dragged (own coordinates); empty when none. */
    QRectF band() const { return m_dragging ? QRectF(m_start, m_end).normalized() : QRectF(); }

    /* inherits documentation from base class */
    void paint(QPainter* painter) override;

Q_SIGNALS:
    void customItemChanged();
    void rectMarginChanged();
    void scaleStateChanged();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

private:
    void send(int code);

    QPointer<XYCurveChart> m_chart;
    QRect m_margin;
    bool m_scaleState = false;
    bool m_dragging = false;
    QPointF m_start;
    QPointF m_end;
    QPen m_pen { QColor(0x2F, 0x6F, 0xD0), 1, Qt::DashLine };
    QBrush m_brush { QColor(0x2F, 0x6F, 0xD0, 40) };
};

#endif // XYMOUSEAREA_H
