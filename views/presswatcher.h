#ifndef PRESSWATCHER_H
#define PRESSWATCHER_H

#include <QObject>

/**
 * Watches the panel's window for presses: every mouse press and the first
 * point of every touch is reported as event 1 with id 0 and the scene position
 * (two ints). While presses are blocked (a dimmed panel) they are still
 * reported but consumed, so the first touch wakes the panel without operating
 * a widget.
 */
class PressWatcher : public QObject {
    Q_OBJECT

public:
    explicit PressWatcher(QObject* parent = nullptr);

    void setBlockPress(bool block) { m_block = block; }
    bool blockPress() const { return m_block; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool m_block = false;
    bool m_swallowing = false; // a blocked press: its moves and release are consumed too
};

#endif // PRESSWATCHER_H
