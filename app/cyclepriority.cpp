#include "app/cyclepriority.h"

#include <QtGlobal>

#include <sched.h>

int CyclePriority::priorityFromEnvironment()
{
    bool ok = false;
    const int value = qEnvironmentVariableIntValue("QGUI_CYCLE_PRIORITY", &ok);
    return ok && value >= 0 && value <= 99 ? value : kDefaultPriority;
}

bool CyclePriority::raiseThisThread(int priority)
{
    if (priority <= 0 || priority > 99)
        return false;
    sched_param param {};
    param.sched_priority = priority;
    // 0: the calling thread; reset on fork: threads and processes started from here are ordinary
    return ::sched_setscheduler(0, SCHED_FIFO | SCHED_RESET_ON_FORK, &param) == 0;
}
