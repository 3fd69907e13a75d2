#ifndef OPERATORTOUCH_H
#define OPERATORTOUCH_H

/**
 * The headless script's finger: it touches the panel's window the way an
 * operator would (a press and a release delivered to the window), at an item
 * found by its object name or at a point of a widget. Only the headless demo
 * uses it; a real logic layer never needs to.
 */
namespace OperatorTouch {

/** Touches the centre of the first visible item named \a objectName; false when there is none. */
bool touchItem(const char* objectName);
/** Touches the point (\a x, \a y) of widget \a widgetId (widget coordinates); false without it. */
bool touchWidget(unsigned widgetId, double x, double y);
/** Drags a finger across widget \a widgetId from (\a x0, \a y0) to (\a x1, \a y1) in ten steps. */
bool dragWidget(unsigned widgetId, double x0, double y0, double x1, double y1);

/** Turns a mouse wheel by \a notches (positive: away from the operator, zoom in) over
 *  the point (\a x, \a y) of widget \a widgetId; false without it. */
bool wheelWidget(unsigned widgetId, double x, double y, int notches);

} // namespace OperatorTouch

#endif
