#include "ftpupload.h"

#include <cstdio>
#include <string>

#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace FtpUpload {
namespace {

const unsigned char kClient = 1;
const unsigned short kPort = 2121;
const unsigned kStatus = 830;
bool g_serving = false;
std::string g_line = "FTP: starting";
Font g_font { nullptr, 15, 400, 0, 0, 0, 0, 0xFF1F5FAFu, 0 };

void show(const std::string& line)
{
    g_line = line;
    View_ChangeTextContent(kStatus, g_line.c_str(), nullptr); // ignored while the screen is closed
    std::printf("demo: %s\n", line.c_str());
}

const char* errorText(int error)
{
    switch (error) {
    case FTP_OK: return "done";
    case FTP_ERR_CONNECT: return "server not reachable";
    case FTP_ERR_LOGIN: return "login refused";
    case FTP_ERR_TIMEOUT: return "timed out";
    case FTP_ERR_REMOTE_MISSING: return "no such remote file";
    case FTP_ERR_EXISTS: return "already there";
    case FTP_ERR_LOCAL: return "local file unreadable";
    case FTP_ERR_TRANSFER: return "connection lost";
    case FTP_ERR_CANCELLED: return "cancelled";
    case FTP_ERR_REFUSED: return "refused by the server";
    default: return "failed";
    }
}

} // namespace

void start()
{
    // the drop folder: the server's anonymous account may write there and nowhere else
    const std::string drop = std::string("demo-project/") + getStorePath(STORE_HMI) + "ftp-in";
    ::mkdir(drop.c_str(), 0755);
    if (const passwd* ftp = ::getpwnam("ftp"))
        (void)::chown(drop.c_str(), ftp->pw_uid, ftp->pw_gid);
    FtpServerPrm server {};
    server.enable = 1;
    server.anonymous = 1;
    server.readOnly = 0;
    server.port = kPort;
    server.maxClients = 4;
    server.rootPath = nullptr; // the project's storage folders
    if (Ftp_ConfigServer(server) != 0) {
        show("FTP: no local server (vsftpd missing or not root): nothing is uploaded");
        return;
    }
    g_serving = true;
    FtpClientPrm client {};
    client.client = kClient;
    client.passive = 1;
    client.port = kPort;
    client.host = "127.0.0.1";
    client.timeoutMs = 5000;
    Ftp_Connect(client);
}

void build(unsigned windowId)
{
    View_Text status { 0, Rect { 630, 6, 390, 28 }, kStatus, g_line.c_str(), &g_font, nullptr };
    View_CreateText(&status, windowId);
}

bool onEvent(unsigned id, int code, void* data)
{
    if (code == EVT_FILE_DIALOG) {
        if (!g_serving || !data)
            return false;
        const std::string path = static_cast<const char*>(data);
        const std::string name = path.substr(path.find_last_of('/') + 1);
        const std::string remote = "hmi/ftp-in/" + name;
        if (Ftp_Put(kClient, path.c_str(), remote.c_str(), true) == 0)
            show("FTP: uploading " + name + " to 127.0.0.1:2121 ...");
        return false; // the dialog's own handling goes on
    }
    if (code == EVT_FTP_STATE && id == kClient && data) {
        static const char* const states[] = { "disconnected", "connecting", "connected", "failed" };
        const int s = *static_cast<int*>(data);
        show(std::string("FTP 127.0.0.1:2121: ") + (s >= 0 && s <= 3 ? states[s] : "?"));
        return true;
    }
    if (code == EVT_FTP_RESULT && id == kClient && data) {
        const auto* r = static_cast<View_EvtFtpResult*>(data);
        if (r->command == FTP_CMD_PUT) {
            long long done = 0;
            Ftp_TransferProgress(kClient, &done, nullptr);
            char line[200];
            std::snprintf(line, sizeof(line), "FTP upload %s: %s (%lld bytes)", r->remotePath, errorText(r->error),
                done);
            show(line);
        }
        return true;
    }
    return false;
}

} // namespace FtpUpload
