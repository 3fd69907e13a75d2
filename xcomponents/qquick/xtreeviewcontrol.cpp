#include "xcomponents/qquick/xtreeviewcontrol.h"

#include "platform/logiclayercaller.h"
#include "xcomponents/qquick/nqmltreemodeltotablemodel.h"
#include "xcomponents/qquick/nquicktreeview.h"
#include "xcomponents/qquick/treemodel.h"
#include "xcomponents/qquick/xtreeview.h"

#include <QMouseEvent>
#include <QTouchEvent>

#include <qgui/events.h>

namespace {
constexpr qreal kDragDistance = 10.0; // pixels a press moves before it scrolls the rows
}

XTreeViewControl::XTreeViewControl(QQuickItem* parent)
    : XBaseControl(parent)
{
    setAcceptedMouseButtons(Qt::LeftButton);
    setAcceptTouchEvents(true);
    setClip(true);
}

XTreeViewControl::~XTreeViewControl() = default;

void XTreeViewControl::setTreeview(XTreeview* tree)
{
    if (m_tree == tree)
        return;
    if (m_tree)
        disconnect(m_tree, nullptr, this, nullptr);
    m_tree = tree;
    if (tree)
        connect(tree, &XTreeview::styleChanged, this, &XTreeViewControl::frameColorChanged);
    Q_EMIT treeviewChanged();
    Q_EMIT frameColorChanged();
}

QColor XTreeViewControl::frameColor() const
{
    return m_tree ? m_tree->frameColor() : QColor(Qt::black);
}

int XTreeViewControl::rowAt(const QPointF& pos) const
{
    NQuickTreeView* view = m_tree ? m_tree->treeView() : nullptr;
    if (!view || pos.x() < 0 || pos.x() >= width())
        return -1;
    return view->rowAt(view->mapFromItem(this, pos).y());
}

int XTreeViewControl::entryIndexAt(int row) const
{
    NQuickTreeView* view = m_tree ? m_tree->treeView() : nullptr;
    if (!view)
        return -1;
    const QModelIndex index = view->proxy()->mapToModel(row);
    return index.isValid() ? index.data(TreeModel::EntryIndexRole).toInt() : -1;
}

void XTreeViewControl::pressAt(const QPointF& pos)
{
    NQuickTreeView* view = m_tree ? m_tree->treeView() : nullptr;
    m_pressing = true;
    m_dragging = false;
    m_entryPressed = false;
    m_pressY = pos.y();
    m_pressContentY = view ? view->contentY() - view->originY() : 0;
    const int row = rowAt(pos);
    if (row < 0)
        return;
    const qreal x = view->mapFromItem(this, pos).x();
    if (view->hasChildren(row) && x < qreal(view->depth(row) + 1) * m_tree->indent()) {
        view->toggleExpanded(row); // the expander: no entry is pressed
        return;
    }
    m_pressedEntry = entryIndexAt(row);
    m_entryPressed = true;
    qint32 index = m_pressedEntry;
    LogicLayerCaller::call(getId(), EVT_WIDGET_PRESS, &index);
}

void XTreeViewControl::dragTo(const QPointF& pos)
{
    NQuickTreeView* view = m_tree ? m_tree->treeView() : nullptr;
    if (!m_pressing || !view)
        return;
    const qreal dy = pos.y() - m_pressY;
    if (!m_dragging && qAbs(dy) < kDragDistance)
        return;
    m_dragging = true;
    view->scrollTo(m_pressContentY - dy);
}

void XTreeViewControl::releaseAt()
{
    if (!m_pressing)
        return;
    m_pressing = false;
    if (!m_entryPressed)
        return;
    m_entryPressed = false;
    qint32 index = m_pressedEntry;
    LogicLayerCaller::call(getId(), EVT_WIDGET_RELEASE, &index);
    if (!m_dragging)
        Q_EMIT itemClicked(index);
}

void XTreeViewControl::mousePressEvent(QMouseEvent* event)
{
    pressAt(event->localPos());
    event->accept();
}

void XTreeViewControl::mouseMoveEvent(QMouseEvent* event)
{
    dragTo(event->localPos());
    event->accept();
}

void XTreeViewControl::mouseReleaseEvent(QMouseEvent* event)
{
    releaseAt();
    event->accept();
}

void XTreeViewControl::mouseUngrabEvent()
{
    releaseAt();
}

void XTreeViewControl::touchEvent(QTouchEvent* event)
{
    const QList<QTouchEvent::TouchPoint> points = event->touchPoints();
    if (!points.isEmpty()) {
        const QPointF pos = points.first().pos();
        if (event->type() == QEvent::TouchBegin)
            pressAt(pos);
        else if (event->type() == QEvent::TouchUpdate)
            dragTo(pos);
        else if (event->type() == QEvent::TouchEnd || event->type() == QEvent::TouchCancel)
            releaseAt();
    }
    event->accept();
}
