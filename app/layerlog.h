#ifndef LAYERLOG_H
#define LAYERLOG_H

#include "platform/nlogger.h"

/**
 * One log line per exported call, with the source "qgui/app/layer_view" and the
 * export's own name. Creation, window and service calls log at info level;
 * calls that the logic layer makes every cycle (value and text updates) log at
 * trace level, so they cost a level check only unless QGUI_LOG_LEVEL=trace.
 */
#define QGUI_LAYER_LOG(...)                                                                        \
    ::NLog::NLogger::instance()->log(spdlog::level::info, "qgui/app/layer_view", __func__, __VA_ARGS__)
#define QGUI_LAYER_TRACE(...)                                                                      \
    ::NLog::NLogger::instance()->log(spdlog::level::trace, "qgui/app/layer_view", __func__, __VA_ARGS__)

#endif // LAYERLOG_H
