#ifndef GUITHREADGUARD_H
#define GUITHREADGUARD_H

/**
 * Keeps the View_ calls on the GUI thread. Widgets, windows and the registry
 * are not locked: a call from another thread is refused (the export answers
 * -1) with one warning naming the call, and nothing is touched. View_PopupMsg
 * is handed over through a queued call and may come from any thread. Before
 * the application exists there is no GUI thread yet, and every call passes.
 */
class GuiThreadGuard {
public:
    /** True when \a call may run on the calling thread; otherwise logs the warning and returns false. */
    static bool allows(const char* call);
    /** How many calls were refused since the start (for tests and reports). */
    static int refusedCount();
};

#endif // GUITHREADGUARD_H
