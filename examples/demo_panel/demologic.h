#ifndef DEMOLOGIC_H
#define DEMOLOGIC_H

#include <string>

#include <qgui/qgui.h>

/** The demo's logic layer: its call-backs and the settings main() gives it. */
namespace DemoLogic {

struct Settings {
    std::string screenshotDir; ///< empty: no screenshots
    int quitAfterMs = 0; ///< 0: run until the window closes
};

void configure(const Settings& s);
_Main_CallBacks callBacks();

} // namespace DemoLogic

#endif
