#include "xcomponents/qquick/xquickheadermodel.h"

XQuickHeaderModel::XQuickHeaderModel(QObject* parent)
    : QAbstractTableModel(parent)
{
}

XQuickHeaderModel::~XQuickHeaderModel() = default;

int XQuickHeaderModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : 1;
}

int XQuickHeaderModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_titles.size();
}

QVariant XQuickHeaderModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.column() >= m_titles.size())
        return QVariant();
    switch (role) {
    case Qt::DisplayRole:
        return m_titles.at(index.column());
    case TextColorRole:
        return m_textColor;
    case BackColorRole:
        return m_back;
    case FontRole:
        return m_font;
    case CheckedRole:
        return index.column() == m_checked;
    case OrderRole:
        return index.column() == m_checked ? m_order : 1;
    case FilteredRole:
        return m_filtered.contains(index.column());
    default:
        return QVariant();
    }
}

QHash<int, QByteArray> XQuickHeaderModel::roleNames() const
{
    return {
        { Qt::DisplayRole, "display" },
        { TextColorRole, "textColor" },
        { BackColorRole, "backColor" },
        { FontRole, "cellFont" },
        { CheckedRole, "checked" },
        { OrderRole, "order" },
        { FilteredRole, "filtered" },
    };
}

void XQuickHeaderModel::setColumnCount(int columns)
{
    columns = qMax(0, columns);
    if (columns == m_titles.size())
        return;
    beginResetModel();
    while (m_titles.size() < columns)
        m_titles.append(QString());
    while (m_titles.size() > columns)
        m_titles.removeLast();
    endResetModel();
}

void XQuickHeaderModel::setTitles(const QStringList& titles)
{
    for (int c = 0; c < m_titles.size(); ++c)
        m_titles[c] = titles.value(c);
    emitAll({ Qt::DisplayRole });
}

void XQuickHeaderModel::setHeaderHeight(int height)
{
    height = qMax(0, height);
    if (height == m_height)
        return;
    m_height = height;
    Q_EMIT headerHeightChanged();
}

void XQuickHeaderModel::setBackgroundColor(const QColor& color)
{
    if (color == m_back)
        return;
    m_back = color;
    emitAll({ BackColorRole });
    Q_EMIT backgroundColorChanged();
}

void XQuickHeaderModel::setFont(const QFont& font, const QColor& color)
{
    m_font = font;
    m_textColor = color;
    emitAll({ FontRole, TextColorRole });
}

void XQuickHeaderModel::setCheckedColumn(int column, int order)
{
    if (column == m_checked && order == m_order)
        return;
    m_checked = column;
    m_order = order;
    emitAll({ CheckedRole, OrderRole });
}

void XQuickHeaderModel::setColumnFiltered(int column, bool filtered)
{
    if (column < 0 || column >= m_titles.size() || filtered == m_filtered.contains(column))
        return;
    if (filtered)
        m_filtered.insert(column);
    else
        m_filtered.remove(column);
    const QModelIndex at = index(0, column);
    Q_EMIT dataChanged(at, at, { FilteredRole });
}

void XQuickHeaderModel::emitAll(const QVector<int>& roles)
{
    if (!m_titles.isEmpty())
        Q_EMIT dataChanged(index(0, 0), index(0, m_titles.size() - 1), roles);
}
