#include "xcomponents/qquick/xtablefiltermenu.h"

#include "platform/logiclayercaller.h"
#include "xcomponents/qquick/xtablefilterdlg.h"

#include <qgui/events.h>
#include <qgui/records_list.h>

static_assert(int(XTableFilterMenu::ORDER_ASCEND) == int(::ORDER_ASCEND)
        && int(XTableFilterMenu::ORDER_NONE) == int(::ORDER_NONE)
        && int(XTableFilterMenu::ORDER_DESCEND) == int(::ORDER_DESCEND),
    "the menu's orders are those of the interface");

XTableFilterMenu::XTableFilterMenu(QQuickItem* parent)
    : XPopup(parent)
{
    setModal(true);
    setClosePolicy(CloseOnPressOutside);
}

XTableFilterMenu::~XTableFilterMenu() = default;

void XTableFilterMenu::setWidgetId(quint32 id)
{
    if (id == m_id)
        return;
    m_id = id;
    Q_EMIT widgetIdChanged();
}

void XTableFilterMenu::setup(int column, int dataTypeCode, int order)
{
    m_column = column;
    m_kind = XTableFilterDlg::filterKind(dataTypeCode);
    Q_EMIT columnChanged();
    if (order != m_order) {
        m_order = order;
        Q_EMIT orderChanged();
    }
}

QString XTableFilterMenu::getFitterTypeStr() const
{
    switch (DataType(m_kind)) {
    case DataType::String:
        return QStringLiteral("Text Filter");
    case DataType::Bool:
    case DataType::Number:
        return QStringLiteral("Num Filter");
    case DataType::Date:
    case DataType::Time:
    case DataType::DateTime:
        return QStringLiteral("Date Filter");
    }
    return QString();
}

QVariantList XTableFilterMenu::operators() const
{
    QVariantList list;
    for (int op : XTableFilterDlg::operatorsFor(m_kind))
        list << op;
    return list;
}

QString XTableFilterMenu::operatorName(int op) const
{
    return XTableFilterDlg::operatorSource(op);
}

void XTableFilterMenu::chooseOrder(int order, bool checked)
{
    if ((order != ORDER_ASCEND && order != ORDER_DESCEND) || m_column < 0)
        return;
    m_order = checked ? order : ORDER_NONE;
    Q_EMIT orderChanged();
    View_EvtListSort sort { U16(m_order & 0x3), U16(m_column) };
    Q_EMIT orderChosen(m_column, m_order); // the header shows it before the logic layer is told
    LogicLayerCaller::call(m_id, EVT_LIST_SORT, &sort);
    close();
}

void XTableFilterMenu::clearFilter()
{
    if (filterDisabled() || m_column < 0)
        return;
    View_EvtListFilter record {};
    record.column = m_column;
    record.value1 = "";
    record.value2 = "";
    Q_EMIT filterCleared(m_column);
    LogicLayerCaller::call(m_id, EVT_LIST_FILTER, &record);
    close();
}

void XTableFilterMenu::openFilter(int op)
{
    if (filterDisabled() || m_column < 0)
        return;
    const int column = m_column;
    close();
    Q_EMIT filterRequested(column, op);
}
