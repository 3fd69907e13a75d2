#include "xcomponents/qquick/customlabelaxisticker.h"

#include <cmath>

void CustomLabelAxisTicker::setLabels(const QVector<QString>& labels)
{
    m_labels = labels.size() > kMaxLabels ? labels.mid(0, kMaxLabels) : labels;
    m_hasLabels = !m_labels.isEmpty();
}

void CustomLabelAxisTicker::setLimit(const double* limits)
{
    if (!limits || !std::isfinite(limits[0]) || !std::isfinite(limits[1]))
        return;
    m_low = limits[0];
    m_high = limits[1];
}

double CustomLabelAxisTicker::toPlot(double value) const
{
    const double span = m_high - m_low;
    if (span == 0 || !std::isfinite(span))
        return 0;
    const double step = 100.0 / qMax(1, tickCount());
    return (value - m_low) / span * 100.0 / step;
}

QString CustomLabelAxisTicker::labelFor(double tick) const
{
    if (m_hasLabels) {
        if (m_flagXY && tick != std::floor(tick))
            return QString();
        if (tick >= 0 && tick < m_labels.size())
            return m_labels.at(int(std::floor(tick)));
        return QString();
    }
    if (m_flagXY)
        return QString::number(tick, 'g', 6);
    return valueText(tick);
}

QString CustomLabelAxisTicker::valueText(double plot) const
{
    if (!std::isfinite(plot))
        return QString();
    double value = m_low + (m_high - m_low) * plot / qMax(1, tickCount());
    if (m_dataType != TypeFloat && m_dataType != TypeDouble)
        value /= std::pow(10.0, m_decimals);
    return QString::number(value, 'f', m_decimals);
}

double CustomLabelAxisTicker::getTickStep(const QCPRange& range)
{
    if (m_flagXY) {
        const double step = QCPAxisTicker::getTickStep(range);
        return m_hasLabels ? qMax(1.0, std::round(step)) : step;
    }
    // one tick per unit; wider ranges (a zoomed-out view) thin the ticks to about the tick count
    const double units = range.size() / qMax(1, tickCount());
    return units <= 1 ? 1.0 : std::ceil(units);
}

QString CustomLabelAxisTicker::getTickLabel(double tick, const QLocale& locale, QChar formatChar, int precision)
{
    Q_UNUSED(locale)
    Q_UNUSED(formatChar)
    Q_UNUSED(precision)
    return labelFor(tick);
}
