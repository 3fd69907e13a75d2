#ifndef NQUICKTREEVIEW_H
#define NQUICKTREEVIEW_H

#include "xcomponents/qquick/nquicktableview.h"

class NQmlTreeModelToTableModel;
class QAbstractItemModel;

/**
 * A tree view for Qt Quick: the table view showing a tree model through the
 * proxy NQmlTreeModelToTableModel, one row per visible node. Delegates get the
 * source's roles and "depth", "expanded" and "hasChildren" for the
 * indentation and the expander.
 */
class NQuickTreeView : public NQuickTableView {
    Q_OBJECT
    Q_PROPERTY(QAbstractItemModel* sourceModel READ sourceModel WRITE setSourceModel NOTIFY sourceModelChanged)

public:
    explicit NQuickTreeView(QQuickItem* parent = nullptr);
    ~NQuickTreeView() override;

    QAbstractItemModel* sourceModel() const;
    void setSourceModel(QAbstractItemModel* model);
    NQmlTreeModelToTableModel* proxy() const { return m_proxy; }

    Q_INVOKABLE int depth(int row) const;
    Q_INVOKABLE bool isExpanded(int row) const;
    Q_INVOKABLE bool hasChildren(int row) const;
    Q_INVOKABLE void expand(int row);
    Q_INVOKABLE void collapse(int row);
    Q_INVOKABLE void toggleExpanded(int row);

Q_SIGNALS:
    void sourceModelChanged();

private:
    NQmlTreeModelToTableModel* m_proxy; // object child
};

#endif // NQUICKTREEVIEW_H
