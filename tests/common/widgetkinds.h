#ifndef WIDGETKINDS_H
#define WIDGETKINDS_H

#include <QList>

#include <qgui/qgui.h>

/**
 * Every widget kind that is created from a record, with the least record it takes: all fields zero but the
 * common header (opaque, the box, the id). For tests that must reach every kind (soak, hostile input).
 */
struct WidgetKind {
    const char* name; ///< the creation export's name
    int (*create)(unsigned id, unsigned windowId, const Rect& box);
    bool operator==(const WidgetKind& o) const { return create == o.create && name == o.name; }
};

/** All of them, in the order of the public header. */
const QList<WidgetKind>& widgetKinds();

#endif // WIDGETKINDS_H
