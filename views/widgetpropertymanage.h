#ifndef WIDGETPROPERTYMANAGE_H
#define WIDGETPROPERTYMANAGE_H

#include <QHash>
#include <QString>
#include <QVariant>

#include <qgui/types.h>

class QQuickItem;

/**
 * The widgets' property store: applies the common parts of the records (header
 * word, rectangle) to items in one place, and keeps per-widget values that the
 * items do not hold themselves (by widget id and key).
 */
class WidgetPropertyManage
{
public:
    /** Opacity from the header word; through setItemOpacity when the item offers it. */
    static void applyHeader(QQuickItem* item, unsigned header);
    /** Position and size from the record's rectangle (negative sizes become 0). */
    static void applyRect(QQuickItem* item, const Rect& rect);

    void setValue(unsigned id, const QString& key, const QVariant& value);
    QVariant value(unsigned id, const QString& key, const QVariant& fallback = QVariant()) const;
    /** Forgets every value of \a id (when the widget is deleted). */
    void remove(unsigned id);
    int count() const { return m_values.size(); }

private:
    QHash<unsigned, QHash<QString, QVariant>> m_values;
};

#endif // WIDGETPROPERTYMANAGE_H
