#include <qgui/scale.h>

#include <algorithm>
#include <cmath>

ScaleBase::ScaleBase() = default;
ScaleBase::~ScaleBase() = default;

void ScaleBase::setRange(double minimum, double maximum)
{
    if (!std::isfinite(minimum) || !std::isfinite(maximum))
        return; // a range must be finite
    m_minimum = minimum;
    m_maximum = maximum;
}

void ScaleBase::setTickCount(int majorCount, int minorCount)
{
    m_majorCount = std::clamp(majorCount, 1, 100000);
    m_minorCount = std::clamp(minorCount, 0, 100000);
}

std::vector<double> ScaleBase::majorTicks() const
{
    std::vector<double> ticks;
    ticks.reserve(size_t(m_majorCount) + 1);
    for (int i = 0; i <= m_majorCount; ++i)
        ticks.push_back(m_minimum + (m_maximum - m_minimum) * i / m_majorCount);
    return ticks;
}
