#include "app/threadsignalstack.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <dlfcn.h>
#include <pthread.h>
#include <sys/mman.h>

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define QGUI_SANITIZER_THREADS 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#define QGUI_SANITIZER_THREADS 1
#endif
#endif

namespace {

/** Owns the mapping of one thread's alternate stack; let go at thread exit. */
struct StackHolder {
    void* base = nullptr;

    ~StackHolder()
    {
        if (!base)
            return;
        stack_t cur {};
        if (sigaltstack(nullptr, &cur) == 0 && cur.ss_sp == base) {
            if (cur.ss_flags & SS_ONSTACK)
                return; // never unmap the stack a handler runs on
            stack_t off {};
            off.ss_flags = SS_DISABLE;
            sigaltstack(&off, nullptr);
        }
        munmap(base, ThreadSignalStack::kSize);
    }
};

thread_local StackHolder t_stack;

} // namespace

bool ThreadSignalStack::protectCurrentThread()
{
    stack_t cur {};
    if (sigaltstack(nullptr, &cur) != 0)
        return false;
    if (!(cur.ss_flags & SS_DISABLE))
        return true;
    void* base = mmap(nullptr, kSize, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (base == MAP_FAILED)
        return false;
    stack_t ss {};
    ss.ss_sp = base;
    ss.ss_size = kSize;
    if (sigaltstack(&ss, nullptr) != 0) {
        munmap(base, kSize);
        return false;
    }
    t_stack.base = base;
    return true;
}

#ifndef QGUI_SANITIZER_THREADS

bool ThreadSignalStack::coversNewThreads()
{
    return true;
}

namespace {

using CreateFn = int (*)(pthread_t*, const pthread_attr_t*, void* (*)(void*), void*);

struct Start {
    void* (*routine)(void*);
    void* arg;
};

void* startProtected(void* p)
{
    const Start start = *static_cast<Start*>(p);
    std::free(p);
    ThreadSignalStack::protectCurrentThread();
    return start.routine(start.arg);
}

CreateFn systemCreate()
{
    static const CreateFn fn = reinterpret_cast<CreateFn>(dlsym(RTLD_NEXT, "pthread_create"));
    return fn;
}

} // namespace

extern "C" __attribute__((visibility("default"))) int pthread_create(
    pthread_t* thread, const pthread_attr_t* attr, void* (*routine)(void*), void* arg)
{
    const CreateFn create = systemCreate();
    if (!create)
        return EAGAIN;
    // malloc, not new: the caller may be anything, and the thread frees it
    auto* start = static_cast<Start*>(std::malloc(sizeof(Start)));
    if (!start)
        return create(thread, attr, routine, arg);
    start->routine = routine;
    start->arg = arg;
    const int rc = create(thread, attr, &startProtected, start);
    if (rc != 0)
        std::free(start);
    return rc;
}

#else

bool ThreadSignalStack::coversNewThreads()
{
    return false;
}

#endif
