#ifndef WIDGETPROPERTYMANAGE_H
#define WIDGETPROPERTYMANAGE_H

#include <QGenericArgument>

class QObject;
class QQuickItem;

/**
 * The widgets' property store: applies the common parts of the records (header
 * word, id tags) to items in one place, and changes widget state by method name
 * (setItemOpacity, setText, showBusyIcon, ...), so that any item offering the
 * method takes part, C++ item or QML component alike. Method look-ups are
 * cached per item class.
 */
class WidgetPropertyManage {
public:
    /** Opacity from the header word; through setItemOpacity when the item offers it. */
    static void applyHeader(QQuickItem* item, unsigned header);
    /** Tags \a item with its widget and window ids, once: through the item's own setId and
     *  setWindowId when it has them, else with GId tags. */
    static void setIds(QQuickItem* item, unsigned id, unsigned windowId);

    /** True when \a obj offers the method with the normalised \a signature ("setText(QString)"). */
    static bool hasMethod(const QObject* obj, const char* signature);
    /** Invokes the method \a name when \a obj offers \a signature; true when it did. */
    static bool invokeIf(QObject* obj, const char* name, const char* signature,
        QGenericArgument a = QGenericArgument(), QGenericArgument b = QGenericArgument());
};

#endif // WIDGETPROPERTYMANAGE_H
