// Generic operations on any registered widget: delete, show, hide, move,
// opacity, disable flags, busy icon, input flags, font colour, rectangle,
// parent. An unknown id never crashes: each call returns its fixed result.
#include "views/viewmanage.h"

#include "platform/gid.h"
#include "platform/guiqtadaptcore.h"
#include "utils/utils.h"
#include "views/lifecyclemanager.h"
#include "views/qmlwindowmanage.h"
#include "views/widgetpropertymanage.h"
#include "xcomponents/qquick/xbasecontrol.h"
#include "xcomponents/qquick/xgroup.h"
#include "xcomponents/qquick/xlumodialog.h"
#include "xcomponents/qquick/xwindow.h"

#include <QMetaObject>
#include <QQuickItem>

#define VM_CHECK(cond) QGUI_CHECK_AT(cond, "qgui/views/ViewManage")

namespace {

using Props = WidgetPropertyManage;

bool hasSlashAnimation(QQuickItem* item)
{
    if (auto* c = qobject_cast<XBaseControl*>(item))
        return c->hasSlashAnimation();
    return item->property("hasSlashAnimation").toBool();
}

/** Kinds whose picture can be hidden by View_HideWidget type 1. */
bool takesImageHide(QQuickItem* item)
{
    static const char* const kinds[]
        = { "XButton", "XTextEdit", "XQuickTextEdit", "XLineInputText", "XDateTimeEdit", "XMultiLineText" };
    for (const char* k : kinds) {
        if (item->inherits(k))
            return true;
    }
    return false;
}

/** Kinds that carry a slash item (View_HideWidget type 2). */
bool takesSlashHide(QQuickItem* item)
{
    static const char* const kinds[] = { "XButton", "XBaseText", "XMultiLineText", "XTextEdit",
        "XQuickTextEdit", "XLineInputText", "XDateTimeEdit" };
    for (const char* k : kinds) {
        if (item->inherits(k))
            return true;
    }
    return false;
}

} // namespace

int ViewManage::View_DeleteWidgets(const std::list<unsigned int>& ids)
{
    for (unsigned id : ids) {
        // a group goes with its members
        QQuickItem* item = m_lifeCycle->findItemMaybeInvisible(id);
        if (item && item->property("isGroup").toBool()) {
            for (unsigned member : m_lifeCycle->membersOf(item)) {
                m_lifeCycle->destroyItem(member);
                m_idHash.remove(member);
            }
        }
        if (m_lifeCycle->destroyItem(id)) {
            m_idHash.remove(id);
        }
    }
    return 0;
}

int ViewManage::View_ShowWidget(unsigned int id, unsigned int fromCache, ItemSlashType type)
{
    if (fromCache != 0) {
        QQuickItem* pItem = m_lifeCycle->findItemMaybeInvisible(id);
        if (!VM_CHECK(nullptr != pItem))
            return -1;
        if (hasSlashAnimation(pItem)) {
            Props::invokeIf(pItem, "setImageVisible", "setImageVisible(bool)", Q_ARG(bool, true));
            Props::invokeIf(pItem, "showSlashItem", "showSlashItem()");
        }
        m_idHash.insert(id, pItem);
        pItem->setVisible(true);
        pItem->update();
        return 0;
    }
    QQuickItem* item = m_lifeCycle->findItemMaybeVisible(id);
    if (!item)
        return 0;
    switch (type) {
    case ITEM_SLASH_IMAGE:
        Props::invokeIf(item, "setImageVisible", "setImageVisible(bool)", Q_ARG(bool, true));
        break;
    case ITEM_SLASH_SLASH:
        Props::invokeIf(item, "showSlashItem", "showSlashItem()");
        break;
    default:
        if (hasSlashAnimation(item)) {
            Props::invokeIf(item, "setImageVisible", "setImageVisible(bool)", Q_ARG(bool, true));
            Props::invokeIf(item, "showSlashItem", "showSlashItem()");
        }
        item->setVisible(true);
        break;
    }
    return 0;
}

int ViewManage::View_HideWidget(unsigned int id, ItemSlashType type)
{
    QQuickItem* item = m_lifeCycle->findItemMaybeVisible(id);
    if (!item)
        return 0;
    switch (type) {
    case ITEM_SLASH_IMAGE:
        if (takesImageHide(item))
            Props::invokeIf(item, "setImageVisible", "setImageVisible(bool)", Q_ARG(bool, false));
        break;
    case ITEM_SLASH_SLASH:
        if (!takesSlashHide(item)) {
            VM_CHECK(0);
            return -1;
        }
        Props::invokeIf(item, "hideSlashItem", "hideSlashItem()");
        break;
    default:
        if (hasSlashAnimation(item)) {
            Props::invokeIf(item, "setImageVisible", "setImageVisible(bool)", Q_ARG(bool, false));
            Props::invokeIf(item, "hideSlashItem", "hideSlashItem()");
        }
        item->setVisible(false);
        break;
    }
    return 0;
}

int ViewManage::View_MoveWidget(unsigned int id, int x, int y)
{
    QQuickItem* item = m_lifeCycle->findItemMaybeVisible(id);
    if (!item)
        return -1;
    // painted items, shape images, base texts and cause texts move; other kinds do not
    if (auto* c = qobject_cast<XBaseControl*>(item);
        c && (c->inherits("XCauseText") || c->inherits("XShapeImage"))) {
        c->moveTo(x, y);
        return 0;
    }
    if (item->inherits("QQuickPaintedItem") || item->inherits("XBaseText") || item->inherits("XShapeImage")
        || item->inherits("XCauseText")) {
        if (!Props::invokeIf(item, "moveTo", "moveTo(int,int)", Q_ARG(int, x), Q_ARG(int, y)))
            item->setPosition(QPointF(x, y));
        return 0;
    }
    return -1;
}

