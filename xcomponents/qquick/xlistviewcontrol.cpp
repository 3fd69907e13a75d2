#include "xcomponents/qquick/xlistviewcontrol.h"

#include "platform/logiclayercaller.h"
#include "xcomponents/qquick/xlistmodel.h"

#include <QMouseEvent>
#include <QTouchEvent>
#include <QtMath>

#include <qgui/events.h>

namespace {
constexpr qreal kDragDistance = 10.0; // pixels a press moves before it scrolls the entries
}

XListViewControl::XListViewControl(QQuickItem* parent)
    : XBaseControl(parent)
    , m_model(new XListModel(this))
{
    setAcceptedMouseButtons(Qt::LeftButton);
    setAcceptTouchEvents(true);
    setClip(true);
}

XListViewControl::~XListViewControl() = default;

void XListViewControl::setEntries(const QStringList& entries)
{
    m_entries = entries;
    m_model->setEntries(entries);
    Q_EMIT entriesChanged();
    setContentY(0);
}

void XListViewControl::setCurrentIndex(int index)
{
    if (m_currentIndex == index)
        return;
    m_currentIndex = index;
    m_model->setCurrentIndex(index);
    Q_EMIT currentIndexChanged();
}

void XListViewControl::setRowHeight(int height)
{
    height = qMax(1, height);
    if (m_rowHeight == height)
        return;
    m_rowHeight = height;
    Q_EMIT styleChanged();
    setContentY(m_contentY);
}

qreal XListViewControl::maxContentY() const
{
    const qreal inner = height() - 2 * m_borderWidth;
    return qMax<qreal>(0.0, qreal(m_entries.size()) * m_rowHeight - inner);
}

void XListViewControl::setContentY(qreal y)
{
    y = qBound<qreal>(0.0, y, maxContentY());
    if (qFuzzyCompare(m_contentY + 1.0, y + 1.0))
        return;
    m_contentY = y;
    Q_EMIT contentYChanged();
}

void XListViewControl::setEntryFont(const QFont& font)
{
    m_font = font;
    Q_EMIT styleChanged();
}

void XListViewControl::setFontColor(const QColor& color)
{
    m_fontColor = color;
    Q_EMIT styleChanged();
}

void XListViewControl::setBackColor(const QColor& color)
{
    m_backColor = color;
    Q_EMIT styleChanged();
}

void XListViewControl::setHighlightColor(const QColor& color)
{
    m_highlightColor = color;
    Q_EMIT styleChanged();
}

void XListViewControl::setFrameColor(const QColor& color)
{
    m_frameColor = color;
    Q_EMIT styleChanged();
}

void XListViewControl::setBorderWidth(int width)
{
    m_borderWidth = qBound(0, width, 32);
    Q_EMIT styleChanged();
}

void XListViewControl::setBgImage(const QUrl& url)
{
    m_bgImage = url;
    Q_EMIT styleChanged();
}

int XListViewControl::indexAt(const QPointF& pos) const
{
    if (pos.x() < 0 || pos.x() >= width() || pos.y() < m_borderWidth || pos.y() >= height() - m_borderWidth)
        return -1;
    const qreal y = pos.y() - m_borderWidth + m_contentY;
    const qint64 row = qint64(qFloor(y / m_rowHeight));
    return row >= 0 && row < m_entries.size() ? int(row) : -1;
}

void XListViewControl::pressAt(const QPointF& pos)
{
    m_pressing = true;
    m_dragging = false;
    m_pressY = pos.y();
    m_pressContentY = m_contentY;
    m_pressedIndex = indexAt(pos);
    if (m_pressedIndex >= 0) {
        qint32 index = m_pressedIndex;
        LogicLayerCaller::call(getId(), EVT_WIDGET_PRESS, &index);
    }
}

void XListViewControl::dragTo(const QPointF& pos)
{
    if (!m_pressing)
        return;
    const qreal dy = pos.y() - m_pressY;
    if (!m_dragging && qAbs(dy) < kDragDistance)
        return;
    m_dragging = true;
    setContentY(m_pressContentY - dy);
}

void XListViewControl::releaseAt()
{
    if (!m_pressing)
        return;
    m_pressing = false;
    const int pressed = m_pressedIndex;
    m_pressedIndex = -1;
    if (pressed < 0)
        return;
    qint32 index = pressed;
    LogicLayerCaller::call(getId(), EVT_WIDGET_RELEASE, &index);
    if (!m_dragging)
        Q_EMIT itemClicked(pressed);
}

void XListViewControl::mousePressEvent(QMouseEvent* event)
{
    pressAt(event->localPos());
    event->accept();
}

void XListViewControl::mouseMoveEvent(QMouseEvent* event)
{
    dragTo(event->localPos());
    event->accept();
}

void XListViewControl::mouseReleaseEvent(QMouseEvent* event)
{
    releaseAt();
    event->accept();
}

void XListViewControl::mouseUngrabEvent()
{
    releaseAt(); // a press taken away (the pop-up closed under it) is still closed with event 3
}

void XListViewControl::touchEvent(QTouchEvent* event)
{
    const QList<QTouchEvent::TouchPoint> points = event->touchPoints();
    if (points.isEmpty()) {
        event->accept();
        return;
    }
    const QPointF pos = points.first().pos();
    switch (event->type()) {
    case QEvent::TouchBegin:
        pressAt(pos);
        break;
    case QEvent::TouchUpdate:
        dragTo(pos);
        break;
    case QEvent::TouchEnd:
    case QEvent::TouchCancel:
        releaseAt();
        break;
    default:
        break;
    }
    event->accept();
}
