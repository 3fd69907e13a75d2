#include "app/framepacer.h"

#include "app/cyclebeat.h"

#include <QCoreApplication>
#include <QEvent>
#include <QImage>
#include <QQuickWindow>
#include <QScreen>

#include <cmath>

FramePacer::FramePacer(QQuickWindow* window)
    : QObject(window)
    , m_window(window)
{
    m_retry.setSingleShot(true);
    m_retry.setTimerType(Qt::PreciseTimer);
    connect(&m_retry, &QTimer::timeout, this, &FramePacer::tryRelease);
    m_clock.start();
    // these run on the render thread (on the GUI thread under the basic render loop, where a
    // frame never overlaps an update request)
    connect(window, &QQuickWindow::beforeSynchronizing, this, [this] {
        // the GUI thread is blocked in this synchronisation: outside the window's own events it
        // is grabbing the window into an image, a frame that is never swapped
        m_grabbing = m_inWindowEvent.load() == 0;
        m_syncStartNs = m_clock.nsecsElapsed();
        m_renderedSinceSync = false;
    }, Qt::DirectConnection);
    connect(window, &QQuickWindow::beforeRendering, this, [this] {
        // busy first: the GUI thread may look in between. Only the rendering that follows a grab's
        // synchronisation is the grab's; one the render thread starts on its own later is swapped.
        m_rendering = !(m_grabbing && !m_renderedSinceSync);
        m_grabbing = m_grabbing && !m_renderedSinceSync;
        m_renderedSinceSync = true;
    }, Qt::DirectConnection);
    connect(window, &QQuickWindow::frameSwapped, this, [this] {
        m_rendering = false;
        QMetaObject::invokeMethod(this, [this] {
            if (tryRelease())
                ++m_releasedAtSwap;
        }, Qt::QueuedConnection);
    }, Qt::DirectConnection);
}

void FramePacer::setBeat(CycleBeat* beat)
{
    if (m_beat)
        disconnect(m_beat, nullptr, this, nullptr);
    m_beat = beat;
    if (beat)
        connect(beat, &CycleBeat::cycleEnded, this, &FramePacer::onCycleEnded);
}

void FramePacer::windowEventStarted(const QEvent* event)
{
    ++m_inWindowEvent;
    if (event->type() == QEvent::UpdateRequest && m_updateDepth++ == 0)
        m_updateStartedNs = m_clock.nsecsElapsed();
}

void FramePacer::windowEventEnded(const QEvent* event)
{
    --m_inWindowEvent;
    if (event->type() != QEvent::UpdateRequest || --m_updateDepth != 0 || m_updateStartedNs < 0)
        return;
    m_startCostNs[m_nextCost] = m_clock.nsecsElapsed() - m_updateStartedNs;
    m_nextCost = (m_nextCost + 1) % m_startCostNs.size();
    m_updateStartedNs = -1;
}

qint64 FramePacer::frameStartCostNs() const
{
    qint64 longest = 0;
    for (qint64 ns : m_startCostNs)
        longest = qMax(longest, ns);
    return longest;
}

bool FramePacer::fitsBeforeCycle() const
{
    if (!m_beat || m_afterCycle)
        return true; // right after a cycle is the best time there is
    const qint64 left = m_beat->nsUntilNext();
    if (left < 0)
        return true; // no cycle runs
    static constexpr qint64 kMarginNs = 1'000'000; // the event loop's own work before the cycle's timer
    return left >= frameStartCostNs() + kMarginNs;
}

void FramePacer::onCycleEnded()
{
    if (!m_held)
        return;
    m_afterCycle = true;
    if (tryRelease())
        ++m_releasedAfterCycle;
    m_afterCycle = false;
}

QImage FramePacer::grab(QQuickWindow* window)
{
    if (!window)
        return QImage();
    FramePacer* pacer = window->findChild<FramePacer*>(QString(), Qt::FindDirectChildrenOnly);
    if (!pacer)
        return window->grabWindow();
    // the window is not handling one of its events for as long as the grab lasts
    const int inEvent = pacer->m_inWindowEvent.exchange(0);
    QImage image = window->grabWindow();
    pacer->m_inWindowEvent += inEvent;
    return image;
}

bool FramePacer::enabledByEnvironment()
{
    bool set = false;
    const int value = qEnvironmentVariableIntValue("QGUI_FRAME_PACING", &set);
    return !set || value != 0;
}

qint64 FramePacer::refreshIntervalNs() const
{
    const QScreen* screen = m_window->screen();
    const double rate = screen ? screen->refreshRate() : 0.0;
    // the render loop rounds the interval down to whole milliseconds
    return qint64(std::floor(1000.0 / (rate >= 1.0 ? rate : 60.0))) * 1000000;
}

qint64 FramePacer::busyForNs() const
{
    if (m_rendering)
        return -1; // until the swap
    if (m_renderedSinceSync || m_grabbing)
        return 0;
    // a synchronisation that found nothing to render: the render thread idles out the rest
    // of a refresh interval, counted from the start of that synchronisation
    return qMax<qint64>(0, m_syncStartNs + refreshIntervalNs() - m_clock.nsecsElapsed());
}

bool FramePacer::holdUpdate(QEvent* event)
{
    // the request being let go passes; any other, also one sent while that one is handled, is judged
    if (event->type() != QEvent::UpdateRequest || event == m_releasing)
        return false;
    const bool free = busyForNs() == 0;
    if (free && fitsBeforeCycle()) {
        // free: this request goes now and carries a held one with it (letting that one go as well
        // would start a second frame at once, and the GUI thread would wait for the whole first)
        m_held = false;
        m_waitingForCycle = false;
        m_retry.stop();
        return false;
    }
    if (!m_held) {
        m_held = true;
        m_heldSince.start();
        ++m_heldCount;
    }
    tryRelease(); // arms the timer, or lets the request go once held too long
    return true; // a request let go is sent anew
}

bool FramePacer::tryRelease()
{
    if (!m_held)
        return false;
    const qint64 busy = busyForNs();
    const qint64 heldMs = m_heldSince.elapsed();
    if (busy != 0 && heldMs < kReleaseAfterMs) {
        // the swap releases it; the timer is the safety net, or ends the idle interval
        const qint64 waitMs = busy < 0 ? kReleaseAfterMs - heldMs : (busy + 999999) / 1000000;
        m_retry.start(int(qMin<qint64>(waitMs, kReleaseAfterMs - heldMs)));
        return false;
    }
    if (busy == 0 && heldMs < kReleaseAfterMs && !fitsBeforeCycle()) {
        // the end of the coming cycle releases it; the timer is the safety net
        if (!m_waitingForCycle) {
            m_waitingForCycle = true;
            ++m_heldForCycle;
        }
        m_retry.start(int(kReleaseAfterMs - heldMs));
        return false;
    }
    m_waitingForCycle = false;
    if (busy < 0)
        ++m_timedOut;
    m_held = false;
    m_retry.stop();
    QEvent update(QEvent::UpdateRequest);
    QEvent* const outer = m_releasing; // a release from inside another's handling
    m_releasing = &update;
    QCoreApplication::sendEvent(m_window, &update);
    m_releasing = outer;
    return true;
}
