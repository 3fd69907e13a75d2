// Menus: the seven menu kinds share one creator (View_CreateCombobox) that
// builds either the content view alone, in the window (in-place form), or a
// drop-down box whose pop-up holds the content view. The content is a flat
// list or, with MENU_TREE, a tree. Widgets only report: presses and releases
// on the box (events 2 and 3, no payload) and on the entries (events 2 and 3
// with the entry's index); the logic layer opens the pop-up and sets the
// selection and the shown text.
#include "views/viewmanage.h"

#include "platform/guiqtadaptcore.h"
#include "platform/xoverlay.h"
#include "platform/xpopup.h"
#include "views/lifecyclemanager.h"
#include "views/qmlwindowmanage.h"
#include "views/widgetpropertymanage.h"
#include "utils/utils.h"
#include "xcomponents/qquick/picturecachemanage.h"
#include "xcomponents/qquick/xlistviewcontrol.h"
#include "xcomponents/qquick/xqmlcomponentmanage.h"
#include "xcomponents/qquick/treeitem.h"
#include "xcomponents/qquick/treemodel.h"
#include "xcomponents/qquick/xquickcombobox.h"
#include "xcomponents/qquick/xtreeview.h"
#include "xcomponents/qquick/xtreeviewcontrol.h"

#include <QFontMetrics>
#include <QQuickItem>
#include <QSet>

#include <climits>

#include <qgui/ids.h>

using GuiQtAdapt::Core;

namespace {

constexpr int kFitRows = 8; // rows a pop-up shows when the record leaves its height to the entries

/** The flat list of a menu widget: the in-place list itself or the list in a box's pop-up. */
XListViewControl* listOf(QQuickItem* item)
{
    if (auto* box = qobject_cast<XQuickComboBox*>(item))
        return qobject_cast<XListViewControl*>(box->view());
    return qobject_cast<XListViewControl*>(item);
}

/** The tree of a menu widget: the in-place tree itself or the tree in a box's pop-up. */
XTreeview* treeOf(QQuickItem* item)
{
    if (auto* box = qobject_cast<XQuickComboBox*>(item))
        item = box->view();
    auto* control = qobject_cast<XTreeViewControl*>(item);
    return control ? control->treeview() : nullptr;
}

QString shownText(const char* utf8)
{
    return Core::cutText(Core::fromUtf8(utf8), Core::kMaxShownText);
}

int rowHeightFor(const View_Menu* rec, const QFont& font)
{
    if (rec->rowHeight > 0)
        return qMin(rec->rowHeight, 4096);
    return QFontMetrics(font).height() + 8;
}

/** The pop-up's height when the record gives none: the entries up to kFitRows, at least one row. */
void fitPopup(XQuickComboBox* box, int rows, int rowHeight, int border)
{
    if (!box->fitsEntries())
        return;
    box->setPopHeight(qBound(1, rows, kFitRows) * rowHeight + 2 * border);
}

/** The picture of a project path; empty for none or for a path naming no picture. */
QUrl pictureUrl(const char* path)
{
    if (!path || !*path)
        return QUrl();
    const QUrl url = PictureCacheManage::getInstance()->getUrl(Core::fromString(path));
    return url.isValid() ? url : QUrl();
}

void styleList(XListViewControl* list, const View_Menu* rec, const QFont& font)
{
    list->setEntryFont(font);
    if (rec->font)
        list->setFontColor(Core::toQColor(rec->font->color));
    list->setBackColor(Core::toQColor(rec->backColor));
    list->setHighlightColor(Core::toQColor(rec->highlightColor));
    list->setFrameColor(Core::toQColor(rec->frameColor));
    list->setBorderWidth(rec->borderWidth);
    list->setRowHeight(rowHeightFor(rec, font));
    list->setBgImage(pictureUrl(rec->bgImage));
}

QQuickItem* createTree(const View_Menu* rec, QQuickItem* parent, const QFont& font)
{
    QQuickItem* item = XQmlComponentManage::getInstance()->createItem(
        QUrl(QStringLiteral("qrc:/menu/QmlTreeView.qml")), parent);
    auto* control = qobject_cast<XTreeViewControl*>(item);
    XTreeview* tree = control ? control->treeview() : nullptr;
    if (!tree) {
        delete item;
        return nullptr;
    }
    tree->setDefaultFont(font);
    if (rec->font)
        tree->setDefaultFontColor(Core::toQColor(rec->font->color));
    tree->setBackground(Core::toQColor(rec->backColor));
    tree->setHighlightColor(Core::toQColor(rec->highlightColor));
    tree->setFrameColor(Core::toQColor(rec->frameColor));
    tree->setBorderWidth(rec->borderWidth);
    tree->setRowSpace(rowHeightFor(rec, font));
    tree->setIndent(rec->indent > 0 ? rec->indent : 16);
    tree->setBgImage(pictureUrl(rec->bgImage));
    return control;
}

/**
 * The tree of \a root's children as TreeItem nodes, walked with an explicit stack. A node met
 * again below itself (a cycle) is skipped with its subtree, null child arrays count as no
 * children, and at most kMaxTreeNodes nodes are taken.
 */
constexpr int kMaxTreeNodes = 200000;

std::unique_ptr<TreeItem> buildTree(const View_TreeNode* root)
{
    auto top = std::make_unique<TreeItem>(1);
    if (!root)
        return top;
    struct Frame {
        const View_TreeNode* node;
        TreeItem* item;
        U32 next;
    };
    std::vector<Frame> stack { { root, top.get(), 0 } };
    QSet<const View_TreeNode*> onPath { root };
    int taken = 0;
    while (!stack.empty()) {
        Frame& f = stack.back();
        if (!f.node->children || f.next >= f.node->childCount || taken >= kMaxTreeNodes) {
            onPath.remove(f.node);
            stack.pop_back();
            continue;
        }
        const View_TreeNode* child = &f.node->children[f.next++];
        if (onPath.contains(child))
            continue; // a cycle: the node is an ancestor of itself
        TreeItem* item = f.item->appendChild();
        ++taken;
        item->setData(0, Qt::DisplayRole, shownText(child->text));
        const QUrl icon = pictureUrl(child->image);
        if (icon.isValid())
            item->setData(0, Qt::DecorationRole, icon.toString());
        item->setData(0, TreeModel::EntryIndexRole, child->index);
        item->setData(0, TreeModel::InitiallyExpandedRole, child->expanded != 0);
        if (!child->children || !child->childCount)
            continue; // a leaf: nothing below it to walk, and never anyone's ancestor
        onPath.insert(child);
        stack.push_back({ child, item, 0 }); // f is not used after this
    }
    return top;
}

/** The content view of a menu, list or tree, styled from the record; null when its component fails. */
QQuickItem* createContent(const View_Menu* rec, QQuickItem* parent)
{
    const QFont font = Core::toQFont(rec->font);
    if (rec->flags & MENU_TREE)
        return createTree(rec, parent, font);
    QQuickItem* item = XQmlComponentManage::getInstance()->createItem(
        QUrl(QStringLiteral("qrc:/list/QmlListView.qml")), parent);
    auto* list = qobject_cast<XListViewControl*>(item);
    if (!list) {
        delete item;
        return nullptr;
    }
    styleList(list, rec, font);
    return list;
}

} // namespace

