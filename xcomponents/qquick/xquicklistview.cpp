#include "xcomponents/qquick/xquicklistview.h"

XQuickListView::XQuickListView(QQuickItem* parent)
    : QQuickListView(parent)
{
    setInteractive(false);
    setClip(true);
    // a new set of rows starts where the owner has scrolled
    connect(this, &QQuickItemView::countChanged, this, &XQuickListView::follow);
}

XQuickListView::~XQuickListView() = default;

void XQuickListView::setOffsetY(qreal y)
{
    if (y == m_offsetY)
        return;
    m_offsetY = y;
    follow();
    Q_EMIT offsetYChanged();
}

void XQuickListView::follow()
{
    setContentY(originY() + m_offsetY);
}
