#ifndef RECIPESCREEN_H
#define RECIPESCREEN_H

#include <qgui/qgui.h>

/**
 * The demo's recipe screen: a table of 2,000 recipes kept in a real SQLite
 * database through the library's database service. The logic layer reads one
 * page at a time and sends it to the table; a touched row is highlighted by the
 * logic layer, which owns the selection.
 */
namespace RecipeScreen {

/** Builds the screen in window \a windowId (once; later calls show the cached table again). */
void build(unsigned windowId);
/** Handles an event of the screen's widgets; false when the event is not the screen's. */
bool onEvent(unsigned id, int code, void* data);
/** Headless script: step \a n of an operator's visit, simulated; false when there is no step \a n. */
bool scriptStep(int n, void (*shot)(const char* name));

} // namespace RecipeScreen

#endif
