#ifndef PRESSWATCHER_H
#define PRESSWATCHER_H

#include <QObject>
#include <QPointF>

#include <functional>

/**
 * Watches the panel's window for presses: every mouse press and the first
 * point of every touch is reported as event 1 with id 0 and the scene position
 * (two ints). While presses are blocked (a dimmed panel) they are still
 * reported but consumed, so the first touch wakes the panel without operating
 * a widget. Presses for which the pass-through test answers true (the
 * on-screen keyboard, which stays usable on a dimmed panel) are never consumed.
 */
class PressWatcher : public QObject {
    Q_OBJECT

public:
    explicit PressWatcher(QObject* parent = nullptr);

    void setBlockPress(bool block) { m_block = block; }
    bool blockPress() const { return m_block; }
    /** \a test(window position) true: that press, its moves and its release pass while blocked. */
    void setPassThrough(std::function<bool(const QPointF&)> test) { m_passThrough = std::move(test); }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool m_block = false;
    bool m_swallowing = false; // a blocked press: its moves and release are consumed too
    bool m_passing = false; // a press that passes while blocked: its moves and release pass too
    std::function<bool(const QPointF&)> m_passThrough;
};

#endif // PRESSWATCHER_H
