#ifndef XSHAPESCALE_H
#define XSHAPESCALE_H

#include "xcomponents/qquick/xshapeitem.h"

#include <QFont>
#include <QStringList>

#include <memory>
#include <vector>

class ScaleBase;

/**
 * A straight scale: a base line along one edge, major and minor ticks, and a
 * label at every major tick. The scale object gives the range, the values of
 * the major ticks and their labels: a numeric scale with decimals (a
 * ScaleCircle) puts them at equal divisions, a ScaleTime on whole clock
 * steps with clock labels, and a class derived from either its own. Texts set
 * with setLabels replace the labels from the start of the scale (a missing
 * text leaves its tick unlabelled). Minor ticks divide each major division.
 *
 * Horizontal scales run from minimum on the left to maximum on the right,
 * vertical ones from minimum at the bottom to maximum at the top. The line is
 * inset by half an end label so that the labels stay inside the box.
 */
class XShapeScale : public XShapeItem {
    Q_OBJECT

public:
    /** Which edge carries the line, and where the labels go (the interface's scale directions). */
    enum Placement {
        LabelsBelow = 0, /**< horizontal, line at the top, ticks and labels below */
        LabelsAbove = 1, /**< horizontal, line at the bottom, ticks and labels above */
        LabelsLeft = 2, /**< vertical, line on the right, ticks and labels to its left */
        LabelsRight = 3 /**< vertical, line on the left, ticks and labels to its right */
    };
    Q_ENUM(Placement)

    explicit XShapeScale(QQuickItem* parent = nullptr);
    ~XShapeScale() override;

    /** Takes the scale that gives range, tick counts and labels (never null). */
    void setScale(std::unique_ptr<ScaleBase> scale);
    ScaleBase* scale() const { return m_scale.get(); }
    /** Call after changing the scale object's range or counts. */
    void scaleChanged();

    void setPlacement(Placement placement);
    Placement placement() const { return m_placement; }
    void setTickLengths(int major, int minor);
    void setLabelsVisible(bool visible);
    void setFont(const QFont& font, const QColor& color);
    /** Replaces the labels from the start of the scale; an empty list brings the numbers back. */
    void setLabels(const QStringList& labels);
    /** The label of major tick \a index (0: the first from the minimum end). */
    QString labelAt(int index) const;
    /** Where major tick \a index meets the line, item coordinates (the minimum end when there is none). */
    QPointF tickPoint(int index) const;
    /** Major tick values, from the scale object (at most kMaxTicks). */
    std::vector<double> majorTicks() const;

    /** Most major ticks drawn. */
    static constexpr int kMaxTicks = 1000;

protected:
    /* inherits documentation from base class */
    void paintExtra(QPainter* painter, const QTransform& toItem) override;
    void geometryChanged(const QRectF& newGeometry, const QRectF& oldGeometry) override;

private:
    void rebuild();
    bool horizontal() const { return m_placement == LabelsBelow || m_placement == LabelsAbove; }
    /** The line's ends in design coordinates. */
    QLineF baseLine() const;
    /** Where \a value lies along the line, 0 .. 1 (outside the range: clamped). */
    qreal fractionOf(double value) const;

    std::unique_ptr<ScaleBase> m_scale;
    Placement m_placement = LabelsBelow;
    int m_majorLength = 8;
    int m_minorLength = 4;
    bool m_labelsVisible = true;
    QFont m_font;
    QColor m_labelColor { Qt::black };
    QStringList m_labels;
};

#endif // XSHAPESCALE_H
