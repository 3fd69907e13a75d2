#ifndef XTABLEHEADER_H
#define XTABLEHEADER_H

#include "xcomponents/qquick/xquicktableview.h"

class XQuickHeaderModel;

/**
 * The header row of a table control: the titles over the body's columns,
 * following the body's horizontal scrolling and column widths. It knows
 * whether the sort and filter menus are on and which column's order is chosen.
 */
class XTableHeader : public XQuickTableView {
    Q_OBJECT
    Q_PROPERTY(bool filterEnabled READ filterEnabled WRITE setFilterEnabled NOTIFY filterEnabledChanged)

public:
    explicit XTableHeader(QQuickItem* parent = nullptr);
    ~XTableHeader() override;

    XQuickHeaderModel* headerModel() const { return m_model; }

    bool filterEnabled() const { return m_filter; }
    void setFilterEnabled(bool on);
    /** Marks \a column as the one whose order is \a order (an OrderType); -1 for none. */
    void setActionCheckedCol(int column, int order);
    int checkedColumn() const { return m_checkedColumn; }
    int checkedOrder() const { return m_checkedOrder; }

Q_SIGNALS:
    void filterEnabledChanged();

private:
    XQuickHeaderModel* m_model;
    bool m_filter = false;
    int m_checkedColumn = -1;
    int m_checkedOrder = 1;
};

#endif // XTABLEHEADER_H
