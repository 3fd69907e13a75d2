// History search of the sample curve charts: not built yet. Every call is accepted and changes nothing: the
// creators create nothing and return -1 (as for an unknown window); the other
// calls return what they return for an unknown id.
#include "views/viewmanage.h"

int ViewManage::View_CurveSampleResumeRealMode(unsigned int)
{
    return -1;
}

int ViewManage::View_CurveSampleSetSearchMode(unsigned int, bool)
{
    return -1;
}

int ViewManage::View_RestoreCurveSampleSearchState(unsigned int)
{
    return -1;
}
