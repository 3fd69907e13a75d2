#ifndef SMOOTHCURVEGENERATOR_H
#define SMOOTHCURVEGENERATOR_H

#include <QPainterPath>
#include <QPointF>
#include <QVector>

/**
 * A smooth curve through given knots: one cubic Bézier segment per pair of
 * neighbouring knots, with control points chosen so that the curve's first
 * and second derivatives are continuous at every inner knot (a natural cubic
 * spline written as Bézier segments).
 */
class SmoothCurveGenerator {
public:
    /**
     * The path through \a points: a move to the first knot and one cubicTo
     * per following knot. Empty with fewer than two knots. Two knots give one
     * segment whose control points lie on the straight line between them.
     */
    static QPainterPath createSmoothCurve(const QVector<QPointF>& points);

    /**
     * The control points of the segments between \a knots: for segment i,
     * \a first[i] leaves knot i and \a second[i] arrives at knot i + 1.
     * Both are left empty with fewer than two knots.
     */
    static void calculateControlPoints(
        const QVector<QPointF>& knots, QVector<QPointF>* first, QVector<QPointF>* second);

private:
    /** Solves the tridiagonal system of the first control points for one coordinate. */
    static QVector<double> firstControlPoints(const QVector<double>& rhs);
};

#endif // SMOOTHCURVEGENERATOR_H
