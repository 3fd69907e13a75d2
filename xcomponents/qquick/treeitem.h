#ifndef TREEITEM_H
#define TREEITEM_H

#include <QVariant>
#include <QVector>

#include <vector>

/**
 * One node of a tree content (TreeModel): a parent, ordered children and, per
 * column, a short flat list of role/value pairs (a node holds three or four
 * roles, where a hash would cost an allocation per role). A node owns its children. Destruction
 * walks the subtree with an explicit stack, so a chain of any depth is freed
 * without deep recursion.
 */
class TreeItem {
public:
    explicit TreeItem(int columns = 1, TreeItem* parent = nullptr);
    ~TreeItem();
    TreeItem(const TreeItem&) = delete;
    TreeItem& operator=(const TreeItem&) = delete;

    TreeItem* parent() const { return m_parent; }
    /** The child at \a number, null when there is none. */
    TreeItem* child(int number) const;
    int childCount() const { return int(m_children.size()); }
    /** The index of this node under its parent (0 for the root); linear in the number of siblings. */
    int childNumber() const;
    int columnCount() const { return m_data.size(); }

    /** Value of \a role in \a column, invalid when unset or out of range. */
    QVariant data(int column, int role) const;
    /** False when \a column is out of range. */
    bool setData(int column, int role, const QVariant& value);

    /** Inserts \a count empty children of \a columns columns at \a position; false when out of range. */
    bool insertChildren(int position, int count, int columns);
    /** Removes (and deletes) \a count children from \a position; false when out of range. */
    bool removeChildren(int position, int count);
    bool insertColumns(int position, int columns);
    bool removeColumns(int position, int columns);
    /** Appends one empty child with this node's number of columns and returns it. */
    TreeItem* appendChild();

private:
    static void destroyAll(std::vector<TreeItem*> nodes);

    TreeItem* m_parent;
    std::vector<TreeItem*> m_children; // owned
    using Roles = QVector<QPair<int, QVariant>>;
    QVector<Roles> m_data;
};

#endif // TREEITEM_H
