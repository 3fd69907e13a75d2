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
    if (m_currentIndex == index)
        return;
    m_currentIndex = index;
    Q_EMIT currentIndexChanged();
}

void XTreeview::updateData(std::unique_ptr<TreeItem> root)
{
    m_model->updateData(std::move(root));
    if (m_view)
        m_view->proxy()->expandMarked(TreeModel::InitiallyExpandedRole);
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
        view->setSourceModel(m_model);
        view->proxy()->expandMarked(TreeModel::InitiallyExpandedRole);
    }
    Q_EMIT treeViewChanged();
}
