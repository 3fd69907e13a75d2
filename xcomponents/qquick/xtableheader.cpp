#include "xcomponents/qquick/xtableheader.h"

#include "xcomponents/qquick/xquickheadermodel.h"

XTableHeader::XTableHeader(QQuickItem* parent)
    : XQuickTableView(parent)
    , m_model(new XQuickHeaderModel(this))
{
    setInteractive(false); // it follows the body
}

XTableHeader::~XTableHeader() = default;

void XTableHeader::setFilterEnabled(bool on)
{
    if (on == m_filter)
        return;
    m_filter = on;
    Q_EMIT filterEnabledChanged();
}

void XTableHeader::setActionCheckedCol(int column, int order)
{
    m_checkedColumn = column;
    m_checkedOrder = order;
    if (order == 1) // ORDER_NONE shows no mark
        m_model->setCheckedColumn(-1);
    else
        m_model->setCheckedColumn(column, order);
}
