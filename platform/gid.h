#ifndef GID_H
#define GID_H

class QObject;

/**
 * Id tags on any QObject: the widget id and the window id of an item, kept in
 * the object's user data (set in constant time, freed with the object), so that
 * QML items and C++ items carry them alike. An object without a tag answers its
 * QML getId() method if it has one, else 0 (the no-widget id).
 */
class GId {
public:
    static void setId(QObject* obj, unsigned id);
    static void setWId(QObject* obj, unsigned windowId);
    /** The widget id: the tag set by setId, else a QML "getId()" method, else 0. */
    static unsigned id(const QObject* obj);
    static unsigned wid(const QObject* obj);
};

#endif // GID_H
