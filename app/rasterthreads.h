#ifndef RASTERTHREADS_H
#define RASTERTHREADS_H

#include <QString>

/**
 * The threads a software OpenGL renderer rasterises frames on.
 *
 * Without a graphics processor, each frame is rasterised by the driver's own
 * threads, one per core, and they keep every core busy for most of a frame. The
 * GUI thread waking for the logic layer's 10 ms cycle would wait for a core
 * behind them until the scheduler's next tick (up to 4 ms). Lowering their
 * priority lets the cycle run the moment it is due; a frame is then finished in
 * the time the cycle leaves, which on a panel is nearly all of it.
 *
 * The threads are found by name in /proc (those of the Mesa software
 * rasteriser: "llvmpipe-N"); on a hardware renderer there are none and nothing
 * changes. QGUI_RASTER_NICE sets the niceness given (0 to 19, default 10; 0
 * leaves the threads alone).
 */
class RasterThreads {
public:
    static constexpr int kDefaultNice = 10;

    /** The niceness to give, from QGUI_RASTER_NICE (out of range or not a number: the default). */
    static int niceFromEnvironment();
    /** True for the name of a rasterising thread. */
    static bool isRasterThreadName(const QString& name);
    /** Gives every rasterising thread of this process at least \a nice (a thread already nicer keeps
     *  its own); returns how many were changed. */
    static int lowerPriority(int nice);
};

#endif // RASTERTHREADS_H
