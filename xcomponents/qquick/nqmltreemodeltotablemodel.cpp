#include "xcomponents/qquick/nqmltreemodeltotablemodel.h"

NQmlTreeModelToTableModel::NQmlTreeModelToTableModel(QObject* parent)
    : QAbstractTableModel(parent)
{
}

NQmlTreeModelToTableModel::~NQmlTreeModelToTableModel() = default;

void NQmlTreeModelToTableModel::setSourceModel(QAbstractItemModel* model)
{
    if (m_source == model)
        return;
    if (m_source)
        disconnect(m_source, nullptr, this, nullptr);
    m_source = model;
    m_expanded.clear();
    if (model) {
        const auto reset = [this] {
            // a new tree opens the nodes it marks, in the one flattening that follows
            m_expanded.clear();
            if (m_expandRole >= 0)
                collectMarked(m_expandRole);
            rebuild();
        };
        connect(model, &QAbstractItemModel::modelReset, this, reset);
        connect(model, &QAbstractItemModel::rowsInserted, this, &NQmlTreeModelToTableModel::rebuild);
        connect(model, &QAbstractItemModel::rowsRemoved, this, &NQmlTreeModelToTableModel::rebuild);
        connect(model, &QAbstractItemModel::rowsMoved, this, &NQmlTreeModelToTableModel::rebuild);
        connect(model, &QAbstractItemModel::layoutChanged, this, &NQmlTreeModelToTableModel::rebuild);
        connect(model, &QAbstractItemModel::dataChanged, this,
            [this](const QModelIndex& from, const QModelIndex& to, const QVector<int>& roles) {
                const int a = rowOf(from.sibling(from.row(), 0));
                const int b = rowOf(to.sibling(to.row(), 0));
                if (a >= 0 && b >= a)
                    Q_EMIT dataChanged(index(a, 0), index(b, columnCount() - 1), roles);
                else if (a >= 0 || b >= 0)
                    Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1), roles);
            });
        if (m_expandRole >= 0)
            collectMarked(m_expandRole);
    }
    rebuild();
    Q_EMIT sourceModelChanged();
}

std::vector<NQmlTreeModelToTableModel::Row> NQmlTreeModelToTableModel::visibleRows(
    const QModelIndex& parent, int depth) const
{
    std::vector<Row> out;
    if (!m_source)
        return out;
    struct Frame {
        QModelIndex parent;
        int next;
        int count;
        int depth;
    };
    std::vector<Frame> stack { { parent, 0, m_source->rowCount(parent), depth } };
    while (!stack.empty()) {
        Frame& top = stack.back();
        if (top.next >= top.count) {
            stack.pop_back();
            continue;
        }
        const QModelIndex child = m_source->index(top.next++, 0, top.parent);
        const int d = top.depth;
        if (!child.isValid())
            continue;
        const bool has = m_source->hasChildren(child);
        const bool expanded = has && m_expanded.contains(keyOf(child));
        out.push_back({ child, d, expanded, has });
        if (expanded)
            stack.push_back({ child, 0, m_source->rowCount(child), d + 1 }); // top is not used after this
    }
    return out;
}

void NQmlTreeModelToTableModel::rebuild()
{
    beginResetModel();
    m_rows = visibleRows(QModelIndex(), 0);
    endResetModel();
}

int NQmlTreeModelToTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int NQmlTreeModelToTableModel::columnCount(const QModelIndex& parent) const
{
    if (parent.isValid() || !m_source)
        return parent.isValid() ? 0 : 1;
    return qMax(1, m_source->columnCount());
}

QVariant NQmlTreeModelToTableModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= int(m_rows.size()))
        return QVariant();
    const Row& row = m_rows[size_t(index.row())];
    switch (role) {
    case DepthRole:
        return row.depth;
    case ExpandedRole:
        return row.expanded;
    case HasChildrenRole:
        return row.hasChildren;
    default:
        return m_source ? m_source->data(row.index.sibling(row.index.row(), index.column()), role) : QVariant();
    }
}

