#include "xcomponents/qquick/xcpaxis.h"

XCPAxis::XCPAxis(QCPAxisRect* parent, AxisType type)
    : QCPAxis(parent, type)
{
}

QCPRange XCPAxis::testRange(double position, double size, Qt::AlignmentFlag alignment) const
{
    double lower;
    double upper;
    if (alignment == Qt::AlignLeft) {
        lower = position;
        upper = position + size;
    } else if (alignment == Qt::AlignRight) {
        lower = position - size;
        upper = position;
    } else {
        lower = position - size / 2.0;
        upper = position + size / 2.0;
    }
    if (!QCPRange::validRange(lower, upper))
        return range();
    const QCPRange wanted(lower, upper);
    return scaleType() == stLogarithmic ? wanted.sanitizedForLogScale() : wanted.sanitizedForLinScale();
}
