// Exports: display widgets (buttons, texts, shapes, images, bars, meters, sliders, pipelines, QR codes, groups).
// Each export writes one log line and forwards to ViewManage.
#include "app/layerlog.h"
#include "views/viewmanage.h"

#include <qgui/view.h>

// ---- button

int View_ChangeButtonParam(unsigned int id, const View_ImageText* rec)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_ChangeButtonParam(id, rec);
}

int View_CreateButton(const View_ImageText* rec, unsigned int windowId)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "按钮元件");
    return ViewManage::getInstance()->View_CreateButton(rec, windowId);
}

// ---- texts

int View_CarouselText(unsigned int id, int dx, int dy)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_CarouselText(id, dx, dy);
}

int View_ChangeFontColor(unsigned int id, const Brush* brush)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_ChangeFontColor(id, brush);
}

int View_ChangeTextContent(unsigned int id, const char* text, const Font* font)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_ChangeText(id, text, font);
}

int View_ChangeTextParam(unsigned int id, const View_Text* rec)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_ChangeTextParam(id, rec);
}

int View_ChangeTitle(unsigned int id, const View_Text* rec)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_ChangeTitle(id, rec);
}

int View_CreateText(const View_Text* rec, unsigned int windowId)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "静态文本元件");
    return ViewManage::getInstance()->View_CreateText(rec, windowId);
}

int View_IsTextOutOfRange(unsigned int id, int direction)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_IsTextOutOfRange(id, direction);
}

// ---- graphic shapes

int View_ChangePen(unsigned int id, const Pen* pen)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_ChangePen(id, pen);
}

int View_CreateGraphArc(const View_GraphArc* rec, unsigned int windowId)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "圆弧元件");
    return ViewManage::getInstance()->View_CreateGraphArc(rec, windowId);
}

int View_CreateGraphBezierCurve(const View_GraphBezierCurve* rec, unsigned int windowId)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "贝塞尔曲线元件");
    return ViewManage::getInstance()->View_CreateGraphBezierCurve(rec, windowId);
}

int View_CreateGraphEllipse(const View_GraphEllipse* rec, unsigned int windowId)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "椭圆元件");
    return ViewManage::getInstance()->View_CreateGraphEllipse(rec, windowId);
}

int View_CreateGraphGrid(const View_GraphGrid* rec, unsigned int windowId)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "网格元件");
    return ViewManage::getInstance()->View_CreateGraphGrid(rec, windowId);
}

int View_CreateGraphPie(const View_GraphPie* rec, unsigned int windowId)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "扇形元件");
    return ViewManage::getInstance()->View_CreateGraphPie(rec, windowId);
}

int View_CreateGraphPolygon(const View_GraphPolygon* rec, unsigned int windowId)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "多边形元件");
    return ViewManage::getInstance()->View_CreateGraphPolygon(rec, windowId);
}

int View_CreateGraphPolyline(const View_GraphPolyline* rec, unsigned int windowId)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "折线元件");
    return ViewManage::getInstance()->View_CreateGraphPolyline(rec, windowId);
}

int View_CreateGraphRect(const View_GraphRect* rec, unsigned int windowId)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "矩形元件");
    return ViewManage::getInstance()->View_CreateGraphRect(rec, windowId);
}

int View_CreateGraphScale(const View_GraphScale* rec, unsigned int windowId)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "刻度元件");
    return ViewManage::getInstance()->View_CreateGraphScale(rec, windowId);
}

int View_FillWidget(unsigned int id, int direction, int value, int maximum, Brush brush)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_FillWidget(id, direction, value, maximum, brush);
}

int View_RotateWidget(unsigned int id, int angle, int origin)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_RotateWidget(id, angle, origin);
}

int View_ZoomWidget(unsigned int id, int width, int height, int origin)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_ZoomWidget(id, width, height, origin);
}

// ---- image

int View_CreateImage(const View_Image* rec, unsigned int windowId)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "图片元件");
    return ViewManage::getInstance()->View_CreateImage(rec, windowId);
}

// ---- bar