int ViewManage::View_CreateCombobox(const View_Menu* rec, unsigned int windowId)
{
    QQuickItem* window = creationParent(rec, windowId);
    if (!window)
        return -1; // null record or unknown window: nothing is made
    if (rec->flags & MENU_IN_PLACE) {
        QQuickItem* content = createContent(rec, window);
        if (!QGUI_CHECK_AT(content, "qgui/views/ViewManage"))
            return -1;
        placeWidget(content, rec, windowId);
        return 0;
    }

    QQuickItem* item = XQmlComponentManage::getInstance()->createItem(
        QUrl(QStringLiteral("qrc:/QmlCombox.qml")), window);
    auto* box = qobject_cast<XQuickComboBox*>(item);
    if (!QGUI_CHECK_AT(box, "qgui/views/ViewManage")) {
        delete item;
        return -1;
    }
    box->popup()->setOverlay(m_windowManage->getOverlay(GetDeskNoFromWndId(windowId)));
    QQuickItem* content = createContent(rec, box->popup()->contentItem());
    if (!QGUI_CHECK_AT(content, "qgui/views/ViewManage")) {
        delete box;
        return -1;
    }
    // the content reports with the box's id and is not registered on its own
    WidgetPropertyManage::setIds(content, rec->id, windowId);
    box->setView(content);
    box->setBorderWidth(rec->borderWidth);
    box->setBoxColor(Core::toQColor(rec->boxColor));
    const QFont font = Core::toQFont(rec->font);
    box->setDisplayTextFont(font);
    if (rec->font)
        box->setFontColor(Core::toQColor(rec->font->color));
    if (rec->layout)
        box->setDisplayTextAlign(rec->layout->align, rec->layout->hMargin);
    box->setFitsEntries(rec->popHeight <= 0);
    if (rec->popHeight > 0)
        box->setPopHeight(qMin(rec->popHeight, 1 << 16));
    else
        fitPopup(box, 0, rowHeightFor(rec, font), qBound(0, rec->borderWidth, 32));
    placeWidget(box, rec, windowId); // opacity from the header, ids, registration
    box->placePopup();
    return 0;
}

