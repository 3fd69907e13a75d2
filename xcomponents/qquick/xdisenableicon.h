#ifndef XDISENABLEICON_H
#define XDISENABLEICON_H

#include "xcomponents/qquick/xbasepainteditem.h"

#include <QColor>
#include <QIcon>
#include <QSize>

/**
 * An icon tinted in one colour: only the icon's opaque shape takes the colour
 * (the colour while the item is enabled, the disabled colour otherwise). The
 * item's box is the icon size plus 2 + 2 pixels in each dimension.
 */
class XDisEnableIcon : public XBasePaintedItem {
    Q_OBJECT
    Q_PROPERTY(QIcon icon READ icon WRITE setIcon NOTIFY iconChanged)
    Q_PROPERTY(QString iconSource READ iconSource WRITE setIconSource NOTIFY iconChanged)
    Q_PROPERTY(QSize iconSize READ iconSize WRITE setIconSize NOTIFY iconSizeChanged)
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged)
    Q_PROPERTY(QColor disabledColor READ disabledColor WRITE setDisabledColor NOTIFY disabledColorChanged)

public:
    explicit XDisEnableIcon(QQuickItem* parent = nullptr);
    ~XDisEnableIcon() override;

    QIcon icon() const { return m_icon; }
    void setIcon(const QIcon& icon);
    /** The icon from a file or resource path. */
    QString iconSource() const { return m_iconSource; }
    void setIconSource(const QString& source);
    /** 16 x 16 by default. */
    QSize iconSize() const { return m_iconSize; }
    void setIconSize(const QSize& size);
    /** Black by default. */
    QColor color() const { return m_color; }
    void setColor(const QColor& color);
    /** Grey by default. */
    QColor disabledColor() const { return m_disabledColor; }
    void setDisabledColor(const QColor& color);

    QRectF boundingRect() const override;
    void paint(QPainter* painter) override;

Q_SIGNALS:
    void iconChanged();
    void iconSizeChanged();
    void colorChanged();
    void disabledColorChanged();

protected:
    void itemChange(ItemChange change, const ItemChangeData& value) override;

private:
    QIcon m_icon;
    QString m_iconSource;
    QSize m_iconSize = QSize(16, 16);
    QColor m_color = Qt::black;
    QColor m_disabledColor = Qt::gray;
};

#endif // XDISENABLEICON_H
