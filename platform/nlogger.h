#ifndef NLOGGER_H
#define NLOGGER_H

#include <condition_variable>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include <spdlog/spdlog.h>

namespace NLog {

/**
 * The process logger: one spdlog logger named "qgui" writing to stderr and to a
 * rotating file. The file lives under "<project>/disk/hmi/log/qgui.log" once the
 * project path is known (setLogFolder), before that under the system's temporary
 * folder. Safe to use from any thread.
 *
 * log() writes "[time] [level] [source:function] message". Lines below warning
 * level are only formatted on the calling thread (the GUI thread, for the
 * exports) and collected; a logging thread writes them in batches every 50 ms,
 * with the time they were logged. Warnings and errors, and everything pending
 * before them, are written at once. logger() gives the plain, synchronous
 * spdlog logger.
 */
class NLogger {
public:
    static NLogger* instance();
    ~NLogger();

    /** The underlying logger; never null. */
    spdlog::logger* logger() const { return std::atomic_load(&m_logger).get(); }

    /** Moves the file sink to \a folder (created when missing). Returns false when it cannot be opened. */
    bool setLogFolder(const std::string& folder);
    std::string logFile() const { return m_file; }

    template <typename... Args>
    void log(spdlog::level::level_enum lvl, const char* source, const char* function,
        spdlog::format_string_t<Args...> fmt, Args&&... args)
    {
        if (!logger()->should_log(lvl))
            return;
        fmt::memory_buffer buf;
        fmt::format_to(std::back_inserter(buf), "[{}:{}] ", source, function);
        fmt::format_to(std::back_inserter(buf), fmt, std::forward<Args>(args)...);
        submit(lvl, std::string(buf.data(), buf.size()));
    }

    /** Writes the collected lines now. */
    void flush();

private:
    struct Pending {
        spdlog::log_clock::time_point time;
        spdlog::level::level_enum level;
        std::string text;
    };

    NLogger();
    void build(const std::string& file);
    void submit(spdlog::level::level_enum lvl, std::string&& text);
    void writeOut(std::vector<Pending>& lines);
    void writerLoop();

    std::shared_ptr<spdlog::logger> m_logger;
    std::string m_file;
    std::mutex m_mutex; // guards m_pending and m_stop
    std::mutex m_writeMutex; // one batch is written at a time
    std::condition_variable m_wake;
    std::vector<Pending> m_pending;
    bool m_stop = false;
    std::thread m_writer;
};

} // namespace NLog

#endif // NLOGGER_H
