#ifndef XSKTEXTLABEL_H
#define XSKTEXTLABEL_H

#include <QColor>
#include <QFont>
#include <QQuickItem>

class QQuickText;

/**
 * One text label: a box that holds a Qt Quick text item (the inner text) and
 * places it by the label's alignment and margins.
 *
 * Two alignments are at work: the font alignment lines the text's lines up
 * inside the text block (the inner item's horizontal and vertical alignment),
 * the alignment places the whole block inside the label (the inner item's
 * anchors). A margin only applies to an edge-aligned block; a centred block
 * ignores it, and a block with any other alignment (justified, several bits)
 * is not anchored in that direction and stays at the label's edge.
 */
class XskTextLabel : public QQuickItem {
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(QFont font READ font WRITE setFont NOTIFY fontChanged)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)
    Q_PROPERTY(int horizontalAlignment READ horizontalAlignment WRITE setHorizontalAlignment NOTIFY
            horizontalAlignmentChanged)
    Q_PROPERTY(int verticalAlignment READ verticalAlignment WRITE setVerticalAlignment NOTIFY
            verticalAlignmentChanged)
    Q_PROPERTY(int wrapMode READ wrapMode WRITE setWrapMode NOTIFY wrapModeChanged)
    Q_PROPERTY(int fontAlignment READ fontAlignment WRITE setFontAlignment NOTIFY fontAligmentChanged)
    Q_PROPERTY(Qt::Alignment alignment READ alignment WRITE setAlignment NOTIFY aligmentChanged)
    Q_PROPERTY(int lineSpace READ lineSpace WRITE setLineSpace NOTIFY lineSpaceChanged)
    Q_PROPERTY(int textVMargin READ textVMargin WRITE setTextVMargin NOTIFY textVMarginChanged)
    Q_PROPERTY(int textHMargin READ textHMargin WRITE setTextHMargin NOTIFY textHMarginChanged)

public:
    explicit XskTextLabel(QQuickItem* parent = nullptr);
    ~XskTextLabel() override;

    QString text() const;
    /** Shows \a text, cut at GuiQtAdapt::Core::kMaxShownText characters. */
    Q_INVOKABLE void setText(const QString& text);
    QFont font() const;
    void setFont(const QFont& font);
    QColor color() const;
    void setColor(const QColor& color);
    /** Qt::AlignLeft, AlignRight, AlignHCenter or AlignJustify; the default is AlignLeft. */
    int horizontalAlignment() const { return m_hAlign; }
    void setHorizontalAlignment(int align);
    /** Qt::AlignTop, AlignBottom or AlignVCenter; the default is AlignTop. */
    int verticalAlignment() const { return m_vAlign; }
    void setVerticalAlignment(int align);
    /** A QQuickText::WrapMode value; the default is no wrapping. */
    int wrapMode() const { return m_wrapMode; }
    void setWrapMode(int mode);
    /** The lines' alignment inside the text block: sets the horizontal and vertical alignment. */
    int fontAlignment() const { return m_fontAlignment; }
    void setFontAlignment(int align);
    /** Where the text block sits in the label; re-applies both margins. The default is 0 (top left,
     *  not anchored). */
    Qt::Alignment alignment() const { return m_alignment; }
    void setAlignment(Qt::Alignment align);
    /** Extra space between lines, pixels (0 by default). */
    int lineSpace() const { return m_lineSpace; }
    void setLineSpace(int space);
    int textVMargin() const { return m_vMargin; }
    void setTextVMargin(int margin);
    int textHMargin() const { return m_hMargin; }
    void setTextHMargin(int margin);

    /** The size the text takes (its lines, in the label's font). */
    qreal contentWidth() const;
    qreal contentHeight() const;
    /** The inner text item (tests, and the carousel's bookkeeping). */
    QQuickText* textItem() const { return m_text; }

Q_SIGNALS:
    void textChanged();
    void fontChanged();
    void colorChanged();
    void horizontalAlignmentChanged();
    void verticalAlignmentChanged();
    void wrapModeChanged();
    void fontAligmentChanged();
    void aligmentChanged();
    void lineSpaceChanged();
    void textVMarginChanged();
    void textHMarginChanged();

protected:
    /* inherits documentation from base class */
    void geometryChanged(const QRectF& newGeometry, const QRectF& oldGeometry) override;

private:
    void anchorHorizontally();
    void anchorVertically();
    void applyLineHeight();

    QQuickText* m_text = nullptr; // child, owned
    int m_hAlign = Qt::AlignLeft;
    int m_vAlign = Qt::AlignTop;
    int m_wrapMode = 0;
    int m_fontAlignment = 0;
    Qt::Alignment m_alignment;
    int m_lineSpace = 0;
    int m_vMargin = 0;
    int m_hMargin = 0;
};

#endif // XSKTEXTLABEL_H
