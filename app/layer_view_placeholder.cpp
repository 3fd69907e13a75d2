// Exports: cameras, media player, remote desktop, web browser (placeholders) and audio.
// Each export writes one log line and forwards to its ViewManage method (views/viewmanage_placeholder.cpp).
#include "app/layerlog.h"

#include <qgui/view.h>

int View_CreateCameraIP(const View_CameraIP* rec, unsigned int windowId)
{
    return QGUI_CREATE("网络摄像头元件", View_CreateCameraIP, rec, windowId);
}

int View_CreateCameraUSB(const View_CameraUSB* rec, unsigned int windowId)
{
    return QGUI_CREATE("USB摄像头元件", View_CreateCameraUSB, rec, windowId);
}

int View_CreateMediaPlayer(const View_MediaPlayer* rec, unsigned int windowId)
{
    return QGUI_CREATE("媒体播放器元件", View_CreateMediaPlayer, rec, windowId);
}

int View_CreateVncClient(const View_VncClient* rec, unsigned int windowId)
{
    return QGUI_CREATE("远程桌面元件", View_CreateVncClient, rec, windowId);
}

int View_CreateWebBrowser(const View_WebBrowser* rec, unsigned int windowId)
{
    return QGUI_CREATE("网页浏览器元件", View_CreateWebBrowser, rec, windowId);
}

int View_PauseAudio(unsigned int id)
{
    return QGUI_FORWARD(info, "id", View_PauseAudio, id);
}

int View_PlayAudio(unsigned int id, const char* path, unsigned short times)
{
    return QGUI_FORWARD(info, "id", View_PlayAudio, id, path, times);
}

int View_StopAudio(unsigned int id)
{
    return QGUI_FORWARD(info, "id", View_StopAudio, id);
}

int View_VncConnect(unsigned int id, const char* host, const char* password, unsigned short port)
{
    return QGUI_FORWARD(info, "id", View_VncConnect, id, host, password, port);
}

int View_VncDisConnect(unsigned int id)
{
    return QGUI_FORWARD(info, "id", View_VncDisConnect, id);
}
