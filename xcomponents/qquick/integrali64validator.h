#ifndef INTEGRALI64VALIDATOR_H
#define INTEGRALI64VALIDATOR_H

#include <QValidator>

/**
 * Validator of signed 64-bit integers typed in base 10 or 16, for the
 * keyboard's entry line. A new validator has base 10 and the full range
 * -2^63..2^63-1.
 *
 * An empty text or a lone "-" is Intermediate; a text that is not a number of
 * the base, a "-" when the range has no negative value, or a value outside
 * bottom..top is Invalid. Out-of-range values are Invalid, not Intermediate, so
 * the entry line only ever holds in-range prefixes: with a range of 100..200,
 * "1" cannot be typed on its way to "150" (give ranges whose bottom is at most
 * 0, or set the whole text at once).
 */
class IntegralI64Validator : public QValidator {
    Q_OBJECT
    Q_PROPERTY(qint64 bottom READ bottom WRITE setBottom NOTIFY bottomChanged)
    Q_PROPERTY(qint64 top READ top WRITE setTop NOTIFY topChanged)
    Q_PROPERTY(int base READ base WRITE setBase NOTIFY baseChanged)

public:
    explicit IntegralI64Validator(QObject* parent = nullptr);
    IntegralI64Validator(qint64 bottom, qint64 top, int base = 10, QObject* parent = nullptr);
    ~IntegralI64Validator() override;

    qint64 bottom() const { return m_bottom; }
    void setBottom(qint64 bottom);
    qint64 top() const { return m_top; }
    void setTop(qint64 top);
    void setRange(qint64 bottom, qint64 top);
    /** 10 or 16; other values are stored and validate nothing but the empty text. */
    int base() const { return m_base; }
    void setBase(int base);

    /** The bounds as text: decimal in base 10; in base 16 lower-case hexadecimal, a negative
     *  value as "-" and the hexadecimal of its magnitude; empty in any other base. */
    Q_INVOKABLE QString bottomStr() const;
    Q_INVOKABLE QString topStr() const;

    /* inherits documentation from base class */
    State validate(QString& input, int& pos) const override;

Q_SIGNALS:
    void bottomChanged(qint64 bottom);
    void topChanged(qint64 top);
    void baseChanged(int base);

private:
    QString toText(qint64 value) const;

    qint64 m_bottom;
    qint64 m_top;
    int m_base = 10;
};

#endif // INTEGRALI64VALIDATOR_H
