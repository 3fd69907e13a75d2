// The on-screen keyboard and the Pinyin candidate bar: not built yet. Every call is accepted and changes
// nothing: the creators create nothing and return -1 (as for an unknown window); the other calls return what
// they return for an unknown id.
#include "views/viewmanage.h"

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

int ViewManage::View_ShowKeyBoardWidget(View_keyBoardData*)
{
    return 0;
}
