#ifndef PROCESSSCREEN_H
#define PROCESSSCREEN_H

#include <qgui/qgui.h>

/**
 * The demo's process screen: a tank that fills and empties with a scale
 * beside it, a pipeline whose flow follows the pump switch, a turning pump
 * impeller in a group with its housing, a pressure meter with an alarm range,
 * a bar graph of flow and level against a target band, a speed slider whose
 * value the logic writes into a text, and a valve picture.
 */
namespace ProcessScreen {

/** Builds the screen in window \a windowId (once; later calls show it again). */
void build(unsigned windowId);
/** One 100 ms step of the process: level, pressure, impeller, bars. */
void cycle();
/** Handles an event of the screen's widgets; false when the event is not the screen's. */
bool onEvent(unsigned id, int code, void* data);
/** Headless script: step \a n of an operator's visit, simulated; false when there is no step \a n. */
bool scriptStep(int n, void (*shot)(const char* name));

} // namespace ProcessScreen

#endif
