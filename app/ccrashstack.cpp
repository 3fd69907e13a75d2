#include "app/ccrashstack.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <dlfcn.h>
#include <execinfo.h>
#include <fcntl.h>
#include <sys/uio.h>
#include <sys/utsname.h>
#include <ucontext.h>
#include <unistd.h>

namespace {

const int kSignals[] = { SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT, SIGTRAP, SIGSYS };
constexpr size_t kReportSize = 64 * 1024;
constexpr int kMaxFrames = 64;
constexpr int kInstructionBytes = 16;

char g_report[kReportSize];
char g_altStack[64 * 1024];
std::atomic<bool> g_installed { false };
std::atomic<bool> g_inHandler { false };

struct Writer {
    char* buf;
    size_t size;
    size_t len = 0;
    void add(const char* fmt, ...) __attribute__((format(printf, 2, 3)))
    {
        if (len >= size)
            return;
        va_list ap;
        va_start(ap, fmt);
        int n = std::vsnprintf(buf + len, size - len, fmt, ap);
        va_end(ap);
        if (n > 0)
            len += std::min(size_t(n), size - len - 1);
    }
};

const char* moduleOf(const void* addr, const char** symbol = nullptr)
{
    Dl_info info {};
    if (addr && dladdr(addr, &info) && info.dli_fname) {
        if (symbol)
            *symbol = info.dli_sname;
        return info.dli_fname;
    }
    if (symbol)
        *symbol = nullptr;
    return "?";
}

/** Reads memory of this process without faulting on a bad address. */
ssize_t safeRead(const void* addr, void* out, size_t n)
{
    struct iovec local {
        out, n
    };
    struct iovec remote {
        const_cast<void*>(addr), n
    };
    return process_vm_readv(getpid(), &local, 1, &remote, 1, 0);
}

uintptr_t faultingPc(void* context)
{
    auto* uc = static_cast<ucontext_t*>(context);
    if (!uc)
        return 0;
#if defined(__x86_64__)
    return uintptr_t(uc->uc_mcontext.gregs[REG_RIP]);
#elif defined(__aarch64__)
    return uintptr_t(uc->uc_mcontext.pc);
#elif defined(__i386__)
    return uintptr_t(uc->uc_mcontext.gregs[REG_EIP]);
#else
    return 0;
#endif
}

void addRegisters(Writer& w, void* context)
{
    auto* uc = static_cast<ucontext_t*>(context);
    w.add("\nRegisters: ");
    if (!uc) {
        w.add("unavailable");
        return;
    }
#if defined(__x86_64__)
    const greg_t* g = uc->uc_mcontext.gregs;
    w.add("\nRAX: %016llX RBX: %016llX RCX: %016llX RDX: %016llX", (unsigned long long)g[REG_RAX],
        (unsigned long long)g[REG_RBX], (unsigned long long)g[REG_RCX], (unsigned long long)g[REG_RDX]);
    w.add("\nRSI: %016llX RDI: %016llX RSP: %016llX RBP: %016llX", (unsigned long long)g[REG_RSI],
        (unsigned long long)g[REG_RDI], (unsigned long long)g[REG_RSP], (unsigned long long)g[REG_RBP]);
    w.add("\nRIP: %016llX EFlags: %016llX", (unsigned long long)g[REG_RIP], (unsigned long long)g[REG_EFL]);
#elif defined(__aarch64__)
    for (int i = 0; i < 31; ++i)
        w.add("%sX%d: %016llX", (i % 4 == 0) ? "\n" : " ", i, (unsigned long long)uc->uc_mcontext.regs[i]);
    w.add("\nSP: %016llX PC: %016llX PState: %016llX", (unsigned long long)uc->uc_mcontext.sp,
        (unsigned long long)uc->uc_mcontext.pc, (unsigned long long)uc->uc_mcontext.pstate);
#elif defined(__i386__)
    const greg_t* g = uc->uc_mcontext.gregs;
    w.add("\nEAX: %016llX EBX: %016llX ECX: %016llX EDX: %016llX", (unsigned long long)(unsigned)g[REG_EAX],
        (unsigned long long)(unsigned)g[REG_EBX], (unsigned long long)(unsigned)g[REG_ECX],
        (unsigned long long)(unsigned)g[REG_EDX]);
    w.add("\nEIP: %016llX EFlags: %016llX", (unsigned long long)(unsigned)g[REG_EIP],
        (unsigned long long)(unsigned)g[REG_EFL]);
#else
    w.add("unavailable on this architecture");
#endif
}

bool isWriteFault(void* context)
{
#if defined(__x86_64__)
    auto* uc = static_cast<ucontext_t*>(context);
    return uc && (uc->uc_mcontext.gregs[REG_ERR] & 0x2);
#else
    (void)context;
    return false;
#endif
}

void writeAll(int fd, const char* data, size_t len)
{
    size_t off = 0;
    while (off < len) {
        ssize_t k = write(fd, data + off, len - off);
        if (k <= 0)
            break;
        off += size_t(k);
    }
}

} // namespace

