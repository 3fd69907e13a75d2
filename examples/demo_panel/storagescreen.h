#ifndef STORAGESCREEN_H
#define STORAGESCREEN_H

#include <qgui/qgui.h>

/**
 * The demo's USB stick: a stick with a project package "arrives" in the usb2
 * slot (the demo writes the package there, as a mounted stick would show it)
 * and the logic layer answers with the package dialogs: what the stick holds,
 * the package explorer when the operator asks to browse, the confirmation of
 * the chosen package, then the stick is released.
 */
namespace StorageScreen {

/** Handles the package dialogs' events; false when the event is not theirs. */
bool onEvent(unsigned id, int code, void* data);
/** Headless script on window \a windowId: step \a n, simulated; false when there is no step \a n. */
bool scriptStep(unsigned windowId, int n, void (*shot)(const char* name));

} // namespace StorageScreen

#endif
