#include "xcomponents/qquick/xwindowtitile.h"

#include "platform/guiqtadaptcore.h"

#include <QPainter>
#include <QTouchEvent>

WindowTitile::WindowTitile(QQuickItem* parent)
    : XBasePaintedItem(parent)
{
    setAcceptedMouseButtons(Qt::LeftButton);
    setAcceptTouchEvents(true);
    setAntialiasing(true);
    m_font.setPixelSize(18);
}

void WindowTitile::setTitle(const QString& text)
{
    // a title longer than any bar is cut, so eliding it never stalls the panel
    constexpr int kMaxTitle = 512;
    const QString title = GuiQtAdapt::Core::cutText(text, kMaxTitle);
    if (m_title == title)
        return;
    m_title = title;
    Q_EMIT titleChanged();
    update();
}

void WindowTitile::setTitleFont(const QFont& font)
{
    m_font = font;
    update();
}

void WindowTitile::setTitleColor(const QColor& color)
{
    m_color = color;
    update();
}

void WindowTitile::setBackground(const QBrush& brush)
{
    m_background = brush;
    update();
}

void WindowTitile::setAlignment(Qt::Alignment alignment)
{
    m_alignment = alignment;
    update();
}

void WindowTitile::setButtons(int buttons)
{
    m_buttons = buttons & (CloseButton | UpButton | DownButton);
    update();
}

QRectF WindowTitile::buttonRect(Button b) const
{
    if (!(m_buttons & b))
        return QRectF();
    const qreal side = height();
    qreal right = width();
    // from the right: close, down, up
    for (Button each : { CloseButton, DownButton, UpButton }) {
        if (!(m_buttons & each))
            continue;
        const QRectF r(right - side, 0, side, side);
        if (each == b)
            return r;
        right -= side;
    }
    return QRectF();
}

WindowTitile::Button WindowTitile::buttonAt(const QPointF& pos) const
{
    for (Button b : { CloseButton, UpButton, DownButton }) {
        if (buttonRect(b).contains(pos))
            return b;
    }
    return NoButton;
}

void WindowTitile::paint(QPainter* painter)
{
    const QRectF all = boundingRect();
    painter->fillRect(all, m_background);
    qreal textRight = width();
    for (Button b : { CloseButton, UpButton, DownButton }) {
        const QRectF r = buttonRect(b);
        if (r.isEmpty())
            continue;
        textRight = qMin(textRight, r.left());
        if (m_pressedButton == b)
            painter->fillRect(r, QColor(255, 255, 255, 60));
        const QRectF g = r.adjusted(r.width() * 0.3, r.height() * 0.3, -r.width() * 0.3, -r.height() * 0.3);
        painter->setPen(QPen(m_color, qMax<qreal>(2.0, height() / 14), Qt::SolidLine, Qt::RoundCap));
        if (b == CloseButton) {
            painter->drawLine(g.topLeft(), g.bottomRight());
            painter->drawLine(g.topRight(), g.bottomLeft());
        } else {
            const bool up = b == UpButton;
            const QPointF tip(g.center().x(), up ? g.top() : g.bottom());
            painter->drawLine(QPointF(g.left(), up ? g.bottom() : g.top()), tip);
            painter->drawLine(tip, QPointF(g.right(), up ? g.bottom() : g.top()));
        }
    }
    painter->setPen(m_color);
    painter->setFont(m_font);
    const QRectF textRect(reservedLeft() + 8, 0, qMax<qreal>(0, textRight - reservedLeft() - 16), height());
    painter->drawText(textRect, int(m_alignment),
        painter->fontMetrics().elidedText(m_title, Qt::ElideRight, int(textRect.width())));
}

void WindowTitile::press(const QPointF& pos, const QPointF& scenePos)
{
    m_pressedButton = buttonAt(pos);
    if (m_pressedButton == NoButton) {
        m_dragging = true;
        m_lastScenePos = scenePos;
        Q_EMIT titlePressed();
    }
    update();
}

void WindowTitile::move(const QPointF& scenePos)
{
    if (!m_dragging)
        return;
    const QPoint offset = (scenePos - m_lastScenePos).toPoint();
    if (offset.isNull())
        return;
    m_lastScenePos += QPointF(offset);
    Q_EMIT moveOffset(offset);
}

void WindowTitile::release(const QPointF& pos)
{
    const Button pressed = m_pressedButton;
    m_pressedButton = NoButton;
    m_dragging = false;
    update();
    if (pressed == NoButton || buttonAt(pos) != pressed)
        return; // released elsewhere: no click
    switch (pressed) {
    case CloseButton:
        Q_EMIT closeClicked();
        break;
    case UpButton:
        Q_EMIT upClicked();
        break;
    case DownButton:
        Q_EMIT downClicked();
        break;
    default:
        break;
    }
}

void WindowTitile::mousePressEvent(QMouseEvent* event)
{
    press(event->localPos(), event->windowPos());
    event->accept();
}

void WindowTitile::mouseMoveEvent(QMouseEvent* event)
{
    move(event->windowPos());
    event->accept();
}

void WindowTitile::mouseReleaseEvent(QMouseEvent* event)
{
    release(event->localPos());
    event->accept();
}

void WindowTitile::touchEvent(QTouchEvent* event)
{
    if (event->touchPoints().isEmpty()) {
        event->ignore();
        return;
    }
    const QTouchEvent::TouchPoint& tp = event->touchPoints().first();
    switch (event->type()) {
    case QEvent::TouchBegin:
        press(tp.pos(), tp.scenePos());
        break;
    case QEvent::TouchUpdate:
        move(tp.scenePos());
        break;
    case QEvent::TouchEnd:
        release(tp.pos());
        break;
    case QEvent::TouchCancel:
        m_pressedButton = NoButton;
        m_dragging = false;
        update();
        break;
    default:
        break;
    }
    event->accept();
}
