#include "xcomponents/qquick/xgroup.h"

#include "xcomponents/qquick/xshapeitem.h"

XGroup::XGroup(QQuickItem* parent)
    : XBaseControl(parent)
{
}

XGroup::~XGroup() = default;

void XGroup::setFrame(const QBrush& background, const QPen& border)
{
    if (!m_frame) {
        m_frame = new XShapeItem(this);
        m_frame->setAcceptedMouseButtons(Qt::NoButton); // presses belong to the group
        setBackground(m_frame); // sized with the group
    }
    QPainterPath box;
    box.addRect(QRectF(0, 0, 1, 1));
    m_frame->setDesignSize(QSizeF(1, 1)); // the unit box stretched over the group
    m_frame->setPath(box, true);
    m_frame->setBrush(background);
    m_frame->setPen(border);
}

bool XGroup::holds(const QQuickItem* group, const QQuickItem* item)
{
    for (const QQuickItem* i = item; i; i = i->parentItem()) {
        if (i == group)
            return true;
    }
    return false;
}
