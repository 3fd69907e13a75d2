// The demo panel: reads its own options, passes the rest to the library and
// runs the panel until it quits.
#include "demologic.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

int main(int argc, char** argv)
{
    DemoLogic::Settings settings;
    bool headless = false;
    bool hasProject = false;
    std::vector<char*> panelArgs { argv[0] };
    for (int i = 1; i < argc; ++i) {
        const std::string a = argv[i];
        if (a == "--headless") {
            headless = true;
        } else if (a == "--screenshot-dir" && i + 1 < argc) {
            settings.screenshotDir = argv[++i];
        } else if (a == "--quit-after" && i + 1 < argc) {
            settings.quitAfterMs = std::atoi(argv[++i]);
        } else {
            if (a == "-hmifile" || a == "--hmifile")
                hasProject = true;
            panelArgs.push_back(argv[i]);
        }
    }
    if (headless) {
        if (settings.screenshotDir.empty())
            settings.screenshotDir = "demo-out";
        if (settings.quitAfterMs <= 0)
            settings.quitAfterMs = 45000;
    }
    static char projectOpt[] = "-hmifile";
    static char projectDir[] = "demo-project";
    if (!hasProject) {
        panelArgs.push_back(projectOpt);
        panelArgs.push_back(projectDir);
    }
    DemoLogic::configure(settings);
    const _Main_CallBacks cb = DemoLogic::callBacks();
    const int rc = View_MainThreadLoop(int(panelArgs.size()), panelArgs.data(), &cb);
    std::printf("demo: panel ended with %d\n", rc);
    return rc;
}