size_t CCrashStack::GetExceptionInfo(int sig, siginfo_t* info, void* context, char* buf, size_t size)
{
    return buildReport(sig, info, context, buf, size, true);
}

size_t CCrashStack::buildReport(
    int sig, siginfo_t* info, void* context, char* buf, size_t size, bool withStack)
{
    if (!buf || size == 0)
        return 0;
    Writer w { buf, size };
    buf[0] = '\0';

    struct utsname u { };
    if (uname(&u) == 0)
        w.add("%s: %s, Version %s, Machine %s\n", u.sysname, u.release, u.version, u.machine);
    else
        w.add("Linux: unknown\n");

    char exe[1024];
    ssize_t n = readlink("/proc/self/exe", exe, sizeof(exe) - 1);
    exe[n > 0 ? n : 0] = '\0';
    w.add("Process: %s\n", exe);

    const uintptr_t pc = faultingPc(context);
    w.add("Exception Addr:  %016llX  ", (unsigned long long)pc);
    w.add(" \nModule: %s", moduleOf(reinterpret_cast<void*>(pc)));
    w.add("\nException Code: %08X\n", unsigned(sig) | (info ? unsigned(info->si_code & 0xFFFF) << 16 : 0u));

    w.add("Instruction: ");
    unsigned char bytes[kInstructionBytes];
    ssize_t got = pc ? safeRead(reinterpret_cast<void*>(pc), bytes, sizeof(bytes)) : -1;
    if (got > 0) {
        for (ssize_t i = 0; i < got; ++i)
            w.add(" %02X", bytes[i]);
    } else {
        w.add(" (unreadable)");
    }

    addRegisters(w, context);

    // the faulting address exists for a fault the processor raised, not for a signal sent with kill/raise
    if (info && (sig == SIGSEGV || sig == SIGBUS) && info->si_code > 0)
        w.add("\n%s Address: %016llX\n", isWriteFault(context) ? "Write" : "Read",
            (unsigned long long)(uintptr_t)info->si_addr);

    w.add("\nCall Stack:");
    if (!withStack)
        return w.len;
    void* frames[kMaxFrames];
    int count = 0;
    unsigned char probe;
    if (pc && safeRead(reinterpret_cast<void*>(pc), &probe, 1) == 1) {
        count = backtrace(frames, kMaxFrames);
    } else {
        // a jump to a bad address: the unwinder cannot start there, so walk by hand from the
        // return address on the stack and the frame-pointer chain, reading memory safely
        frames[count++] = reinterpret_cast<void*>(pc);
#if defined(__x86_64__)
        auto* uc = static_cast<ucontext_t*>(context);
        uintptr_t ret = 0, rbp = uintptr_t(uc->uc_mcontext.gregs[REG_RBP]);
        if (safeRead(reinterpret_cast<void*>(uc->uc_mcontext.gregs[REG_RSP]), &ret, sizeof(ret))
            == sizeof(ret))
            frames[count++] = reinterpret_cast<void*>(ret);
        while (count < kMaxFrames && rbp) {
            uintptr_t pair[2];
            if (safeRead(reinterpret_cast<void*>(rbp), pair, sizeof(pair)) != sizeof(pair))
                break;
            Dl_info di {};
            if (!pair[1] || !dladdr(reinterpret_cast<void*>(pair[1]), &di))
                break;
            frames[count++] = reinterpret_cast<void*>(pair[1]);
            if (pair[0] <= rbp)
                break;
            rbp = pair[0];
        }
#endif
    }
    for (int i = 0; i < count; ++i) {
        const char* sym = nullptr;
        const char* mod = moduleOf(frames[i], &sym);
        w.add("\n%016llX  %s 0x%llx %s", (unsigned long long)(uintptr_t)frames[i], mod,
            (unsigned long long)(uintptr_t)frames[i], sym ? sym : "");
    }
    w.add("\n");
    return w.len;
}

