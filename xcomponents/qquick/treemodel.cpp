#include "xcomponents/qquick/treemodel.h"

#include "xcomponents/qquick/treeitem.h"

TreeModel::TreeModel(QObject* parent)
    : QAbstractItemModel(parent)
    , m_root(new TreeItem(1))
{
}

TreeModel::~TreeModel() = default;

void TreeModel::updateData(std::unique_ptr<TreeItem> root)
{
    beginResetModel();
    m_root = root ? std::move(root) : std::make_unique<TreeItem>(1);
    endResetModel();
}

TreeItem* TreeModel::itemFor(const QModelIndex& index) const
{
    if (index.isValid() && index.model() == this)
        return static_cast<TreeItem*>(index.internalPointer());
    return m_root.get();
}

QModelIndex TreeModel::index(int row, int column, const QModelIndex& parent) const
{
    if (column != 0)
        return QModelIndex();
    TreeItem* child = itemFor(parent)->child(row);
    return child ? createIndex(row, column, child) : QModelIndex();
}

QModelIndex TreeModel::parent(const QModelIndex& index) const
{
    if (!index.isValid())
        return QModelIndex();
    TreeItem* up = itemFor(index)->parent();
    if (!up || up == m_root.get())
        return QModelIndex();
    return createIndex(up->childNumber(), 0, up);
}

int TreeModel::rowCount(const QModelIndex& parent) const
{
    if (parent.isValid() && parent.column() != 0)
        return 0;
    return itemFor(parent)->childCount();
}

int TreeModel::columnCount(const QModelIndex&) const
{
    return 1;
}

bool TreeModel::hasChildren(const QModelIndex& parent) const
{
    return rowCount(parent) > 0;
}

QVariant TreeModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return QVariant();
    return itemFor(index)->data(index.column(), role);
}

bool TreeModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!index.isValid() || !itemFor(index)->setData(index.column(), role, value))
        return false;
    Q_EMIT dataChanged(index, index, { role });
    return true;
}

QHash<int, QByteArray> TreeModel::roleNames() const
{
    return { { Qt::DisplayRole, "display" }, { Qt::DecorationRole, "decoration" },
        { EntryIndexRole, "entryIndex" }, { InitiallyExpandedRole, "initiallyExpanded" } };
}
