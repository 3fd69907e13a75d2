#include "xcomponents/qquick/xpinyindlg.h"

#include "platform/guiqtadaptcore.h"
#include "xcomponents/qquick/xpinyinboard.h"

#include <qgui/records_input.h>

XPinyinDlg::XPinyinDlg(QQuickItem* parent)
    : XPopup(parent)
    , m_board(new XPinyinBoard(contentItem()))
{
    connect(m_board, &QQuickItem::widthChanged, this, &XPinyinDlg::followBoard);
    connect(m_board, &QQuickItem::heightChanged, this, &XPinyinDlg::followBoard);
    followBoard();
}

XPinyinDlg::~XPinyinDlg() = default;

void XPinyinDlg::init(const View_keyBoardData* data)
{
    if (!data)
        return;
    m_board->init(data);
    const QRect r = GuiQtAdapt::Core::toQRect(data->rect);
    setPosition(r.topLeft());
}

void XPinyinDlg::followBoard()
{
    setSize(m_board->size());
}
