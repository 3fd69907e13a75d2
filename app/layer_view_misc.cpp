// Exports: packages and external devices, file dialog, PDF, placeholders and audio.
// Each export writes one log line and forwards to ViewManage.
#include "app/layerlog.h"
#include "views/viewmanage.h"

#include <qgui/view.h>

// ---- packages, external devices, file dialog

int View_ExtDevEject(int storeNo)
{
    QGUI_LAYER_LOG("");
    return ViewManage::getInstance()->View_ExtDevEject(storeNo);
}

int View_PopupExtDevPlugin(unsigned int id, int storeNo)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_PopupExtDevPlugin(id, storeNo);
}

int View_PopupFileDialog(unsigned int id, const char* path)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_PopupFileDialog(id, path);
}

int View_PopupPKGDownloadCfm(unsigned int id, int storeNo, const char* path)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_PopupPKGDownloadCfm(id, storeNo, path);
}

int View_PopupPKGFileExplorer(unsigned int id, int storeNo)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_PopupPKGFileExplorer(id, storeNo);
}

// ---- PDF viewer and writer, export

int View_ClosePdfWriter(unsigned int id)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_ClosePdfWriter(id);
}

int View_CreatePdf(const View_Pdf* rec, unsigned int windowId)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "PDF元件");
    return ViewManage::getInstance()->View_CreatePdf(rec, windowId);
}

int View_CreatePdfWriter(unsigned int id, const char* path)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "PDF写入器");
    return ViewManage::getInstance()->View_CreatePdfWriter(id, path);
}

int View_Export2File(void* context, std::function<void(void*)> work)
{
    QGUI_LAYER_LOG("");
    return ViewManage::getInstance()->View_Export2File(context, work);
}

int View_PdfSetDisplayMode(unsigned int id, int mode)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_PdfSetDisplayMode(id, mode);
}

int View_PdfSwitchPage(unsigned int id, unsigned int page)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_PdfSwitchPage(id, page);
}

int View_PdfUpdateFile(unsigned int id, const char* path)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_PdfUpdateFile(id, path);
}

int View_PdfZoom(unsigned int id, unsigned int percent)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_PdfZoom(id, percent);
}

int View_Write2Pdf(unsigned int id, const std::vector<std::string>& heads, const std::vector<std::vector<std::string>>& rows, bool newPage)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_Write2Pdf(id, heads, rows, newPage);
}

// ---- cameras, media, remote desktop, web (placeholders where not available), audio

int View_CreateCameraIP(const View_CameraIP* rec, unsigned int windowId)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "网络摄像头元件");
    return ViewManage::getInstance()->View_CreateCameraIP(rec, windowId);
}

int View_CreateCameraUSB(const View_CameraUSB* rec, unsigned int windowId)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "USB摄像头元件");
    return ViewManage::getInstance()->View_CreateCameraUSB(rec, windowId);
}

int View_CreateMediaPlayer(const View_MediaPlayer* rec, unsigned int windowId)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "媒体播放器元件");
    return ViewManage::getInstance()->View_CreateMediaPlayer(rec, windowId);
}

int View_CreateVncClient(const View_VncClient* rec, unsigned int windowId)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "远程桌面元件");
    return ViewManage::getInstance()->View_CreateVncClient(rec, windowId);
}

int View_CreateWebBrowser(const View_WebBrowser* rec, unsigned int windowId)
{
    QGUI_LAYER_LOG("\n\t创建 {}", "网页浏览器元件");
    return ViewManage::getInstance()->View_CreateWebBrowser(rec, windowId);
}

int View_PauseAudio(unsigned int id)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_PauseAudio(id);
}

int View_PlayAudio(unsigned int id, const char* path, unsigned short times)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_PlayAudio(id, path, times);
}

int View_StopAudio(unsigned int id)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_StopAudio(id);
}

int View_VncConnect(unsigned int id, const char* host, const char* password, unsigned short port)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_VncConnect(id, host, password, port);
}

int View_VncDisConnect(unsigned int id)
{
    QGUI_LAYER_LOG("id {}", id);
    return ViewManage::getInstance()->View_VncDisConnect(id);
}
