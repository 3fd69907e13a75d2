#ifndef XALARMBARMODEL_H
#define XALARMBARMODEL_H

#include "xcomponents/qquick/xtablemodel.h"

/**
 * The cells of an alarm bar: the table cells of the list controls, with the
 * rows the logic layer sent (getActualRowCount) followed by empty filler rows
 * up to the minimum row count, so that a bar is filled from edge to edge.
 */
class XAlarmBarModel : public XTableModel {
    Q_OBJECT

public:
    explicit XAlarmBarModel(QObject* parent = nullptr);
    ~XAlarmBarModel() override;

    /** The rows the logic layer sent (the filler rows not counted). */
    Q_INVOKABLE int getActualRowCount() const { return actualRowCount(); }
};

#endif // XALARMBARMODEL_H
