#include "xcomponents/qquick/nquicktreeview.h"

#include "xcomponents/qquick/nqmltreemodeltotablemodel.h"

NQuickTreeView::NQuickTreeView(QQuickItem* parent)
    : NQuickTableView(parent)
    , m_proxy(new NQmlTreeModelToTableModel(this))
{
    setModel(QVariant::fromValue<QObject*>(m_proxy));
}

NQuickTreeView::~NQuickTreeView() = default;

QAbstractItemModel* NQuickTreeView::sourceModel() const
{
    return m_proxy->sourceModel();
}

void NQuickTreeView::setSourceModel(QAbstractItemModel* model)
{
    if (m_proxy->sourceModel() == model)
        return;
    m_proxy->setSourceModel(model);
    Q_EMIT sourceModelChanged();
}

int NQuickTreeView::depth(int row) const
{
    return m_proxy->depth(row);
}

bool NQuickTreeView::isExpanded(int row) const
{
    return m_proxy->isExpanded(row);
}

bool NQuickTreeView::hasChildren(int row) const
{
    return m_proxy->hasChildren(row);
}

void NQuickTreeView::expand(int row)
{
    m_proxy->expand(row);
}

void NQuickTreeView::collapse(int row)
{
    m_proxy->collapse(row);
}

void NQuickTreeView::toggleExpanded(int row)
{
    m_proxy->toggleExpanded(row);
}
