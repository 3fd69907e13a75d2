#ifndef BENCHREPORT_H
#define BENCHREPORT_H

#include <functional>
#include <string>

/**
 * Timing and reporting helpers shared by the benchmarks. Every benchmark prints
 * one line per measured pair:
 *
 *   BENCH <name>: ours <value> <unit> | baseline <value> <unit> | ratio <r> (goal <goal>)
 *
 * ratio is ours / baseline for times (lower is better) and ours / baseline for
 * throughputs (higher is better); the goal text says which.
 */
namespace Bench {

/** Runs \a fn \a repeats times and returns the median wall time of one run in milliseconds. */
double medianMs(int repeats, const std::function<void()>& fn);

/** Prints the comparison line and returns the ratio ours / baseline. */
double report(
    const std::string& name, double ours, double baseline, const std::string& unit, const std::string& goal);

/** Prints a figure that has no baseline (for example memory per widget). */
void note(const std::string& name, double value, const std::string& unit);

} // namespace Bench

#endif
