// List controls: every list kind is one table control set up from its record.
// The logic layer keeps the data and sends pages; the control reports presses
// with the cell, scrolling, and (in edit mode) the edited cells.
#include "views/viewmanage.h"

#include "platform/guiqtadaptcore.h"
#include "views/lifecyclemanager.h"
#include "views/liststate.h"
#include "views/qmlwindowmanage.h"
#include "views/tablesetup.h"
#include "xcomponents/qquick/picturecachemanage.h"
#include "xcomponents/qquick/xalarmtableviewcontrol.h"
#include "xcomponents/qquick/xcommontableview.h"
#include "xcomponents/qquick/xqmlcomponentmanage.h"
#include "xcomponents/qquick/xtableviewcontrol.h"

#include <QQmlEngine>

#include <qgui/ids.h>

using GuiQtAdapt::Core;

namespace {

XTableViewControl* tableOf(QQuickItem* item)
{
    return qobject_cast<XTableViewControl*>(item);
}

/** A table or an alarm bar: both take titles, pages and column visibility. */
XListContent* contentOf(QQuickItem* item)
{
    return dynamic_cast<XListContent*>(item);
}

} // namespace

int ViewManage::createTable(const View_List* rec, unsigned int windowId, bool singleLine, bool alarms)
{
    QQuickItem* window = creationParent(rec, windowId);
    if (!window)
        return -1;
    XTableViewControl* table = alarms ? new XAlarmTableViewControl(window) : new XTableViewControl(window);
    const QRect r = Core::toQRect(rec->rect);
    table->setSize(r.size()); // the columns are laid out once, at their final width
    if (!table->initialze(TableSetup::toSetup(*rec, singleLine), XQmlComponentManage::getInstance()->engine())) {
        delete table;
        return -1;
    }
    placeWidget(table, rec, windowId);
    table->setOverlay(m_windowManage->getOverlay(GetDeskNoFromWndId(windowId))); // sort/filter menus
    m_list->attach(table);
    return 0;
}

int ViewManage::View_CreateListCtrl(const View_List* rec, unsigned int windowId)
{
    return createTable(rec, windowId, false);
}

int ViewManage::View_CreateListAlarm(const View_listAlarm* rec, unsigned int windowId)
{
    return createTable(rec ? &rec->list : nullptr, windowId, false, true);
}

int ViewManage::View_CreateListAlarmStat(const View_listAlarmStat* rec, unsigned int windowId)
{
    return createTable(rec ? &rec->list : nullptr, windowId, false);
}

int ViewManage::View_CreateListComErr(const View_listComErr* rec, unsigned int windowId)
{
    return createTable(rec ? &rec->list : nullptr, windowId, false);
}

int ViewManage::View_CreateListDbView(const View_listDbView* rec, unsigned int windowId)
{
    return createTable(rec ? &rec->list : nullptr, windowId, true); // cells always on one line
}

int ViewManage::View_CreateListEvent(const View_listEvent* rec, unsigned int windowId)
{
    return createTable(rec ? &rec->list : nullptr, windowId, false);
}

int ViewManage::View_CreateListPermission(const View_listPermission* rec, unsigned int windowId)
{
    return createTable(rec ? &rec->list : nullptr, windowId, false);
}

int ViewManage::View_CreateListRecipe(const View_listRecipe* rec, unsigned int windowId)
{
    return createTable(rec ? &rec->list : nullptr, windowId, false);
}

int ViewManage::View_CreateListSample(const View_listSample* rec, unsigned int windowId)
{
    return createTable(rec ? &rec->list : nullptr, windowId, false);
}

int ViewManage::View_ChangeListCtrlTitle(unsigned int id, const std::vector<View_Text>& titles)
{
    XListContent* table = contentOf(m_lifeCycle->findItemMaybeVisible(id));
    if (!table)
        return -1;
    QStringList texts;
    for (size_t i = 0; i < titles.size() && i < TableSetup::kMaxColumns; ++i)
        texts << Core::cutText(Core::fromUtf8(titles[i].text), Core::kMaxShownText);
    table->updateHeader(texts);
    return 0;
}