int ViewManage::View_ChangeOpacity(unsigned int id, unsigned char percent)
{
    QQuickItem* item = m_lifeCycle->findItemMaybeVisible(id);
    if (!item)
        return 0;
    const qreal opacity = qMin<int>(percent, 100) / 100.0;
    if (!Props::invokeIf(item, "setItemOpacity", "setItemOpacity(qreal)", Q_ARG(qreal, opacity)))
        item->setOpacity(opacity);
    return 0;
}

static int applyDisableFlags(QQuickItem* item, unsigned flags, bool on)
{
    if (flags & 2)
        Props::invokeIf(item, "showDisenableIcon", "showDisenableIcon(bool)", Q_ARG(bool, on));
    if (flags & 4)
        Props::invokeIf(item, "setGrayFlag", "setGrayFlag(bool)", Q_ARG(bool, on));
    return 0;
}

int ViewManage::View_SetDisableFlag(unsigned int id, unsigned int flags)
{
    QQuickItem* item = m_lifeCycle->findItemMaybeVisible(id);
    if (!item) {
        VM_CHECK(0);
        return -1;
    }
    return applyDisableFlags(item, flags, true);
}

int ViewManage::View_ClrDisableFlag(unsigned int id, unsigned int flags)
{
    QQuickItem* item = m_lifeCycle->findItemMaybeVisible(id);
    if (!item) {
        VM_CHECK(0);
        return -1;
    }
    return applyDisableFlags(item, flags, false);
}

int ViewManage::View_SetBusy(unsigned int id)
{
    if (QQuickItem* item = m_lifeCycle->findItemMaybeVisible(id))
        Props::invokeIf(item, "showBusyIcon", "showBusyIcon(bool)", Q_ARG(bool, true));
    return 0;
}

int ViewManage::View_ClrBusy(unsigned int id)
{
    if (QQuickItem* item = m_lifeCycle->findItemMaybeVisible(id))
        Props::invokeIf(item, "showBusyIcon", "showBusyIcon(bool)", Q_ARG(bool, false));
    return 0;
}

int ViewManage::View_SetInputMode(unsigned int id, bool on)
{
    if (QQuickItem* item = m_lifeCycle->findItemMaybeVisible(id))
        Props::invokeIf(item, "setInputMode", "setInputMode(bool)", Q_ARG(bool, on));
    return 0;
}

int ViewManage::View_ClrInputMode(unsigned int id)
{
    return View_SetInputMode(id, false);
}

int ViewManage::View_SetInputFlag(unsigned int id)
{
    if (QQuickItem* item = m_lifeCycle->findItemMaybeVisible(id))
        Props::invokeIf(item, "setInputFlag", "setInputFlag()");
    return 0;
}

int ViewManage::View_ClrInputFlag(unsigned int id)
{
    if (QQuickItem* item = m_lifeCycle->findItemMaybeVisible(id))
        Props::invokeIf(item, "clearInputFlag", "clearInputFlag()");
    return 0;
}

int ViewManage::View_GetWgtRect(unsigned int id, Rect& rect)
{
    QQuickItem* item = m_lifeCycle->findItemMaybeVisible(id);
    if (!item)
        return 0;
    QRect r(int(item->x()), int(item->y()), int(item->width()), int(item->height()));
    if (Props::hasMethod(item, "getWgtRect()")) {
        QVariant v;
        const QMetaMethod m = item->metaObject()->method(item->metaObject()->indexOfMethod("getWgtRect()"));
        if (m.returnType() == QMetaType::QRect)
            m.invoke(item, Qt::DirectConnection, Q_RETURN_ARG(QRect, r));
        else if (m.invoke(item, Qt::DirectConnection, Q_RETURN_ARG(QVariant, v)) && v.canConvert<QRect>())
            r = v.toRect();
    }
    // corner-to-corner geometry: width is right - left + 1, height bottom - top + 1
    rect.x = r.left();
    rect.y = r.top();
    rect.width = r.right() - r.left() + 1;
    rect.height = r.bottom() - r.top() + 1;
    return 0;
}

int ViewManage::View_SetWidgetParent(unsigned int id, unsigned int parentId)
{
    QQuickItem* pParent = m_windowManage->getWindow(parentId);
    unsigned windowId = parentId;
    if (!pParent) {
        // a group widget can be a parent too
        if (QQuickItem* group = m_lifeCycle->findItemMaybeVisible(parentId);
            group && group->property("isGroup").toBool()) {
            pParent = group;
            windowId = GId::wid(group);
        }
    }
    if (!VM_CHECK(nullptr != pParent))
        return -1;
    // a group never goes into itself or into one of its own members
    if (QQuickItem* moving = m_lifeCycle->findItemMaybeInvisible(id); moving && XGroup::holds(moving, pParent))
        return -1;
    QQuickItem* item = m_lifeCycle->showItem(id, pParent);
    if (!item)
        return 0;
    if (auto* c = qobject_cast<XBaseControl*>(item))
        c->setWindowId(windowId);
    else if (Props::hasMethod(item, "setWindowId(uint)"))
        QMetaObject::invokeMethod(item, "setWindowId", Q_ARG(uint, windowId));
    GId::setWId(item, windowId);
    item->setVisible(true);
    m_lifeCycle->saveItem({ id, item });
    return 0;
}
