#ifndef XBUTTON_H
#define XBUTTON_H

#include "xcomponents/qquick/xbasecontrol.h"
#include "xcomponents/qquick/xcausetext.h"
#include "xcomponents/qquick/xquickimage.h"

#include <QColor>
#include <QPointer>
#include <QUrl>

class QQuickMouseArea;

/**
 * The push button: a caption (XCauseText, filling the button), a face picture
 * made on the first setImage, and an optional drag area that makes the button
 * the drag handle of its window.
 *
 * The button keeps no state of its own: presses and releases are handed to the
 * popup window (XLumoDialog) or window (XWindow) that holds it, which reports
 * them to the logic layer; the logic layer restyles the button.
 *
 * The caption colour is stored: while the grey flag is set the caption is
 * "gray", and the stored colour returns when the flag is cleared.
 */
class XButton : public XBaseControl {
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(QColor fontColor READ fontColor WRITE setFontColor NOTIFY fontColorChanged)

public:
    explicit XButton(QQuickItem* parent = nullptr);
    ~XButton() override;

    /* inherits documentation from base class */
    int getItemType() const override { return TypeButton; }

    XCauseText* textItem() const { return m_text.data(); }
    /** The face picture, null until the first setImage. */
    XQuickImage* imageItem() const { return m_image.data(); }

    /** Shows the picture at \a url as the button face (creates the face on first use). */
    Q_INVOKABLE void setImage(const QUrl& url);
    Q_INVOKABLE void setImageVisible(bool visible) override;
    QString text() const;
    Q_INVOKABLE void setText(const QString& text);
    void setLineSpace(int space);
    QColor fontColor() const { return m_fontColor; }
    Q_INVOKABLE void setFontColor(const QColor& color);
    /** The item brush's colour is the caption's colour (View_ChangeFontColor). */
    Q_INVOKABLE void setItemBrush(const QBrush& brush) override;
    void setFontAlignment(int align);
    void setAlignment(Qt::Alignment align);
    void setTextHMargin(int margin);
    void setTextVMargin(int margin);
    Q_INVOKABLE void showSlashItem() override;
    Q_INVOKABLE void hideSlashItem() override;
    bool hasSlashAnimation() const override;
    Q_INVOKABLE void setGrayFlag(bool on) override;
    /** One carousel step of the caption; (0, 0) is ignored. */
    Q_INVOKABLE void setCarouse(const QPoint& step);
    Q_INVOKABLE void hideCarouselItem();
    /** Gives the caption back to the button when carousel handling took it away. */
    Q_INVOKABLE void resetState();
    /**
     * Whether the caption overflows the button for a carousel in \a direction: 0 and 1
     * (vertical) compare heights, 2 and 3 (horizontal) widths. For other directions, and
     * whenever the caption fits, the carousel copy is hidden and the result is false.
     */
    Q_INVOKABLE bool isTextOutOfRange(int direction);
    /** Makes dragging the button move \a item (a drag area is made on first use). */
    void setDragTarget(QQuickItem* item);
    QQuickItem* dragArea() const;

public Q_SLOTS:
    /** Passes the control's font on to the caption. */
    void onFontChanged();

Q_SIGNALS:
    void textChanged();
    void fontColorChanged();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void touchEvent(QTouchEvent* event) override;
    void geometryChanged(const QRectF& newGeometry, const QRectF& oldGeometry) override;

private:
    /** Hands a press (true) or release at \a pos (button coordinates) to the window holding the button. */
    void handOver(const QPointF& pos, bool press);

    QPointer<XCauseText> m_text;
    QPointer<XQuickImage> m_image;
    QPointer<QQuickMouseArea> m_dragArea;
    QColor m_fontColor = Qt::black;
};

#endif // XBUTTON_H
