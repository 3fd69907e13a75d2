#include "views/widgetpropertymanage.h"

#include "platform/gid.h"
#include "platform/guiqtadaptcore.h"
#include "xcomponents/qquick/xbasecontrol.h"

#include <QHash>
#include <QMetaMethod>
#include <QMetaObject>
#include <QQuickItem>

namespace {

/** Index of \a signature in the class of \a mo, looked up once per class and signature.
 *
 * Keyed by the class's name, not by \a mo: an item declared in QML has a meta-object of its own, made
 * with the item and freed with it, so its address names neither a class (a later item of another type
 * may be given the same address) nor anything that lasts (a cache by address grows with every item). */
int methodIndex(const QMetaObject* mo, const char* signature)
{
    static QHash<QPair<QByteArray, const char*>, int> s_index; // GUI thread only
    const auto key = qMakePair(QByteArray::fromRawData(mo->className(), int(qstrlen(mo->className()))), signature);
    auto it = s_index.constFind(key);
    if (it == s_index.constEnd())
        it = s_index.insert(qMakePair(QByteArray(mo->className()), signature), mo->indexOfMethod(signature));
    return it.value();
}

} // namespace

void WidgetPropertyManage::applyHeader(QQuickItem* item, unsigned header)
{
    if (!item)
        return;
    const qreal opacity = GuiQtAdapt::Core::toOpacity(header);
    const QMetaObject* mo = item->metaObject();
    const int index = methodIndex(mo, "setItemOpacity(qreal)");
    if (index >= 0)
        mo->method(index).invoke(item, Qt::DirectConnection, Q_ARG(qreal, opacity));
    else
        item->setOpacity(opacity);
}

void WidgetPropertyManage::setIds(QQuickItem* item, unsigned id, unsigned windowId)
{
    if (!item)
        return;
    if (auto* control = qobject_cast<XBaseControl*>(item)) {
        control->setId(id);
        control->setWindowId(windowId);
        return;
    }
    const QMetaObject* mo = item->metaObject();
    const int setId = methodIndex(mo, "setId(uint)");
    const int setWindowId = methodIndex(mo, "setWindowId(uint)");
    if (setId >= 0 && setWindowId >= 0) {
        mo->method(setId).invoke(item, Qt::DirectConnection, Q_ARG(uint, id));
        mo->method(setWindowId).invoke(item, Qt::DirectConnection, Q_ARG(uint, windowId));
        return;
    }
    GId::setId(item, id);
    GId::setWId(item, windowId);
}

bool WidgetPropertyManage::hasMethod(const QObject* obj, const char* signature)
{
    return obj && methodIndex(obj->metaObject(), signature) >= 0;
}

bool WidgetPropertyManage::invokeIf(
    QObject* obj, const char* name, const char* signature, QGenericArgument a, QGenericArgument b)
{
    if (!hasMethod(obj, signature))
        return false;
    return QMetaObject::invokeMethod(obj, name, Qt::DirectConnection, a, b);
}
