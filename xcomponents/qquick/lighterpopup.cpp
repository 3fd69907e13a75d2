#include "xcomponents/qquick/lighterpopup.h"

LighterPopup::LighterPopup(QQuickItem* parent)
    : XPopup(parent)
{
}

void LighterPopup::setColor(const QColor& color)
{
    if (m_color == color)
        return;
    m_color = color;
    Q_EMIT colorChanged();
}
