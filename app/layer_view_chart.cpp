// Exports: sample and XY curve charts, history search, cursor.
// Each export writes one log line and forwards to ViewManage.
#include "app/layerlog.h"
#include "views/viewmanage.h"

#include <qgui/view.h>

// ---- sample curve chart

int View_CreateCurveSample(const View_CurveSample* rec, unsigned int windowId)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "采样曲线元件");
    return ViewManage::getInstance()->View_CreateCurveSample(rec, windowId);
}

int View_CurveHideChannel(unsigned int id, unsigned int channel, bool hide)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_CurveHideChannel(id, channel, hide);
}

int View_CurveSampleChangeDispNum(unsigned int id, unsigned int count)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_CurveSampleChangeDispNum(id, count);
}

int View_CurveSampleClearData(unsigned int id, const std::vector<unsigned int>& channels)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_CurveSampleClearData(id, channels);
}

int View_CurveSampleInit(unsigned int id, const std::string& text)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_CurveSampleInit(id, text);
}

int View_CurveSamplePopData(unsigned int id, unsigned int count)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_CurveSamplePopData(id, count);
}

int View_CurveSamplePushData(unsigned int id, const std::vector<std::string>& labels, const std::vector<std::vector<double>>& values)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_CurveSamplePushData(id, labels, values);
}

int View_CurveSampleScale(unsigned int id, unsigned int percent, unsigned int reserved)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_CurveSampleScale(id, percent, reserved);
}

int View_CurveSampleUpdateData(unsigned int id, const std::vector<unsigned int>& channels, const std::vector<std::string>& labels, const std::vector<std::vector<double>>& values, unsigned int start, bool last)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_CurveSampleUpdateData(id, channels, labels, values, start, last);
}

int View_CurveSampleUpdateDataLabel(unsigned int id, const std::vector<std::string>& labels)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_CurveSampleUpdateDataLabel(id, labels);
}

int View_CurveSampleUpdateDataLimit(unsigned int id, int dataType, unsigned char decimals, double* limits)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_CurveSampleUpdateDataLimit(id, dataType, decimals, limits);
}

// ---- curve history search

int View_CurveSampleResumeRealMode(unsigned int id)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_CurveSampleResumeRealMode(id);
}

int View_CurveSampleSetSearchMode(unsigned int id, bool on)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_CurveSampleSetSearchMode(id, on);
}

int View_RestoreCurveSampleSearchState(unsigned int id)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_RestoreCurveSampleSearchState(id);
}

// ---- XY curve

int View_CreateCurveXy(const View_CurveXy* rec, unsigned int windowId)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "XY曲线元件");
    return ViewManage::getInstance()->View_CreateCurveXy(rec, windowId);
}

int View_CurveXyClearData(unsigned int id, const std::vector<unsigned int>& channels)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_CurveXyClearData(id, channels);
}

int View_CurveXyShowCursor()
{
    QGUI_LAYER_LOG("");
    return ViewManage::getInstance()->View_CurveXyShowCursor();
}

int View_CurveXyUpdateData(unsigned int id, const std::vector<unsigned int>& channels, const std::vector<std::list<FPoint>>& points)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_CurveXyUpdateData(id, channels, points);
}

int View_CurveXyUpdateXLabel(unsigned int id, const std::vector<std::string>& labels)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_CurveXyUpdateXLabel(id, labels);
}

int View_CurveXyUpdateYLabel(unsigned int id, const std::vector<std::string>& labels)
{
    QGUI_LAYER_TRACE("id {}", id);
    return ViewManage::getInstance()->View_CurveXyUpdateYLabel(id, labels);
}

// ---- curve cursor

int View_CurveEnableCursor(unsigned int id, bool enable)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_CurveEnableCursor(id, enable);
}

int View_CurveSampleShowCursor(unsigned int id, const std::string& title, const std::vector<std::pair<unsigned short, std::string> >& rows)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_CurveSampleShowCursor(id, title, rows);
}

int View_CurveUpdateCursorContent(unsigned int id, const char* title, const std::vector<std::vector<View_ListColData>>& rows)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_CurveUpdateCursorContent(id, title, rows);
}

int View_CurveUpdateCursorParams(unsigned int id, const std::vector<View_Text>& heads, const std::vector<Font*>& fonts)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_CurveUpdateCursorParams(id, heads, fonts);
}

int View_CurveUpdateCursorTitle(unsigned int id, const View_Text& title)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_CurveUpdateCursorTitle(id, title);
}
