#ifndef INTEGRALU64VALIDATOR_H
#define INTEGRALU64VALIDATOR_H

#include <QValidator>

/**
 * Validator of unsigned 64-bit integers typed in base 10 or 16, for the
 * keyboard's entry line. A new validator has base 10 and the full range
 * 0..2^64-1.
 *
 * Unlike the signed validator, an empty text is Invalid (at least one digit is
 * needed) and no sign is ever accepted; a text that is not a number of the base
 * or a value outside bottom..top is Invalid, anything else Acceptable.
 */
class IntegralU64Validator : public QValidator {
    Q_OBJECT
    Q_PROPERTY(quint64 bottom READ bottom WRITE setBottom NOTIFY bottomChanged)
    Q_PROPERTY(quint64 top READ top WRITE setTop NOTIFY topChanged)
    Q_PROPERTY(int base READ base WRITE setBase NOTIFY baseChanged)

public:
    explicit IntegralU64Validator(QObject* parent = nullptr);
    IntegralU64Validator(quint64 bottom, quint64 top, int base = 10, QObject* parent = nullptr);
    ~IntegralU64Validator() override;

    quint64 bottom() const { return m_bottom; }
    void setBottom(quint64 bottom);
    quint64 top() const { return m_top; }
    void setTop(quint64 top);
    void setRange(quint64 bottom, quint64 top);
    /** Back to the full range 0..2^64-1; signals only for the bound that changed. */
    void setRangeT();
    /** 10 or 16; other values are stored and validate nothing. */
    int base() const { return m_base; }
    void setBase(int base);

    /** The bounds written in the base (lower-case hexadecimal in base 16). */
    Q_INVOKABLE QString bottomStr() const;
    Q_INVOKABLE QString topStr() const;

    /* inherits documentation from base class */
    State validate(QString& input, int& pos) const override;

Q_SIGNALS:
    void bottomChanged(quint64 bottom);
    void topChanged(quint64 top);
    void baseChanged(int base);

private:
    quint64 m_bottom;
    quint64 m_top;
    int m_base = 10;
};

#endif // INTEGRALU64VALIDATOR_H
