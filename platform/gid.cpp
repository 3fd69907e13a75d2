#include "platform/gid.h"

#include <QMetaMethod>
#include <QMetaObject>
#include <QObject>
#include <QVariant>

namespace {
const char* const kIdProp = "_qgui_id";
const char* const kWIdProp = "_qgui_wid";
} // namespace

void GId::setId(QObject* obj, unsigned id)
{
    if (obj)
        obj->setProperty(kIdProp, QVariant::fromValue<uint>(id));
}

void GId::setWId(QObject* obj, unsigned windowId)
{
    if (obj)
        obj->setProperty(kWIdProp, QVariant::fromValue<uint>(windowId));
}

unsigned GId::id(const QObject* obj)
{
    if (!obj)
        return 0;
    QVariant v = obj->property(kIdProp);
    if (v.isValid())
        return v.toUInt();
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
    QVariant v = obj->property(kWIdProp);
    return v.isValid() ? v.toUInt() : 0;
}
