#ifndef XCAUSETEXT_H
#define XCAUSETEXT_H

#include "xcomponents/qquick/xbasecontrol.h"
#include "xcomponents/qquick/xskcausetext.h"

#include <QColor>
#include <QPen>

/**
 * The registered text widget: a control (id, window id, disabled icon, grey
 * flag) whose content is a carousel-capable label (XskCauseText). Also the
 * caption of the button.
 *
 * The text colour is stored: while the grey flag is set the text is shown in
 * "gray" and the stored colour returns when the flag is cleared.
 */
class XCauseText : public XBaseControl, public XskCauseText {
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(QColor fontColor READ fontColor WRITE setFontColor NOTIFY fontColorChanged)

public:
    explicit XCauseText(QQuickItem* parent = nullptr);
    ~XCauseText() override;

    /* inherits documentation from base class */
    int getItemType() const override { return TypeText; }

    QString text() const;
    Q_INVOKABLE void setText(const QString& text);
    /** The main label's font (the carousel copy follows it). */
    QFont textFont() const;
    void setTextFont(const QFont& font);
    QColor fontColor() const { return m_fontColor; }
    Q_INVOKABLE void setFontColor(const QColor& color);
    void setLineSpace(int space);
    void setFontAlignment(int align);
    void setAlignment(Qt::Alignment align);
    void setTextHMargin(int margin);
    void setTextVMargin(int margin);
    /** Position and size in one go. */
    void setWgtRect(const QRect& rect);

    /** The text colour from a brush's colour. */
    Q_INVOKABLE void setItemBrush(const QBrush& brush) override;
    /** The text colour from a pen's colour. */
    Q_INVOKABLE void setItemPen(const QPen& pen);
    Q_INVOKABLE void setGrayFlag(bool on) override;
    Q_INVOKABLE void showSlashItem() override { XskCauseText::showSlashItem(); }
    Q_INVOKABLE void hideSlashItem() override { XskCauseText::hideSlashItem(); }
    bool hasSlashAnimation() const override { return slashItem() != nullptr; }
    Q_INVOKABLE void setCarouse(const QPoint& step) { XskCauseText::setCarouse(step); }

    /** Scales the widget to \a w x \a h of its present size about \a origin (a
     *  QQuickItem::TransformOrigin value). */
    Q_INVOKABLE void zoom(qreal w, qreal h, int origin);
    /** Turns the widget by \a angle degrees about \a origin. */
    Q_INVOKABLE void rotate(qreal angle, int origin);

Q_SIGNALS:
    void textChanged();
    void fontColorChanged();

protected:
    /* inherits documentation from base class */
    void geometryChanged(const QRectF& newGeometry, const QRectF& oldGeometry) override;

private:
    QColor m_fontColor = Qt::black;
};

#endif // XCAUSETEXT_H