int ViewManage::View_ChangeListCtrlContent(unsigned int id, const std::vector<std::vector<View_ListColData>>& rows)
{
    XListContent* table = contentOf(m_lifeCycle->findItemMaybeVisible(id));
    if (!table)
        return -1;
    const QVector<QVector<XTableCell>> page = TableSetup::toPage(rows, table->columnCount());
    table->updateData(page);
    return 0;
}

int ViewManage::View_ChangeListCtrlFont(unsigned int id, const std::vector<Font*>& fonts)
{
    XTableViewControl* table = tableOf(m_lifeCycle->findItemMaybeVisible(id));
    if (!table)
        return -1;
    QVector<QPair<QFont, QColor>> list;
    for (size_t i = 0; i < fonts.size() && i < TableSetup::kMaxColumns; ++i) {
        const Font* f = fonts[i];
        list.append(qMakePair(Core::toQFont(f), f ? Core::toQColor(f->color) : QColor(Qt::black)));
    }
    table->changeListCtrlFont(list);
    return 0;
}

int ViewManage::View_ChangeListCtrlFontColor(unsigned int, int, const Brush&)
{
    return -1; // not supported: the fonts carry the colours
}

int ViewManage::View_AddListCtrlContent(unsigned int, const std::vector<std::string>&, int)
{
    return -1; // not supported: pages are replaced whole
}

int ViewManage::View_GetListCtrlContent(unsigned int, int, int, std::vector<std::string>&)
{
    return -1; // not supported: the logic layer keeps the data
}

int ViewManage::View_ChangeListCtrlHideCol(unsigned int id, const std::list<std::pair<int, bool>>& columns)
{
    XListContent* table = contentOf(m_lifeCycle->findItemMaybeVisible(id));
    if (!table)
        return -1;
    for (const auto& c : columns)
        table->setTableColVisible(c.first, c.second);
    return 0;
}

int ViewManage::View_ChangeListCtrlEnableEditCol(unsigned int id, int, bool)
{
    // the editable columns come with the record; this call only checks the id
    return m_lifeCycle->findItemMaybeVisible(id) ? 0 : -1;
}

int ViewManage::View_ChangeListCtrlEnableFilter(unsigned int id, bool enable)
{
    QQuickItem* item = m_lifeCycle->findItemMaybeVisible(id);
    if (!tableOf(item))
        return -1;
    QMetaObject::invokeMethod(item, "setFilter", Q_ARG(bool, enable));
    return 0;
}

int ViewManage::View_ChangeListCtrlEditMode(unsigned int id, int mode)
{
    if (XTableViewControl* table = tableOf(m_lifeCycle->findItemMaybeVisible(id)))
        table->view()->setEditMode(mode);
    return -1; // the result of this call is always -1, also when the mode was switched
}

int ViewManage::View_ChangeListCtrlBrowseBoxParams(unsigned int id, unsigned int* values)
{
    XTableViewControl* table = tableOf(m_lifeCycle->findItemMaybeVisible(id));
    if (!table)
        return -1;
    if (values) // null numbers change nothing
        table->setBrowseBoxParams(values[0], values[1], values[2]);
    return 0;
}

int ViewManage::View_ChangeListCtrlRowTextVisible(unsigned int id, const std::list<int>& rows, bool visible)
{
    XTableViewControl* table = tableOf(m_lifeCycle->findItemMaybeVisible(id));
    if (!table)
        return -1;
    for (int row : rows)
        table->setRowTextVisible(row, visible);
    return 0;
}

int ViewManage::View_ChangeListCtrlSel(unsigned int id, int row, int column)
{
    if (XTableViewControl* table = tableOf(m_lifeCycle->findItemMaybeVisible(id)))
        table->changeSelectRow(row, column);
    return 0; // always 0
}
