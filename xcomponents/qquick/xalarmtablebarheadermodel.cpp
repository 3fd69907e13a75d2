#include "xcomponents/qquick/xalarmtablebarheadermodel.h"

XAlarmTableBarHeaderModel::XAlarmTableBarHeaderModel(QObject* parent)
    : XQuickHeaderModel(parent)
{
}

XAlarmTableBarHeaderModel::~XAlarmTableBarHeaderModel() = default;
