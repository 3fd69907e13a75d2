#ifndef EVENTRECORDER_H
#define EVENTRECORDER_H

#include <QByteArray>
#include <QList>
#include <QMutex>

#include <qgui/types.h>

/**
 * Stands in for the logic layer's event call-back in tests: every event is
 * recorded as (id, code, payload bytes) in order, with the payload copied while
 * the call lasts (its pointer is only valid during the call).
 *
 * install() puts the recorder behind LogicLayerCaller; payloadSize() tells how
 * many payload bytes to copy for a code (0 for none, -1 for a UTF-8 string).
 */
class EventRecorder {
public:
    struct Event {
        unsigned id = 0;
        int code = 0;
        QByteArray payload; ///< copied payload bytes, empty for none
        bool nullData = true; ///< the payload pointer was null
        int intAt(int index) const;
        QString text() const { return QString::fromUtf8(payload); }
    };

    EventRecorder();
    ~EventRecorder();

    /** Makes this recorder the receiver of LogicLayerCaller::call. */
    void install();
    static ErrRet callBack(unsigned id, int code, void* data);
    /** Bytes of payload copied for \a code: -1 means a NUL-terminated string. */
    static int payloadSize(int code);

    /** Bytes copied for presses and releases (codes 2 and 3), which differ by widget: 4 (the
     *  default) for the index of a list or tree entry, 8 for a table's cell. */
    void setPressPayloadSize(int bytes) { m_pressPayload = bytes; }

    QList<Event> events() const;
    QList<Event> eventsWithCode(int code) const;
    int count(int code = -1) const;
    void clear();

private:
    mutable QMutex m_mutex;
    QList<Event> m_events;
    int m_pressPayload = int(sizeof(int));
};

#endif // EVENTRECORDER_H
