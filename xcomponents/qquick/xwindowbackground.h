#ifndef XWINDOWBACKGROUND_H
#define XWINDOWBACKGROUND_H

#include "xcomponents/qquick/xbasepainteditem.h"
#include <QBrush>
#include <QImage>
#include <QPen>

/**
 * The background (or frame) of a window or popup window: a picture scaled to
 * the window, or a fill, and an optional outline. Picture paths are absolute or
 * relative to the project's image folder; a picture that cannot be read falls
 * back to the fill.
 */
class XWindowBackground : public XBasePaintedItem {
    Q_OBJECT

public:
    explicit XWindowBackground(QQuickItem* parent = nullptr);

    /** Loads the picture; false when it cannot be read. */
    bool setImagePath(const QString& path);
    bool hasImage() const { return !m_image.isNull(); }
    void setBrush(const QBrush& brush);
    QBrush brush() const { return m_brush; }
    void setPen(const QPen& pen);
    /** The fill as a brush style over this item's rectangle (gradients follow its size). */
    void setBrushRecord(const struct Brush& brush);

    void paint(QPainter* painter) override;

private:
    QImage m_image;
    QBrush m_brush { Qt::NoBrush };
    QPen m_pen { Qt::NoPen };
    bool m_hasRecord = false;
    unsigned m_recStyle = 0, m_recColor = 0, m_recColor2 = 0;
    int m_recAngle = 0;
};

#endif // XWINDOWBACKGROUND_H
