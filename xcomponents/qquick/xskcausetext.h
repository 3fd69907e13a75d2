#ifndef XSKCAUSETEXT_H
#define XSKCAUSETEXT_H

#include <QList>
#include <QMetaObject>
#include <QPoint>
#include <QPointF>
#include <QSizeF>

class QQuickItem;
class XskTextLabel;

/**
 * The content of a text widget: the main label, the carousel label (a copy of
 * the main label made on the first carousel step), the slash item (a diagonal
 * stroke over the text, with its own copy on the carousel label), and the mask
 * item that clips both labels to the widget's box (made with the carousel: a
 * text that does not scroll needs no clipping).
 *
 * The carousel is a marquee driven from outside: each setCarouse(step) moves
 * both labels by the step. The copy sits one box length behind the main label
 * on the side the text comes from, and the accumulated offset wraps at the box
 * length, so the two copies form a band that loops without a seam.
 *
 * This is the behaviour shared by the text widget and the button caption; the
 * host item (the widget) owns the mask and the labels as QObject children and
 * calls layoutCauseText() when its size changes.
 */
class XskCauseText {
public:
    explicit XskCauseText(QQuickItem* host);
    virtual ~XskCauseText();

    XskTextLabel* mainLabel() const { return m_label; }
    /** The carousel label, null until the first carousel step. */
    XskTextLabel* carouselLabel() const { return m_carousel; }
    /** The slash item over the main label, null until first shown. */
    QQuickItem* slashItem() const { return m_slash; }
    /** The item that clips the labels to the widget's box; made with the carousel (or on this
     *  call), until then the main label sits in the widget directly. */
    QQuickItem* getMaskItem();

    bool outRangeFlag() const { return m_outRange; }
    void setOutRangeFlag(bool on) { m_outRange = on; }

    /**
     * One carousel step of \a step pixels: dx scrolls horizontally, dy vertically,
     * the sign giving the direction. A step with both set scrolls along x only
     * (dy is ignored); (0, 0) does nothing.
     */
    void setCarouse(const QPoint& step);
    /** setCarouse for a button's caption; the carousel copy also follows the caption when it
     *  loses its parent item (its slash copy is then hidden). */
    void buttonTextCarouse(const QPoint& step);
    void hideCarouselItem();
    /** The accumulated carousel offset: where the main label sits now. */
    QPointF carouselOffset() const { return { m_accX, m_accY }; }

    /** Shows or hides the slash item and its carousel copy together. */
    void setSlash(bool on);
    void showSlashItem() { setSlash(true); }
    void hideSlashItem() { setSlash(false); }
    bool isSlashShown() const { return m_slashOn; }

protected:
    /** Sizes mask and labels to the host's box. */
    void layoutCauseText(const QSizeF& size);

private:
    void makeCarouselLabel();
    void placeLabels(qreal stepSign, bool horizontal);

    XskTextLabel* m_label = nullptr;
    XskTextLabel* m_carousel = nullptr;
    QQuickItem* m_slash = nullptr;
    QQuickItem* m_carouselSlash = nullptr;
    QQuickItem* m_mask = nullptr;
    bool m_outRange = false;

    QQuickItem* m_host = nullptr;
    bool m_slashOn = false;
    bool m_followsParent = false;
    qreal m_accX = 0;
    qreal m_accY = 0;
};

#endif // XSKCAUSETEXT_H
