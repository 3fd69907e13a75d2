// The on-screen keyboard (opened for a widget, confirmed or closed), the
// keyboard window's entry line, and the Pinyin candidate bar.
#include "views/viewmanage.h"

#include "platform/guiqtadaptcore.h"
#include "views/panelhost.h"
#include "views/pinyinstate.h"
#include "views/qmlwindowmanage.h"
#include "views/virtualkeyboardmanager.h"
#include "views/vkbstate.h"
#include "views/widgetpropertymanage.h"
#include "xcomponents/qquick/keyboardwindowtitile.h"
#include "xcomponents/qquick/xkeyboardedit.h"

#include <QQuickItem>

#include <qgui/ids.h>

using GuiQtAdapt::Core;

namespace {

/** The entry line of the keyboard window \a windowId, or null. */
XKeyBoardEdit* keyboardEdit(QmlWindowManage* windows, unsigned windowId)
{
    QQuickItem* window = windows->getWindowObj(windowId);
    if (!window)
        return nullptr;
    if (auto* title = window->findChild<KeyBoardWindowTitile*>())
        return title->lineEdit();
    return window->findChild<XKeyBoardEdit*>();
}

} // namespace

int ViewManage::View_PopupVirtualKeyboard(unsigned int id, int type, const char* text)
{
    VirtualKeyboardManager* keyboard = VirtualKeyboardManager::instance();
    PanelHost* host = PanelHost::getInstance();
    if (QQuickItem* root = host ? host->getGuiRect() : nullptr)
        keyboard->init(root);
    m_vkb->setRequester(id);
    m_vkb->connectOnce(keyboard);
    keyboard->popupVirtualKeyBord(VkbLayoutType(type), nullptr, Core::fromUtf8(text), 0);
    return 0;
}

int ViewManage::View_SetVirtualKeyboardValidator(int kind)
{
    VirtualKeyboardManager::instance()->changeValidator(TextValidator(kind));
    return 0;
}

int ViewManage::View_SetVirtualKeyboardRangeI(long long bottom, long long top)
{
    VirtualKeyboardManager::instance()->setRangeI(qint64(bottom), qint64(top));
    return 0;
}

int ViewManage::View_SetVirtualKeyboardRangeU(unsigned long long bottom, unsigned long long top)
{
    VirtualKeyboardManager::instance()->setRangeU(quint64(bottom), quint64(top));
    return 0;
}

int ViewManage::View_SetVirtualKeyboardRangeD(double bottom, double top)
{
    VirtualKeyboardManager::instance()->setRangeD(bottom, top);
    return 0;
}

int ViewManage::View_CloseVirtualKeyboard()
{
    VirtualKeyboardManager::instance()->hideVkb();
    return 0;
}

int ViewManage::View_ChangeKBText(unsigned int windowId, const char* text, const Font*)
{
    // the keyboard window keeps its own font: the record's is not applied
    if (XKeyBoardEdit* edit = keyboardEdit(m_windowManage.get(), windowId))
        edit->setText(Core::fromUtf8(text));
    return 0;
}

int ViewManage::View_SetKBoardTextCursorFocus()
{
    return 0;
}

int ViewManage::View_SetKBoardTextCursorPosition(unsigned int windowId, unsigned int position)
{
    XKeyBoardEdit* edit = keyboardEdit(m_windowManage.get(), windowId);
    if (!edit)
        return -1;
    edit->setCursorPosition(int(qMin<unsigned>(position, unsigned(INT_MAX))));
    return 0;
}

int ViewManage::View_SetKBoardTextSelectCursor(unsigned int windowId, unsigned int start, unsigned int end)
{
    if (XKeyBoardEdit* edit = keyboardEdit(m_windowManage.get(), windowId))
        edit->select(int(qMin<unsigned>(start, unsigned(INT_MAX))), int(qMin<unsigned>(end, unsigned(INT_MAX))));
    return 0;
}

int ViewManage::View_HideKeyBoardWidget()
{
    m_pinyin->hide();
    return 0;
}

int ViewManage::View_ShowKeyBoardWidget(View_keyBoardData* data)
{
    // the panel-wide overlay (that of id 0); a panel without desktop 0 shows the bar on the
    // current desktop's overlay
    XOverlay* overlay = m_windowManage->getOverlay(GetDeskNoFromWndId(0));
    if (!overlay)
        overlay = m_windowManage->getOverlay(m_windowManage->currentDesktop());
    m_pinyin->show(overlay, data); // null record or no desktop yet: nothing is shown
    return 0;
}
