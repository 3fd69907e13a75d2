// Start-up time to the first frame: View_MainThreadLoop with the shell scene
// versus a bare QQuickView showing an empty scene. Each start runs in its own
// process; the median of several starts is reported.
#include "benchreport.h"

#include <QCoreApplication>
#include <QProcess>

#include <algorithm>
#include <vector>

static double oneStart(const char* mode)
{
    QProcess p;
    p.start(QString::fromUtf8(STARTUP_CHILD), { QString::fromLatin1(mode) });
    if (!p.waitForFinished(60000))
        return -1;
    return p.readAllStandardOutput().trimmed().split('\n').last().toDouble();
}

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    const int runs = 7;
    std::vector<double> ours, bare;
    oneStart("bare"); // warm the file cache and the shader cache
    oneStart("ours");
    for (int i = 0; i < runs; ++i) {
        ours.push_back(oneStart("ours"));
        bare.push_back(oneStart("bare"));
    }
    std::sort(ours.begin(), ours.end());
    std::sort(bare.begin(), bare.end());
    Bench::report("startup_to_first_frame", ours[runs / 2], bare[runs / 2], "ms",
        "ours / bare, lower is better; the shell scene, fonts and timers cost the difference");
    return 0;
}
