// Exports: images.
// Each export writes one log line and forwards to its ViewManage method (views/viewmanage_image.cpp).
#include "app/layerlog.h"

#include <qgui/view.h>

int View_CreateImage(const View_Image* rec, unsigned int windowId)
{
    return QGUI_CREATE("图片元件", View_CreateImage, rec, windowId);
}
