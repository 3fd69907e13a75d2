#include "views/widgetpropertymanage.h"

#include "platform/guiqtadaptcore.h"

#include <QMetaObject>
#include <QQuickItem>

void WidgetPropertyManage::applyHeader(QQuickItem* item, unsigned header)
{
    if (!item)
        return;
    const qreal opacity = GuiQtAdapt::Core::toOpacity(header);
    if (item->metaObject()->indexOfMethod("setItemOpacity(qreal)") >= 0)
        QMetaObject::invokeMethod(item, "setItemOpacity", Q_ARG(qreal, opacity));
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
