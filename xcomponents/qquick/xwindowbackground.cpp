#include "xcomponents/qquick/xwindowbackground.h"

#include "config/projectmanage.h"
#include "platform/guiqtadaptcore.h"

#include <QDir>
#include <QPainter>

XWindowBackground::XWindowBackground(QQuickItem* parent)
    : XBasePaintedItem(parent)
{
    setAntialiasing(true);
}

bool XWindowBackground::setImagePath(const QString& path)
{
    QString file = path;
    if (!file.isEmpty() && QDir::isRelativePath(file))
        file = ProjectManage::getInstance()->getImagePath() + file;
    m_image = file.isEmpty() ? QImage() : QImage(file);
    update();
    return !m_image.isNull();
}

void XWindowBackground::setBrush(const QBrush& brush)
{
    m_brush = brush;
    m_hasRecord = false;
    update();
}

void XWindowBackground::setBrushRecord(const Brush& brush)
{
    m_hasRecord = true;
    m_recStyle = brush.style;
    m_recColor = brush.color;
    m_recColor2 = brush.color2;
    m_recAngle = brush.angle;
    update();
}

void XWindowBackground::setPen(const QPen& pen)
{
    m_pen = pen;
    update();
}

void XWindowBackground::paint(QPainter* painter)
{
    const QRectF r = boundingRect();
    if (!m_image.isNull()) {
        painter->drawImage(r, m_image);
    } else if (m_hasRecord) {
        const Brush b { m_recStyle, m_recColor, m_recColor2, m_recAngle };
        painter->fillRect(r, GuiQtAdapt::Core::toQBrush(b, r));
    } else if (m_brush.style() != Qt::NoBrush) {
        painter->fillRect(r, m_brush);
    }
    if (m_pen.style() != Qt::NoPen && m_pen.widthF() >= 0) {
        const qreal half = qMax<qreal>(1.0, m_pen.widthF()) / 2.0;
        painter->setPen(m_pen);
        painter->setBrush(Qt::NoBrush);
        painter->drawRect(r.adjusted(half, half, -half, -half));
    }
}
