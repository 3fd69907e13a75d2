// PDF viewer and writer: not built yet. Every call is accepted and changes nothing: the creators
// create nothing and return -1 (as for an unknown window); the other calls return what they
// return for an unknown id. Export to file runs the logic layer's work on a worker thread.
#include "views/viewmanage.h"

#include <QThreadPool>

int ViewManage::View_ClosePdfWriter(unsigned int)
{
    return -1;
}

int ViewManage::View_CreatePdf(const View_Pdf*, unsigned int)
{
    return -1;
}

int ViewManage::View_CreatePdfWriter(unsigned int, const char*)
{
    return -1;
}

int ViewManage::View_Export2File(void* context, std::function<void(void*)> work)
{
    // the logic layer's own file export: run on the global pool, never on the GUI thread
    if (!work)
        return -1;
    QThreadPool::globalInstance()->start([context, work = std::move(work)]() { work(context); });
    return 0;
}

int ViewManage::View_PdfSetDisplayMode(unsigned int, int)
{
    return -1;
}

int ViewManage::View_PdfSwitchPage(unsigned int, unsigned int)
{
    return -1;
}

int ViewManage::View_PdfUpdateFile(unsigned int, const char*)
{
    return -1;
}

int ViewManage::View_PdfZoom(unsigned int, unsigned int)
{
    return -1;
}

int ViewManage::View_Write2Pdf(
    unsigned int, const std::vector<std::string>&, const std::vector<std::vector<std::string>>&, bool)
{
    return -1;
}
