// Images: a project picture in a box, through the picture cache.
#include "views/viewmanage.h"

#include "platform/guiqtadaptcore.h"
#include "xcomponents/qquick/picturecachemanage.h"
#include "xcomponents/qquick/xshapeimage.h"

using GuiQtAdapt::Core;

int ViewManage::View_CreateImage(const View_Image* rec, unsigned int windowId)
{
    QQuickItem* window = creationParent(rec, windowId);
    if (!window)
        return -1;
    auto* image = new XShapeImage(window);
    image->setFillMode(int(rec->fillMode)); // unknown modes stretch
    placeWidget(image, rec, windowId);
    // a path naming no picture shows nothing; the widget is made all the same
    image->setSource(PictureCacheManage::getInstance()->getUrl(Core::fromUtf8(rec->path)));
    return 0;
}
