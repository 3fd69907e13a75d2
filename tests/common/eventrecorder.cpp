#include "eventrecorder.h"

#include "platform/logiclayercaller.h"

#include <qgui/events.h>

#include <cstring>

namespace {
EventRecorder* g_current = nullptr;
}

int EventRecorder::Event::intAt(int index) const
{
    int v = 0;
    if (payload.size() >= int(sizeof(int)) * (index + 1))
        std::memcpy(&v, payload.constData() + sizeof(int) * index, sizeof(int));
    return v;
}

EventRecorder::EventRecorder() = default;

EventRecorder::~EventRecorder()
{
    if (g_current == this) {
        LogicLayerCaller::setCallBack(nullptr);
        g_current = nullptr;
    }
}

void EventRecorder::install()
{
    g_current = this;
    LogicLayerCaller::setCallBack(&EventRecorder::callBack);
}

int EventRecorder::payloadSize(int code)
{
    switch (code) {
    case 1:
        return 2 * sizeof(int); // x, y
    case 4:
        return sizeof(double); // slider value
    case 259:
    case 260:
    case 263:
        return sizeof(int);
    case 513:
        return sizeof(int);
    case 519:
        return 2 * sizeof(unsigned short);
    case 769:
    case 770:
    case 1281:
    case 2306:
        return -1;
    case 1541:
    case 1542:
    case 1544:
        return sizeof(int);
    case 1793:
    case 1794:
        return sizeof(unsigned) + sizeof(int);
    case 2049:
    case 2052:
        return sizeof(int);
    case 2051:
        return sizeof(int); // the result field of the screenshot record
    case 2305:
        return 2 * sizeof(unsigned);
    case 2307:
        return sizeof(unsigned);
    case 2561:
        return 2 * sizeof(int);
    default:
        return 0;
    }
}

ErrRet EventRecorder::callBack(unsigned id, int code, void* data)
{
    if (!g_current)
        return 0;
    Event e;
    e.id = id;
    e.code = code;
    e.nullData = data == nullptr;
    if (data && code == 518) {
        // a column's filter: "column|value1|operator1|value2|operator2|join"
        const auto* f = static_cast<const View_EvtListFilter*>(data);
        e.payload = QByteArray::number(f->column) + '|' + QByteArray(f->value1 ? f->value1 : "(null)") + '|'
            + QByteArray::number(f->operator1) + '|' + QByteArray(f->value2 ? f->value2 : "(null)") + '|'
            + QByteArray::number(f->operator2) + '|' + QByteArray::number(f->join);
    } else if (data && code == 1540) {
        // a chart's search state: "state|source|start|end"
        const auto* s = static_cast<const View_EvtCurveSearch*>(data);
        e.payload = QByteArray::number(s->state) + '|' + QByteArray::number(s->source) + '|'
            + QByteArray(s->start ? s->start : "(null)") + '|' + QByteArray(s->end ? s->end : "(null)");
    } else if (data && code == 1543) {
        // an XY zoom rectangle: "left|right|top|bottom"
        const auto* r = static_cast<const View_EvtXyRect*>(data);
        e.payload = QByteArray::number(r->left, 'g', 10) + '|' + QByteArray::number(r->right, 'g', 10) + '|'
            + QByteArray::number(r->top, 'g', 10) + '|' + QByteArray::number(r->bottom, 'g', 10);
    } else if (data && code == 520) {
        // a table's pending edits: "row,column=text" lines in the order sent
        for (const View_ListEditItem& edit : *static_cast<const View_EvtListEdits*>(data))
            e.payload += QByteArray::number(edit.row) + ',' + QByteArray::number(edit.column) + '='
                + QByteArray(edit.text ? edit.text : "") + '\n';
    } else if (data) {
        const int n = (code == 2 || code == 3) ? g_current->m_pressPayload : payloadSize(code);
        if (n < 0)
            e.payload = QByteArray(static_cast<const char*>(data));
        else if (n > 0)
            e.payload = QByteArray(static_cast<const char*>(data), n);
    }
    QMutexLocker lock(&g_current->m_mutex);
    g_current->m_events.append(e);
    return 0;
}

QList<EventRecorder::Event> EventRecorder::events() const
{
    QMutexLocker lock(&m_mutex);
    return m_events;
}

QList<EventRecorder::Event> EventRecorder::eventsWithCode(int code) const
{
    QList<Event> out;
    for (const Event& e : events()) {
        if (e.code == code)
            out.append(e);
    }
    return out;
}

int EventRecorder::count(int code) const
{
    QMutexLocker lock(&m_mutex);
    if (code < 0)
        return m_events.size();
    int n = 0;
    for (const Event& e : m_events)
        n += e.code == code ? 1 : 0;
    return n;
}

void EventRecorder::clear()
{
    QMutexLocker lock(&m_mutex);
    m_events.clear();
}
