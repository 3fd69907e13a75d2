#ifndef XCPAXISRECT_H
#define XCPAXISRECT_H

#include <qcustomplot.h>

#include <limits>

/**
 * The axis rectangle of the charts: four XCPAxis axes (bottom and left shown),
 * the span of keys held (minData .. maxData, kept by the chart), and the two
 * history requests: while the operator drags the x range towards older keys,
 * preLoadingData is emitted once per drag when the range's lower edge is past
 * the first key held; dragged towards newer keys, nextLoadingData once when
 * its upper edge is past the last key held (the view shows blank space before
 * or after the data).
 *
 * With a double scale the right axis repeats the left one (same range and
 * ticker, labels shown), for wide panels read from either side.
 */
class XCPAxisRect : public QCPAxisRect {
    Q_OBJECT

public:
    explicit XCPAxisRect(QCustomPlot* plot);

    bool doubleScale() const { return m_doubleScale; }
    /** Shows the left axis's scale on the right as well. */
    void setDoubleScale(bool on);

    /** Smallest key held; +infinity while nothing is held. */
    double minData() const { return m_minData; }
    void setMinData(double key) { m_minData = key; }
    /** Largest key held; -infinity while nothing is held. */
    double maxData() const { return m_maxData; }
    void setMaxData(double key) { m_maxData = key; }
    /** Forgets the keys held (both bounds back to their empty values). */
    void resetData();
    /** True while a drag of the range is under way. */
    bool isDragging() const { return mDragging; }

Q_SIGNALS:
    /** A drag took the lower edge of the x range past the first key held. */
    void preLoadingData();
    /** A drag took the upper edge of the x range past the last key held. */
    void nextLoadingData();

protected:
    /* inherits documentation from base class */
    void mousePressEvent(QMouseEvent* event, const QVariant& details) override;
    void mouseMoveEvent(QMouseEvent* event, const QPointF& startPos) override;

private:
    double m_minData = std::numeric_limits<double>::infinity();
    double m_maxData = -std::numeric_limits<double>::infinity();
    bool m_doubleScale = false;
    QCPRange m_dragStart;
    bool m_preSent = false;
    bool m_nextSent = false;
};

#endif // XCPAXISRECT_H
