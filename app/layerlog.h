#ifndef LAYERLOG_H
#define LAYERLOG_H

#include "platform/nlogger.h"
#include "views/guithreadguard.h"
#include "views/viewmanage.h"

#include <tuple>
#include <type_traits>
#include <utility>

/**
 * One log line per exported call, with the source "qgui/app/layer_view" and the
 * export's own name. Creation, window and service calls log at info level;
 * calls that the logic layer makes every cycle (value and text updates) log at
 * trace level, so they cost a level check only unless QGUI_LOG_LEVEL=trace.
 */
#define QGUI_LAYER_LOG(...)                                                                                  \
    ::NLog::NLogger::instance()->log(spdlog::level::info, "qgui/app/layer_view", __func__, __VA_ARGS__)
#define QGUI_LAYER_TRACE(...)                                                                                \
    ::NLog::NLogger::instance()->log(spdlog::level::trace, "qgui/app/layer_view", __func__, __VA_ARGS__)

/**
 * The whole body of an export that forwards to the ViewManage method \a method:
 * writes the export's line at \a lvl (info, trace), naming its first argument
 * with \a label ("id", "windowId", ...; nullptr names nothing), then calls the
 * method and returns its result unchanged. Called from another thread than the GUI thread, the method is not
 * called and the export answers -1 (GuiThreadGuard).
 *
 *     int View_SetBusy(unsigned int id) { return QGUI_FORWARD(info, "id", View_SetBusy, id); }
 */
#define QGUI_FORWARD(lvl, label, method, ...)                                                                \
    ::qgui::layer::forward(spdlog::level::lvl, __func__, label, &ViewManage::method, ##__VA_ARGS__)

/** The body of a creation export: logs "\n\t创建 <kind>" (the widget kind's name) and forwards. */
#define QGUI_CREATE(kind, method, ...)                                                                       \
    ::qgui::layer::create(__func__, kind, &ViewManage::method, ##__VA_ARGS__)

namespace qgui::layer {

inline constexpr const char* kSource = "qgui/app/layer_view";

template <typename... Params, typename... Args>
int forward(spdlog::level::level_enum level, const char* function, const char* label,
    int (ViewManage::*method)(Params...), Args&&... args)
{
    NLog::NLogger* log = NLog::NLogger::instance();
    if constexpr (sizeof...(Args) > 0) {
        const auto& first = std::get<0>(std::forward_as_tuple(args...));
        using First = std::decay_t<decltype(first)>;
        if constexpr (std::is_arithmetic_v<First>) {
            if (label)
                log->log(level, kSource, function, "{} {}", label, first);
            else
                log->log(level, kSource, function, "");
        } else {
            log->log(level, kSource, function, "");
        }
    } else {
        log->log(level, kSource, function, "");
    }
    if (!GuiThreadGuard::allows(function))
        return -1;
    return (ViewManage::getInstance()->*method)(std::forward<Args>(args)...);
}

template <typename... Params, typename... Args>
int create(const char* function, const char* kind, int (ViewManage::*method)(Params...), Args&&... args)
{
    NLog::NLogger::instance()->log(spdlog::level::info, kSource, function, "\n\t创建 {}", kind);
    if (!GuiThreadGuard::allows(function))
        return -1;
    return (ViewManage::getInstance()->*method)(std::forward<Args>(args)...);
}

} // namespace qgui::layer

#endif // LAYERLOG_H