std::string CCrashStack::reportFileName()
{
    char name[64];
    std::time_t now = std::time(nullptr);
    std::tm tm {};
    localtime_r(&now, &tm);
    std::strftime(name, sizeof(name), "halvex_crash_%Y%m%d_%H%M%S.log", &tm);
    return name;
}

void CCrashStack::handler(int sig, siginfo_t* info, void* context)
{
    if (g_inHandler.exchange(true)) {
        // a fault while reporting (a broken stack): what was written stays, the process ends
        signal(sig, SIG_DFL);
        raise(sig);
        return;
    }
    char path[4096];
    if (!getcwd(path, sizeof(path) - 80))
        std::strcpy(path, ".");
    std::strcat(path, "/");
    std::strcat(path, reportFileName().c_str());
    int fd = open(path, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (fd >= 0) {
        // everything but the call stack first: walking a broken stack may fault again
        const size_t head = buildReport(sig, info, context, g_report, sizeof(g_report), false);
        writeAll(fd, g_report, head);
        const size_t full = buildReport(sig, info, context, g_report, sizeof(g_report), true);
        if (full > head)
            writeAll(fd, g_report + head, full - head);
        close(fd);
    }
    const char msg[] = "qgui: fatal signal, crash report written\n";
    ssize_t r = write(STDERR_FILENO, msg, sizeof(msg) - 1);
    (void)r;

    signal(sig, SIG_DFL);
    raise(sig);
}

void CCrashStack::install()
{
    // the first backtrace() loads the unwinder; do it now, not inside the handler
    void* warm[2];
    backtrace(warm, 2);

    stack_t ss {};
    ss.ss_sp = g_altStack;
    ss.ss_size = sizeof(g_altStack);
    sigaltstack(&ss, nullptr);

    struct sigaction sa { };
    sa.sa_sigaction = &CCrashStack::handler;
    sigemptyset(&sa.sa_mask);
    sa.sa_flags = SA_SIGINFO | SA_ONSTACK;
    for (int s : kSignals)
        sigaction(s, &sa, nullptr);
    g_installed = true;
}

void CCrashStack::preventReplacement()
{
    // the handlers are checked again by reassert() after steps that load foreign code
}

int CCrashStack::reassert()
{
    if (!g_installed)
        return 0;
    int replaced = 0;
    for (int s : kSignals) {
        struct sigaction cur { };
        if (sigaction(s, nullptr, &cur) == 0 && cur.sa_sigaction != &CCrashStack::handler) {
            struct sigaction sa { };
            sa.sa_sigaction = &CCrashStack::handler;
            sigemptyset(&sa.sa_mask);
            sa.sa_flags = SA_SIGINFO | SA_ONSTACK;
            sigaction(s, &sa, nullptr);
            ++replaced;
        }
    }
    return replaced;
}

bool CCrashStack::isInstalled()
{
    return g_installed;
}
