#include "xcomponents/qquick/xbasepainteditem.h"

#include <QQuickWindow>
#include <QtMath>

#include <cmath>

XBasePaintedItem::XBasePaintedItem(QQuickItem* parent)
    : QQuickPaintedItem(parent)
{
}

XBasePaintedItem::~XBasePaintedItem() = default;

QSize XBasePaintedItem::cappedTextureSize(const QSizeF& size, qreal dpr, const QSize& window)
{
    const qreal ratio = dpr > 0 ? dpr : 1.0;
    const int maxW = window.isEmpty() ? kMaxTextureSide : qCeil(window.width() * ratio);
    const int maxH = window.isEmpty() ? kMaxTextureSide : qCeil(window.height() * ratio);
    // compare as reals: an item of INT_MAX pixels times the ratio does not fit an int
    const qreal w = qBound<qreal>(1.0, std::ceil(size.width() * ratio), maxW);
    const qreal h = qBound<qreal>(1.0, std::ceil(size.height() * ratio), maxH);
    return QSize(int(w), int(h));
}

void XBasePaintedItem::updateTextureSize()
{
    const QQuickWindow* w = window();
    const QSize capped
        = cappedTextureSize(size(), w ? w->effectiveDevicePixelRatio() : 1.0, w ? w->size() : QSize());
    if (textureSize() != capped)
        setTextureSize(capped);
}

void XBasePaintedItem::geometryChanged(const QRectF& newGeometry, const QRectF& oldGeometry)
{
    QQuickPaintedItem::geometryChanged(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        updateTextureSize();
}

void XBasePaintedItem::itemChange(ItemChange change, const ItemChangeData& value)
{
    QQuickPaintedItem::itemChange(change, value);
    if (change == ItemSceneChange || change == ItemDevicePixelRatioHasChanged)
        updateTextureSize();
}
