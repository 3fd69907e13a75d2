#include "xcomponents/qquick/xlistmodel.h"

XListModel::XListModel(QObject* parent)
    : QAbstractListModel(parent)
{
}

XListModel::~XListModel() = default;

int XListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_entries.size();
}

QVariant XListModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_entries.size())
        return QVariant();
    switch (role) {
    case Qt::DisplayRole:
        return m_entries.at(index.row());
    case CurrentRole:
        return index.row() == m_current;
    default:
        return QVariant();
    }
}

QHash<int, QByteArray> XListModel::roleNames() const
{
    return { { Qt::DisplayRole, "display" }, { CurrentRole, "current" } };
}

void XListModel::setEntries(const QStringList& entries)
{
    if (entries.size() != m_entries.size()) {
        beginResetModel();
        m_entries = entries;
        endResetModel();
        Q_EMIT countChanged();
        return;
    }
    for (int r = 0; r < entries.size(); ++r) {
        if (entries.at(r) == m_entries.at(r))
            continue;
        m_entries[r] = entries.at(r);
        Q_EMIT dataChanged(index(r), index(r), { Qt::DisplayRole });
    }
}

void XListModel::setCurrentIndex(int index)
{
    if (index == m_current)
        return;
    const int old = m_current;
    m_current = index;
    for (int r : { old, index }) {
        if (r >= 0 && r < m_entries.size())
            Q_EMIT dataChanged(this->index(r), this->index(r), { CurrentRole });
    }
}
