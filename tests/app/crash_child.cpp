// Crashes on purpose, in the way named by its argument, after installing the
// crash report handler. Run by tst_crash in a temporary working folder.
#include "app/ccrashstack.h"

#include <csignal>
#include <cstdlib>
#include <cstring>
#include <string>
#include <thread>

namespace {
volatile int g_zero = 0;

__attribute__((noinline)) void crashNow(const std::string& how)
{
    if (how == "read") {
        volatile int* p = reinterpret_cast<volatile int*>(std::uintptr_t(0x10));
        g_zero = *p;
    } else if (how == "write") {
        volatile int* p = reinterpret_cast<volatile int*>(std::uintptr_t(0x20));
        *p = 1;
    } else if (how == "abort") {
        std::abort();
    } else if (how == "fpe") {
        std::raise(SIGFPE);
    } else if (how == "jump") {
        auto fn = reinterpret_cast<void (*)()>(std::uintptr_t(0x30));
        fn();
    } else if (how == "ill") {
        __builtin_trap();
    } else if (how == "bus") {
        std::raise(SIGBUS);
    } else if (how == "trap") {
        std::raise(SIGTRAP);
    } else if (how == "sys") {
        std::raise(SIGSYS);
    }
}

/* Recurses until the stack is gone: the handler must run on its own stack. */
__attribute__((noinline)) int overflow(int depth)
{
    volatile char frame[512];
    frame[0] = char(depth);
    return overflow(depth + 1) + frame[0];
}
} // namespace

int main(int argc, char** argv)
{
    CCrashStack::install();
    const std::string how = argc > 1 ? argv[1] : "read";
    if (how == "overflow")
        return overflow(0);
    if (how == "thread") {
        // a thread other than the one that installed the handler reads a bad address
        std::thread t([] { crashNow("read"); });
        t.join();
        return 0;
    }
    if (how == "thread-overflow") {
        // a thread made after the handler runs out of stack: it needs a signal stack of its own
        std::thread t([] { overflow(0); });
        t.join();
        return 0;
    }
    crashNow(how);
    return 0;
}
