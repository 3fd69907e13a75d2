// The on-screen keyboard and the Pinyin candidate bar. The keyboard is not built yet: its calls are
// accepted and change nothing, returning what they return for an unknown id.
#include "views/viewmanage.h"

#include "views/pinyinstate.h"
#include "views/qmlwindowmanage.h"

#include <qgui/ids.h>

int ViewManage::View_ChangeKBText(unsigned int, const char*, const Font*)
{
    return 0;
}

int ViewManage::View_CloseVirtualKeyboard()
{
    return 0;
}

int ViewManage::View_HideKeyBoardWidget()
{
    m_pinyin->hide();
    return 0;
}

int ViewManage::View_PopupVirtualKeyboard(unsigned int, int, const char*)
{
    return 0;
}

int ViewManage::View_SetKBoardTextCursorFocus()
{
    return 0;
}

int ViewManage::View_SetKBoardTextCursorPosition(unsigned int, unsigned int)
{
    return -1;
}

int ViewManage::View_SetKBoardTextSelectCursor(unsigned int, unsigned int, unsigned int)
{
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
