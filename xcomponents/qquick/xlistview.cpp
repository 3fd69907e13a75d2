#include "xcomponents/qquick/xlistview.h"

#include "xcomponents/qquick/xlistmodel.h"

XListView::XListView(QQuickItem* parent)
    : XQuickListView(parent)
{
}

XListView::~XListView() = default;

XListModel* XListView::listModel() const
{
    return m_listModel.data();
}

void XListView::setListModel(XListModel* model)
{
    if (model == m_listModel)
        return;
    m_listModel = model;
    setModel(model ? QVariant::fromValue<QObject*>(model) : QVariant());
    Q_EMIT listModelChanged();
}
