#include "app/framepacer.h"

#include <QCoreApplication>
#include <QEvent>
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
        m_syncStartNs = m_clock.nsecsElapsed();
        m_renderedSinceSync = false;
    }, Qt::DirectConnection);
    connect(window, &QQuickWindow::beforeRendering, this, [this] {
        m_renderedSinceSync = true;
        m_renderedAtNs = -1;
        m_rendering = true;
    }, Qt::DirectConnection);
    connect(window, &QQuickWindow::afterRendering, this, [this] { m_renderedAtNs = m_clock.nsecsElapsed(); },
        Qt::DirectConnection);
    connect(window, &QQuickWindow::frameSwapped, this, [this] {
        m_rendering = false;
        m_renderedAtNs = -1;
        QMetaObject::invokeMethod(this, [this] {
            if (tryRelease())
                ++m_releasedAtSwap;
        }, Qt::QueuedConnection);
    }, Qt::DirectConnection);
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
    if (m_rendering) {
        const qint64 renderedAt = m_renderedAtNs;
        if (renderedAt < 0)
            return -1; // until the swap
        // drawn and not swapped: a swap under way, or a grab into an image, which has none
        const qint64 left = renderedAt + qint64(kSwapWaitMs) * 1000000 - m_clock.nsecsElapsed();
        if (left > 0)
            return left;
    }
    if (m_renderedSinceSync)
        return 0;
    // a synchronisation that found nothing to render: the render thread idles out the rest
    // of a refresh interval, counted from the start of that synchronisation
    return qMax<qint64>(0, m_syncStartNs + refreshIntervalNs() - m_clock.nsecsElapsed());
}

bool FramePacer::holdUpdate(QEvent* event)
{
    if (event->type() != QEvent::UpdateRequest || m_releasing)
        return false;
    if (!m_held && busyForNs() == 0)
        return false;
    if (!m_held) {
        m_held = true;
        m_heldSince.start();
        ++m_heldCount;
    }
    tryRelease();
    return m_held;
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
    if (busy < 0)
        ++m_timedOut;
    m_held = false;
    m_retry.stop();
    m_releasing = true;
    QEvent update(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(m_window, &update);
    m_releasing = false;
    return true;
}
