#include "xcomponents/qquick/xquickdialog.h"

XQuickDialog::XQuickDialog(QQuickItem* parent)
    : XPopup(parent)
{
}

XQuickDialog::~XQuickDialog() = default;

void XQuickDialog::setHeader(QQuickItem* header)
{
    if (m_header == header)
        return;
    delete m_header.data();
    m_header = header;
    if (header) {
        header->setParentItem(this);
        header->setParent(this);
        header->setZ(2);
    }
    layoutHeader();
    layoutContent();
    Q_EMIT headerChanged();
}

void XQuickDialog::setTitleHeight(int height)
{
    height = qMax(0, height);
    if (m_titleHeight == height)
        return;
    m_titleHeight = height;
    layoutHeader();
    layoutContent();
    Q_EMIT titleHeightChanged();
}

void XQuickDialog::geometryChanged(const QRectF& newGeometry, const QRectF& oldGeometry)
{
    XPopup::geometryChanged(newGeometry, oldGeometry);
    layoutHeader();
}

void XQuickDialog::layoutHeader()
{
    if (!m_header)
        return;
    m_header->setPosition(QPointF(0, 0));
    m_header->setSize(QSizeF(width(), m_titleHeight));
}
