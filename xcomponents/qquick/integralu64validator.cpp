#include "xcomponents/qquick/integralu64validator.h"

#include <QRegularExpression>

#include <limits>

IntegralU64Validator::IntegralU64Validator(QObject* parent)
    : IntegralU64Validator(0, std::numeric_limits<quint64>::max(), 10, parent)
{
}

IntegralU64Validator::IntegralU64Validator(quint64 bottom, quint64 top, int base, QObject* parent)
    : QValidator(parent)
    , m_bottom(bottom)
    , m_top(top)
    , m_base(base)
{
}

IntegralU64Validator::~IntegralU64Validator() = default;

void IntegralU64Validator::setBottom(quint64 bottom)
{
    if (m_bottom == bottom)
        return;
    m_bottom = bottom;
    Q_EMIT bottomChanged(bottom);
    Q_EMIT changed();
}

void IntegralU64Validator::setTop(quint64 top)
{
    if (m_top == top)
        return;
    m_top = top;
    Q_EMIT topChanged(top);
    Q_EMIT changed();
}

void IntegralU64Validator::setRange(quint64 bottom, quint64 top)
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

void IntegralU64Validator::setRangeT()
{
    setRange(0, std::numeric_limits<quint64>::max());
}

void IntegralU64Validator::setBase(int base)
{
    if (m_base == base)
        return;
    m_base = base;
    Q_EMIT baseChanged(base);
    Q_EMIT changed();
}

QString IntegralU64Validator::bottomStr() const
{
    return QString::number(m_bottom, m_base == 16 ? 16 : 10);
}

QString IntegralU64Validator::topStr() const
{
    return QString::number(m_top, m_base == 16 ? 16 : 10);
}

QValidator::State IntegralU64Validator::validate(QString& input, int&) const
{
    static const QRegularExpression hex(QStringLiteral("^([0-9a-fA-F]+)$"));
    static const QRegularExpression dec(QStringLiteral("^([0-9]+)$"));
    if (m_base != 10 && m_base != 16)
        return Invalid;
    if (!(m_base == 16 ? hex : dec).match(input).hasMatch())
        return Invalid;
    bool ok = false;
    const quint64 value = input.toULongLong(&ok, m_base);
    if (!ok || value < m_bottom || value > m_top)
        return Invalid;
    return Acceptable;
}
