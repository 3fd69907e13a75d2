#include "xcomponents/qquick/xalarmtablebarheader.h"

XAlarmTableBarHeader::XAlarmTableBarHeader(QQuickItem* parent)
    : XAlarmTableBar(parent)
{
    setZ(1); // the rows pass under the titles
}

XAlarmTableBarHeader::~XAlarmTableBarHeader() = default;
