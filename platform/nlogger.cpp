#include "platform/nlogger.h"

#include <spdlog/sinks/rotating_file_sink.h>
#include <spdlog/sinks/stdout_color_sinks.h>

#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace NLog {

namespace {
constexpr std::size_t kMaxFileSize = 4 * 1024 * 1024; // bytes per file
constexpr std::size_t kMaxFiles = 3; // rotated files kept

std::string defaultFolder()
{
    const char* tmp = std::getenv("TMPDIR");
    std::string base = (tmp && *tmp) ? tmp : "/tmp";
    return base + "/qgui-log";
}
} // namespace

NLogger* NLogger::instance()
{
    static NLogger logger;
    return &logger;
}

NLogger::NLogger()
{
    std::error_code ec;
    std::filesystem::create_directories(defaultFolder(), ec);
    build(defaultFolder() + "/qgui.log");
    m_writer = std::thread([this]() { writerLoop(); });
}

NLogger::~NLogger()
{
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_stop = true;
    }
    m_wake.notify_one();
    if (m_writer.joinable())
        m_writer.join();
    flush();
}

void NLogger::submit(spdlog::level::level_enum lvl, std::string&& text)
{
    if (lvl >= spdlog::level::warn) {
        flush(); // keep the order: everything before a warning is written first
        logger()->log(lvl, text);
        return;
    }
    std::lock_guard<std::mutex> lock(m_mutex);
    m_pending.push_back(Pending { spdlog::log_clock::now(), lvl, std::move(text) });
}

void NLogger::writeOut(std::vector<Pending>& lines)
{
    spdlog::logger* l = logger();
    for (Pending& p : lines)
        l->log(p.time, spdlog::source_loc {}, p.level, p.text);
    lines.clear();
}

void NLogger::flush()
{
    std::lock_guard<std::mutex> writing(m_writeMutex); // batches are written whole and in order
    std::vector<Pending> lines;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        lines.swap(m_pending);
    }
    writeOut(lines);
    logger()->flush();
}

void NLogger::writerLoop()
{
    std::vector<Pending> lines;
    for (;;) {
        {
            std::unique_lock<std::mutex> lock(m_mutex);
            m_wake.wait_for(lock, std::chrono::milliseconds(50));
            if (m_stop)
                return;
        }
        std::lock_guard<std::mutex> writing(m_writeMutex);
        {
            std::lock_guard<std::mutex> lock(m_mutex);
            lines.swap(m_pending);
        }
        writeOut(lines);
    }
}

void NLogger::build(const std::string& file)
{
    std::vector<spdlog::sink_ptr> sinks;
    auto err = std::make_shared<spdlog::sinks::stderr_color_sink_mt>();
    // stderr shows warnings and worse unless QGUI_LOG_VERBOSE is set; the file gets everything
    const char* verbose = std::getenv("QGUI_LOG_VERBOSE");
    err->set_level((verbose && *verbose && *verbose != '0') ? spdlog::level::trace : spdlog::level::warn);
    sinks.push_back(err);
    try {
        auto f = std::make_shared<spdlog::sinks::rotating_file_sink_mt>(file, kMaxFileSize, kMaxFiles);
        f->set_level(spdlog::level::trace);
        sinks.push_back(f);
        m_file = file;
    } catch (const spdlog::spdlog_ex&) {
        m_file.clear(); // no writable file: stderr only
    }
    auto logger = std::make_shared<spdlog::logger>("qgui", sinks.begin(), sinks.end());
    // QGUI_LOG_LEVEL: trace, debug, info (default), warn, err, critical, off
    const char* lvl = std::getenv("QGUI_LOG_LEVEL");
    logger->set_level(lvl && *lvl ? spdlog::level::from_str(lvl) : spdlog::level::info);
    logger->set_pattern("[%Y-%m-%d %H:%M:%S.%e] [%l] %v");
    logger->flush_on(spdlog::level::warn);
    if (auto old = std::atomic_load(&m_logger))
        old->flush();
    std::atomic_store(&m_logger, logger);
}

bool NLogger::setLogFolder(const std::string& folder)
{
    std::error_code ec;
    std::filesystem::create_directories(folder, ec);
    std::string file = folder + "/qgui.log";
    if (file == m_file)
        return true;
    build(file);
    return m_file == file;
}

} // namespace NLog
