#include "benchreport.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

namespace Bench {

double medianMs(int repeats, const std::function<void()>& fn)
{
    std::vector<double> times;
    times.reserve(std::max(1, repeats));
    for (int i = 0; i < std::max(1, repeats); ++i) {
        auto t0 = std::chrono::steady_clock::now();
        fn();
        auto t1 = std::chrono::steady_clock::now();
        times.push_back(std::chrono::duration<double, std::milli>(t1 - t0).count());
    }
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

double report(
    const std::string& name, double ours, double baseline, const std::string& unit, const std::string& goal)
{
    double ratio = baseline > 0 ? ours / baseline : 0.0;
    std::printf("BENCH %s: ours %.4g %s | baseline %.4g %s | ratio %.3f (goal %s)\n", name.c_str(), ours,
        unit.c_str(), baseline, unit.c_str(), ratio, goal.c_str());
    std::fflush(stdout);
    return ratio;
}

void note(const std::string& name, double value, const std::string& unit)
{
    std::printf("BENCH %s: %.4g %s\n", name.c_str(), value, unit.c_str());
    std::fflush(stdout);
}

} // namespace Bench
