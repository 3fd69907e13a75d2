#include "xcomponents/qquick/integrali64validator.h"

#include <QRegularExpression>

#include <limits>

IntegralI64Validator::IntegralI64Validator(QObject* parent)
    : IntegralI64Validator(std::numeric_limits<qint64>::min(), std::numeric_limits<qint64>::max(), 10, parent)
{
}

IntegralI64Validator::IntegralI64Validator(qint64 bottom, qint64 top, int base, QObject* parent)
    : QValidator(parent)
    , m_bottom(bottom)
    , m_top(top)
    , m_base(base)
{
}

IntegralI64Validator::~IntegralI64Validator() = default;

void IntegralI64Validator::setBottom(qint64 bottom)
{
    if (m_bottom == bottom)
        return;
    m_bottom = bottom;
    Q_EMIT bottomChanged(bottom);
    Q_EMIT changed();
}

void IntegralI64Validator::setTop(qint64 top)
{
    if (m_top == top)
        return;
    m_top = top;
    Q_EMIT topChanged(top);
    Q_EMIT changed();
}

void IntegralI64Validator::setRange(qint64 bottom, qint64 top)
{
    // one changed() for the pair
    const bool b = m_bottom != bottom;
    const bool t = m_top != top;
    m_bottom = bottom;
    m_top = top;
    if (b)
        Q_EMIT bottomChanged(bottom);
    if (t)
        Q_EMIT topChanged(top);
    if (b || t)
        Q_EMIT changed();
}

void IntegralI64Validator::setBase(int base)
{
    if (m_base == base)
        return;
    m_base = base;
    Q_EMIT baseChanged(base);
    Q_EMIT changed();
}

QString IntegralI64Validator::toText(qint64 value) const
{
    if (m_base == 10)
        return QString::number(value);
    if (m_base != 16)
        return QString();
    if (value >= 0)
        return QString::number(value, 16);
    // the magnitude of the smallest value does not fit a qint64: take it unsigned
    const quint64 magnitude = quint64(0) - quint64(value);
    return QLatin1Char('-') + QString::number(magnitude, 16);
}

QString IntegralI64Validator::bottomStr() const
{
    return toText(m_bottom);
}

QString IntegralI64Validator::topStr() const
{
    return toText(m_top);
}

QValidator::State IntegralI64Validator::validate(QString& input, int&) const
{
    if (input.isEmpty())
        return Intermediate;
    if (m_base != 10 && m_base != 16)
        return Invalid;
    static const QRegularExpression hex(QStringLiteral("^(-?[0-9a-fA-F]*)$"));
    static const QRegularExpression dec(QStringLiteral("^(-?[0-9]*)$"));
    if (!(m_base == 16 ? hex : dec).match(input).hasMatch())
        return Invalid;
    const QChar first = input.at(0);
    if (first == QLatin1Char('-') && m_bottom >= 0)
        return Invalid;
    if (first == QLatin1Char('+') && m_top < 0)
        return Invalid;
    if (input.size() == 1 && (first == QLatin1Char('-') || first == QLatin1Char('+')))
        return Intermediate;
    bool ok = false;
    const qint64 value = input.toLongLong(&ok, m_base);
    if (!ok)
        return Invalid;
    if (value < m_bottom || value > m_top)
        return Invalid;
    return Acceptable;
}
