#include "xcomponents/qquick/xalarmtablebar.h"

XAlarmTableBar::XAlarmTableBar(QQuickItem* parent)
    : XQuickTableView(parent)
{
    setInteractive(false); // the logic layer moves the band
}

XAlarmTableBar::~XAlarmTableBar() = default;
