#include "xcomponents/qquick/xalarmtableviewcontrol.h"

#include "xcomponents/qquick/xtablemodel.h"

XAlarmTableViewControl::XAlarmTableViewControl(QQuickItem* parent)
    : XTableViewControl(parent)
{
}

XAlarmTableViewControl::~XAlarmTableViewControl() = default;

void XAlarmTableViewControl::updateData(const QVector<QVector<XTableCell>>& rows)
{
    XCommonTableView* body = view();
    const int before = model()->actualRowCount();
    const bool atTop = !body || body->contentY() - body->originY() < 0.5;
    const qreal y = body ? body->contentY() : 0;
    XTableViewControl::updateData(rows);
    const int added = model()->actualRowCount() - before;
    if (!body || atTop || added <= 0 || body->isMoving())
        return;
    // the rows being read stay where they are: the new alarms came above them
    const qreal maxY = body->originY() + qMax<qreal>(0, body->contentHeight() - body->height());
    body->setContentY(qMin(maxY, y + added * body->rowHeight()));
}
