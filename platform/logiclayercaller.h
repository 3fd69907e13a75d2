#ifndef LOGICLAYERCALLER_H
#define LOGICLAYERCALLER_H

#include <qgui/types.h>

/**
 * The event channel towards the logic layer. setCallBack is called once at
 * start-up with slot 0 of the call-backs; call() forwards an event synchronously
 * on the calling thread (the GUI thread in this library) and returns the
 * call-back's result, or 0 when no call-back is installed.
 */
class LogicLayerCaller {
public:
    static void setCallBack(ViewEventCallBack cb);
    static ViewEventCallBack callBack();
    static ErrRet call(unsigned id, int event, void* data);
};

#endif // LOGICLAYERCALLER_H
