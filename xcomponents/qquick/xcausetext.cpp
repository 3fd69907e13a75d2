#include "xcomponents/qquick/xcausetext.h"

#include "xcomponents/qquick/xsktextlabel.h"

XCauseText::XCauseText(QQuickItem* parent)
    : XBaseControl(parent)
    , XskCauseText(this)
{
    QObject::connect(mainLabel(), &XskTextLabel::textChanged, this, &XCauseText::textChanged);
}

XCauseText::~XCauseText() = default;

QString XCauseText::text() const
{
    return mainLabel()->text();
}

void XCauseText::setText(const QString& text)
{
    mainLabel()->setText(text);
}

QFont XCauseText::textFont() const
{
    return mainLabel()->font();
}

void XCauseText::setTextFont(const QFont& font)
{
    mainLabel()->setFont(font);
}

void XCauseText::setFontColor(const QColor& color)
{
    if (m_fontColor == color)
        return;
    m_fontColor = color;
    if (!grayFlag())
        mainLabel()->setColor(color);
    Q_EMIT fontColorChanged();
}

void XCauseText::setLineSpace(int space)
{
    mainLabel()->setLineSpace(space);
}

void XCauseText::setFontAlignment(int align)
{
    mainLabel()->setFontAlignment(align);
}

void XCauseText::setAlignment(Qt::Alignment align)
{
    mainLabel()->setAlignment(align);
}

void XCauseText::setTextHMargin(int margin)
{
    mainLabel()->setTextHMargin(margin);
}

void XCauseText::setTextVMargin(int margin)
{
    mainLabel()->setTextVMargin(margin);
}

void XCauseText::setWgtRect(const QRect& rect)
{
    setPosition(rect.topLeft());
    setSize(rect.size());
}

void XCauseText::setItemBrush(const QBrush& brush)
{
    XBaseControl::setItemBrush(brush);
    setFontColor(brush.color());
}

void XCauseText::setItemPen(const QPen& pen)
{
    setFontColor(pen.color());
}

void XCauseText::setGrayFlag(bool on)
{
    XBaseControl::setGrayFlag(on);
    mainLabel()->setColor(on ? QColor(QStringLiteral("gray")) : m_fontColor);
}

void XCauseText::zoom(qreal w, qreal h, int origin)
{
    setTransformOrigin(QQuickItem::TransformOrigin(qBound(0, origin, int(QQuickItem::BottomRight))));
    setSize(QSizeF(qMax<qreal>(0, width() * w), qMax<qreal>(0, height() * h)));
}

void XCauseText::rotate(qreal angle, int origin)
{
    setTransformOrigin(QQuickItem::TransformOrigin(qBound(0, origin, int(QQuickItem::BottomRight))));
    setRotation(angle);
}

void XCauseText::geometryChanged(const QRectF& newGeometry, const QRectF& oldGeometry)
{
    XBaseControl::geometryChanged(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        layoutCauseText(newGeometry.size());
}
