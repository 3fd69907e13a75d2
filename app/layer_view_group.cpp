// Exports: widget groups and the pie chart.
// Each export writes one log line and forwards to its ViewManage method (views/viewmanage_group.cpp).
#include "app/layerlog.h"

#include <qgui/view.h>

int View_CreateGroup(const View_Group* rec, unsigned int windowId)
{
    return QGUI_CREATE("组合元件", View_CreateGroup, rec, windowId);
}

int View_CreateGroupBar()
{
    return QGUI_CREATE("组合棒图元件", View_CreateGroupBar);
}

int View_CreateGroupIOList(const View_GroupIOList* rec, unsigned int windowId)
{
    return QGUI_CREATE("IO列表组合元件", View_CreateGroupIOList, rec, windowId);
}

int View_CreatePieChart(const View_PieChart* rec, unsigned int windowId)
{
    return QGUI_CREATE("饼图元件", View_CreatePieChart, rec, windowId);
}

int View_PieChartUpdateData(unsigned int id, const std::vector<View_ChartChnData>& data)
{
    return QGUI_FORWARD(trace, "id", View_PieChartUpdateData, id, data);
}

int View_PieChartUpdateLegendLabels(unsigned int id, const std::vector<std::string>& labels)
{
    return QGUI_FORWARD(trace, "id", View_PieChartUpdateLegendLabels, id, labels);
}
