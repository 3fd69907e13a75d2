// Graphic shapes: not built yet. Every call is accepted and changes nothing: the
// creators create nothing and return -1 (as for an unknown window); the other
// calls return what they return for an unknown id.
#include "views/viewmanage.h"

int ViewManage::View_ChangePen(unsigned int, const Pen*)
{
    return -1;
}

int ViewManage::View_CreateGraphArc(const View_GraphArc*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreateGraphBezierCurve(const View_GraphBezierCurve*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreateGraphEllipse(const View_GraphEllipse*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreateGraphGrid(const View_GraphGrid*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreateGraphPie(const View_GraphPie*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreateGraphPolygon(const View_GraphPolygon*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreateGraphPolyline(const View_GraphPolyline*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreateGraphRect(const View_GraphRect*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreateGraphScale(const View_GraphScale*, unsigned int)
{
    return -1;
}

int ViewManage::View_FillWidget(unsigned int, int, int, int, Brush)
{
    return 0;
}

int ViewManage::View_RotateWidget(unsigned int, int, int)
{
    return 0;
}

int ViewManage::View_ZoomWidget(unsigned int, int, int, int)
{
    return 0;
}
