#include "xcomponents/qquick/xwindow.h"

#include "platform/gid.h"
#include "platform/logiclayercaller.h"

#include <QQuickItem>

#include <qgui/events.h>

XWindow::XWindow(QQuickItem* parent)
    : XBaseControl(parent)
    , m_content(new QQuickItem(this))
{
    setClip(true);
    m_content->setObjectName(QStringLiteral("windowContent"));
    m_content->setZ(1); // above the background
    setAcceptedMouseButtons(Qt::NoButton); // presses go to the widgets; empty areas report nothing
    setAcceptTouchEvents(false);
}

XWindow::~XWindow() = default;

void XWindow::adoptLayer(QPointer<QQuickItem>& slot, QQuickItem* item, QQuickItem* owner, qreal z)
{
    if (slot == item)
        return;
    delete slot.data();
    slot = item;
    if (item) {
        item->setParentItem(owner);
        item->setParent(owner);
        item->setZ(z);
        item->setSize(owner->size());
    }
}

void XWindow::setBackgroundItem(QQuickItem* item)
{
    adoptLayer(m_background, item, this, 0);
}

void XWindow::geometryChanged(const QRectF& newGeometry, const QRectF& oldGeometry)
{
    XBaseControl::geometryChanged(newGeometry, oldGeometry);
    m_content->setSize(newGeometry.size());
    if (m_background)
        m_background->setSize(newGeometry.size());
}

QQuickItem* XWindow::registeredItemAt(QQuickItem* content, const QPointF& windowPos, const QQuickItem* window)
{
    if (!content)
        return nullptr;
    const QPointF p = content->mapFromItem(window, windowPos);
    const QList<QQuickItem*> children = content->childItems();
    // topmost first: the last child with the highest z is drawn on top
    for (int i = children.size() - 1; i >= 0; --i) {
        QQuickItem* child = children.at(i);
        if (!child->isVisible() || !child->contains(child->mapFromItem(content, p)))
            continue;
        if (child->property("isGroup").toBool()) {
            if (QQuickItem* inner = registeredItemAt(child, windowPos, window))
                return inner;
        }
        if (GId::id(child) != 0)
            return child;
    }
    return nullptr;
}

unsigned XWindow::reportAt(
    QQuickItem* content, const QQuickItem* window, const QPointF& windowPos, QQuickItem* source, int code)
{
    QQuickItem* hit = registeredItemAt(content, windowPos, window);
    const unsigned id = GId::id(hit ? hit : source);
    LogicLayerCaller::call(id, code, nullptr);
    return id;
}

unsigned XWindow::pressHandler(const QPointF& windowPos, QQuickItem* source)
{
    return reportAt(m_content, this, windowPos, source, EVT_WIDGET_PRESS);
}

unsigned XWindow::releaseHandler(const QPointF& windowPos, QQuickItem* source)
{
    return reportAt(m_content, this, windowPos, source, EVT_WIDGET_RELEASE);
}
