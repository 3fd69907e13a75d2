#ifndef TREEMODEL_H
#define TREEMODEL_H

#include <QAbstractItemModel>

#include <memory>

class TreeItem;

/**
 * Item model over a tree of TreeItem nodes (one column). The root is not
 * shown; its children are the top-level rows. Roles: the text (display), the
 * icon path (decoration), the entry's number (entryIndex) and whether the
 * node starts expanded (initiallyExpanded).
 */
class TreeModel : public QAbstractItemModel {
    Q_OBJECT

public:
    enum Role { EntryIndexRole = Qt::UserRole + 1, InitiallyExpandedRole };

    explicit TreeModel(QObject* parent = nullptr);
    ~TreeModel() override;

    /** Replaces the whole tree (a model reset); a null root empties it. The model owns \a root. */
    void updateData(std::unique_ptr<TreeItem> root);
    TreeItem* root() const { return m_root.get(); }
    TreeItem* itemFor(const QModelIndex& index) const;

    QModelIndex index(int row, int column, const QModelIndex& parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    bool hasChildren(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    QHash<int, QByteArray> roleNames() const override;

private:
    std::unique_ptr<TreeItem> m_root;
};

#endif // TREEMODEL_H
