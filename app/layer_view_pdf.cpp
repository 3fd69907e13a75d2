// Exports: PDF viewer and writer, export to file.
// Each export writes one log line and forwards to its ViewManage method (views/viewmanage_pdf.cpp).
#include "app/layerlog.h"

#include <qgui/view.h>

int View_ClosePdfWriter(unsigned int id)
{
    return QGUI_FORWARD(info, "id", View_ClosePdfWriter, id);
}

int View_CreatePdf(const View_Pdf* rec, unsigned int windowId)
{
    return QGUI_CREATE("PDF元件", View_CreatePdf, rec, windowId);
}

int View_CreatePdfWriter(unsigned int id, const char* path)
{
    return QGUI_CREATE("PDF写入器", View_CreatePdfWriter, id, path);
}

int View_Export2File(void* context, std::function<void(void*)> work)
{
    return QGUI_FORWARD(info, nullptr, View_Export2File, context, work);
}

int View_PdfSetDisplayMode(unsigned int id, int mode)
{
    return QGUI_FORWARD(info, "id", View_PdfSetDisplayMode, id, mode);
}

int View_PdfSwitchPage(unsigned int id, unsigned int page)
{
    return QGUI_FORWARD(info, "id", View_PdfSwitchPage, id, page);
}

int View_PdfUpdateFile(unsigned int id, const char* path)
{
    return QGUI_FORWARD(info, "id", View_PdfUpdateFile, id, path);
}

int View_PdfZoom(unsigned int id, unsigned int percent)
{
    return QGUI_FORWARD(info, "id", View_PdfZoom, id, percent);
}

int View_Write2Pdf(unsigned int id, const std::vector<std::string>& heads,
    const std::vector<std::vector<std::string>>& rows, bool newPage)
{
    return QGUI_FORWARD(info, "id", View_Write2Pdf, id, heads, rows, newPage);
}
