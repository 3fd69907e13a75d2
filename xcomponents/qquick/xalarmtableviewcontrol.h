#ifndef XALARMTABLEVIEWCONTROL_H
#define XALARMTABLEVIEWCONTROL_H

#include "xcomponents/qquick/xtableviewcontrol.h"

/**
 * The alarm list: a table whose pages grow at the top as alarms come (the
 * newest first). An operator at the top keeps seeing the newest alarms; an
 * operator who has scrolled down to read keeps the rows he reads in place, the
 * view moving down by the rows that came above them.
 */
class XAlarmTableViewControl : public XTableViewControl {
    Q_OBJECT

public:
    explicit XAlarmTableViewControl(QQuickItem* parent = nullptr);
    ~XAlarmTableViewControl() override;

    void updateData(const QVector<QVector<XTableCell>>& rows) override;
};

#endif // XALARMTABLEVIEWCONTROL_H
