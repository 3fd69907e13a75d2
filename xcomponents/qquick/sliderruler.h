#ifndef SLIDERRULER_H
#define SLIDERRULER_H

#include "xcomponents/qquick/xbasepainteditem.h"

#include <QFont>
#include <QStringList>

class BaseSlider;

/**
 * The scale of a slider: ticks and labels beside the groove, at the same
 * values as the groove. The ruler is part of the slider's touch area: a press
 * or drag on it moves the handle exactly as on the groove (events 2, 4, 3 of
 * the slider). Labels are the numbers of the range until texts are given.
 */
class SliderRuler : public XBasePaintedItem {
    Q_OBJECT

public:
    explicit SliderRuler(BaseSlider* slider);
    ~SliderRuler() override;

    void setMajorCount(int count);
    int majorCount() const { return m_majorCount; }
    void setFont(const QFont& font, const QColor& color);
    /** Labels of the major ticks from the minimum on; empty: numbers. */
    void setLabels(const QStringList& labels);
    QString labelAt(int index) const;
    /** The strip the ruler needs beside the groove: its height (horizontal) or width (vertical). */
    qreal thickness() const;

    void paint(QPainter* painter) override;

protected:
    /* inherits documentation from base class */
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    BaseSlider* slider() const;

    int m_majorCount = 4;
    QFont m_font;
    QColor m_labelColor { Qt::black };
    QStringList m_labels;
};

#endif // SLIDERRULER_H
