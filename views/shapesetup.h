#ifndef SHAPESETUP_H
#define SHAPESETUP_H

#include <QPainterPath>
#include <QStringList>

#include <string>
#include <vector>

#include <qgui/records_display.h>

class XShapeItem;

/**
 * The conversions of the shape records into shape items: the common look (box,
 * pen, brush) and each kind's path in design coordinates, relative to the
 * record's box; and the scale labels that bars, meters and sliders take.
 */
namespace ShapeSetup {

/** Most points taken from a point list; the rest are dropped. */
constexpr U32 kMaxPoints = 1000000;
/** Most rows or columns of a grid. */
constexpr int kMaxGridLines = 1000;

/** Gives \a shape the record's box size as its design size, \a pen, and \a brush (null: none). */
void setUp(XShapeItem* shape, const Rect& box, const Pen& pen, const Brush* brush);

QPainterPath rectPath(const View_GraphRect& rec);
QPainterPath ellipsePath(const View_GraphEllipse& rec);
QPainterPath gridPath(const View_GraphGrid& rec);
/** Straight segments through the points; \a closed joins the last point to the first. */
QPainterPath pointsPath(const Point* points, U32 count, bool closed);
/** A start point and (control, control, end) per segment; an incomplete last segment is dropped. */
QPainterPath bezierPath(const View_GraphBezierCurve& rec);

/** Scale labels of the value displays: the first \a most texts, UTF-8 (invalid bytes replaced),
 *  each cut to 256 characters. */
QStringList toLabels(const std::vector<std::string>& labels, int most);

} // namespace ShapeSetup

#endif // SHAPESETUP_H