int View_BarUpdateOrigin(unsigned int id, unsigned char percent)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_BarUpdateOrigin(id, percent);
}

int View_BarUpdateScaleLabels(unsigned int id, const std::vector<std::string>& labels)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_BarUpdateScaleLabels(id, labels);
}

int View_BarUpdateTarget(unsigned int id, unsigned char low, unsigned char high)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_BarUpdateTarget(id, low, high);
}

int View_BarUpdateVar(unsigned int id, unsigned char bar, const char* value, const Brush& brush)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_BarUpdateVar(id, bar, value, brush);
}

int View_CreateBar(const View_Bar* rec, unsigned int windowId)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "棒图元件");
    return ViewManage::getInstance()->View_CreateBar(rec, windowId);
}

// ---- meter

int View_CreateGroupMeter()
{
    QGUI_LAYER_LOG("\n\t创建 {}", "组合仪表元件");
    return ViewManage::getInstance()->View_CreateGroupMeter();
}

int View_CreateMeter(const View_Meter* rec, unsigned int windowId)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "仪表元件");
    return ViewManage::getInstance()->View_CreateMeter(rec, windowId);
}

int View_MeterUpdateAlarmRange(unsigned int id, int low, int high)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_MeterUpdateAlarmRange(id, low, high);
}

int View_MeterUpdateScaleLabels(unsigned int id, const std::vector<std::string>& labels)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_MeterUpdateScaleLabels(id, labels);
}

int View_MeterUpdateVal(unsigned int id, int value)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_MeterUpdateVal(id, value);
}

// ---- slider

int View_ChangeSliderLabels(unsigned int id, const std::vector<std::string>& labels)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_ChangeSliderLabels(id, labels);
}

int View_ChangeSliderPos(unsigned int id, double value)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_ChangeSliderPos(id, value);
}

int View_CreateSlider(const View_Slider* rec, unsigned int windowId)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "滑块元件");
    return ViewManage::getInstance()->View_CreateSlider(rec, windowId);
}

// ---- pipeline

int View_CreatePipeline(const View_Pipeline* rec, unsigned int windowId)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "管道元件");
    return ViewManage::getInstance()->View_CreatePipeline(rec, windowId);
}

int View_PipelineUpdateDirect(unsigned int id, bool reverse)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_PipelineUpdateDirect(id, reverse);
}

int View_PipelineUpdateFlowShapeColor(unsigned int id, unsigned int color)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_PipelineUpdateFlowShapeColor(id, color);
}

int View_PipelineUpdateFlowrate(unsigned int id, unsigned int rate)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_PipelineUpdateFlowrate(id, rate);
}

// ---- QR code

int View_CreateQRCode(const View_QRCode* rec, unsigned int windowId)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "二维码元件");
    return ViewManage::getInstance()->View_CreateQRCode(rec, windowId);
}

int View_UpdateQRCodeContent(unsigned int id, const char* text)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_UpdateQRCodeContent(id, text);
}

// ---- pie chart and groups

int View_CreateGroup(const View_Group* rec, unsigned int windowId)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "组合元件");
    return ViewManage::getInstance()->View_CreateGroup(rec, windowId);
}

int View_CreateGroupBar()
{
    QGUI_LAYER_LOG("\n\t创建 {}", "组合棒图元件");
    return ViewManage::getInstance()->View_CreateGroupBar();
}

int View_CreateGroupIOList(const View_GroupIOList* rec, unsigned int windowId)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "IO列表组合元件");
    return ViewManage::getInstance()->View_CreateGroupIOList(rec, windowId);
}

int View_CreatePieChart(const View_PieChart* rec, unsigned int windowId)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "饼图元件");
    return ViewManage::getInstance()->View_CreatePieChart(rec, windowId);
}

int View_PieChartUpdateData(unsigned int id, const std::vector<View_ChartChnData>& data)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_PieChartUpdateData(id, data);
}

int View_PieChartUpdateLegendLabels(unsigned int id, const std::vector<std::string>& labels)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_PieChartUpdateLegendLabels(id, labels);
}
