#ifndef XPINYINDLG_H
#define XPINYINDLG_H

#include "platform/xpopup.h"
#include "xcomponents/qquick/xpinyinboard.h"

struct View_keyBoardData;

/**
 * The popup that carries the Pinyin candidate bar on an overlay. It is not
 * modal and never closes by itself: presses outside it reach the panel, and
 * only the logic layer closes it. Its size follows the bar's.
 */
class XPinyinDlg : public XPopup {
    Q_OBJECT
    Q_PROPERTY(XPinyinBoard* board READ board CONSTANT)

public:
    explicit XPinyinDlg(QQuickItem* parent = nullptr);
    ~XPinyinDlg() override;

    XPinyinBoard* board() const { return m_board; }

    /** Fills the bar from \a data and moves the popup to the record's position; a null record
     *  changes nothing. */
    void init(const View_keyBoardData* data);

private:
    void followBoard();

    XPinyinBoard* m_board = nullptr; // child item of the content item, owned through the item tree
};

#endif // XPINYINDLG_H
