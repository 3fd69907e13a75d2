#ifndef VKBSTATE_H
#define VKBSTATE_H

#include <QObject>

class VirtualKeyboardManager;

/**
 * What the keyboard family of the registry keeps between calls: the widget
 * that asked for the keyboard last (the requester), which receives the
 * confirmed text (event 1281) and the hiding (event 1282). The two connections
 * are made once, on the first request; later requests only change the
 * requester, so both events always go to the latest one, even when it has been
 * deleted since (nothing touches the deleted item: only its id is sent).
 */
class VkbState : public QObject {
    Q_OBJECT

public:
    explicit VkbState(QObject* parent = nullptr);
    ~VkbState() override;

    unsigned requester() const { return m_requester; }
    void setRequester(unsigned id) { m_requester = id; }
    /** Connects \a manager's confirmation and hiding to the events, the first time only. */
    void connectOnce(VirtualKeyboardManager* manager);
    bool isConnected() const { return m_connected; }

private:
    unsigned m_requester = 0;
    bool m_connected = false;
};

#endif // VKBSTATE_H
