#ifndef NLOGGER_H
#define NLOGGER_H

#include <memory>
#include <string>

#include <spdlog/spdlog.h>

namespace NLog {

/**
 * The process logger: one spdlog logger named "qgui" writing to stderr and to a
 * rotating file. The file lives under "<project>/disk/hmi/log/qgui.log" once the
 * project path is known (setLogFolder), before that under the system's temporary
 * folder. Safe to use from any thread.
 *
 * Lines are written as "[time] [level] [source:function] message"; use log()
 * for that form or logger() for plain spdlog calls.
 */
class NLogger
{
public:
    static NLogger* instance();

    /** The underlying logger; never null. */
    spdlog::logger* logger() const { return m_logger.get(); }

    /** Moves the file sink to \a folder (created when missing). Returns false when it cannot be opened. */
    bool setLogFolder(const std::string& folder);
    std::string logFile() const { return m_file; }

    template<typename... Args>
    void log(spdlog::level::level_enum lvl, const char* source, const char* function,
             spdlog::format_string_t<Args...> fmt, Args&&... args)
    {
        if (!m_logger->should_log(lvl))
            return;
        fmt::memory_buffer buf;
        fmt::format_to(std::back_inserter(buf), "[{}:{}] ", source, function);
        fmt::format_to(std::back_inserter(buf), fmt, std::forward<Args>(args)...);
        m_logger->log(lvl, spdlog::string_view_t(buf.data(), buf.size()));
    }

private:
    NLogger();
    void build(const std::string& file);

    std::shared_ptr<spdlog::logger> m_logger;
    std::string m_file;
};

} // namespace NLog

#endif // NLOGGER_H
