// Export: screenshots of the panel or of a window.
#include "app/imagegraber.h"
#include "app/layerlog.h"
#include "platform/guiqtadaptcore.h"

#include <qgui/view.h>

int View_ScreenShot(unsigned int id, View_ScreenShotData* data)
{
    QGUI_LAYER_LOG("id {}", id);
    if (!GuiThreadGuard::allows(__func__) || !data || !data->path || !*data->path)
        return -1;
    const QString path = GuiQtAdapt::Core::fromUtf8(data->path);
    ImageGraber* graber = ImageGraber::getInstance();
    switch (data->mode) {
    case SCREENSHOT_GRAB:
        return graber->grabImageOf(id, graber->itemFor(data->windowId), GuiQtAdapt::Core::toQRect(data->rect),
                   data->quality, path)
            ? 0
            : -1;
    case SCREENSHOT_LOAD:
        return graber->loadImage(id, path) ? 0 : -1;
    default:
        return -1;
    }
}
