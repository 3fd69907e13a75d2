#ifndef XCPAXIS_H
#define XCPAXIS_H

#include <qcustomplot.h>

/**
 * A plot axis that can say in advance which range a positioned range would
 * give: testRange() returns what setRange(position, size, alignment) would
 * set, without setting it.
 */
class XCPAxis : public QCPAxis {
    Q_OBJECT

public:
    XCPAxis(QCPAxisRect* parent, AxisType type);

    /**
     * The range setRange(\a position, \a size, \a alignment) would set:
     * [position, position + size] for Qt::AlignLeft, [position - size,
     * position] for Qt::AlignRight, centred on position otherwise; sanitized
     * for the axis's scale type. The current range when the bounds are not a
     * valid range (NaN, infinite or beyond the axis's limits).
     */
    QCPRange testRange(double position, double size, Qt::AlignmentFlag alignment) const;
};

#endif // XCPAXIS_H
