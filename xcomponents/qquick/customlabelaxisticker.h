#ifndef CUSTOMLABELAXISTICKER_H
#define CUSTOMLABELAXISTICKER_H

#include <qcustomplot.h>

#include <QString>
#include <QVector>

/**
 * Value-axis ticker of the charts.
 *
 * On a sample curve chart the y axis runs over [0, N] in tick units, N being
 * this ticker's tick count, one tick per unit. With text labels, tick t
 * (0 <= t < number of labels) reads label floor(t) and every other tick "".
 * Without, tick t reads low + (high - low) * t / N, divided by 10^decimals
 * unless the data type is 10 or 11 (those carry no implied decimals), written
 * with that many decimals ('f').
 *
 * On an XY curve (flagXY) the axis is in the values' own units: with text
 * labels, a whole tick t inside the list reads label t; without, ticks are
 * numbered as by QCPAxisTicker.
 */
class CustomLabelAxisTicker : public QCPAxisTicker {
public:
    /** Data types whose values carry no implied decimals (floating point). */
    enum { TypeFloat = 10, TypeDouble = 11 };
    /** Largest number of decimals written. */
    static constexpr int kMaxDecimals = 15;
    /** Most text labels kept. */
    static constexpr int kMaxLabels = 100000;

    CustomLabelAxisTicker() = default;

    /** Text labels standing in for the numbers (at most kMaxLabels kept); empty: numbers. */
    void setLabels(const QVector<QString>& labels);
    const QVector<QString>& labels() const { return m_labels; }
    bool hasLabels() const { return m_hasLabels; }
    void setDecs(unsigned char decimals) { m_decimals = quint16(qMin<int>(decimals, kMaxDecimals)); }
    int decs() const { return m_decimals; }
    void setDataType(int type) { m_dataType = type; }
    int dataType() const { return m_dataType; }
    /** Sets low (limits[0]) and high (limits[1]); null, NaN or infinite limits change nothing. */
    void setLimit(const double* limits);
    double low() const { return m_low; }
    double high() const { return m_high; }
    /** Minor ticks between two major ticks (negative counts as 0). */
    void setSubTickCount(int count) { m_subTickCount = qBound(0, count, 100); }
    int subTickCount() const { return m_subTickCount; }
    bool flagXY() const { return m_flagXY; }
    void setFlagXY(bool xy) { m_flagXY = xy; }

    /** The plot value (tick units) of the engineering value \a value: (value - low) * N / (high - low),
     *  built as (percent of the range) / (100 / N). 0 when low == high. */
    double toPlot(double value) const;
    /** The engineering value at plot value \a plot written as a number label would be (the labels
     *  left aside): low + (high - low) * plot / N, the implied decimals applied. */
    QString valueText(double plot) const;
    /** The label of tick \a tick (as described above). */
    QString labelFor(double tick) const;

protected:
    /* inherits documentation from base class */
    double getTickStep(const QCPRange& range) override;
    QString getTickLabel(double tick, const QLocale& locale, QChar formatChar, int precision) override;
    int getSubTickCount(double tickStep) override
    {
        Q_UNUSED(tickStep)
        return m_subTickCount;
    }

private:
    bool m_hasLabels = false;
    QVector<QString> m_labels;
    int m_dataType = 0;
    quint16 m_decimals = 0;
    double m_low = 0;
    double m_high = 100;
    bool m_flagXY = false;
    int m_subTickCount = 0;
};

#endif // CUSTOMLABELAXISTICKER_H
