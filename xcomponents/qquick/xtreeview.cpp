#include "xcomponents/qquick/xtreeview.h"

#include "xcomponents/qquick/nqmltreemodeltotablemodel.h"
#include "xcomponents/qquick/nquicktreeview.h"
#include "xcomponents/qquick/treeitem.h"
#include "xcomponents/qquick/treemodel.h"

XTreeview::XTreeview(QQuickItem* parent)
    : QQuickItem(parent)
    , m_model(new TreeModel(this))
{
}

XTreeview::~XTreeview() = default;

void XTreeview::setBackground(const QColor& c)
{
    m_background = c;
    Q_EMIT styleChanged();
}

void XTreeview::setFrameColor(const QColor& c)
{
    m_frameColor = c;
    Q_EMIT styleChanged();
}

void XTreeview::setRowSpace(int height)
{
    m_rowSpace = qBound(1, height, 4096);
    if (m_view)
        m_view->setRowHeight(m_rowSpace);
    Q_EMIT styleChanged();
}

void XTreeview::setBorderWidth(int width)
{
    m_borderWidth = qBound(0, width, 32);
    Q_EMIT styleChanged();
}

void XTreeview::setDefaultFont(const QFont& font)
{
    m_font = font;
    Q_EMIT styleChanged();
}

void XTreeview::setDefaultFontColor(const QColor& c)
{
    m_fontColor = c;
    Q_EMIT styleChanged();
}

void XTreeview::setHighlightColor(const QColor& c)
{
    m_highlightColor = c;
    Q_EMIT styleChanged();
}

void XTreeview::setIndent(int indent)
{
    m_indent = qBound(0, indent, 1000);
    Q_EMIT styleChanged();
}

void XTreeview::setBgImage(const QUrl& url)
{
    m_bgImage = url;
    Q_EMIT styleChanged();
}

void XTreeview::updateSelection(int index)
{
    if (m_currentIndex != index) {
        m_currentIndex = index;
        Q_EMIT currentIndexChanged();
    }
    revealEntry(index);
}

void XTreeview::revealEntry(int index)
{
    // the chosen entry is shown: every node above it is expanded, from the top down
    if (!m_view)
        return;
    const QModelIndexList hits = m_model->match(m_model->index(0, 0), TreeModel::EntryIndexRole, index, 1,
        Qt::MatchExactly | Qt::MatchRecursive);
    if (hits.isEmpty())
        return;
    QVector<QModelIndex> ancestors;
    for (QModelIndex up = hits.first().parent(); up.isValid(); up = up.parent())
        ancestors.prepend(up);
    NQmlTreeModelToTableModel* proxy = m_view->proxy();
    for (const QModelIndex& node : qAsConst(ancestors)) {
        const int row = proxy->rowOf(node);
        if (row >= 0 && !proxy->isExpanded(row))
            proxy->expand(row);
    }
}

void XTreeview::updateData(std::unique_ptr<TreeItem> root)
{
    m_model->updateData(std::move(root)); // the view's rows open the marked nodes on the reset
}

NQuickTreeView* XTreeview::treeView() const
{
    return m_view.data();
}

void XTreeview::setTreeView(NQuickTreeView* view)
{
    if (m_view == view)
        return;
    m_view = view;
    if (view) {
        view->setRowHeight(m_rowSpace);
        view->proxy()->setExpandRole(TreeModel::InitiallyExpandedRole);
        view->setSourceModel(m_model); // the marked nodes open with the first rows
    }
    Q_EMIT treeViewChanged();
}
