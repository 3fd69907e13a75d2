// A small logic layer run as a child process by tst_mainloop: each mode drives
// View_MainThreadLoop one way and prints what it observed as "key=value" lines.
#include <QAbstractEventDispatcher>
#include <QSurfaceFormat>

#include <atomic>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <string>
#include <sched.h>
#include <thread>
#include <unistd.h>

#include <qgui/view.h>

namespace {
std::atomic<int> g_starts { 0 }, g_cycles10 { 0 }, g_cycles100 { 0 }, g_inits { 0 };
std::atomic<bool> g_quitting { false };
int g_initResult = 0;
unsigned g_words[3] = { 0, 0, 0 };
int g_samples = -2;
// passes of the event loop, to tell whether slot 5 ran in the same pass as slot 4
int g_passes = 0, g_passAtTen = -1, g_slot5Apart = 0;
int g_policy = -1, g_threadPolicy = -1;

int onStart()
{
    ++g_starts;
    g_samples = QSurfaceFormat::defaultFormat().samples();
    if (QAbstractEventDispatcher* d = QAbstractEventDispatcher::instance())
        QObject::connect(d, &QAbstractEventDispatcher::awake, [] { ++g_passes; });
    return 0;
}
int onInit(unsigned, const char*, const char*, const unsigned* w)
{
    ++g_inits;
    std::memcpy(g_words, w, sizeof(g_words));
    return g_initResult;
}
void on10()
{
    if (++g_cycles10 == 1) {
        g_policy = ::sched_getscheduler(0) & ~SCHED_RESET_ON_FORK;
        std::thread([] { g_threadPolicy = ::sched_getscheduler(0); }).join();
    }
    g_passAtTen = g_passes;
}
void on100(int arg)
{
    if (arg != 0)
        std::printf("bad100arg=%d\n", arg);
    if (g_passes != g_passAtTen)
        ++g_slot5Apart;
    // ends the event loop cleanly once both cycles ran for a while: a loaded machine may stall the
    // first frames, after which each timer fires once, so the counts are not compared
    if (++g_cycles100 >= 3 && g_cycles10 >= 30 && !g_quitting.exchange(true))
        ::kill(::getpid(), SIGTERM);
}
ErrRet onEvent(unsigned, int, void*)
{
    return 0;
}
} // namespace

int main(int argc, char** argv)
{
    const std::string mode = argc > 1 ? argv[1] : "run";
    _Main_CallBacks cb {};
    cb.event = onEvent;
    cb.deviceInit = onInit;
    cb.start = onStart;
    cb.cycle10ms = on10;
    cb.cycle100ms = on100;

    std::vector<char*> args(argv, argv + argc);
    int result = -99;
    if (mode == "fail") {
        g_initResult = 7;
        result = View_MainThreadLoop(argc, argv, &cb);
    } else if (mode == "nullcb") {
        result = View_MainThreadLoop(argc, argv, nullptr);
    } else if (mode == "nullslots") {
        _Main_CallBacks empty {};
        std::thread([] {
            ::sleep(1);
            ::kill(::getpid(), SIGTERM);
        }).detach();
        result = View_MainThreadLoop(argc, argv, &empty);
    } else if (mode == "nullargv") {
        char* holes[] = { argv[0], nullptr, argv[1], nullptr };
        result = View_MainThreadLoop(3, holes, &cb);
    } else {
        result = View_MainThreadLoop(argc, argv, &cb);
    }
    std::printf("result=%d\nstarts=%d\ninits=%d\ncycles10=%d\ncycles100=%d\nwords=%u,%u,%u\nsamples=%d\n",
        result, g_starts.load(), g_inits.load(), g_cycles10.load(), g_cycles100.load(), g_words[0],
        g_words[1], g_words[2], g_samples);
    std::printf("slot5apart=%d\npolicy=%d\nthreadpolicy=%d\n", g_slot5Apart, g_policy, g_threadPolicy);
    return 0;
}
