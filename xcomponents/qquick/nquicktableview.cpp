#include "xcomponents/qquick/nquicktableview.h"

#include <QtMath>

NQuickTableView::NQuickTableView(QQuickItem* parent)
    : QQuickTableView(parent)
{
}

NQuickTableView::~NQuickTableView() = default;

void NQuickTableView::setRowHeight(int height)
{
    height = qMax(1, height);
    if (m_rowHeight == height)
        return;
    m_rowHeight = height;
    Q_EMIT rowHeightChanged();
    forceLayout();
}

int NQuickTableView::rowAt(qreal y) const
{
    const qreal inContent = y + contentY() - originY();
    if (y < 0 || y >= height() || inContent < 0)
        return -1;
    const qint64 row = qint64(qFloor(inContent / m_rowHeight));
    return row < rows() ? int(row) : -1;
}

void NQuickTableView::scrollTo(qreal y)
{
    const qreal extent = qreal(rows()) * m_rowHeight;
    setContentY(originY() + qBound<qreal>(0.0, y, qMax<qreal>(0.0, extent - height())));
}
