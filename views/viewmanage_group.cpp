// Widget groups (not built yet: their creators create nothing and return -1, the
// other calls return what they return for an unknown id) and the pie chart, which
// this panel shows as a placeholder.
#include "views/viewmanage.h"

int ViewManage::View_CreateGroup(const View_Group*, unsigned int)
{
    return -1;
}

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

int ViewManage::View_PieChartUpdateData(unsigned int, const std::vector<View_ChartChnData>&)
{
    return 0;
}

int ViewManage::View_PieChartUpdateLegendLabels(unsigned int, const std::vector<std::string>&)
{
    return 0;
}
