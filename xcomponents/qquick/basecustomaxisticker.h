#ifndef BASECUSTOMAXISTICKER_H
#define BASECUSTOMAXISTICKER_H

#include <qcustomplot.h>

#include <QHash>
#include <QString>

/**
 * Common base of the x tickers of the sample curve chart: a table of labels
 * keyed by x value (the texts pushed with the samples), the number of minor
 * ticks between two major ones, the date/time format of time labels, and the
 * step rule of sample-number axes (whole samples, a readable step).
 */
class BaseCustomAxisTicker : public QCPAxisTicker {
public:
    BaseCustomAxisTicker() = default;

    /** Stores \a text (UTF-8, null: empty) as the label of key \a key, replacing an older one. */
    void insertLabel(double key, const char* text);
    void insertLabel(double key, const QString& text) { m_labels.insert(key, text); }
    void clearLabel() { m_labels.clear(); }
    int labelCount() const { return m_labels.size(); }
    /** The whole label table (kept aside while a chart shows history). */
    QHash<double, QString> labels() const { return m_labels; }
    void setLabels(const QHash<double, QString>& labels) { m_labels = labels; }
    /** The label stored for exactly \a key; empty when there is none. */
    QString labelAt(double key) const { return m_labels.value(key); }

    int getSubTickCount() const { return m_subTickCount; }
    /** Minor ticks between two major ticks (negative counts as 0). */
    void setSubTickCount(int count) { m_subTickCount = qBound(0, count, 100); }

    /** Date/time format of time labels (QDateTime::toString form; empty: chosen by the tick step). */
    QString clockFormat() const { return m_clockFormat; }
    void setClockFormat(const QString& format) { m_clockFormat = format; }

    /** The step of a sample-number axis over \a range: a readable step for the wanted tick
     *  count, rounded to whole samples, at least 1. */
    double getXTickStep(const QCPRange& range);

protected:
    /* inherits documentation from base class */
    double getTickStep(const QCPRange& range) override { return getXTickStep(range); }
    int getSubTickCount(double tickStep) override;

private:
    QHash<double, QString> m_labels;
    QString m_clockFormat;
    int m_subTickCount = 0;
};

#endif // BASECUSTOMAXISTICKER_H
