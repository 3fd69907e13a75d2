#ifndef PINYINSTATE_H
#define PINYINSTATE_H

#include <QPointer>

class XOverlay;
class XPinyinDlg;
struct View_keyBoardData;

/**
 * What the Pinyin candidate bar keeps between calls: its one popup, made on
 * the first show and refilled by every later one. The popup lives on an
 * overlay and goes with it when its desktop is closed; the next show makes a
 * new one.
 */
class PinyinState {
public:
    /** The bar's z: above every other popup of the overlay. */
    static constexpr double kZ = 2147483647.0;

    PinyinState();
    ~PinyinState();
    PinyinState(const PinyinState&) = delete;
    PinyinState& operator=(const PinyinState&) = delete;

    /** Creates the popup on \a overlay (or moves it there), fills it from \a data and opens it.
     *  False, changing nothing, when \a data or \a overlay is null. */
    bool show(XOverlay* overlay, const View_keyBoardData* data);
    /** Closes the popup; it is kept for the next show. */
    void hide();
    /** The popup, null before the first show or once its overlay is gone. */
    XPinyinDlg* dialog() const;

private:
    QPointer<XPinyinDlg> m_dialog;
};

#endif // PINYINSTATE_H
