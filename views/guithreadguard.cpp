#include "views/guithreadguard.h"

#include "platform/nlogger.h"

#include <QCoreApplication>
#include <QThread>

#include <atomic>
#include <cstring>

namespace {
std::atomic<int> g_refused { 0 };
}

bool GuiThreadGuard::allows(const char* call)
{
    const QCoreApplication* app = QCoreApplication::instance();
    if (!app || QThread::currentThread() == app->thread())
        return true;
    if (call && std::strcmp(call, "View_PopupMsg") == 0)
        return true; // queued to the GUI thread by its own method
    ++g_refused;
    NLog::NLogger::instance()->logger()->warn(
        "{} called from a thread other than the GUI thread: refused (-1), nothing changed", call ? call : "?");
    return false;
}

int GuiThreadGuard::refusedCount()
{
    return g_refused.load();
}
