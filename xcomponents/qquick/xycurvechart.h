#ifndef XYCURVECHART_H
#define XYCURVECHART_H

#include "xcomponents/qquick/customplotitem.h"

#include <QList>
#include <QPointer>
#include <QVector>

#include <list>

class CustomLabelAxisTicker;

/**
 * The XY curve: one QCPCurve per channel over two value axes (a pump's
 * characteristic, say), with text labels possible on either axis.
 *
 * Zoom by rectangle: the mouse area ("mouseArea", XYMouseArea) reports a
 * dragged rectangle; onSelectedRectChanged() turns it into axis units, sends
 * event 1543 (View_EvtXyRect: left, right, top, bottom), shows that region,
 * and shows the restore button ("qrc:/chart/QmlXYRestoreButton.qml", made on
 * first need). The restore button sends 1544 and shows the initial ranges
 * again; while it is hidden a restore does nothing.
 */
class XYCurveChart : public CustomPlotItem {
    Q_OBJECT

public:
    /** Most points taken per curve and call. */
    static constexpr size_t kMaxPoints = 1000000;

    explicit XYCurveChart(QQuickItem* parent = nullptr);
    ~XYCurveChart() override;

    QList<QCPCurve*> curveList() const { return m_curves; }
    void setCurveList(const QList<QCPCurve*>& curves) { m_curves = curves; }
    /** Curve \a index, null when there is none. */
    QCPCurve* curveAt(int index) const;
    /** Adds a curve with \a style (a smooth flag draws as a plain line). */
    QCPCurve* addCurve(const CurveChannelStyle& style);

    QCPRange xRange() const { return m_xRange; }
    /** The initial x range; shown at once and again on restore. */
    void setXRange(const QCPRange& range);
    QCPRange yRange() const { return m_yRange; }
    void setYRange(const QCPRange& range);
    CustomLabelAxisTicker* xTicker() const;
    CustomLabelAxisTicker* yTicker() const;
    /** Installs the label tickers on both axes. */
    void installTickers();

    /** Replaces the points of curve \a index (in list order; NaN or infinite coordinates leave a gap). */
    bool setPoints(int index, const QVector<QPointF>& points);
    /** Empties curve \a index; false when there is none. */
    bool clearCurve(int index);
    /** Shows or hides curve \a index; false when there is none. */
    bool hideCurve(int index, bool hide);

    /** The restore button, null until the first zoom. */
    QQuickItem* restoreButton() const { return m_restore.data(); }

public Q_SLOTS:
    /** A rectangle dragged on the mouse area (its own coordinates, which start at the plot area). */
    void onSelectedRectChanged(const QRectF& rect);
    /** The restore button: 1544 and the initial ranges, only while the button is shown. */
    void onRestoreBtnClicked();

private:
    QQuickItem* mouseArea() const;

    QList<QCPCurve*> m_curves;
    QCPRange m_xRange { 0, 100 };
    QCPRange m_yRange { 0, 100 };
    QPointer<QQuickItem> m_restore;
};

#endif // XYCURVECHART_H
