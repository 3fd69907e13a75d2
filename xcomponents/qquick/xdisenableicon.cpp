#include "xcomponents/qquick/xdisenableicon.h"

#include <QPainter>
#include <QPixmap>

XDisEnableIcon::XDisEnableIcon(QQuickItem* parent)
    : XBasePaintedItem(parent)
{
    setImplicitSize(m_iconSize.width() + 4, m_iconSize.height() + 4);
}

XDisEnableIcon::~XDisEnableIcon() = default;

void XDisEnableIcon::setIcon(const QIcon& icon)
{
    m_icon = icon;
    Q_EMIT iconChanged();
    update();
}

void XDisEnableIcon::setIconSource(const QString& source)
{
    if (m_iconSource == source)
        return;
    m_iconSource = source;
    m_icon = QIcon(source.startsWith(QLatin1String("qrc:/")) ? source.mid(3) : source);
    Q_EMIT iconChanged();
    update();
}

void XDisEnableIcon::setIconSize(const QSize& size)
{
    if (m_iconSize == size)
        return;
    m_iconSize = size;
    setImplicitSize(size.width() + 4, size.height() + 4);
    Q_EMIT iconSizeChanged();
    update();
}

void XDisEnableIcon::setColor(const QColor& color)
{
    if (m_color == color)
        return;
    m_color = color;
    Q_EMIT colorChanged();
    update();
}

void XDisEnableIcon::setDisabledColor(const QColor& color)
{
    if (m_disabledColor == color)
        return;
    m_disabledColor = color;
    Q_EMIT disabledColorChanged();
    update();
}

QRectF XDisEnableIcon::boundingRect() const
{
    return QRectF(0, 0, m_iconSize.width() + 2 + 2, m_iconSize.height() + 2 + 2);
}

void XDisEnableIcon::paint(QPainter* painter)
{
    if (m_icon.isNull() || m_iconSize.isEmpty())
        return;
    // rendered at no more than the texture's resolution (what can be seen), drawn at the icon size
    const QSize pixels = m_iconSize.boundedTo(textureSize().expandedTo(QSize(1, 1)));
    QPixmap pixmap = m_icon.pixmap(pixels);
    {
        QPainter tint(&pixmap);
        tint.setCompositionMode(QPainter::CompositionMode_SourceIn);
        tint.fillRect(pixmap.rect(), isEnabled() ? m_color : m_disabledColor);
    }
    painter->drawPixmap(QRectF(QPointF(2, 2), QSizeF(m_iconSize)), pixmap, QRectF(pixmap.rect()));
}

void XDisEnableIcon::itemChange(ItemChange change, const ItemChangeData& value)
{
    XBasePaintedItem::itemChange(change, value);
    if (change == ItemEnabledHasChanged)
        update();
}
