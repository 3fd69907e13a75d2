#ifndef CURVEPLOTSTYLE_H
#define CURVEPLOTSTYLE_H

#include <qcustomplot.h>

#include <QBrush>
#include <QColor>
#include <QFont>
#include <QPen>

/** The look of one chart axis, in Qt terms (the views layer converts the interface record). */
struct CurveAxisStyle {
    QPen basePen;
    QPen tickPen;
    QPen subTickPen;
    int tickLengthIn = 5;
    int tickLengthOut = 0;
    int subTickLengthIn = 2;
    int subTickLengthOut = 0;
    QFont labelFont;
    QColor labelColor = Qt::black;
    QPen gridPen { QColor(200, 200, 200), 0, Qt::DotLine };
    QPen subGridPen { QColor(220, 220, 220), 0, Qt::DotLine };
    bool subGridVisible = false;
};

/** The look of one channel (a graph of the sample chart, a curve of the XY chart). */
struct CurveChannelStyle {
    QPen pen;
    QBrush brush;
    int lineStyle = 1; // 0 none, 1 plain, 2 step left, 3 step right, 4 impulse
    bool smooth = false;
    bool hidden = false;
    QCPScatterStyle scatter;
};

#endif // CURVEPLOTSTYLE_H
