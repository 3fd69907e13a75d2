// Exports: graphic shapes.
// Each export writes one log line and forwards to its ViewManage method (views/viewmanage_shape.cpp).
#include "app/layerlog.h"

#include <qgui/view.h>

int View_ChangePen(unsigned int id, const Pen* pen)
{
    return QGUI_FORWARD(trace, "id", View_ChangePen, id, pen);
}

int View_CreateGraphArc(const View_GraphArc* rec, unsigned int windowId)
{
    return QGUI_CREATE("圆弧元件", View_CreateGraphArc, rec, windowId);
}

int View_CreateGraphBezierCurve(const View_GraphBezierCurve* rec, unsigned int windowId)
{
    return QGUI_CREATE("贝塞尔曲线元件", View_CreateGraphBezierCurve, rec, windowId);
}

int View_CreateGraphEllipse(const View_GraphEllipse* rec, unsigned int windowId)
{
    return QGUI_CREATE("椭圆元件", View_CreateGraphEllipse, rec, windowId);
}

int View_CreateGraphGrid(const View_GraphGrid* rec, unsigned int windowId)
{
    return QGUI_CREATE("网格元件", View_CreateGraphGrid, rec, windowId);
}

int View_CreateGraphPie(const View_GraphPie* rec, unsigned int windowId)
{
    return QGUI_CREATE("扇形元件", View_CreateGraphPie, rec, windowId);
}

int View_CreateGraphPolygon(const View_GraphPolygon* rec, unsigned int windowId)
{
    return QGUI_CREATE("多边形元件", View_CreateGraphPolygon, rec, windowId);
}

int View_CreateGraphPolyline(const View_GraphPolyline* rec, unsigned int windowId)
{
    return QGUI_CREATE("折线元件", View_CreateGraphPolyline, rec, windowId);
}

int View_CreateGraphRect(const View_GraphRect* rec, unsigned int windowId)
{
    return QGUI_CREATE("矩形元件", View_CreateGraphRect, rec, windowId);
}

int View_CreateGraphScale(const View_GraphScale* rec, unsigned int windowId)
{
    return QGUI_CREATE("刻度元件", View_CreateGraphScale, rec, windowId);
}

int View_FillWidget(unsigned int id, int direction, int value, int maximum, Brush brush)
{
    return QGUI_FORWARD(info, "id", View_FillWidget, id, direction, value, maximum, brush);
}

int View_RotateWidget(unsigned int id, int angle, int origin)
{
    return QGUI_FORWARD(info, "id", View_RotateWidget, id, angle, origin);
}

int View_ZoomWidget(unsigned int id, int width, int height, int origin)
{
    return QGUI_FORWARD(info, "id", View_ZoomWidget, id, width, height, origin);
}
