#ifndef CUSTOMXAXISTICKERPNT_H
#define CUSTOMXAXISTICKERPNT_H

#include "xcomponents/qquick/basecustomaxisticker.h"

/**
 * x ticker of a running sample number: the tick at key t reads
 * startTickerNo + t (format 'g', 6 digits); a negative number reads "".
 */
class CustomXAxisTickerPnt : public BaseCustomAxisTicker {
public:
    CustomXAxisTickerPnt() = default;

    int pointsCount() const { return m_pointsCount; }
    /** Samples shown across the window (kept for the chart's display number). */
    void setPointsCount(int count) { m_pointsCount = qMax(0, count); }
    unsigned startTickerNo() const { return m_startTickerNo; }
    /** The number of the sample at key 0. */
    void setStartTickerNo(unsigned number) { m_startTickerNo = number; }

protected:
    /* inherits documentation from base class */
    QString getTickLabel(double tick, const QLocale& locale, QChar formatChar, int precision) override;

private:
    int m_pointsCount = 0;
    unsigned m_startTickerNo = 0;
};

#endif // CUSTOMXAXISTICKERPNT_H
