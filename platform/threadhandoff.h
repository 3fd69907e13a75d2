#ifndef THREADHANDOFF_H
#define THREADHANDOFF_H

/**
 * Marks the points where data passes from one thread to another through Qt's event queue, a queued
 * call or Qt's thread pool.
 *
 * Those hand-overs are ordered by Qt's own locks, which ThreadSanitizer cannot see (the Qt libraries are
 * not built with it): without these marks it takes every object handed over that way for a race. The
 * marks tell it the order that the lock already guarantees. In every other build they are empty.
 *
 *     handOver(token);   // the sending thread, after its last write of what it hands over
 *     takeOver(token);   // the receiving thread, before its first read of it
 *
 * The token is any address the two sides agree on, usually the object that owns the hand-over.
 *
 * A lambda that Qt copies into its queue or pool and runs on another thread cannot mark its own hand-over:
 * the copy is made inside Qt, after any mark the caller could set. It captures a HandOff last instead, and
 * its body calls take() before it reads any other capture:
 *
 *     QMetaObject::invokeMethod(app, [value, h = qgui::HandOff()] { h.take(); use(value); }, Qt::QueuedConnection);
 */

#if defined(__SANITIZE_THREAD__)
#include <sanitizer/tsan_interface.h>
#endif

namespace qgui {

inline void handOver(const void* token)
{
#if defined(__SANITIZE_THREAD__)
    __tsan_release(const_cast<void*>(token));
#else
    (void)token;
#endif
}

inline void takeOver(const void* token)
{
#if defined(__SANITIZE_THREAD__)
    __tsan_acquire(const_cast<void*>(token));
#else
    (void)token;
#endif
}

/** The last capture of a lambda run on another thread: every copy of it (the last one is made inside Qt)
 *  marks the hand-over of the captures made before it. GCC lays out captures in the order written. */
class HandOff {
public:
    HandOff() { handOver(this); }
    HandOff(const HandOff&) { handOver(this); }
    HandOff& operator=(const HandOff&)
    {
        handOver(this);
        return *this;
    }
    /** In the lambda's body, before anything else is read. */
    void take() const { takeOver(this); }
};

} // namespace qgui

#endif // THREADHANDOFF_H
