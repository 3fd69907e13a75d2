#include "views/liststate.h"

#include "views/panelhost.h"
#include "views/virtualkeyboardmanager.h"
#include "views/vkbstate.h"
#include "xcomponents/qquick/xtableviewcontrol.h"

#include <QPointer>

ListState::ListState(VkbState* keyboardState, QObject* parent)
    : QObject(parent)
    , m_keyboardState(keyboardState)
{
}

ListState::~ListState() = default;

void ListState::attach(XTableViewControl* table)
{
    connect(table, &XTableViewControl::keyboardRequested, this,
        [this, table](int layout, int validator, const QString& text) { openKeyboard(table, layout, validator, text); });
    connect(table, &XTableViewControl::keyboardHideRequested, this, [this] {
        if (m_keyboardState->isInternal())
            VirtualKeyboardManager::instance()->hideVkb();
    });
    connect(table, &QObject::destroyed, this, [this] {
        // the keyboard was open for a table that is gone: it hides, and nobody is told
        if (m_keyboardState->isInternal() && VirtualKeyboardManager::instance()->isShown())
            VirtualKeyboardManager::instance()->hideVkb();
    });
}

void ListState::openKeyboard(XTableViewControl* table, int layout, int validator, const QString& text)
{
    VirtualKeyboardManager* keyboard = VirtualKeyboardManager::instance();
    PanelHost* host = PanelHost::getInstance();
    if (QQuickItem* root = host ? host->getGuiRect() : nullptr)
        keyboard->init(root);
    QPointer<XTableViewControl> target(table);
    m_keyboardState->connectOnce(keyboard);
    m_keyboardState->setInternalTarget(
        table,
        [target](const QString& entered) {
            if (target)
                target->acceptKeyboardText(entered);
        },
        [target] {
            if (target)
                target->keyboardClosed();
        });
    keyboard->popupVirtualKeyBord(VkbLayoutType(layout), nullptr, text, 0);
    if (validator != 0)
        keyboard->changeValidator(TextValidator(validator));
}
