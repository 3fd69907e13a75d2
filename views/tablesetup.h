#ifndef TABLESETUP_H
#define TABLESETUP_H

#include "xcomponents/qquick/xtableviewcontrol.h"

#include <qgui/records_list.h>

#include <vector>

/**
 * The conversions of the list family's records into what the tables and the
 * alarm bars are set up with: the columns, fonts and colours of a View_List,
 * and a page of View_ListColData cells. Both cut what a runaway record would
 * make too big.
 */
namespace TableSetup {

/** Columns beyond this are dropped. */
constexpr U32 kMaxColumns = 1024;
/** Rows of a page beyond this are dropped. */
constexpr size_t kMaxRows = 100000;

/** The set-up of a table or alarm bar; \a forceSingleLine cuts every cell to one line. */
XTableViewControl::Setup toSetup(const View_List& rec, bool forceSingleLine);
/** A page of cells for \a columns columns (longer rows are cut; texts and images converted). */
QVector<QVector<XTableCell>> toPage(const std::vector<std::vector<View_ListColData>>& rows, int columns);

} // namespace TableSetup

#endif // TABLESETUP_H
