// Crashes on purpose, in the way named by its argument, after installing the
// crash report handler. Run by tst_crash in a temporary working folder.
#include "app/ccrashstack.h"

#include <csignal>
#include <cstdlib>
#include <cstring>
#include <string>

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
    }
}
} // namespace

int main(int argc, char** argv)
{
    CCrashStack::install();
    crashNow(argc > 1 ? argv[1] : "read");
    return 0;
}