QHash<int, QByteArray> NQmlTreeModelToTableModel::roleNames() const
{
    QHash<int, QByteArray> names = m_source ? m_source->roleNames() : QAbstractTableModel::roleNames();
    names.insert(DepthRole, "depth");
    names.insert(ExpandedRole, "expanded");
    names.insert(HasChildrenRole, "hasChildren");
    return names;
}

QModelIndex NQmlTreeModelToTableModel::mapToModel(int row) const
{
    return row >= 0 && row < int(m_rows.size()) ? m_rows[size_t(row)].index : QModelIndex();
}

int NQmlTreeModelToTableModel::rowOf(const QModelIndex& source) const
{
    if (!source.isValid())
        return -1;
    for (size_t i = 0; i < m_rows.size(); ++i) {
        if (m_rows[i].index == source)
            return int(i);
    }
    return -1;
}

int NQmlTreeModelToTableModel::depth(int row) const
{
    return row >= 0 && row < int(m_rows.size()) ? m_rows[size_t(row)].depth : -1;
}

bool NQmlTreeModelToTableModel::isExpanded(int row) const
{
    return row >= 0 && row < int(m_rows.size()) && m_rows[size_t(row)].expanded;
}

bool NQmlTreeModelToTableModel::hasChildren(int row) const
{
    return row >= 0 && row < int(m_rows.size()) && m_rows[size_t(row)].hasChildren;
}

void NQmlTreeModelToTableModel::expand(int row)
{
    if (!hasChildren(row) || isExpanded(row))
        return;
    Row& r = m_rows[size_t(row)];
    m_expanded.insert(keyOf(r.index));
    r.expanded = true;
    std::vector<Row> shown = visibleRows(r.index, r.depth + 1);
    if (!shown.empty()) {
        beginInsertRows(QModelIndex(), row + 1, row + int(shown.size()));
        m_rows.insert(m_rows.begin() + row + 1, shown.begin(), shown.end());
        endInsertRows();
    }
    Q_EMIT dataChanged(index(row, 0), index(row, columnCount() - 1), { ExpandedRole });
}

void NQmlTreeModelToTableModel::collapse(int row)
{
    if (!isExpanded(row))
        return;
    Row& r = m_rows[size_t(row)];
    m_expanded.remove(keyOf(r.index));
    r.expanded = false;
    const int d = r.depth;
    size_t end = size_t(row) + 1;
    while (end < m_rows.size() && m_rows[end].depth > d)
        ++end;
    if (end > size_t(row) + 1) {
        beginRemoveRows(QModelIndex(), row + 1, int(end) - 1);
        m_rows.erase(m_rows.begin() + row + 1, m_rows.begin() + long(end));
        endRemoveRows();
    }
    Q_EMIT dataChanged(index(row, 0), index(row, columnCount() - 1), { ExpandedRole });
}

void NQmlTreeModelToTableModel::toggleExpanded(int row)
{
    isExpanded(row) ? collapse(row) : expand(row);
}

void NQmlTreeModelToTableModel::expandMarked(int role)
{
    if (!m_source)
        return;
    collectMarked(role);
    rebuild();
}

void NQmlTreeModelToTableModel::setExpandRole(int role)
{
    m_expandRole = role;
}

void NQmlTreeModelToTableModel::collectMarked(int role)
{
    std::vector<QModelIndex> todo { QModelIndex() };
    while (!todo.empty()) {
        const QModelIndex parent = todo.back();
        todo.pop_back();
        const int n = m_source->rowCount(parent);
        for (int i = 0; i < n; ++i) {
            const QModelIndex child = m_source->index(i, 0, parent);
            if (!child.isValid() || !m_source->hasChildren(child))
                continue;
            if (m_source->data(child, role).toBool())
                m_expanded.insert(keyOf(child));
            todo.push_back(child);
        }
    }
}
