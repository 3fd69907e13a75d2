#include "utils/ftpclient.h"

#include <algorithm>

#include "platform/nlogger.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUrl>

#include <qgui/events.h>

#include <curl/curl.h>

#include <cstdio>
#include <sys/stat.h>

namespace {

constexpr long kBufferBytes = 512 * 1024;

struct StdFile {
    FILE* f = nullptr;
    ~StdFile()
    {
        if (f)
            std::fclose(f);
    }
};

FILE* openFile(const QString& path, const char* mode)
{
    FILE* f = std::fopen(QFile::encodeName(path).constData(), mode);
    if (f)
        std::setvbuf(f, nullptr, _IOFBF, kBufferBytes);
    return f;
}

size_t discard(char*, size_t size, size_t n, void*)
{
    return size * n;
}

size_t writeFile(char* data, size_t size, size_t n, void* file)
{
    return std::fwrite(data, size, n, static_cast<FILE*>(file));
}

long seconds(int ms)
{
    return qMax(1L, long((ms + 999) / 1000));
}

} // namespace

FtpClient::FtpClient(const Settings& settings, QObject* parent)
    : QObject(parent)
    , m_settings(settings)
{
    static const bool once = curl_global_init(CURL_GLOBAL_DEFAULT) == CURLE_OK; // before any thread uses curl
    Q_UNUSED(once)
    m_thread = std::thread([this]() { run(); });
}

FtpClient::~FtpClient()
{
    cancelAll();
    stop();
    if (m_thread.joinable())
        m_thread.join();
}

void FtpClient::stop()
{
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_stop = true;
    }
    m_wake.notify_all();
}

void FtpClient::submit(const Job& job)
{
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_queue.push_back(job);
    }
    m_wake.notify_one();
}

std::deque<FtpClient::Job> FtpClient::cancelAll()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    std::deque<Job> out;
    out.swap(m_queue);
    if (m_busy && !m_cancel.load()) {
        out.push_front(m_current);
        m_cancel = true;
    }
    return out;
}

bool FtpClient::waitIdle(int ms)
{
    std::unique_lock<std::mutex> lock(m_mutex);
    return m_idle.wait_for(lock, std::chrono::milliseconds(ms), [this]() { return !m_busy && m_queue.empty(); });
}

bool FtpClient::progress(qint64* done, qint64* total) const
{
    if (done)
        *done = m_done.load();
    if (total)
        *total = m_total.load();
    if (m_running.load())
        return true;
    // a transfer accepted but not yet moving (queued, or checking the remote side) runs already
    // for the caller: answering "none" then would let it touch the local file too early
    auto isTransfer = [](const Job& job) { return job.command == FTP_CMD_PUT || job.command == FTP_CMD_PULL; };
    std::lock_guard<std::mutex> lock(m_mutex);
    return (m_busy && isTransfer(m_current)) || std::any_of(m_queue.begin(), m_queue.end(), isTransfer);
}

QByteArray FtpClient::url(const QString& remote) const
{
    QByteArray u = "ftp://";
    const QString host = m_settings.host.trimmed();
    QByteArray name = QUrl::toAce(host);
    if (name.isEmpty()) // addresses and names toAce refuses go to curl as they are
        name = host.toUtf8();
    u += host.contains(QLatin1Char(':')) ? '[' + name + ']' : name; // an IPv6 address in brackets
    u += ':' + QByteArray::number(m_settings.port) + '/';
    QString path = remote;
    if (path.startsWith(QLatin1Char('/')))
        u += "%2F"; // absolute on the server: curl starts from the log-in folder otherwise
    while (path.startsWith(QLatin1Char('/')))
        path.remove(0, 1);
    u += QUrl::toPercentEncoding(path, "/");
    return u;
}

void FtpClient::run()
{
    for (;;) {
        {
            std::unique_lock<std::mutex> lock(m_mutex);
            m_busy = false;
            m_idle.notify_all();
            m_wake.wait(lock, [this]() { return m_stop || !m_queue.empty(); });
            if (m_stop)
                break;
            m_current = m_queue.front();
            m_queue.pop_front();
            m_busy = true;
            m_cancel = false;
        }
        const Job job = m_current;
        const int error = execute(job);
        std::lock_guard<std::mutex> lock(m_mutex);
        if (m_cancel)
            continue; // taken back by cancelAll(), which answered it
        if (job.command != FTP_CMD_DISCONNECT) {
            if (error == FTP_OK)
                emit connectionChanged(true);
            else if (error == FTP_ERR_CONNECT || error == FTP_ERR_LOGIN || error == FTP_ERR_TIMEOUT
                || error == FTP_ERR_TRANSFER)
                emit connectionChanged(false);
        }
        emit finished(job.command, error, job.local, job.remote);
    }
    closeConnection();
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_busy = false;
        m_idle.notify_all();
    }
    emit stopped();
}

