#ifndef XPINYINBOARD_H
#define XPINYINBOARD_H

#include "xcomponents/qquick/xbasepainteditem.h"

#include <QColor>
#include <QFont>
#include <QStringList>
#include <QVector>

struct View_keyBoardData;

/**
 * The Pinyin candidate bar: one row of candidate words handed over by the
 * logic layer's input method, followed by a previous-page and a next-page
 * button at the right end.
 *
 * Only the page on screen is laid out: a page takes candidates from its first
 * one while they fit the bar (at most kMaxPerPage), so a list of any length
 * costs no more than splitting its text. A press on a candidate selects it
 * (highlighted in the select colour) and sends EVT_PINYIN_SELECT with the
 * candidate's index among those shown; a press on a page button pages (when
 * there is a page that way) and sends EVT_PINYIN_NEXT_PAGE or
 * EVT_PINYIN_PREV_PAGE in any case, so a logic layer that pages its own list
 * hears every press. Events are sent on the GUI thread, with id 0.
 */
class XPinyinBoard : public XBasePaintedItem {
    Q_OBJECT
    Q_PROPERTY(QStringList candidates READ candidates NOTIFY candidatesChanged)
    Q_PROPERTY(int pageStart READ pageStart NOTIFY pageChanged)
    Q_PROPERTY(int shownCount READ shownCount NOTIFY pageChanged)
    Q_PROPERTY(int selectedIndex READ selectedIndex NOTIFY selectedIndexChanged)

public:
    /** Most candidates on one page. */
    static constexpr int kMaxPerPage = 9;
    /** Longest candidate drawn (UTF-16 units); longer ones are cut with an ellipsis. */
    static constexpr int kMaxShownChars = 64;
    /** Widest bar when the record gives no width and the bar is in no scene. */
    static constexpr int kDefaultMaxWidth = 800;

    explicit XPinyinBoard(QQuickItem* parent = nullptr);
    ~XPinyinBoard() override;

    /**
     * Replaces the candidates with the record's text split at every space
     * (empty pieces kept; null or empty text gives one empty candidate, as
     * splitting does), takes font and colours, and shows the first page. With a
     * record width and height > 0 the bar keeps that size; otherwise it sizes
     * itself to the page shown. A null record changes nothing.
     */
    void init(const View_keyBoardData* data);

    QStringList candidates() const { return m_candidates; }
    /** Index in the list of the first candidate shown. */
    int pageStart() const { return m_pageStart; }
    int shownCount() const { return m_rects.size(); }
    /** The pressed candidate among those shown, -1 for none. */
    int selectedIndex() const { return m_selected; }
    /** The rectangle of candidate \a shown (index among those shown) in item coordinates; empty
     *  when there is no such candidate. */
    QRectF candidateRect(int shown) const;
    QRectF prevButtonRect() const { return m_prevRect; }
    QRectF nextButtonRect() const { return m_nextRect; }
    bool hasNextPage() const { return m_pageStart + m_rects.size() < m_candidates.size(); }
    bool hasPrevPage() const { return !m_pageStarts.isEmpty(); }
    /** The font the candidates are drawn in: the record's, or, when that one has no Chinese
     *  glyphs, the same size and style in an installed family that has them. */
    QFont candidateFont() const { return m_font; }

    /** Lays out the page that starts at pageStart() and resizes the bar when it sizes itself. */
    Q_INVOKABLE void showChinese();
    /** Clears the candidates when \a index is an index of the list; otherwise does nothing. */
    Q_INVOKABLE void setChinese(int index);
    Q_INVOKABLE void nextPage();
    Q_INVOKABLE void prevPage();

    /* inherits documentation from base class */
    void paint(QPainter* painter) override;

    /** \a font, or the same font in a family with Chinese glyphs when its own has none. */
    static QFont withChineseGlyphs(const QFont& font);

Q_SIGNALS:
    void candidatesChanged();
    void pageChanged();
    void selectedIndexChanged();

protected:
    void mousePressEvent(QMouseEvent* event) override;

private:
    void setSelected(int shown);
    qreal maxWidth() const;

    QStringList m_candidates;
    QVector<QRectF> m_rects; // candidates of the page shown, in order
    QVector<int> m_pageStarts; // first candidate of each earlier page, for paging back
    int m_pageStart = 0;
    int m_selected = -1;
    bool m_fixedSize = false;
    QRectF m_prevRect;
    QRectF m_nextRect;
    QFont m_font;
    QColor m_textColor { Qt::black };
    QColor m_backColor { Qt::white };
    QColor m_selectColor { 0x33, 0x99, 0xFF };
};

#endif // XPINYINBOARD_H
