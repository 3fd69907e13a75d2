#ifndef CYCLEBEAT_H
#define CYCLEBEAT_H

#include <QElapsedTimer>
#include <QObject>

/**
 * The beat of the logic layer's 10 ms cycle, as the GUI thread runs it.
 *
 * The application marks the start and the end of each cycle's call-backs;
 * anything else that blocks the GUI thread for a while (the synchronisation of
 * a frame with the render thread) asks how long remains until the next cycle
 * is due and, when its work would not fit, waits for cycleEnded(): that work
 * then runs right after a cycle, and the next one starts on time.
 *
 * GUI thread only.
 */
class CycleBeat : public QObject {
    Q_OBJECT

public:
    explicit CycleBeat(qint64 intervalNs = 10'000'000, QObject* parent = nullptr);

    qint64 intervalNs() const { return m_intervalNs; }
    /** The beat's monotonic clock, in nanoseconds. */
    qint64 clockNs() const { return m_clock.nsecsElapsed(); }

    /** A cycle's call-backs start and end. ended() emits cycleEnded(). */
    void started();
    void ended();
    /** The cycle stopped (its timers were killed): nothing is due any more. */
    void stop();

    /** True between a cycle's started() and ended(). */
    bool inCycle() const { return m_inCycle; }
    /** Nanoseconds until the next cycle is due (0 when due already or running), or -1 when no cycle
     *  runs: never started, stopped, or the last one started more than two intervals ago. */
    qint64 nsUntilNext() const;

Q_SIGNALS:
    void cycleEnded();

private:
    qint64 m_intervalNs;
    QElapsedTimer m_clock;
    qint64 m_lastStartNs = -1;
    bool m_inCycle = false;
};

#endif // CYCLEBEAT_H
