#ifndef MENUSCREEN_H
#define MENUSCREEN_H

#include <qgui/qgui.h>

/**
 * The demo's menu screen: a drop-down menu of line speeds and a tree menu of
 * alarm groups (plant, lines, machines). The menus only report: a release on
 * a closed box makes the logic open its pop-up, a release on an entry makes
 * the logic apply the choice and write it back as the box's text.
 */
namespace MenuScreen {

/** Builds the screen in window \a windowId (once; later calls show the cached widgets again). */
void build(unsigned windowId);
/** Handles an event of the screen's widgets; false when the event is not the screen's. */
bool onEvent(unsigned id, int code, void* data);
/** Headless script: step \a n of an operator's visit, simulated; false when there is no step \a n. */
bool scriptStep(int n, void (*shot)(const char* name));

} // namespace MenuScreen

#endif
