#include "xcomponents/qquick/xalarmbarmodel.h"

XAlarmBarModel::XAlarmBarModel(QObject* parent)
    : XTableModel(parent)
{
}

XAlarmBarModel::~XAlarmBarModel() = default;
