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
        std::string utf8 = text.toStdString(); // the payload lives for the duration of the call
        LogicLayerCaller::call(m_requester, EVT_VKB_ENTER, &utf8[0]);
    });
    connect(manager, &VirtualKeyboardManager::vkbHid, this,
        [this] { LogicLayerCaller::call(m_requester, EVT_VKB_HIDE, nullptr); });
}
