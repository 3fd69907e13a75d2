// Exports: QR codes.
// Each export writes one log line and forwards to its ViewManage method (views/viewmanage_qrcode.cpp).
#include "app/layerlog.h"

#include <qgui/view.h>

int View_CreateQRCode(const View_QRCode* rec, unsigned int windowId)
{
    return QGUI_CREATE("二维码元件", View_CreateQRCode, rec, windowId);
}

int View_UpdateQRCodeContent(unsigned int id, const char* text)
{
    return QGUI_FORWARD(trace, "id", View_UpdateQRCodeContent, id, text);
}
