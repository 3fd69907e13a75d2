// Exports: pipelines.
// Each export writes one log line and forwards to its ViewManage method (views/viewmanage_pipeline.cpp).
#include "app/layerlog.h"

#include <qgui/view.h>

int View_CreatePipeline(const View_Pipeline* rec, unsigned int windowId)
{
    return QGUI_CREATE("管道元件", View_CreatePipeline, rec, windowId);
}

int View_PipelineUpdateDirect(unsigned int id, bool reverse)
{
    return QGUI_FORWARD(trace, "id", View_PipelineUpdateDirect, id, reverse);
}

int View_PipelineUpdateFlowShapeColor(unsigned int id, unsigned int color)
{
    return QGUI_FORWARD(trace, "id", View_PipelineUpdateFlowShapeColor, id, color);
}

int View_PipelineUpdateFlowrate(unsigned int id, unsigned int rate)
{
    return QGUI_FORWARD(trace, "id", View_PipelineUpdateFlowrate, id, rate);
}
