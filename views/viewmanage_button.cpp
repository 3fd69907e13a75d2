// Buttons: creation and restyle.
#include "views/viewmanage.h"

#include "platform/guiqtadaptcore.h"
#include "views/lifecyclemanager.h"
#include "views/qmlwindowmanage.h"
#include "xcomponents/qquick/picturecachemanage.h"
#include "xcomponents/qquick/xbutton.h"
#include "xcomponents/qquick/xwindow.h"

#include <QQuickItem>

using GuiQtAdapt::Core;

namespace {

/**
 * Picture, then (with a font) caption, colour and layout. A null image path keeps the
 * picture; a path that names no picture ("" or a missing file) hides it.
 */
void applyButtonStyle(XButton* button, const View_ImageText* rec)
{
    if (rec->image) {
        const QString path = Core::fromString(rec->image);
        const QUrl url = PictureCacheManage::getInstance()->getUrl(path);
        if (url.isValid()) {
            button->setImage(url);
            button->setImageVisible(true);
        } else {
            button->setImageVisible(false);
        }
    }
    if (!rec->font)
        return;
    button->resetState();
    button->setFont(Core::toQFont(rec->font));
    button->setText(Core::fromUtf8(rec->text));
    button->setLineSpace(rec->font->lineSpace);
    button->setFontColor(Core::toQColor(rec->font->color));
    button->setFontAlignment(Core::toQAlignment(rec->font));
    if (const View_TextLayout* layout = rec->layout) {
        button->setAlignment(Core::toQAlignment(layout->align));
        button->setTextHMargin(layout->hMargin);
        button->setTextVMargin(layout->vMargin);
    }
}

} // namespace

int ViewManage::View_CreateButton(const View_ImageText* rec, unsigned int windowId)
{
    QQuickItem* window = creationParent(rec, windowId);
    if (!window)
        return -1;
    auto* button = new XButton(window);
    applyButtonStyle(button, rec);
    if (Core::dragFlag(rec->header)) {
        // dragging the button moves its window; inside a popup window it stays a plain button
        if (auto* holder = qobject_cast<XWindow*>(m_windowManage->getWindowObj(windowId)))
            button->setDragTarget(holder);
    }
    placeWidget(button, rec, windowId);
    return 0;
}

int ViewManage::View_ChangeButtonParam(unsigned int id, const View_ImageText* rec)
{
    // -1 whatever happens: the logic layer does not read it as success or failure
    auto* button = qobject_cast<XButton*>(m_lifeCycle->findItemMaybeVisible(id));
    if (button && rec)
        applyButtonStyle(button, rec);
    return -1;
}
