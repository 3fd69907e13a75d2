#include "platform/nlogger.h"

#include <spdlog/async.h>
#include <spdlog/sinks/rotating_file_sink.h>
#include <spdlog/sinks/stdout_color_sinks.h>

#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace NLog {

namespace {
constexpr std::size_t kMaxFileSize = 4 * 1024 * 1024; // bytes per file
constexpr std::size_t kMaxFiles = 3;                   // rotated files kept

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
}

void NLogger::build(const std::string& file)
{
    std::vector<spdlog::sink_ptr> sinks;
    auto err = std::make_shared<spdlog::sinks::stderr_color_sink_mt>();
    // stderr shows warnings and worse unless QGUI_LOG_VERBOSE is set; the file gets everything
    const char* verbose = std::getenv("QGUI_LOG_VERBOSE");
    err->set_level((verbose && *verbose && *verbose != '0') ? spdlog::level::trace
                                                              : spdlog::level::warn);
    sinks.push_back(err);
    try {
        auto f = std::make_shared<spdlog::sinks::rotating_file_sink_mt>(file, kMaxFileSize, kMaxFiles);
        f->set_level(spdlog::level::trace);
        sinks.push_back(f);
        m_file = file;
    } catch (const spdlog::spdlog_ex&) {
        m_file.clear(); // no writable file: stderr only
    }
    static std::shared_ptr<spdlog::details::thread_pool> pool
        = std::make_shared<spdlog::details::thread_pool>(8192, 1);
    std::shared_ptr<spdlog::logger> logger = std::make_shared<spdlog::async_logger>("qgui", sinks.begin(), sinks.end(), pool,
                                                         spdlog::async_overflow_policy::block);
    // QGUI_LOG_LEVEL: trace, debug, info (default), warn, err, critical, off
    const char* lvl = std::getenv("QGUI_LOG_LEVEL");
    logger->set_level(lvl && *lvl ? spdlog::level::from_str(lvl) : spdlog::level::info);
    logger->set_pattern("[%Y-%m-%d %H:%M:%S.%e] [%l] [t%t] %v");
    logger->flush_on(spdlog::level::warn);
    if (m_logger)
        m_logger->flush();
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
