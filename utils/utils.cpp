#include "utils/utils.h"

#include "platform/nlogger.h"

#include <mutex>

#include <atomic>

namespace Utils {

namespace {
std::mutex g_mutex;
QString g_last;
std::atomic<int> g_count { 0 };
} // namespace

void writeAssertLocation(const char* msg)
{
    const QString text = QString::fromUtf8(msg ? msg : "");
    {
        std::lock_guard<std::mutex> lock(g_mutex);
        g_last = text;
    }
    ++g_count;
    NLog::NLogger::instance()->logger()->error("SOFT ASSERT: {}", text.toStdString());
}

QString lastAssertLocation()
{
    std::lock_guard<std::mutex> lock(g_mutex);
    return g_last;
}

int assertCount()
{
    return g_count.load();
}

void resetAssertCount()
{
    g_count = 0;
    std::lock_guard<std::mutex> lock(g_mutex);
    g_last.clear();
}

} // namespace Utils
