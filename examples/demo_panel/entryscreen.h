#ifndef ENTRYSCREEN_H
#define ENTRYSCREEN_H

#include <qgui/qgui.h>

/**
 * The demo's entry screen: a decimal field with the logic layer's own limits,
 * a 64-bit hexadecimal field, a text field with Chinese candidates from a real
 * Pinyin engine, and a clock field with its date/time picker. The logic layer
 * owns every value: a field press opens the keyboard, the confirmed text comes
 * back as an event, and the logic writes the accepted value into the field.
 */
namespace EntryScreen {

/** Builds the screen in window \a windowId (once; later calls show the cached widgets again). */
void build(unsigned windowId);
/** Handles an event of the screen's widgets; false when the event is not the screen's. */
bool onEvent(unsigned id, int code, void* data);
/** Headless script: step \a n (0, 1, 2, ...) of the operator's entry flow, simulated; \a shot writes
 *  a screenshot with the given name. False when the script has no step \a n. */
bool scriptStep(int n, void (*shot)(const char* name));

} // namespace EntryScreen

#endif
