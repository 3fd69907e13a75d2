/*
 * qgui public interface: scale classes that the logic layer may use and derive
 * from (dial scales, time scales).
 *
 * ScaleCircle and ScaleTime share their range and tick counts through the
 * virtual base ScaleBase, so a class deriving from both (a dial with time
 * labels) has one range; such a class chooses its own labelText and
 * majorTicks. Labels are UTF-8.
 */
#ifndef QGUI_SCALE_H
#define QGUI_SCALE_H

#include <string>
#include <vector>

#include "types.h"

/** Range and tick counts of a scale. */
class QGUI_EXPORT ScaleBase {
public:
    virtual ~ScaleBase();

    /** Sets the range; minimum may be larger than maximum (a falling scale). */
    void setRange(double minimum, double maximum);
    double minimum() const { return m_minimum; }
    double maximum() const { return m_maximum; }

    /** Sets the major divisions (1 .. 100,000) and the minor ticks between two major ticks (0 .. 100,000);
     *  values outside are clamped. */
    void setTickCount(int majorCount, int minorCount);
    int majorCount() const { return m_majorCount; }
    int minorCount() const { return m_minorCount; }

    /** Label of a value. */
    virtual std::string labelText(double value) const = 0;

    /** Values of the major ticks from minimum to maximum, both ends included (majorCount + 1 values). */
    virtual std::vector<double> majorTicks() const;

protected:
    ScaleBase();

    double m_minimum = 0.0; /**< value at the start of the scale */
    double m_maximum = 100.0; /**< value at the end of the scale */
    int m_majorCount = 10; /**< major divisions */
    int m_minorCount = 4; /**< minor ticks between two major ticks */
};

/** Circular scale of a dial: values mapped onto an arc. */
class QGUI_EXPORT ScaleCircle : public virtual ScaleBase {
public:
    ScaleCircle();
    ~ScaleCircle() override;

    /** Sets the arc: angle of the minimum and sweep to the maximum, degrees, 0 at three o'clock,
     * counter-clockwise positive. */
    void setAngles(double startAngle, double spanAngle);
    double startAngle() const { return m_startAngle; }
    double spanAngle() const { return m_spanAngle; }

    /** Number of decimals of the labels (0..15). */
    void setDecimals(int decimals);
    int decimals() const { return m_decimals; }

    /** The value in fixed notation with decimals() decimals. */
    std::string labelText(double value) const override;

    /** Angle of a value, degrees; values outside the range are clamped to it. */
    virtual double angleOf(double value) const;

    /** Value at an angle, the inverse of angleOf within the arc; angles outside the arc give the nearer end.
     */
    virtual double valueAt(double angle) const;

protected:
    double m_startAngle = 225.0; /**< angle of the minimum */
    double m_spanAngle = -270.0; /**< sweep to the maximum (negative: clockwise) */
    int m_decimals = 0; /**< label decimals */
};

/** Time scale: values are seconds since 1970-01-01 00:00:00 UTC. */
class QGUI_EXPORT ScaleTime : public virtual ScaleBase {
public:
    ScaleTime();
    ~ScaleTime() override;

    /**
     * Sets the label pattern: "yyyy", "MM", "dd", "hh", "mm", "ss" and "zzz"
     * (milliseconds) are replaced, anything else is copied. Default "hh:mm:ss".
     */
    void setFormat(const std::string& format);
    const std::string& format() const { return m_format; }

    /** Offset of local time from UTC, seconds, added before formatting (default 0). */
    void setUtcOffset(int seconds);
    int utcOffset() const { return m_utcOffset; }

    /** The time formatted with format(). */
    std::string labelText(double seconds) const override;

    /** Major ticks on whole multiples of tickStep(), from the first at or after minimum to maximum. */
    std::vector<double> majorTicks() const override;

    /** A readable step (1, 2, 5, 10, 15, 30 s, 1, 2, 5, 10, 15, 30 min, 1, 2, 3, 6, 12 h, days) giving at
     * most majorCount() divisions. */
    virtual double tickStep() const;

protected:
    std::string m_format = "hh:mm:ss"; /**< label pattern */
    int m_utcOffset = 0; /**< seconds added before formatting */
};

#endif /* QGUI_SCALE_H */
