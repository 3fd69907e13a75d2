#ifndef CYCLEPRIORITY_H
#define CYCLEPRIORITY_H

/**
 * The scheduling priority of the thread that runs the logic layer's cycle.
 *
 * A cycle due while every core is busy (a software renderer rasterising a
 * frame on all of them) waits for the scheduler to take a core back: on a
 * kernel that preempts ordinary threads only at its tick, up to a tick (4 ms at
 * 250 Hz). The GUI thread therefore asks for the real-time FIFO class at a low
 * priority, where the process may (root, CAP_SYS_NICE, or an RLIMIT_RTPRIO
 * that allows it); it then takes a core the moment its timer expires. Threads
 * and processes it starts do not inherit the class. The kernel's real-time
 * throttling still leaves the other threads a share of every second, so a
 * call-back that never returns cannot lock the machine up.
 *
 * QGUI_CYCLE_PRIORITY sets the FIFO priority (1 to 99, default 1); 0 leaves
 * the thread as it is.
 */
class CyclePriority {
public:
    static constexpr int kDefaultPriority = 1;

    /** The priority asked for, from QGUI_CYCLE_PRIORITY (out of range or not a number: the default). */
    static int priorityFromEnvironment();
    /** Puts the calling thread in the FIFO class at \a priority (threads it starts afterwards go back
     *  to the ordinary class). False when \a priority is 0 or the process may not. */
    static bool raiseThisThread(int priority);
};

#endif // CYCLEPRIORITY_H
