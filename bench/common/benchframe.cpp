#include "benchframe.h"

#include <QElapsedTimer>
#include <QQuickWindow>
#include <QSignalSpy>

#include <algorithm>

namespace Bench {

double toFrame(QQuickWindow* window, const std::function<void()>& work)
{
    QSignalSpy spy(window, &QQuickWindow::frameSwapped);
    QElapsedTimer t;
    t.start();
    work();
    spy.wait(3000);
    return t.nsecsElapsed() / 1e6;
}

void settleFrames(QQuickWindow* window)
{
    for (int i = 0; i < 3; ++i)
        toFrame(window, [window] { window->update(); });
}

double median(std::vector<double> values)
{
    if (values.empty())
        return 0;
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

} // namespace Bench
