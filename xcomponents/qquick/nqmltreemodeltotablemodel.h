#ifndef NQMLTREEMODELTOTABLEMODEL_H
#define NQMLTREEMODELTOTABLEMODEL_H

#include <QAbstractTableModel>
#include <QPointer>
#include <QSet>

#include <vector>

/**
 * Shows a tree model as a table: one row per visible node (the top-level nodes
 * and the children of every expanded node, in depth-first order) and the
 * source's columns. Besides the source's roles each row offers its depth
 * ("depth"), whether it is expanded ("expanded") and whether it has children
 * ("hasChildren").
 *
 * The rows are built and counted with an explicit stack, never by recursion,
 * so a tree of any depth or width is safe. Expanding and collapsing insert or
 * remove the rows below a node; any other structural change of the source
 * rebuilds the rows. Expanded nodes are remembered by their source index's
 * internal id and row, which tell nodes apart in models that keep a node
 * pointer in the index (TreeModel does).
 */
class NQmlTreeModelToTableModel : public QAbstractTableModel {
    Q_OBJECT
    Q_PROPERTY(QAbstractItemModel* sourceModel READ sourceModel WRITE setSourceModel NOTIFY sourceModelChanged)

public:
    enum Role { DepthRole = Qt::UserRole + 100, ExpandedRole, HasChildrenRole };

    explicit NQmlTreeModelToTableModel(QObject* parent = nullptr);
    ~NQmlTreeModelToTableModel() override;

    QAbstractItemModel* sourceModel() const { return m_source.data(); }
    void setSourceModel(QAbstractItemModel* model);

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

    /** The source index shown in \a row (column 0); invalid when out of range. */
    Q_INVOKABLE QModelIndex mapToModel(int row) const;
    /** The row showing \a source, -1 when it is not visible. */
    Q_INVOKABLE int rowOf(const QModelIndex& source) const;
    Q_INVOKABLE int depth(int row) const;
    Q_INVOKABLE bool isExpanded(int row) const;
    Q_INVOKABLE bool hasChildren(int row) const;
    Q_INVOKABLE void expand(int row);
    Q_INVOKABLE void collapse(int row);
    Q_INVOKABLE void toggleExpanded(int row);
    /** Expands every node whose source \a role is true and rebuilds the rows. */
    Q_INVOKABLE void expandMarked(int role);
    /** Nodes whose \a role is true are expanded whenever the source is reset (-1: none). */
    void setExpandRole(int role);

Q_SIGNALS:
    void sourceModelChanged();

private:
    struct Row {
        QModelIndex index;
        int depth;
        bool expanded;
        bool hasChildren;
    };
    using Key = QPair<quintptr, int>;
    static Key keyOf(const QModelIndex& index) { return { index.internalId(), index.row() }; }
    std::vector<Row> visibleRows(const QModelIndex& parent, int depth) const;
    void rebuild();
    /** Adds every node whose \a role is true to the expanded ones. */
    void collectMarked(int role);

    QPointer<QAbstractItemModel> m_source;
    std::vector<Row> m_rows;
    QSet<Key> m_expanded;
    int m_expandRole = -1;
};

#endif // NQMLTREEMODELTOTABLEMODEL_H
