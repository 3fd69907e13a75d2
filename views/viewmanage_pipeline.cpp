// Pipelines: not built yet. Every call is accepted and changes nothing: the
// creators create nothing and return -1 (as for an unknown window); the other
// calls return what they return for an unknown id.
#include "views/viewmanage.h"

int ViewManage::View_CreatePipeline(const View_Pipeline*, unsigned int)
{
    return -1;
}

int ViewManage::View_PipelineUpdateDirect(unsigned int, bool)
{
    return -1;
}

int ViewManage::View_PipelineUpdateFlowShapeColor(unsigned int, unsigned int)
{
    return -1;
}

int ViewManage::View_PipelineUpdateFlowrate(unsigned int, unsigned int)
{
    return -1;
}
