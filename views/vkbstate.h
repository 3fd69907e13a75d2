#ifndef VKBSTATE_H
#define VKBSTATE_H

#include <QObject>
#include <QPointer>

#include <functional>

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
    /** A widget asked through the interface: its events go to the logic layer. */
    void setRequester(unsigned id)
    {
        m_requester = id;
        m_internal = false;
        m_owner.clear();
    }
    /**
     * The panel opened the keyboard for one of its own widgets (a table's page entry or cell):
     * the confirmed text goes to \a onEnter and the hiding to \a onHide instead of the logic
     * layer, as long as \a owner lives; once it is gone, both are dropped.
     */
    void setInternalTarget(QObject* owner, std::function<void(const QString&)> onEnter, std::function<void()> onHide);
    bool isInternal() const { return m_internal; }
    /** Connects \a manager's confirmation and hiding to the events, the first time only. */
    void connectOnce(VirtualKeyboardManager* manager);
    bool isConnected() const { return m_connected; }

private:
    unsigned m_requester = 0;
    bool m_connected = false;
    bool m_internal = false;
    QPointer<QObject> m_owner;
    std::function<void(const QString&)> m_onEnter;
    std::function<void()> m_onHide;
};

#endif // VKBSTATE_H
