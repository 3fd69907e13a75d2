#include "views/pinyinstate.h"

#include "platform/xoverlay.h"
#include "xcomponents/qquick/xpinyindlg.h"

PinyinState::PinyinState() = default;

PinyinState::~PinyinState()
{
    delete m_dialog.data();
}

bool PinyinState::show(XOverlay* overlay, const View_keyBoardData* data)
{
    if (!overlay || !data)
        return false;
    if (!m_dialog) {
        m_dialog = new XPinyinDlg(overlay); // owned by the overlay
        m_dialog->setObjectName(QStringLiteral("pinyinDlg"));
    }
    m_dialog->setOverlay(overlay);
    m_dialog->setParent(overlay);
    m_dialog->setZ(kZ);
    m_dialog->init(data);
    m_dialog->open();
    return true;
}

XPinyinDlg* PinyinState::dialog() const
{
    return m_dialog.data();
}

void PinyinState::hide()
{
    if (m_dialog)
        m_dialog->close();
}
