#ifndef CUSTOMXAXISTICKERPNTT_H
#define CUSTOMXAXISTICKERPNTT_H

#include "xcomponents/qquick/basecustomaxisticker.h"

/**
 * x ticker of a labelled sample number: the tick at key t reads the text
 * pushed with the sample of exactly that key, "" when none was.
 */
class CustomXAxisTickerPntT : public BaseCustomAxisTicker {
public:
    CustomXAxisTickerPntT() = default;

protected:
    /* inherits documentation from base class */
    QString getTickLabel(double tick, const QLocale& locale, QChar formatChar, int precision) override
    {
        Q_UNUSED(locale)
        Q_UNUSED(formatChar)
        Q_UNUSED(precision)
        return labelAt(tick);
    }
};

#endif // CUSTOMXAXISTICKERPNTT_H
