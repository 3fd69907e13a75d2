#ifndef TRENDSCREEN_H
#define TRENDSCREEN_H

#include <qgui/qgui.h>

/**
 * The demo's trend screen: a time-axis chart of four channels (a smoothed
 * sine, a ramp, noise and a step) sampled every 100 ms. Every sample is also
 * written to a SQLite history table through the library's database service,
 * which starts with ten minutes of older history; the chart's requests for
 * older or newer pages (1537/1538) and a confirmed search (1540) are answered
 * from that table.
 */
namespace TrendScreen {

/** Opens the history table (once). Call before the first sample. */
void start();
/** Builds the chart in window \a windowId (once; later calls show it again). */
void build(unsigned windowId);
/** One sample of the four channels: written to the history, pushed to the chart once it exists. */
void sample();
/** Handles an event of the screen's widgets; false when the event is not the screen's. */
bool onEvent(unsigned id, int code, void* data);
/** Headless script: step \a n of an operator's visit, simulated; false when there is no step \a n. */
bool scriptStep(int n, void (*shot)(const char* name));

} // namespace TrendScreen

#endif
