// Sample curve charts: not built yet. Every call is accepted and changes nothing: the
// creators create nothing and return -1 (as for an unknown window); the other
// calls return what they return for an unknown id.
#include "views/viewmanage.h"

int ViewManage::View_CreateCurveSample(const View_CurveSample*, unsigned int)
{
    return -1;
}

int ViewManage::View_CurveHideChannel(unsigned int, unsigned int, bool)
{
    return -1;
}

int ViewManage::View_CurveSampleChangeDispNum(unsigned int, unsigned int)
{
    return 0;
}

int ViewManage::View_CurveSampleClearData(unsigned int, const std::vector<unsigned int>&)
{
    return 0;
}

int ViewManage::View_CurveSampleInit(unsigned int, const std::string&)
{
    return 0;
}

int ViewManage::View_CurveSamplePopData(unsigned int, unsigned int)
{
    return 0;
}

int ViewManage::View_CurveSamplePushData(
    unsigned int, const std::vector<std::string>&, const std::vector<std::vector<double>>&)
{
    return 0;
}

int ViewManage::View_CurveSampleScale(unsigned int, unsigned int, unsigned int)
{
    return 0;
}

int ViewManage::View_CurveSampleUpdateData(unsigned int, const std::vector<unsigned int>&,
    const std::vector<std::string>&, const std::vector<std::vector<double>>&, unsigned int, bool)
{
    return 0;
}

int ViewManage::View_CurveSampleUpdateDataLabel(unsigned int, const std::vector<std::string>&)
{
    return 0;
}

int ViewManage::View_CurveSampleUpdateDataLimit(unsigned int, int, unsigned char, double*)
{
    return 0;
}
