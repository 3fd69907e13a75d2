#include "xcomponents/qquick/xtablefilterdlg.h"

#include "config/globalconfig.h"
#include "platform/logiclayercaller.h"

#include <QCoreApplication>

#include <qgui/events.h>
#include <qgui/records_list.h>

namespace {
const char* const kContext = "XTableFilterDlg";

struct OperatorName {
    int op;
    const char* name;
};

const OperatorName kNames[] = {
    { OPERATOR_EQUAL, QT_TRANSLATE_NOOP("XTableFilterDlg", "Equals") },
    { OPERATOR_NOT_EQUAL, QT_TRANSLATE_NOOP("XTableFilterDlg", "Not Equal") },
    { OPERATOR_LESS, QT_TRANSLATE_NOOP("XTableFilterDlg", "Less") },
    { OPERATOR_LESS_EQUAL, QT_TRANSLATE_NOOP("XTableFilterDlg", "LessOrEqual") },
    { OPERATOR_MORE, QT_TRANSLATE_NOOP("XTableFilterDlg", "Greater") },
    { OPERATOR_MORE_EQUAL, QT_TRANSLATE_NOOP("XTableFilterDlg", "GreaterOrEqual") },
    { OPERATOR_LIKE, QT_TRANSLATE_NOOP("XTableFilterDlg", "Like") },
};
} // namespace

XTableFilterDlg::XTableFilterDlg(QQuickItem* parent)
    : XPopup(parent)
{
    setModal(true);
    connect(GlobalConfig::getInstance(), &GlobalConfig::langTokenChanged, this, &XTableFilterDlg::rebuildOperators);
}

XTableFilterDlg::~XTableFilterDlg() = default;

int XTableFilterDlg::filterKind(int code)
{
    switch (code) {
    case COL_BOOL:
    case COL_BIT:
        return int(DataType::Bool);
    case COL_STRING:
        return int(DataType::String);
    case COL_TIME:
        return int(DataType::Time);
    case COL_DATE:
        return int(DataType::Date);
    case COL_DATETIME:
    case COL_DATETIME_ALT:
        return int(DataType::DateTime);
    default:
        return (code >= COL_INT8 && code <= COL_UINT64_ALT) ? int(DataType::Number) : -1;
    }
}

QVector<int> XTableFilterDlg::operatorsFor(int dataType)
{
    switch (DataType(dataType)) {
    case DataType::Bool:
        return { OPERATOR_EQUAL, OPERATOR_NOT_EQUAL };
    case DataType::Number:
        return { OPERATOR_EQUAL, OPERATOR_NOT_EQUAL, OPERATOR_LESS, OPERATOR_LESS_EQUAL, OPERATOR_MORE,
            OPERATOR_MORE_EQUAL };
    case DataType::String:
        return { OPERATOR_EQUAL, OPERATOR_NOT_EQUAL, OPERATOR_LIKE };
    case DataType::Date:
    case DataType::Time:
    case DataType::DateTime:
        return { OPERATOR_LESS, OPERATOR_LESS_EQUAL, OPERATOR_MORE, OPERATOR_MORE_EQUAL };
    }
    return {};
}

QString XTableFilterDlg::operatorSource(int op)
{
    for (const OperatorName& n : kNames) {
        if (n.op == op)
            return QString::fromLatin1(n.name);
    }
    return QString();
}

void XTableFilterDlg::setWidgetId(quint32 id)
{
    if (id == m_id)
        return;
    m_id = id;
    Q_EMIT widgetIdChanged();
}

void XTableFilterDlg::setup(int column, int dataTypeCode, const QString& title, int firstOperator)
{
    m_column = column;
    m_code = dataTypeCode;
    m_kind = filterKind(dataTypeCode);
    m_title = title;
    m_operators = operatorsFor(m_kind);
    m_op1 = m_operators.contains(firstOperator) ? firstOperator : m_operators.value(0, 0);
    m_op2 = m_operators.value(0, 0);
    m_value1.clear();
    m_value2.clear();
    m_joinOr = false;
    rebuildOperators();
    Q_EMIT columnChanged();
    Q_EMIT selectionChanged();
    Q_EMIT valuesChanged();
}

void XTableFilterDlg::rebuildOperators()
{
    // the box's entries are rebuilt in the language now set; the chosen operators are kept by value
    QStringList names;
    names.reserve(m_operators.size());
    for (int op : qAsConst(m_operators))
        names << QCoreApplication::translate(kContext, operatorSource(op).toLatin1().constData());
    m_names = names;
    Q_EMIT operatorsChanged();
    Q_EMIT selectionChanged();
}

void XTableFilterDlg::setOperator1Index(int index)
{
    if (index < 0 || index >= m_operators.size() || m_operators.at(index) == m_op1)
        return;
    m_op1 = m_operators.at(index);
    Q_EMIT selectionChanged();
}

void XTableFilterDlg::setOperator2Index(int index)
{
    if (index < 0 || index >= m_operators.size() || m_operators.at(index) == m_op2)
        return;
    m_op2 = m_operators.at(index);
    Q_EMIT selectionChanged();
}

void XTableFilterDlg::setValue(int which, const QString& text)
{
    QString& value = which == 0 ? m_value1 : m_value2;
    if (value == text)
        return;
    value = text;
    Q_EMIT valuesChanged();
}

void XTableFilterDlg::setJoinOr(bool orJoin)
{
    if (orJoin == m_joinOr)
        return;
    m_joinOr = orJoin;
    Q_EMIT selectionChanged();
}

void XTableFilterDlg::requestValue(int which)
{
    if (which == 0 || which == 1)
        Q_EMIT valueEntryRequested(which, which == 0 ? m_value1 : m_value2);
}

void XTableFilterDlg::commit()
{
    if (m_value1.isEmpty() || m_column < 0)
        return;
    startFilter(m_value1, m_op1, m_value2, m_op2);
    close();
}

void XTableFilterDlg::cancel()
{
    close();
}

void XTableFilterDlg::startFilter(const QString& value1, int operator1, const QString& value2, int operator2)
{
    const QByteArray first = value1.toUtf8();
    const QByteArray second = value2.toUtf8();
    const bool two = !second.isEmpty();
    View_EvtListFilter record {};
    record.column = m_column;
    record.value1 = first.constData();
    record.operator1 = operator1;
    record.value2 = second.constData();
    record.operator2 = two ? operator2 : 0;
    record.join = two ? (m_joinOr ? OPERATOR_LOGICAL_OR : OPERATOR_LOGICAL_AND) : 0;
    LogicLayerCaller::call(m_id, EVT_LIST_FILTER, &record);
    Q_EMIT filterCommitted(m_column);
}
