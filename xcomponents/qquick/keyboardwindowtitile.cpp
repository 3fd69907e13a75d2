#include "xcomponents/qquick/keyboardwindowtitile.h"

#include "xcomponents/qquick/xkeyboardedit.h"

KeyBoardWindowTitile::KeyBoardWindowTitile(QQuickItem* parent)
    : WindowTitile(parent)
    , m_edit(new XKeyBoardEdit(this))
{
    m_edit->setObjectName(QStringLiteral("keyboardEdit"));
}

void KeyBoardWindowTitile::setText(const QString& text)
{
    m_edit->setText(text);
}

QString KeyBoardWindowTitile::text() const
{
    return m_edit->text();
}

qreal KeyBoardWindowTitile::reservedLeft() const
{
    return m_edit->x() + m_edit->width();
}

void KeyBoardWindowTitile::geometryChanged(const QRectF& newGeometry, const QRectF& oldGeometry)
{
    WindowTitile::geometryChanged(newGeometry, oldGeometry);
    // the entry takes the left half of the bar, inset by 4 px
    m_edit->setPosition(QPointF(4, 4));
    m_edit->setSize(
        QSizeF(qMax<qreal>(0, newGeometry.width() / 2 - 8), qMax<qreal>(0, newGeometry.height() - 8)));
}
