#include "app/cyclebeat.h"

CycleBeat::CycleBeat(qint64 intervalNs, QObject* parent)
    : QObject(parent)
    , m_intervalNs(intervalNs > 0 ? intervalNs : 10'000'000)
{
    m_clock.start();
}

void CycleBeat::started()
{
    m_lastStartNs = m_clock.nsecsElapsed();
    m_inCycle = true;
}

void CycleBeat::ended()
{
    if (!m_inCycle)
        return;
    m_inCycle = false;
    Q_EMIT cycleEnded();
}

void CycleBeat::stop()
{
    m_lastStartNs = -1;
    m_inCycle = false;
}

qint64 CycleBeat::nsUntilNext() const
{
    if (m_lastStartNs < 0)
        return -1;
    if (m_inCycle)
        return 0;
    const qint64 since = m_clock.nsecsElapsed() - m_lastStartNs;
    if (since > 2 * m_intervalNs)
        return -1; // the timer stopped firing (a blocked loop, a killed timer): no beat to keep
    return qMax<qint64>(0, m_intervalNs - since);
}
