#ifndef XALARMTABLEBARHEADER_H
#define XALARMTABLEBARHEADER_H

#include "xcomponents/qquick/xalarmtablebar.h"

/** The title row over a copy of a table alarm bar's rows (XAlarmTableBarHeaderModel). */
class XAlarmTableBarHeader : public XAlarmTableBar {
    Q_OBJECT

public:
    explicit XAlarmTableBarHeader(QQuickItem* parent = nullptr);
    ~XAlarmTableBarHeader() override;
};

#endif // XALARMTABLEBARHEADER_H
