#ifndef THREADSIGNALSTACK_H
#define THREADSIGNALSTACK_H

#include <cstddef>

/**
 * An alternate signal stack for every thread of the process, so that a stack
 * overflow on any thread (the logic layer's, Qt's, a service's) still reaches
 * the crash report handler: a handler for SIGSEGV cannot run on the stack that
 * just ran out.
 *
 * The library defines pthread_create() itself; its definition starts each new
 * thread with protectCurrentThread() and then calls the system's. The stack is
 * mapped on demand (64 KiB of address space, pages touched only by a handler)
 * and unmapped when the thread ends. Threads that exist before the library is
 * loaded keep what they had; the thread that installs the crash handler gets
 * its stack from there.
 *
 * Builds with AddressSanitizer or ThreadSanitizer leave pthread_create() to the
 * sanitizer, which gives its threads alternate stacks of its own.
 */
class ThreadSignalStack {
public:
    static constexpr std::size_t kSize = 64 * 1024;

    /** Gives the calling thread an alternate signal stack unless it has one.
     *  Returns true when the thread has one afterwards. */
    static bool protectCurrentThread();
    /** True when threads made from now on get a stack of their own. */
    static bool coversNewThreads();
};

#endif // THREADSIGNALSTACK_H
