#ifndef CUSTOMXAXISTICKERTIME_H
#define CUSTOMXAXISTICKERTIME_H

#include "xcomponents/qquick/basecustomaxisticker.h"

/**
 * x ticker of the time axis. A key is a number of seconds after startOffset
 * (seconds since 1970-01-01 UTC), so keys stay small whatever the date. The
 * step is picked from clock-friendly steps (1, 2, 5, 10, 15, 30 s; 1, 2, 5,
 * 10, 15, 30 min; 1, 2, 3, 6, 12 h; 1, 2, 7 days; 1, 3 months; whole years)
 * as the smallest that gives no more than the wanted tick count, and ticks
 * sit on whole steps of local time (minutes on :00, days at midnight, weeks
 * on Mondays, months on the 1st). Labels use the clock format when one is set, otherwise a form
 * that fits the step: "hh:mm:ss.zzz" below a second, "hh:mm:ss" below a
 * minute, "hh:mm" below a day (with "MM-dd" above it when the range crosses
 * midnight), "MM-dd" below a month, "yyyy-MM" below a year, "yyyy".
 */
class CustomXAxisTickerTime : public BaseCustomAxisTicker {
public:
    CustomXAxisTickerTime() = default;

    double startOffset() const { return m_startOffset; }
    /** Seconds since 1970-01-01 UTC at key 0. */
    void setStartOffset(double seconds) { m_startOffset = seconds; }

    /** The local date and time of \a key (millisecond precision). */
    QDateTime keyToDateTime(double key) const;
    /** The key of \a dateTime. */
    double dateTimeToKey(const QDateTime& dateTime) const;

protected:
    /* inherits documentation from base class */
    double getTickStep(const QCPRange& range) override;
    QVector<double> createTickVector(double tickStep, const QCPRange& range) override;
    QVector<QString> createLabelVector(
        const QVector<double>& ticks, const QLocale& locale, QChar formatChar, int precision) override;

private:
    /** The label form for the last step when no clock format is set. */
    QString autoFormat(const QVector<double>& ticks) const;

    double m_startOffset = 0;
    double m_step = 1; // the step of the last tick generation, seconds
};

#endif // CUSTOMXAXISTICKERTIME_H
