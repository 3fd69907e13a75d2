// Exports: sample curve charts.
// Each export writes one log line and forwards to its ViewManage method (views/viewmanage_curvesample.cpp).
#include "app/layerlog.h"

#include <qgui/view.h>

int View_CreateCurveSample(const View_CurveSample* rec, unsigned int windowId)
{
    return QGUI_CREATE("采样曲线元件", View_CreateCurveSample, rec, windowId);
}

int View_CurveHideChannel(unsigned int id, unsigned int channel, bool hide)
{
    return QGUI_FORWARD(info, "id", View_CurveHideChannel, id, channel, hide);
}

int View_CurveSampleChangeDispNum(unsigned int id, unsigned int count)
{
    return QGUI_FORWARD(info, "id", View_CurveSampleChangeDispNum, id, count);
}

int View_CurveSampleClearData(unsigned int id, const std::vector<unsigned int>& channels)
{
    return QGUI_FORWARD(info, "id", View_CurveSampleClearData, id, channels);
}

int View_CurveSampleInit(unsigned int id, const std::string& text)
{
    return QGUI_FORWARD(info, "id", View_CurveSampleInit, id, text);
}

int View_CurveSamplePopData(unsigned int id, unsigned int count)
{
    return QGUI_FORWARD(trace, "id", View_CurveSamplePopData, id, count);
}

int View_CurveSamplePushData(
    unsigned int id, const std::vector<std::string>& labels, const std::vector<std::vector<double>>& values)
{
    return QGUI_FORWARD(trace, "id", View_CurveSamplePushData, id, labels, values);
}

int View_CurveSampleScale(unsigned int id, unsigned int percent, unsigned int reserved)
{
    return QGUI_FORWARD(info, "id", View_CurveSampleScale, id, percent, reserved);
}

int View_CurveSampleUpdateData(unsigned int id, const std::vector<unsigned int>& channels,
    const std::vector<std::string>& labels, const std::vector<std::vector<double>>& values,
    unsigned int start, bool last)
{
    return QGUI_FORWARD(trace, "id", View_CurveSampleUpdateData, id, channels, labels, values, start, last);
}

int View_CurveSampleUpdateDataLabel(unsigned int id, const std::vector<std::string>& labels)
{
    return QGUI_FORWARD(trace, "id", View_CurveSampleUpdateDataLabel, id, labels);
}

int View_CurveSampleUpdateDataLimit(unsigned int id, int dataType, unsigned char decimals, double* limits)
{
    return QGUI_FORWARD(trace, "id", View_CurveSampleUpdateDataLimit, id, dataType, decimals, limits);
}
