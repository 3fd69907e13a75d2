// Exports: the FTP client family.
#include "app/layerlog.h"
#include "platform/guiqtadaptcore.h"
#include "utils/ftpclientmanage.h"

#include <qgui/ftp.h>

int Ftp_ConfigServer(const FtpServerPrm& prm)
{
    QGUI_LAYER_LOG("enable {}", int(prm.enable));
    return -1; // no FTP server runs on the panel
}

int Ftp_Connect(const FtpClientPrm& prm)
{
    QGUI_LAYER_LOG("client {}", int(prm.client));
    FtpClientManage::Client c;
    c.host = GuiQtAdapt::Core::fromUtf8(prm.host);
    c.port = prm.port ? prm.port : 21;
    c.user = GuiQtAdapt::Core::fromUtf8(prm.user);
    c.password = GuiQtAdapt::Core::fromUtf8(prm.password);
    c.timeoutMs = prm.timeoutMs > 0 ? prm.timeoutMs : 15000;
    return FtpClientManage::getInstance()->connectClient(prm.client, c);
}

int Ftp_CheckState(unsigned char client)
{
    QGUI_LAYER_TRACE("client {}", int(client));
    return FtpClientManage::getInstance()->state(client);
}

int Ftp_DisConnect(unsigned char client, bool wait)
{
    QGUI_LAYER_LOG("client {} wait {}", int(client), wait);
    return FtpClientManage::getInstance()->disconnectClient(client);
}

int Ftp_Put(unsigned char client, const char* localPath, const char* remotePath, bool overwrite)
{
    QGUI_LAYER_LOG("client {}", int(client));
    return FtpClientManage::getInstance()->put(
        client, GuiQtAdapt::Core::fromUtf8(localPath), GuiQtAdapt::Core::fromUtf8(remotePath), overwrite);
}

int Ftp_Pull(unsigned char client, const char* localPath, const char* remotePath, bool overwrite)
{
    QGUI_LAYER_LOG("client {}", int(client));
    return FtpClientManage::getInstance()->pull(
        client, GuiQtAdapt::Core::fromUtf8(localPath), GuiQtAdapt::Core::fromUtf8(remotePath), overwrite);
}

int removeClient(unsigned char client)
{
    QGUI_LAYER_LOG("client {}", int(client));
    return FtpClientManage::getInstance()->removeClient(client);
}
