#include "xcomponents/qquick/xshapescale.h"

#include <qgui/scale.h>

#include <QFontMetricsF>
#include <QPainter>

#include <cmath>

XShapeScale::XShapeScale(QQuickItem* parent)
    : XShapeItem(parent)
    , m_scale(std::make_unique<ScaleCircle>())
{
    connect(this, &XShapeItem::designSizeChanged, this, &XShapeScale::rebuild);
}

XShapeScale::~XShapeScale() = default;

void XShapeScale::setScale(std::unique_ptr<ScaleBase> scale)
{
    if (!scale)
        return;
    m_scale = std::move(scale);
    rebuild();
}

void XShapeScale::scaleChanged()
{
    rebuild();
}

void XShapeScale::setPlacement(Placement placement)
{
    m_placement = placement;
    rebuild();
}

void XShapeScale::setTickLengths(int major, int minor)
{
    m_majorLength = qBound(0, major, 10000);
    m_minorLength = qBound(0, minor, 10000);
    rebuild();
}

void XShapeScale::setLabelsVisible(bool visible)
{
    m_labelsVisible = visible;
    rebuild();
}

void XShapeScale::setFont(const QFont& font, const QColor& color)
{
    m_font = font;
    m_labelColor = color;
    rebuild();
}

void XShapeScale::setLabels(const QStringList& labels)
{
    m_labels = labels;
    rebuild();
}

std::vector<double> XShapeScale::majorTicks() const
{
    std::vector<double> ticks = m_scale->majorTicks();
    if (ticks.size() > size_t(kMaxTicks))
        ticks.resize(size_t(kMaxTicks));
    return ticks;
}

qreal XShapeScale::fractionOf(double value) const
{
    const double span = m_scale->maximum() - m_scale->minimum();
    if (span == 0 || !std::isfinite(span))
        return 0;
    const double f = (value - m_scale->minimum()) / span;
    return std::isfinite(f) ? qBound(0.0, f, 1.0) : 0.0;
}

QString XShapeScale::labelAt(int index) const
{
    const std::vector<double> ticks = majorTicks();
    if (index < 0 || index >= int(ticks.size()))
        return QString();
    if (!m_labels.isEmpty())
        return m_labels.value(index);
    return QString::fromStdString(m_scale->labelText(ticks[size_t(index)]));
}

QLineF XShapeScale::baseLine() const
{
    const QSizeF box = designSize().isEmpty() ? size() : designSize();
    const QFontMetricsF fm(m_font);
    if (horizontal()) {
        qreal inset = 0;
        if (m_labelsVisible)
            inset = qMax(fm.horizontalAdvance(labelAt(0)), fm.horizontalAdvance(labelAt(int(majorTicks().size()) - 1)))
                / 2;
        inset = qMin(inset, box.width() / 4);
        const qreal y = m_placement == LabelsBelow ? 0 : box.height();
        return QLineF(inset, y, box.width() - inset, y);
    }
    const qreal inset = m_labelsVisible ? qMin(fm.height() / 2, box.height() / 4) : 0;
    const qreal x = m_placement == LabelsLeft ? box.width() : 0;
    return QLineF(x, box.height() - inset, x, inset);
}

QPointF XShapeScale::tickPoint(int index) const
{
    const std::vector<double> ticks = majorTicks();
    const qreal f = index >= 0 && index < int(ticks.size()) ? fractionOf(ticks[size_t(index)]) : 0;
    return designTransform().map(baseLine().pointAt(f));
}

void XShapeScale::geometryChanged(const QRectF& newGeometry, const QRectF& oldGeometry)
{
    XShapeItem::geometryChanged(newGeometry, oldGeometry);
    if (designSize().isEmpty() && newGeometry.size() != oldGeometry.size())
        rebuild();
}

void XShapeScale::rebuild()
{
    const QLineF line = baseLine();
    // ticks point away from the line, towards the labels
    QPointF out;
    switch (m_placement) {
    case LabelsAbove:
        out = QPointF(0, -1);
        break;
    case LabelsLeft:
        out = QPointF(-1, 0);
        break;
    case LabelsRight:
        out = QPointF(1, 0);
        break;
    case LabelsBelow:
    default:
        out = QPointF(0, 1);
        break;
    }
    QPainterPath path;
    path.moveTo(line.p1());
    path.lineTo(line.p2());
    // major ticks at their values, minor ticks dividing each major division
    const std::vector<double> ticks = majorTicks();
    const int minors = qBound(0, m_scale->minorCount(), 100);
    for (size_t i = 0; i < ticks.size(); ++i) {
        const qreal f = fractionOf(ticks[i]);
        path.moveTo(line.pointAt(f));
        path.lineTo(line.pointAt(f) + out * m_majorLength);
        if (i + 1 == ticks.size())
            break;
        const qreal next = fractionOf(ticks[i + 1]);
        for (int m = 1; m <= minors; ++m) {
            const QPointF at = line.pointAt(f + (next - f) * m / (minors + 1));
            path.moveTo(at);
            path.lineTo(at + out * m_minorLength);
        }
    }
    setPath(path, false);
}

void XShapeScale::paintExtra(QPainter* painter, const QTransform& toItem)
{
    if (!m_labelsVisible)
        return;
    const QLineF line = baseLine();
    const std::vector<double> ticks = majorTicks();
    painter->setFont(m_font);
    painter->setPen(m_labelColor);
    const QFontMetricsF fm(m_font);
    const qreal gap = m_majorLength + 2;
    for (int i = 0; i < int(ticks.size()); ++i) {
        const QString text = labelAt(i);
        if (text.isEmpty())
            continue;
        const QPointF at = toItem.map(line.pointAt(fractionOf(ticks[size_t(i)])));
        const qreal w = fm.horizontalAdvance(text);
        QRectF box;
        switch (m_placement) {
        case LabelsAbove:
            box = QRectF(at.x() - w / 2, at.y() - gap - fm.height(), w, fm.height());
            break;
        case LabelsLeft:
            box = QRectF(at.x() - gap - w, at.y() - fm.height() / 2, w, fm.height());
            break;
        case LabelsRight:
            box = QRectF(at.x() + gap, at.y() - fm.height() / 2, w, fm.height());
            break;
        case LabelsBelow:
        default:
            box = QRectF(at.x() - w / 2, at.y() + gap, w, fm.height());
            break;
        }
        painter->drawText(box, Qt::AlignCenter, text);
    }
}