int ViewManage::View_ChangeMenuContent(unsigned int id, const std::list<View_Text>& entries)
{
    QQuickItem* item = m_lifeCycle->findItemMaybeVisible(id);
    XListViewControl* list = listOf(item);
    if (!list)
        return -1;
    QStringList texts;
    texts.reserve(int(qMin<size_t>(entries.size(), size_t(INT_MAX / 8))));
    for (const View_Text& t : entries)
        texts.append(shownText(t.text));
    list->setEntries(texts);
    if (auto* box = qobject_cast<XQuickComboBox*>(item))
        fitPopup(box, texts.size(), list->rowHeight(), list->borderWidth());
    return 0;
}

int ViewManage::View_ChangeMenuSelect(unsigned int id, int index, const View_Image* image, const View_Text* text)
{
    QQuickItem* item = m_lifeCycle->findItemMaybeVisible(id);
    XListViewControl* list = listOf(item);
    if (!list)
        return -1;
    list->setCurrentIndex(index);
    if (auto* box = qobject_cast<XQuickComboBox*>(item)) {
        if (text)
            box->setDisplayText(shownText(text->text));
        if (image) // the chosen entry's picture before the text; an empty path takes it away
            box->setDisplayImage(image->path && *image->path
                    ? PictureCacheManage::getInstance()->getUrl(GuiQtAdapt::Core::fromString(image->path))
                    : QUrl());
    }
    return 0;
}

int ViewManage::View_ChangeMenuTreeContent(unsigned int id, const View_TreeNode* root)
{
    QQuickItem* item = m_lifeCycle->findItemMaybeVisible(id);
    XTreeview* tree = treeOf(item);
    if (!tree)
        return -1;
    std::unique_ptr<TreeItem> top = buildTree(root); // a null root empties the tree
    const int rows = top->childCount();
    tree->updateData(std::move(top));
    if (auto* box = qobject_cast<XQuickComboBox*>(item))
        fitPopup(box, rows, tree->rowSpace(), tree->borderWidth());
    return 0;
}

int ViewManage::View_ChangeMenuTreeSelect(unsigned int id, int index, const View_Text* text)
{
    QQuickItem* item = m_lifeCycle->findItemMaybeVisible(id);
    XTreeview* tree = treeOf(item);
    if (!tree)
        return -1;
    tree->updateSelection(index);
    if (auto* box = qobject_cast<XQuickComboBox*>(item)) {
        if (text)
            box->setDisplayText(shownText(text->text));
    }
    return 0;
}

int ViewManage::View_CreateMenuAlarmLevel(const View_MenuAlarmLevel* rec, unsigned int windowId)
{
    return View_CreateCombobox(rec ? &rec->menu : nullptr, windowId);
}

int ViewManage::View_CreateMenuConst(const View_MenuConst* rec, unsigned int windowId)
{
    return View_CreateCombobox(rec ? &rec->menu : nullptr, windowId);
}

int ViewManage::View_CreateMenuNotes(const View_MenuNotes* rec, unsigned int windowId)
{
    return View_CreateCombobox(rec ? &rec->menu : nullptr, windowId);
}

int ViewManage::View_CreateMenuPermission(const View_MenuPermission* rec, unsigned int windowId)
{
    return View_CreateCombobox(rec ? &rec->menu : nullptr, windowId);
}

int ViewManage::View_CreateMenuTreeAlarmGrp(const View_MenuTreeAlarmGrp* rec, unsigned int windowId)
{
    return View_CreateCombobox(rec ? &rec->menu : nullptr, windowId);
}

int ViewManage::View_CreateMenuUser(const View_MenuUser* rec, unsigned int windowId)
{
    return View_CreateCombobox(rec ? &rec->menu : nullptr, windowId);
}

int ViewManage::View_CreateMenuVar(const View_MenuVar* rec, unsigned int windowId)
{
    return View_CreateCombobox(rec ? &rec->menu : nullptr, windowId);
}

int ViewManage::View_MenuPopupDropdownBox(unsigned int id)
{
    auto* box = qobject_cast<XQuickComboBox*>(m_lifeCycle->findItemMaybeVisible(id));
    if (!box)
        return -1;
    return box->openPopup() ? 0 : -1;
}
