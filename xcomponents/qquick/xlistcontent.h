#ifndef XLISTCONTENT_H
#define XLISTCONTENT_H

#include "xcomponents/qquick/xtablemodel.h"

#include <QStringList>
#include <QVector>

/**
 * What every widget showing rows of cells under column titles offers the
 * change calls of the list family: the tables and the alarm bars. Titles,
 * pages and column visibility are replaced the same way for all of them.
 */
class XListContent {
public:
    virtual ~XListContent() = default;

    /** Number of columns as set up. */
    virtual int columnCount() const = 0;
    /** New titles, one per column (missing ones empty). */
    virtual void updateHeader(const QStringList& titles) = 0;
    /** Replaces the rows shown. */
    virtual void updateData(const QVector<QVector<XTableCell>>& rows) = 0;
    /** Shows or hides a column; unknown columns are ignored. */
    virtual void setTableColVisible(int column, bool visible) = 0;
};

#endif // XLISTCONTENT_H
