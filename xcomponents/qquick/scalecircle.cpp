#include <qgui/scale.h>

#include <algorithm>
#include <cmath>
#include <cstdio>

ScaleCircle::ScaleCircle() = default;
ScaleCircle::~ScaleCircle() = default;

void ScaleCircle::setAngles(double startAngle, double spanAngle)
{
    if (!std::isfinite(startAngle) || !std::isfinite(spanAngle))
        return;
    m_startAngle = startAngle;
    m_spanAngle = spanAngle;
}

void ScaleCircle::setDecimals(int decimals)
{
    m_decimals = std::clamp(decimals, 0, 15);
}

std::string ScaleCircle::labelText(double value) const
{
    char buf[64];
    std::snprintf(buf, sizeof(buf), "%.*f", m_decimals, value);
    return buf;
}

double ScaleCircle::angleOf(double value) const
{
    const double span = m_maximum - m_minimum;
    if (span == 0.0)
        return m_startAngle;
    double f = (value - m_minimum) / span;
    f = std::clamp(std::isfinite(f) ? f : 0.0, 0.0, 1.0);
    return m_startAngle + f * m_spanAngle;
}

double ScaleCircle::valueAt(double angle) const
{
    if (m_spanAngle == 0.0)
        return m_minimum;
    double f = (angle - m_startAngle) / m_spanAngle;
    f = std::clamp(std::isfinite(f) ? f : 0.0, 0.0, 1.0);
    return m_minimum + f * (m_maximum - m_minimum);
}
