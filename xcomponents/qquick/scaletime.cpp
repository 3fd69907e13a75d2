#include <qgui/scale.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <ctime>

ScaleTime::ScaleTime() = default;
ScaleTime::~ScaleTime() = default;

void ScaleTime::setFormat(const std::string& format)
{
    m_format = format;
}

void ScaleTime::setUtcOffset(int seconds)
{
    m_utcOffset = seconds;
}

std::string ScaleTime::labelText(double seconds) const
{
    if (!std::isfinite(seconds))
        return std::string();
    const double t = std::floor(seconds) + m_utcOffset;
    const int ms = int(std::lround((seconds - std::floor(seconds)) * 1000.0)) % 1000;
    std::time_t tt = std::time_t(t);
    std::tm tm {};
    gmtime_r(&tt, &tm);
    std::string out;
    char buf[16];
    for (size_t i = 0; i < m_format.size();) {
        auto take = [&](const char* token, int value, int width) {
            const size_t n = std::char_traits<char>::length(token);
            if (m_format.compare(i, n, token) != 0)
                return false;
            std::snprintf(buf, sizeof(buf), "%0*d", width, value);
            out += buf;
            i += n;
            return true;
        };
        if (take("yyyy", tm.tm_year + 1900, 4) || take("zzz", ms, 3) || take("MM", tm.tm_mon + 1, 2)
            || take("dd", tm.tm_mday, 2) || take("hh", tm.tm_hour, 2) || take("mm", tm.tm_min, 2)
            || take("ss", tm.tm_sec, 2))
            continue;
        out += m_format[i++];
    }
    return out;
}

double ScaleTime::tickStep() const
{
    static const double steps[]
        = { 1, 2, 5, 10, 15, 30, 60, 120, 300, 600, 900, 1800, 3600, 7200, 10800, 21600, 43200, 86400 };
    const double span = std::fabs(m_maximum - m_minimum);
    for (double s : steps) {
        if (span / s <= m_majorCount)
            return s;
    }
    const double days = std::ceil(span / m_majorCount / 86400.0);
    return std::max(1.0, days) * 86400.0;
}

std::vector<double> ScaleTime::majorTicks() const
{
    std::vector<double> ticks;
    const double step = tickStep();
    const double lo = std::min(m_minimum, m_maximum), hi = std::max(m_minimum, m_maximum);
    if (!(step > 0) || !std::isfinite(lo) || !std::isfinite(hi))
        return ticks;
    for (double v = std::ceil(lo / step) * step; v <= hi && ticks.size() < 10000; v += step)
        ticks.push_back(v);
    return ticks;
}
