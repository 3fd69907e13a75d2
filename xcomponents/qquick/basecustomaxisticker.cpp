#include "xcomponents/qquick/basecustomaxisticker.h"

#include <cmath>

void BaseCustomAxisTicker::insertLabel(double key, const char* text)
{
    m_labels.insert(key, text ? QString::fromUtf8(text) : QString());
}

double BaseCustomAxisTicker::getXTickStep(const QCPRange& range)
{
    const double step = QCPAxisTicker::getTickStep(range);
    if (!std::isfinite(step))
        return 1.0;
    return qMax(1.0, std::round(step));
}

int BaseCustomAxisTicker::getSubTickCount(double tickStep)
{
    Q_UNUSED(tickStep)
    return m_subTickCount;
}
