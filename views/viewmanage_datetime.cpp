// Clock fields and the date/time popup. The popup itself belongs to the window
// manager; the clock field reports the popup's choice as EVT_DATETIME_OK.
#include "views/viewmanage.h"

#include "platform/guiqtadaptcore.h"
#include "views/lifecyclemanager.h"
#include "views/qmlwindowmanage.h"
#include "xcomponents/qquick/picturecachemanage.h"
#include "xcomponents/qquick/xdatetimeedit.h"

using GuiQtAdapt::Core;

int ViewManage::View_CreateInputClock(const View_InputClock* rec, unsigned int windowId)
{
    QQuickItem* window = creationParent(rec, windowId);
    if (!window)
        return -1; // null record or unknown window: nothing is made
    auto* clock = new XDateTimeEdit(window);
    const QString image = Core::fromString(rec->image);
    if (!image.isEmpty()) {
        const QUrl url = PictureCacheManage::getInstance()->getUrl(image);
        if (url.isValid())
            clock->setSource(url); // a path naming no picture leaves the field without one
    }
    clock->setText(Core::fromUtf8(rec->text));
    clock->setFont(Core::toQFont(rec->font));
    if (rec->font) {
        clock->setFontColor(Core::toQColor(rec->font->color));
        clock->setFontAlignment(Core::toQAlignment(rec->font));
    }
    clock->setRowSpace(rec->rowSpace);
    placeWidget(clock, rec, windowId);
    return 0;
}

int ViewManage::View_PopupDateTimeDialog(unsigned int id, const char* text)
{
    // an unknown id, or a widget that takes no choice, opens nothing; the result is 0 all the same
    if (QQuickItem* item = m_lifeCycle->findItemMaybeVisible(id))
        m_windowManage->popupDateTimeWindow(item, Core::fromUtf8(text));
    return 0;
}
