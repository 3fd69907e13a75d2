#include "xcomponents/qquick/xbasepainteditem.h"

XBasePaintedItem::XBasePaintedItem(QQuickItem* parent)
    : QQuickPaintedItem(parent)
{
}

XBasePaintedItem::~XBasePaintedItem() = default;
