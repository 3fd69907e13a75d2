#include "views/widgetpropertymanage.h"

#include "platform/guiqtadaptcore.h"

#include <QMetaMethod>
#include <QMetaObject>
#include <QQuickItem>

void WidgetPropertyManage::applyHeader(QQuickItem* item, unsigned header)
{
    if (!item)
        return;
    const qreal opacity = GuiQtAdapt::Core::toOpacity(header);
    // the method index is looked up once per item class, not per widget
    static QHash<const QMetaObject*, int> s_index;
    const QMetaObject* mo = item->metaObject();
    auto it = s_index.constFind(mo);
    if (it == s_index.constEnd())
        it = s_index.insert(mo, mo->indexOfMethod("setItemOpacity(qreal)"));
    if (it.value() >= 0)
        mo->method(it.value()).invoke(item, Qt::DirectConnection, Q_ARG(qreal, opacity));
    else
        item->setOpacity(opacity);
}

void WidgetPropertyManage::applyRect(QQuickItem* item, const Rect& rect)
{
    if (!item)
        return;
    const QRect r = GuiQtAdapt::Core::toQRect(rect);
    item->setPosition(r.topLeft());
    item->setSize(r.size());
}

void WidgetPropertyManage::setValue(unsigned id, const QString& key, const QVariant& value)
{
    m_values[id].insert(key, value);
}

QVariant WidgetPropertyManage::value(unsigned id, const QString& key, const QVariant& fallback) const
{
    auto it = m_values.constFind(id);
    return it == m_values.constEnd() ? fallback : it->value(key, fallback);
}

void WidgetPropertyManage::remove(unsigned id)
{
    m_values.remove(id);
}
