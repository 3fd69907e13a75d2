#ifndef BENCHFRAME_H
#define BENCHFRAME_H

#include <functional>
#include <vector>

class QQuickWindow;

/** Frame timing for the benchmarks that measure work up to the frame that shows it. */
namespace Bench {

/** Milliseconds from the start of \a work until the next frame of \a window is on screen. */
double toFrame(QQuickWindow* window, const std::function<void()>& work);
/** Three frames with nothing to do, so that the next measurement starts from rest. */
void settleFrames(QQuickWindow* window);
/** The median of \a values (the upper one of the middle two for an even count). */
double median(std::vector<double> values);

} // namespace Bench

#endif
