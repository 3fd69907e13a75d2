#include "xcomponents/qquick/customxaxistickertime.h"

#include <QDateTime>

#include <cmath>

namespace {

constexpr double kMinute = 60;
constexpr double kHour = 3600;
constexpr double kDay = 86400;
constexpr double kMonth = 30 * kDay; // a step of "one month"; ticks still fall on the 1st
constexpr double kYear = 365 * kDay;
constexpr int kMaxTicks = 1000; // never more ticks than this, whatever the range

const double kSteps[] = { 1, 2, 5, 10, 15, 30, kMinute, 2 * kMinute, 5 * kMinute, 10 * kMinute,
    15 * kMinute, 30 * kMinute, kHour, 2 * kHour, 3 * kHour, 6 * kHour, 12 * kHour, kDay, 2 * kDay,
    7 * kDay, kMonth, 3 * kMonth, kYear };

} // namespace

QDateTime CustomXAxisTickerTime::keyToDateTime(double key) const
{
    const double ms = std::round((m_startOffset + key) * 1000.0);
    if (!std::isfinite(ms) || std::fabs(ms) > 8.64e15)
        return QDateTime();
    return QDateTime::fromMSecsSinceEpoch(qint64(ms));
}

double CustomXAxisTickerTime::dateTimeToKey(const QDateTime& dateTime) const
{
    if (!dateTime.isValid())
        return 0;
    return double(dateTime.toMSecsSinceEpoch()) / 1000.0 - m_startOffset;
}

double CustomXAxisTickerTime::getTickStep(const QCPRange& range)
{
    const double wanted = range.size() / qMax(1, tickCount());
    if (!std::isfinite(wanted) || wanted <= 0) {
        m_step = 1;
    } else if (wanted < 1) {
        m_step = QCPAxisTicker::getTickStep(range); // below a second: decimal steps
    } else if (wanted > kYear) {
        m_step = std::ceil(wanted / kYear) * kYear;
    } else {
        m_step = kYear;
        for (double s : kSteps) {
            if (s >= wanted) {
                m_step = s;
                break;
            }
        }
    }
    if (range.size() / m_step > kMaxTicks)
        m_step = range.size() / kMaxTicks;
    return m_step;
}

QVector<double> CustomXAxisTickerTime::createTickVector(double tickStep, const QCPRange& range)
{
    QVector<double> ticks;
    if (!(tickStep > 0) || !std::isfinite(range.lower) || !std::isfinite(range.upper))
        return ticks;
    if (tickStep >= kMonth) {
        // calendar steps: the 1st of every month, every third month, or January of whole years
        const int months = tickStep >= kYear ? 12 * qMax(1, int(std::round(tickStep / kYear)))
                                             : (tickStep >= 3 * kMonth ? 3 : 1);
        const QDateTime from = keyToDateTime(range.lower);
        if (!from.isValid())
            return ticks;
        const int y = from.date().year();
        const int m = from.date().month();
        QDate d = months % 12 == 0 ? QDate(y - y % (months / 12), 1, 1) : QDate(y, m - (m - 1) % months, 1);
        for (int i = 0; i < kMaxTicks; ++i, d = d.addMonths(months)) {
            const double key = dateTimeToKey(QDateTime(d, QTime(0, 0)));
            if (key > range.upper)
                break;
            if (key >= range.lower)
                ticks.append(key);
        }
        return ticks;
    }
    // whole steps of local time: shift by the local offset from UTC at the range's start
    const QDateTime at = keyToDateTime(range.lower);
    const double local = at.isValid() ? at.offsetFromUtc() : 0;
    // weeks start on Mondays (1970-01-01 was a Thursday: four days later)
    const double shift = tickStep == 7 * kDay ? 4 * kDay : 0;
    const double first = std::ceil((m_startOffset + range.lower + local - shift) / tickStep) * tickStep + shift;
    for (int i = 0; i < kMaxTicks; ++i) {
        const double key = first + i * tickStep - local - m_startOffset;
        if (key > range.upper)
            break;
        ticks.append(key);
    }
    return ticks;
}

QString CustomXAxisTickerTime::autoFormat(const QVector<double>& ticks) const
{
    if (m_step < 1)
        return QStringLiteral("hh:mm:ss.zzz");
    if (m_step < kMinute)
        return QStringLiteral("hh:mm:ss");
    if (m_step < kDay) {
        const bool oneDay = ticks.isEmpty()
            || keyToDateTime(ticks.first()).date() == keyToDateTime(ticks.last()).date();
        return oneDay ? QStringLiteral("hh:mm") : QStringLiteral("MM-dd\nhh:mm");
    }
    if (m_step < kMonth)
        return QStringLiteral("MM-dd");
    if (m_step < kYear)
        return QStringLiteral("yyyy-MM");
    return QStringLiteral("yyyy");
}

QVector<QString> CustomXAxisTickerTime::createLabelVector(
    const QVector<double>& ticks, const QLocale& locale, QChar formatChar, int precision)
{
    Q_UNUSED(locale)
    Q_UNUSED(formatChar)
    Q_UNUSED(precision)
    const QString format = clockFormat().isEmpty() ? autoFormat(ticks) : clockFormat();
    QVector<QString> labels;
    labels.reserve(ticks.size());
    for (double t : ticks)
        labels.append(keyToDateTime(t).toString(format));
    return labels;
}
