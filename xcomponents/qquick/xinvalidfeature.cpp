#include "xcomponents/qquick/xinvalidfeature.h"

#include <QPainter>

XInvalidFeature::XInvalidFeature(QQuickItem* parent)
    : XBasePaintedItem(parent)
{
    setAntialiasing(true);
}

void XInvalidFeature::setFeatureName(const QString& name)
{
    if (m_featureName == name)
        return;
    m_featureName = name;
    Q_EMIT featureNameChanged();
    update();
}

QRect XInvalidFeature::getWgtRect() const
{
    return QRect(int(x()), int(y()), int(width()), int(height()));
}

void XInvalidFeature::paint(QPainter* painter)
{
    const QRectF r = boundingRect().adjusted(0.5, 0.5, -0.5, -0.5);
    if (r.width() < 1 || r.height() < 1)
        return;
    painter->fillRect(r, QColor(0xEE, 0xEE, 0xEE));
    painter->setPen(QPen(QColor(0xBB, 0xBB, 0xBB), 1));
    painter->setBrush(QBrush(QColor(0xCC, 0xCC, 0xCC), Qt::BDiagPattern));
    painter->drawRect(r);
    painter->setPen(QPen(QColor(0x99, 0x33, 0x33), 2));
    painter->drawLine(r.topLeft(), r.bottomRight());
    painter->drawLine(r.topRight(), r.bottomLeft());
    if (!m_featureName.isEmpty() && r.height() > 14) {
        painter->setPen(QColor(0x44, 0x44, 0x44));
        painter->drawText(r, Qt::AlignCenter | Qt::TextWordWrap, m_featureName);
    }
}
