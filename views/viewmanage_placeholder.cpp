// Widget kinds this panel cannot show (cameras, media player, remote desktop,
// web browser, pie chart): a placeholder takes their place and their calls are
// accepted without effect. A remote-desktop connection reports that it failed.
#include "views/viewmanage.h"

#include "platform/logiclayercaller.h"

#include <qgui/events.h>

int ViewManage::View_CreateCameraIP(const View_CameraIP* rec, unsigned int windowId)
{
    return createPlaceholder(rec, windowId, "Camera");
}

int ViewManage::View_CreateCameraUSB(const View_CameraUSB* rec, unsigned int windowId)
{
    return createPlaceholder(rec, windowId, "USB camera");
}

int ViewManage::View_CreateMediaPlayer(const View_MediaPlayer* rec, unsigned int windowId)
{
    return createPlaceholder(rec, windowId, "Media player");
}

int ViewManage::View_CreateVncClient(const View_VncClient* rec, unsigned int windowId)
{
    return createPlaceholder(rec, windowId, "Remote desktop");
}

int ViewManage::View_CreateWebBrowser(const View_WebBrowser* rec, unsigned int windowId)
{
    return createPlaceholder(rec, windowId, "Web browser");
}

int ViewManage::View_PlayAudio(unsigned int, const char*, unsigned short)
{
    return 0;
}

int ViewManage::View_PauseAudio(unsigned int)
{
    return 0;
}

int ViewManage::View_StopAudio(unsigned int)
{
    return 0;
}

int ViewManage::View_VncConnect(unsigned int id, const char*, const char*, unsigned short)
{
    if (!getItemById(id))
        return -1;
    int state = VNC_FAILED; // no remote-desktop client on this panel
    LogicLayerCaller::call(id, EVT_VNC_STATE, &state);
    return 0;
}

int ViewManage::View_VncDisConnect(unsigned int id)
{
    if (!getItemById(id))
        return -1;
    int state = VNC_DISCONNECTED;
    LogicLayerCaller::call(id, EVT_VNC_STATE, &state);
    return 0;
}
