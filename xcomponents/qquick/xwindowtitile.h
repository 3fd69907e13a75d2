#ifndef XWINDOWTITILE_H
#define XWINDOWTITILE_H

#include "xcomponents/qquick/xbasepainteditem.h"
#include <QBrush>
#include <QColor>
#include <QFont>

/**
 * The title bar of a popup window: the title text and up to three buttons
 * (up, down, close) at its right end. It only reports: a click on the close
 * button emits closeClicked (the window stays open until the logic layer closes
 * it), a press elsewhere emits titlePressed and, while the finger moves,
 * moveOffset with the distance moved since the last report.
 */
class WindowTitile : public XBasePaintedItem {
    Q_OBJECT
    Q_PROPERTY(QString title READ title WRITE setTitle NOTIFY titleChanged)

public:
    enum Button { NoButton = 0, CloseButton = 0x1, UpButton = 0x2, DownButton = 0x4 };
    Q_ENUM(Button)

    explicit WindowTitile(QQuickItem* parent = nullptr);

    QString title() const { return m_title; }
    /** Sets the title; titles longer than 512 characters are cut and end in an ellipsis. */
    void setTitle(const QString& title);
    void setTitleFont(const QFont& font);
    void setTitleColor(const QColor& color);
    void setBackground(const QBrush& brush);
    void setAlignment(Qt::Alignment alignment);
    /** Which buttons are shown (Button bits). */
    void setButtons(int buttons);
    int buttons() const { return m_buttons; }
    /** The rectangle of a shown button in item coordinates (empty when not shown). */
    QRectF buttonRect(Button b) const;

    void paint(QPainter* painter) override;

Q_SIGNALS:
    void titleChanged();
    void closeClicked();
    void upClicked();
    void downClicked();
    void titlePressed();
    void moveOffset(const QPoint& offset);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void touchEvent(QTouchEvent* event) override;
    /** Space at the left taken by subclasses' own content (the keyboard window's entry). */
    virtual qreal reservedLeft() const { return 0; }

private:
    Button buttonAt(const QPointF& pos) const;
    void press(const QPointF& pos, const QPointF& scenePos);
    void move(const QPointF& scenePos);
    void release(const QPointF& pos);

    QString m_title;
    QFont m_font;
    QColor m_color { Qt::white };
    QBrush m_background { QColor(0x2B, 0x3A, 0x4A) };
    Qt::Alignment m_alignment = Qt::AlignCenter;
    int m_buttons = CloseButton;
    Button m_pressedButton = NoButton;
    bool m_dragging = false;
    QPointF m_lastScenePos;
};

#endif // XWINDOWTITILE_H
