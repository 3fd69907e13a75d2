#ifndef XALARMTABLEBAR_H
#define XALARMTABLEBAR_H

#include "xcomponents/qquick/xquicktableview.h"

/**
 * One copy of a table alarm bar's rows (or, as XAlarmTableBarHeader, of its
 * titles): a table view the bar moves, never the finger.
 */
class XAlarmTableBar : public XQuickTableView {
    Q_OBJECT

public:
    explicit XAlarmTableBar(QQuickItem* parent = nullptr);
    ~XAlarmTableBar() override;
};

#endif // XALARMTABLEBAR_H
