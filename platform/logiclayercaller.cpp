#include "platform/logiclayercaller.h"

#include <atomic>

namespace {
std::atomic<ViewEventCallBack> g_callBack { nullptr };
}

void LogicLayerCaller::setCallBack(ViewEventCallBack cb)
{
    g_callBack.store(cb);
}

ViewEventCallBack LogicLayerCaller::callBack()
{
    return g_callBack.load();
}

ErrRet LogicLayerCaller::call(unsigned id, int event, void* data)
{
    ViewEventCallBack cb = g_callBack.load();
    return cb ? cb(id, event, data) : 0;
}
