#include "xcomponents/qquick/smoothcurvegenerator.h"

QPainterPath SmoothCurveGenerator::createSmoothCurve(const QVector<QPointF>& points)
{
    QPainterPath path;
    if (points.size() < 2)
        return path;
    QVector<QPointF> first;
    QVector<QPointF> second;
    calculateControlPoints(points, &first, &second);
    if (first.isEmpty() || second.size() != first.size())
        return path;
    path.moveTo(points.first());
    for (int i = 0; i < first.size(); ++i)
        path.cubicTo(first[i], second[i], points[i + 1]);
    return path;
}

void SmoothCurveGenerator::calculateControlPoints(
    const QVector<QPointF>& knots, QVector<QPointF>* first, QVector<QPointF>* second)
{
    first->clear();
    second->clear();
    const int n = knots.size() - 1; // segments
    if (n < 1)
        return;
    if (n == 1) {
        // one segment: the first control point a third of the way, the second mirrored about it
        const QPointF c1 = (2 * knots[0] + knots[1]) / 3;
        first->append(c1);
        second->append(2 * c1 - knots[0]);
        return;
    }

    QVector<double> rhs(n);
    for (int i = 1; i < n - 1; ++i)
        rhs[i] = 4 * knots[i].x() + 2 * knots[i + 1].x();
    rhs[0] = knots[0].x() + 2 * knots[1].x();
    rhs[n - 1] = (8 * knots[n - 1].x() + knots[n].x()) / 2.0;
    const QVector<double> x = firstControlPoints(rhs);

    for (int i = 1; i < n - 1; ++i)
        rhs[i] = 4 * knots[i].y() + 2 * knots[i + 1].y();
    rhs[0] = knots[0].y() + 2 * knots[1].y();
    rhs[n - 1] = (8 * knots[n - 1].y() + knots[n].y()) / 2.0;
    const QVector<double> y = firstControlPoints(rhs);

    first->reserve(n);
    second->reserve(n);
    for (int i = 0; i < n; ++i) {
        first->append(QPointF(x[i], y[i]));
        if (i < n - 1)
            second->append(QPointF(2 * knots[i + 1].x() - x[i + 1], 2 * knots[i + 1].y() - y[i + 1]));
        else
            second->append(QPointF((knots[n].x() + x[n - 1]) / 2, (knots[n].y() + y[n - 1]) / 2));
    }
}

QVector<double> SmoothCurveGenerator::firstControlPoints(const QVector<double>& rhs)
{
    const int n = rhs.size();
    QVector<double> x(n);
    QVector<double> tmp(n);
    double b = 2.0;
    x[0] = rhs[0] / b;
    for (int i = 1; i < n; ++i) { // forward elimination
        tmp[i] = 1 / b;
        b = (i < n - 1 ? 4.0 : 3.5) - tmp[i];
        x[i] = (rhs[i] - x[i - 1]) / b;
    }
    for (int i = 1; i < n; ++i) // back substitution
        x[n - i - 1] -= tmp[n - i] * x[n - i];
    return x;
}
