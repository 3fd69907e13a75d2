// Widget groups and the pie chart, which this panel shows as a placeholder.
#include "views/viewmanage.h"

#include "platform/guiqtadaptcore.h"
#include "views/lifecyclemanager.h"
#include "xcomponents/qquick/xgroup.h"

using GuiQtAdapt::Core;

int ViewManage::View_CreateGroup(const View_Group* rec, unsigned int windowId)
{
    QQuickItem* window = creationParent(rec, windowId);
    if (!window)
        return -1;
    auto* group = new XGroup(window);
    // the frame is drawn in a unit box stretched over the group
    group->setFrame(Core::toQBrush(rec->background, QRectF(0, 0, 1, 1)), Core::toQPen(rec->border));
    group->setClipMembers(rec->clip != 0);
    placeWidget(group, rec, windowId);
    return 0;
}

// Reserved: a bar group is made as a group with View_CreateGroup and bars put into it.
int ViewManage::View_CreateGroupBar()
{
    return -1;
}

// An IO list is not a table: it is made exactly as a widget group from its group part.
int ViewManage::View_CreateGroupIOList(const View_GroupIOList* rec, unsigned int windowId)
{
    return View_CreateGroup(rec ? &rec->group : nullptr, windowId);
}

int ViewManage::View_CreatePieChart(const View_PieChart* rec, unsigned int windowId)
{
    return createPlaceholder(rec, windowId, "Pie chart");
}

// The placeholder takes the data and shows nothing of it; an unknown id is refused.
int ViewManage::View_PieChartUpdateData(unsigned int id, const std::vector<View_ChartChnData>&)
{
    return m_lifeCycle->findItemMaybeVisible(id) ? 0 : -1;
}

int ViewManage::View_PieChartUpdateLegendLabels(unsigned int id, const std::vector<std::string>&)
{
    return m_lifeCycle->findItemMaybeVisible(id) ? 0 : -1;
}
