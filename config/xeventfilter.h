#ifndef XEVENTFILTER_H
#define XEVENTFILTER_H

#include <QElapsedTimer>
#include <QObject>
#include <QPointF>
#include <QPointer>

/**
 * Click and double-click recognition for the panel. Qt's own double-click
 * synthesis is switched off at start-up (a finger on a touch screen is too
 * slow and imprecise for it); this filter, installed on the top-level view,
 * watches left-button presses and, when a second press comes within
 * doubleInterval() ms and pressDistance() pixels of the first one, delivers a
 * synthesised double-click event to the same target with sendEvent.
 */
class XEventFilter : public QObject {
    Q_OBJECT

public:
    static XEventFilter* getInstance();

    int doubleInterval() const { return m_doubleInterval; }
    void setDoubleInterval(int ms) { m_doubleInterval = qMax(0, ms); }
    int pressDistance() const { return m_pressDistance; }
    void setPressDistance(int px) { m_pressDistance = qMax(0, px); }
    /** Forgets the last press, so that the next press starts a new click. */
    void clearState();

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    void doubleClicked(QObject* target, const QPointF& pos);

private:
    explicit XEventFilter(QObject* parent = nullptr);

    int m_doubleInterval = 200; // ms
    int m_pressDistance = 20; // px
    QElapsedTimer m_sinceLastPress;
    QPointF m_lastPressPos;
    QPointer<QObject> m_lastTarget;
    bool m_delivering = false;
};

#endif // XEVENTFILTER_H
