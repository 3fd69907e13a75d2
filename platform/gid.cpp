#include "platform/gid.h"

#include <QMetaMethod>
#include <QMetaObject>
#include <QObject>
#include <QVariant>

namespace {

/** The tags live in the object's user data: set in O(1), freed with the object. */
struct GIdData : QObjectUserData {
    unsigned id = 0;
    unsigned wid = 0;
    bool hasId = false;
    bool hasWid = false;
};

uint userDataSlot()
{
    static const uint slot = QObject::registerUserData();
    return slot;
}

GIdData* data(const QObject* obj)
{
    return static_cast<GIdData*>(obj->userData(userDataSlot()));
}

GIdData* ensure(QObject* obj)
{
    GIdData* d = data(obj);
    if (!d) {
        d = new GIdData;
        obj->setUserData(userDataSlot(), d);
    }
    return d;
}

} // namespace

void GId::setId(QObject* obj, unsigned id)
{
    if (!obj)
        return;
    GIdData* d = ensure(obj);
    d->id = id;
    d->hasId = true;
}

void GId::setWId(QObject* obj, unsigned windowId)
{
    if (!obj)
        return;
    GIdData* d = ensure(obj);
    d->wid = windowId;
    d->hasWid = true;
}

unsigned GId::id(const QObject* obj)
{
    if (!obj)
        return 0;
    if (const GIdData* d = data(obj); d && d->hasId)
        return d->id;
    // items of the library and QML components answer getId()
    const QMetaObject* mo = obj->metaObject();
    int idx = mo->indexOfMethod("getId()");
    if (idx < 0)
        return 0;
    QMetaMethod m = mo->method(idx);
    QVariant ret;
    if (m.returnType() == QMetaType::QVariant) {
        if (m.invoke(const_cast<QObject*>(obj), Qt::DirectConnection, Q_RETURN_ARG(QVariant, ret)))
            return ret.toUInt();
    } else if (m.returnType() == QMetaType::UInt) {
        uint r = 0;
        if (m.invoke(const_cast<QObject*>(obj), Qt::DirectConnection, Q_RETURN_ARG(uint, r)))
            return r;
    } else if (m.returnType() == QMetaType::Int) {
        int r = 0;
        if (m.invoke(const_cast<QObject*>(obj), Qt::DirectConnection, Q_RETURN_ARG(int, r)))
            return unsigned(r);
    }
    return 0;
}

unsigned GId::wid(const QObject* obj)
{
    if (!obj)
        return 0;
    if (const GIdData* d = data(obj); d && d->hasWid)
        return d->wid;
    return 0;
}