int FtpClient::execute(const Job& job)
{
    switch (job.command) {
    case FTP_CMD_CONNECT:
        return connectToServer();
    case FTP_CMD_PUT:
        return put(job);
    case FTP_CMD_PULL:
        return pull(job);
    case FTP_CMD_DISCONNECT:
        closeConnection();
        return FTP_OK;
    default:
        return FTP_ERR_OTHER;
    }
}

void FtpClient::prepare(const QByteArray& url)
{
    if (!m_curl)
        m_curl = curl_easy_init();
    else
        curl_easy_reset(m_curl); // keeps the open connection
    CURL* c = static_cast<CURL*>(m_curl);
    const int t = qMax(1, m_settings.timeoutMs);
    curl_easy_setopt(c, CURLOPT_URL, url.constData());
    curl_easy_setopt(c, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(c, CURLOPT_PROTOCOLS_STR, "ftp");
    if (!m_settings.user.isEmpty()) {
        curl_easy_setopt(c, CURLOPT_USERNAME, m_settings.user.constData());
        curl_easy_setopt(c, CURLOPT_PASSWORD, m_settings.password.constData());
    }
    curl_easy_setopt(c, CURLOPT_CONNECTTIMEOUT_MS, long(t));
    curl_easy_setopt(c, CURLOPT_SERVER_RESPONSE_TIMEOUT, seconds(t));
    curl_easy_setopt(c, CURLOPT_ACCEPTTIMEOUT_MS, long(t));
    curl_easy_setopt(c, CURLOPT_LOW_SPEED_LIMIT, 1L);
    curl_easy_setopt(c, CURLOPT_LOW_SPEED_TIME, seconds(t));
    if (!m_settings.passive)
        curl_easy_setopt(c, CURLOPT_FTPPORT, "-"); // active: the server connects to the control connection's address
    curl_easy_setopt(c, CURLOPT_BUFFERSIZE, kBufferBytes);
    curl_easy_setopt(c, CURLOPT_UPLOAD_BUFFERSIZE, kBufferBytes);
    curl_easy_setopt(c, CURLOPT_WRITEFUNCTION, &discard); // what a probe answers is not wanted
    curl_easy_setopt(c, CURLOPT_HEADERFUNCTION, &discard);
    curl_easy_setopt(c, CURLOPT_NOPROGRESS, 0L);
    curl_easy_setopt(c, CURLOPT_XFERINFOFUNCTION, &FtpClient::xferInfo);
    curl_easy_setopt(c, CURLOPT_XFERINFODATA, this);
}

int FtpClient::xferInfo(void* self, long long dlTotal, long long dlNow, long long ulTotal, long long ulNow)
{
    auto* me = static_cast<FtpClient*>(self);
    me->m_done = dlNow + ulNow;
    if (dlTotal + ulTotal > 0)
        me->m_total = dlTotal + ulTotal;
    return me->m_cancel.load() ? 1 : 0;
}

int FtpClient::perform()
{
    const CURLcode rc = curl_easy_perform(static_cast<CURL*>(m_curl));
    if (rc != CURLE_OK && !m_cancel.load()) {
        NLog::NLogger::instance()->logger()->warn(
            "ftp {}:{}: {}", m_settings.host.toStdString(), m_settings.port, curl_easy_strerror(rc));
    }
    return int(rc);
}

int FtpClient::mapError(int curlCode, int command)
{
    switch (CURLcode(curlCode)) {
    case CURLE_OK:
        return FTP_OK;
    case CURLE_COULDNT_RESOLVE_HOST:
    case CURLE_COULDNT_CONNECT:
    case CURLE_FTP_WEIRD_SERVER_REPLY:
    case CURLE_URL_MALFORMAT:
        return FTP_ERR_CONNECT;
    case CURLE_LOGIN_DENIED:
        return FTP_ERR_LOGIN;
    case CURLE_OPERATION_TIMEDOUT:
    case CURLE_FTP_ACCEPT_TIMEOUT:
        return FTP_ERR_TIMEOUT;
    case CURLE_REMOTE_FILE_NOT_FOUND:
    case CURLE_FTP_COULDNT_RETR_FILE:
        return FTP_ERR_REMOTE_MISSING;
    case CURLE_REMOTE_ACCESS_DENIED: // a folder on the path could not be entered (or made)
        return command == FTP_CMD_PULL ? FTP_ERR_REMOTE_MISSING : FTP_ERR_REFUSED;
    case CURLE_UPLOAD_FAILED:
    case CURLE_QUOTE_ERROR:
    case CURLE_REMOTE_DISK_FULL:
        return FTP_ERR_REFUSED;
    case CURLE_READ_ERROR:
    case CURLE_WRITE_ERROR:
    case CURLE_FILE_COULDNT_READ_FILE:
        return FTP_ERR_LOCAL;
    case CURLE_PARTIAL_FILE:
    case CURLE_RECV_ERROR:
    case CURLE_SEND_ERROR:
    case CURLE_GOT_NOTHING:
    case CURLE_FTP_ACCEPT_FAILED:
    case CURLE_FTP_PORT_FAILED:
    case CURLE_FTP_CANT_GET_HOST:
    case CURLE_FTP_WEIRD_PASV_REPLY:
    case CURLE_FTP_WEIRD_227_FORMAT:
        return FTP_ERR_TRANSFER;
    case CURLE_ABORTED_BY_CALLBACK:
        return FTP_ERR_CANCELLED;
    default:
        return FTP_ERR_OTHER;
    }
}

int FtpClient::connectToServer()
{
    prepare(url(QString()));
    curl_easy_setopt(static_cast<CURL*>(m_curl), CURLOPT_NOBODY, 1L); // log in, nothing listed
    return mapError(perform(), FTP_CMD_CONNECT);
}

int FtpClient::remoteExists(const QString& remote, bool* exists)
{
    prepare(url(remote));
    CURL* c = static_cast<CURL*>(m_curl);
    curl_easy_setopt(c, CURLOPT_NOBODY, 1L); // SIZE of the file
    const int rc = perform();
    *exists = rc == CURLE_OK;
    if (rc == CURLE_OK || rc == CURLE_REMOTE_FILE_NOT_FOUND || rc == CURLE_REMOTE_ACCESS_DENIED
        || rc == CURLE_FTP_COULDNT_RETR_FILE)
        return FTP_OK; // missing file or missing folder: the put may go on
    return mapError(rc, FTP_CMD_PUT);
}

int FtpClient::put(const Job& job)
{
    m_done = 0;
    m_total = 0;
    StdFile in;
    in.f = openFile(job.local, "rb");
    struct stat st {};
    if (!in.f || fstat(fileno(in.f), &st) != 0 || !S_ISREG(st.st_mode))
        return FTP_ERR_LOCAL;
    if (!job.overwrite) {
        bool exists = false;
        const int e = remoteExists(job.remote, &exists);
        if (e != FTP_OK)
            return e;
        if (exists)
            return FTP_ERR_EXISTS;
    }
    m_total = qint64(st.st_size);
    m_running = true;
    prepare(url(job.remote));
    CURL* c = static_cast<CURL*>(m_curl);
    curl_easy_setopt(c, CURLOPT_UPLOAD, 1L);
    curl_easy_setopt(c, CURLOPT_READDATA, in.f);
    curl_easy_setopt(c, CURLOPT_INFILESIZE_LARGE, curl_off_t(st.st_size));
    curl_easy_setopt(c, CURLOPT_FTP_CREATE_MISSING_DIRS, long(CURLFTP_CREATE_DIR_RETRY));
    const int rc = perform();
    m_running = false;
    if (rc == CURLE_OK)
        m_done = qint64(st.st_size);
    return mapError(rc, FTP_CMD_PUT);
}

int FtpClient::pull(const Job& job)
{
    m_done = 0;
    m_total = 0;
    const QFileInfo target(job.local);
    if (!QDir().mkpath(target.absolutePath()))
        return FTP_ERR_LOCAL;
    const QString part = job.local + QStringLiteral(".part");
    int error = FTP_OK;
    {
        StdFile out;
        out.f = openFile(part, "wb");
        if (!out.f)
            return FTP_ERR_LOCAL;
        m_running = true;
        prepare(url(job.remote));
        CURL* c = static_cast<CURL*>(m_curl);
        curl_easy_setopt(c, CURLOPT_WRITEFUNCTION, &writeFile);
        curl_easy_setopt(c, CURLOPT_WRITEDATA, out.f);
        error = mapError(perform(), FTP_CMD_PULL);
        m_running = false;
        if (std::fflush(out.f) != 0 && error == FTP_OK)
            error = FTP_ERR_LOCAL;
    }
    if (error == FTP_OK) {
        // the same answer to the same question as at the call: an existing file is kept without overwrite
        if (m_cancel.load())
            error = FTP_ERR_CANCELLED; // taken back meanwhile: the answer was "cancelled", so nothing is placed
        else if (!job.overwrite && QFileInfo::exists(job.local))
            error = FTP_ERR_EXISTS;
        else if (std::rename(QFile::encodeName(part).constData(), QFile::encodeName(job.local).constData()) != 0)
            error = FTP_ERR_LOCAL;
    }
    if (error != FTP_OK)
        QFile::remove(part);
    return error;
}

void FtpClient::closeConnection()
{
    if (m_curl) {
        curl_easy_cleanup(static_cast<CURL*>(m_curl)); // says QUIT on an open connection
        m_curl = nullptr;
    }
}
