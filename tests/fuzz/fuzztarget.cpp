// The libFuzzer target over the C interface (built by scripts/fuzz.sh with clang): every input is a
// program of calls, run on one panel (see InterfaceFuzzer).
#include "interfacefuzzer.h"

#include "app/guiapplication.h"
#include "config/qmltypes.h"

#include <cstdio>
#include <cstdlib>

namespace {
InterfaceFuzzer* g_fuzzer = nullptr;
}

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    static int appArgc = 1;
    static char* appArgv[] = { (*argv)[0], nullptr };
    (void)argc;
    // made once and never destroyed: libFuzzer ends the process with exit(), when Qt's own global objects
    // may be gone already
    auto* app = new GuiApplication(appArgc, appArgv);
    app->setAttribute(Qt::AA_Use96Dpi, true);
    registerQmlTypes();
    g_fuzzer = new InterfaceFuzzer;
    if (!g_fuzzer->start()) {
        std::fprintf(stderr, "fuzz: the panel did not start\n");
        std::_Exit(2);
    }
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    return g_fuzzer->run(data, size);
}
