#ifndef FRAMEPACER_H
#define FRAMEPACER_H

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <array>
#include <atomic>

class CycleBeat;
class QEvent;
class QImage;
class QQuickWindow;

/**
 * Keeps the GUI thread from waiting on the render thread.
 *
 * A frame starts on the GUI thread with an update request: the scene is
 * polished and then synchronised with the render thread while the GUI thread
 * is blocked. The render thread takes the synchronisation only when it is
 * free: after it has rendered and swapped the frame before, or, when that
 * synchronisation found nothing to render, after it has idled out the rest of
 * a refresh interval. Under a software renderer either lasts about as long as
 * a 10 ms cycle, and the logic layer's cycle would stall for it.
 *
 * The pacer holds an update request that arrives while the render thread is
 * busy and lets it go the moment it is free (at the swap, or at the end of the
 * idle interval). Nothing is lost: requests made while one is held are the
 * same request, and the held one carries every change made meanwhile; a
 * request that finds the render thread free goes at once and takes the place
 * of a held one (never both: the second would wait for the first's whole
 * frame). A frame
 * drawn into an image (a grab) has no swap, and the GUI thread waits for it
 * anyway: a synchronisation that starts while the window is not handling one
 * of its own events (an update request, an exposure) is a grab's, and its
 * frame holds nothing back. A grab made from inside one of the window's events
 * goes through grab(). A rendering that never reports its end (a lost
 * surface) releases the request after kReleaseAfterMs.
 *
 * With the logic layer's cycle (setBeat()), a frame also starts only when its
 * start (polish and synchronisation, as long as the longest of the last 16)
 * ends before the next cycle is due; else it starts right after that cycle's
 * call-backs. The cycle then never waits behind a frame, and a frame waits at
 * most one cycle.
 *
 * QGUI_FRAME_PACING=0 turns it off (every request then goes straight to the
 * render loop).
 */
class FramePacer : public QObject {
    Q_OBJECT

public:
    static constexpr int kReleaseAfterMs = 250;

    /** Watches \a window's render thread; the window calls holdUpdate() from its event(), and
     *  windowEventStarted() and windowEventEnded() around its handling of every event. */
    explicit FramePacer(QQuickWindow* window);
    void windowEventStarted(const QEvent* event);
    void windowEventEnded(const QEvent* event);

    /** Keeps frame starts out of the way of \a beat's cycles (null: frames start whenever the render
     *  thread is free). */
    void setBeat(CycleBeat* beat);
    /** How long the GUI thread is expected to be held by a frame's start, in nanoseconds. */
    qint64 frameStartCostNs() const;

    /** Grabs \a window into an image, also from inside one of its events (an operator's press
     *  that takes a screenshot), telling the window's pacer that this frame will not be swapped. */
    static QImage grab(QQuickWindow* window);

    /** True when \a event is an update request that is held until the render thread is free;
     *  the window then returns without handling it. */
    bool holdUpdate(QEvent* event);

    /** The update requests held so far, those let go at a swap, and those the safety timer
     *  let go while a rendering was still under way. */
    quint64 heldCount() const { return m_heldCount; }
    quint64 releasedAtSwapCount() const { return m_releasedAtSwap; }
    quint64 timedOutCount() const { return m_timedOut; }
    /** The update requests that found the render thread free but were held because their frame
     *  would still be starting when a cycle is due, and those let go right after a cycle. */
    quint64 heldForCycleCount() const { return m_heldForCycle; }
    quint64 releasedAfterCycleCount() const { return m_releasedAfterCycle; }

    static bool enabledByEnvironment();

private:
    /** How long the render thread stays busy: -1 until a swap, else nanoseconds (0: free). */
    qint64 busyForNs() const;
    qint64 refreshIntervalNs() const;
    /** False when a frame started now would still hold the GUI thread when the next cycle is due. */
    bool fitsBeforeCycle() const;
    /** Lets a held request go once the render thread is free (and the frame's start fits before the
     *  next cycle); true when it went. */
    bool tryRelease();
    void onCycleEnded();

    QQuickWindow* m_window;
    QTimer m_retry;
    QElapsedTimer m_clock;
    QElapsedTimer m_heldSince;
    std::atomic<qint64> m_syncStartNs { 0 };
    std::atomic<bool> m_renderedSinceSync { true };
    std::atomic<bool> m_rendering { false };
    /** Events of the window being handled (GUI thread; read by the render thread while the GUI
     *  thread waits for a synchronisation). */
    std::atomic<int> m_inWindowEvent { 0 };
    /** The last synchronisation was a grab's (render thread). */
    std::atomic<bool> m_grabbing { false };
    bool m_held = false;
    bool m_afterCycle = false;  ///< a cycle's call-backs have just ended
    bool m_waitingForCycle = false; ///< the held request waits for a cycle to end
    QEvent* m_releasing = nullptr; ///< the request being let go
    QPointer<CycleBeat> m_beat;
    /** The GUI thread's time in the last update requests handled (polish and synchronisation). */
    std::array<qint64, 16> m_startCostNs {};
    size_t m_nextCost = 0;
    qint64 m_updateStartedNs = -1;
    int m_updateDepth = 0;
    quint64 m_heldForCycle = 0;
    quint64 m_releasedAfterCycle = 0;
    quint64 m_heldCount = 0;
    quint64 m_releasedAtSwap = 0;
    quint64 m_timedOut = 0;
};

#endif // FRAMEPACER_H
