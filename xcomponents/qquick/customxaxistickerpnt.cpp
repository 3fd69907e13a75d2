#include "xcomponents/qquick/customxaxistickerpnt.h"

QString CustomXAxisTickerPnt::getTickLabel(double tick, const QLocale& locale, QChar formatChar, int precision)
{
    Q_UNUSED(locale)
    Q_UNUSED(formatChar)
    Q_UNUSED(precision)
    const double number = double(m_startTickerNo) + tick;
    if (number < 0)
        return QString();
    return QString::number(number, 'g', 6);
}
