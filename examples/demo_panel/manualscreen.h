#ifndef MANUALSCREEN_H
#define MANUALSCREEN_H

#include <qgui/qgui.h>

/**
 * The demo's manual screen: the line's maintenance manual, a PDF the demo
 * writes at start with the library's PDF writer, shown in the PDF view with
 * its tool bar, and buttons of the logic layer's own for the page, the zoom
 * and the display mode.
 */
namespace ManualScreen {

/** Writes the manual into the project's hmi storage folder; false when it cannot be written. */
bool writeManual();
/** Builds the screen in window \a windowId (once; later calls show it again). */
void build(unsigned windowId);
/** Handles an event of the screen's widgets; false when the event is not the screen's. */
bool onEvent(unsigned id, int code, void* data);
/** Headless script: step \a n of an operator's visit, simulated; false when there is no step \a n. */
bool scriptStep(int n, void (*shot)(const char* name));

} // namespace ManualScreen

#endif
