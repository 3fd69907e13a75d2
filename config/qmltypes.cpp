// The one place where the library's item classes are made known to QML,
// grouped by family.
#include "config/qmltypes.h"

#include "app/guishell.h"
#include "platform/xoverlay.h"
#include "platform/xpopup.h"

#include <QtQml>

void registerQmlTypes()
{
    static bool done = false;
    if (done)
        return;
    done = true;
    const char* uri = QGUI_QML_URI;

    // Shell and windows
    qmlRegisterType<GuiShell>(uri, 1, 0, "GuiShell");
    qmlRegisterType<XOverlay>(uri, 1, 0, "XOverlay");
    qmlRegisterType<XPopup>(uri, 1, 0, "XPopup");
}
