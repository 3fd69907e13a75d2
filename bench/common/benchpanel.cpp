#include "benchpanel.h"

#include "common/panelfixture.h"
#include "config/qmltypes.h"

#include <QSurfaceFormat>

namespace Bench {

void noVsync()
{
    QSurfaceFormat format = QSurfaceFormat::defaultFormat();
    format.setSwapInterval(0);
    QSurfaceFormat::setDefaultFormat(format);
}

bool openPanel(PanelFixture& panel, QSize size, unsigned windowId, unsigned color)
{
    registerQmlTypes();
    if (!panel.start(size))
        return false;
    panel.switchWindow(windowId, Rect { 0, 0, size.width(), size.height() }, color);
    return true;
}

} // namespace Bench
