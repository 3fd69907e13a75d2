#include "views/vkbstate.h"

#include "platform/logiclayercaller.h"
#include "views/virtualkeyboardmanager.h"

#include <qgui/events.h>

#include <string>

VkbState::VkbState(QObject* parent)
    : QObject(parent)
{
}

VkbState::~VkbState() = default;

void VkbState::connectOnce(VirtualKeyboardManager* manager)
{
    if (m_connected || !manager)
        return;
    m_connected = true;
    connect(manager, &VirtualKeyboardManager::vkbEntered, this, [this](const QString& text) {
        if (m_internal) {
            if (m_owner && m_onEnter)
                m_onEnter(text);
            return;
        }
        std::string utf8 = text.toStdString(); // the payload lives for the duration of the call
        LogicLayerCaller::call(m_requester, EVT_VKB_ENTER, &utf8[0]);
    });
    connect(manager, &VirtualKeyboardManager::vkbHid, this, [this] {
        if (m_internal) {
            if (m_owner && m_onHide)
                m_onHide();
            return;
        }
        LogicLayerCaller::call(m_requester, EVT_VKB_HIDE, nullptr);
    });
}

void VkbState::setInternalTarget(
    QObject* owner, std::function<void(const QString&)> onEnter, std::function<void()> onHide)
{
    m_internal = true;
    m_owner = owner;
    m_onEnter = std::move(onEnter);
    m_onHide = std::move(onHide);
}
