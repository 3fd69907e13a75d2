#ifndef CCRASHSTACK_H
#define CCRASHSTACK_H

#include <csignal>
#include <string>

/**
 * The crash report. install() sets handlers for the fatal signals (SIGSEGV,
 * SIGBUS, SIGFPE, SIGILL, SIGABRT, SIGTRAP, SIGSYS) on an alternate stack.
 * When one arrives, the report is written as UTF-8 to
 * "<current dir>/halvex_crash_yyyyMMdd_hhmmss.log" and the signal is raised
 * again with the default action, so the process still ends as it would have.
 *
 * The report has these sections: the system line, "Process: " with the
 * executable, "Exception Addr: " with the faulting instruction address and
 * "Module: " with the file that holds it, "Exception Code: " (the signal number
 * and its si_code), "Instruction: " with the bytes at the faulting address,
 * "Registers: " widened to 64 bits, for a memory fault "Read Address: " or
 * "Write Address: " with the address accessed, and "Call Stack:" with one line
 * per frame (address, module, symbol).
 *
 * preventReplacement() remembers our handlers; reassert() puts them back if
 * other code replaced them (called after start-up steps that load third-party
 * code).
 */
class CCrashStack {
public:
    static void install();
    static void preventReplacement();
    /** Re-installs our handlers where they were replaced; returns how many were. */
    static int reassert();
    static bool isInstalled();

    /** Builds the report text for a signal (also used by the handler). Writes at most \a size
     *  bytes into \a buf and returns the length. */
    static size_t GetExceptionInfo(int sig, siginfo_t* info, void* context, char* buf, size_t size);
    /** The report's file name for the current time: "halvex_crash_yyyyMMdd_hhmmss.log". */
    static std::string reportFileName();

private:
    static size_t buildReport(
        int sig, siginfo_t* info, void* context, char* buf, size_t size, bool withStack);
    static void handler(int sig, siginfo_t* info, void* context);
};

#endif // CCRASHSTACK_H
