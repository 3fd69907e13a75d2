#ifndef XALARMTABLEBARHEADERMODEL_H
#define XALARMTABLEBARHEADERMODEL_H

#include "xcomponents/qquick/xquickheadermodel.h"

/** The titles of a table alarm bar: the header model of the tables, one row of titles. */
class XAlarmTableBarHeaderModel : public XQuickHeaderModel {
    Q_OBJECT

public:
    explicit XAlarmTableBarHeaderModel(QObject* parent = nullptr);
    ~XAlarmTableBarHeaderModel() override;
};

#endif // XALARMTABLEBARHEADERMODEL_H
