// The 64-bit integer validators of the keyboard's entry line: every rule of validate() as rows,
// the ends of both ranges in both bases, the range texts and the change signals.
#include "xcomponents/qquick/integrali64validator.h"
#include "xcomponents/qquick/integralu64validator.h"

#include <QSignalSpy>
#include <QtTest>

#include <limits>

namespace {
constexpr qint64 kMin = std::numeric_limits<qint64>::min();
constexpr qint64 kMax = std::numeric_limits<qint64>::max();
constexpr quint64 kUMax = std::numeric_limits<quint64>::max();
} // namespace

class tst_Validators : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void signed_validation_data();
    void signed_validation();
    void unsigned_validation_data();
    void unsigned_validation();
    void range_texts_data();
    void range_texts();
    void change_signals_only_on_change();
};

void tst_Validators::signed_validation_data()
{
    QTest::addColumn<qint64>("bottom");
    QTest::addColumn<qint64>("top");
    QTest::addColumn<int>("base");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("state");
    const int I = QValidator::Invalid, M = QValidator::Intermediate, A = QValidator::Acceptable;
    // empty and lone signs
    QTest::newRow("empty") << kMin << kMax << 10 << "" << M;
    QTest::newRow("lone minus") << kMin << kMax << 10 << "-" << M;
    QTest::newRow("lone minus, no negative in range") << qint64(0) << qint64(10) << 10 << "-" << I;
    QTest::newRow("plus is never a digit") << kMin << kMax << 10 << "+5" << I;
    // patterns
    QTest::newRow("letters in base 10") << kMin << kMax << 10 << "12a" << I;
    QTest::newRow("hex letters in base 16") << kMin << kMax << 16 << "7fFf" << A;
    QTest::newRow("not hex") << kMin << kMax << 16 << "g1" << I;
    QTest::newRow("blank") << kMin << kMax << 10 << " 1" << I;
    QTest::newRow("minus inside") << kMin << kMax << 10 << "1-2" << I;
    // range: out of range is Invalid, never Intermediate
    QTest::newRow("below bottom") << qint64(-50) << qint64(50) << 10 << "-51" << I;
    QTest::newRow("above top") << qint64(-50) << qint64(50) << 10 << "51" << I;
    QTest::newRow("prefix below a positive bottom") << qint64(100) << qint64(200) << 10 << "1" << I;
    QTest::newRow("inside") << qint64(-50) << qint64(50) << 10 << "-50" << A;
    // the ends of the full range
    QTest::newRow("max, base 10") << kMin << kMax << 10 << "9223372036854775807" << A;
    QTest::newRow("max + 1, base 10") << kMin << kMax << 10 << "9223372036854775808" << I;
    QTest::newRow("min, base 10") << kMin << kMax << 10 << "-9223372036854775808" << A;
    QTest::newRow("min - 1, base 10") << kMin << kMax << 10 << "-9223372036854775809" << I;
    QTest::newRow("max, base 16") << kMin << kMax << 16 << "7fffffffffffffff" << A;
    QTest::newRow("max + 1, base 16") << kMin << kMax << 16 << "8000000000000000" << I;
    QTest::newRow("min, base 16") << kMin << kMax << 16 << "-8000000000000000" << A;
    QTest::newRow("min - 1, base 16") << kMin << kMax << 16 << "-8000000000000001" << I;
    QTest::newRow("beyond 64 bits") << kMin << kMax << 10 << "123456789012345678901234" << I;
    QTest::newRow("unknown base") << kMin << kMax << 8 << "7" << I;
}

void tst_Validators::signed_validation()
{
    QFETCH(qint64, bottom);
    QFETCH(qint64, top);
    QFETCH(int, base);
    QFETCH(QString, text);
    QFETCH(int, state);
    IntegralI64Validator v(bottom, top, base);
    int pos = 0;
    QCOMPARE(int(v.validate(text, pos)), state);
}

void tst_Validators::unsigned_validation_data()
{
    QTest::addColumn<quint64>("bottom");
    QTest::addColumn<quint64>("top");
    QTest::addColumn<int>("base");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("state");
    const int I = QValidator::Invalid, A = QValidator::Acceptable;
    QTest::newRow("empty is Invalid, unlike the signed one") << quint64(0) << kUMax << 10 << "" << I;
    QTest::newRow("minus") << quint64(0) << kUMax << 10 << "-1" << I;
    QTest::newRow("plus") << quint64(0) << kUMax << 10 << "+1" << I;
    QTest::newRow("zero") << quint64(0) << kUMax << 10 << "0" << A;
    QTest::newRow("max, base 10") << quint64(0) << kUMax << 10 << "18446744073709551615" << A;
    QTest::newRow("max + 1, base 10") << quint64(0) << kUMax << 10 << "18446744073709551616" << I;
    QTest::newRow("max, base 16") << quint64(0) << kUMax << 16 << "FFFFFFFFFFFFFFFF" << A;
    QTest::newRow("max + 1, base 16") << quint64(0) << kUMax << 16 << "10000000000000000" << I;
    QTest::newRow("hex letters in base 10") << quint64(0) << kUMax << 10 << "ff" << I;
    QTest::newRow("below bottom") << quint64(10) << quint64(20) << 10 << "9" << I;
    QTest::newRow("above top") << quint64(10) << quint64(20) << 16 << "15" << I;
    QTest::newRow("inside, base 16") << quint64(10) << quint64(20) << 16 << "14" << A;
    QTest::newRow("above 2^63 in range") << quint64(1) << kUMax << 10 << "9223372036854775808" << A;
}

void tst_Validators::unsigned_validation()
{
    QFETCH(quint64, bottom);
    QFETCH(quint64, top);
    QFETCH(int, base);
    QFETCH(QString, text);
    QFETCH(int, state);
    IntegralU64Validator v(bottom, top, base);
    int pos = 0;
    QCOMPARE(int(v.validate(text, pos)), state);
}

void tst_Validators::range_texts_data()
{
    QTest::addColumn<qint64>("bottom");
    QTest::addColumn<qint64>("top");
    QTest::addColumn<int>("base");
    QTest::addColumn<QString>("bottomStr");
    QTest::addColumn<QString>("topStr");
    QTest::newRow("decimal") << qint64(-12) << qint64(300) << 10 << "-12"
                             << "300";
    QTest::newRow("hex, negative bottom as - and magnitude") << qint64(-255) << qint64(4095) << 16 << "-ff"
                                                             << "fff";
    QTest::newRow("hex, full range") << kMin << kMax << 16 << "-8000000000000000"
                                     << "7fffffffffffffff";
    QTest::newRow("decimal, full range") << kMin << kMax << 10 << "-9223372036854775808"
                                         << "9223372036854775807";
    QTest::newRow("other base is empty") << qint64(1) << qint64(2) << 8 << ""
                                         << "";
}

void tst_Validators::range_texts()
{
    QFETCH(qint64, bottom);
    QFETCH(qint64, top);
    QFETCH(int, base);
    QFETCH(QString, bottomStr);
    QFETCH(QString, topStr);
    IntegralI64Validator v(bottom, top, base);
    QCOMPARE(v.bottomStr(), bottomStr);
    QCOMPARE(v.topStr(), topStr);
}

void tst_Validators::change_signals_only_on_change()
{
    IntegralI64Validator s;
    QCOMPARE(s.bottom(), kMin);
    QCOMPARE(s.top(), kMax);
    QCOMPARE(s.base(), 10);
    QSignalSpy bottom(&s, &IntegralI64Validator::bottomChanged);
    QSignalSpy top(&s, &IntegralI64Validator::topChanged);
    QSignalSpy base(&s, &IntegralI64Validator::baseChanged);
    QSignalSpy changed(&s, &QValidator::changed);
    s.setRange(kMin, 5);
    QCOMPARE(bottom.count(), 0);
    QCOMPARE(top.count(), 1);
    QCOMPARE(changed.count(), 1);
    s.setRange(kMin, 5);
    s.setBase(10);
    QCOMPARE(changed.count(), 1);
    s.setBase(16);
    QCOMPARE(base.count(), 1);
    QCOMPARE(changed.count(), 2);

    IntegralU64Validator u(3, 9, 16);
    QCOMPARE(u.bottomStr(), QStringLiteral("3"));
    QSignalSpy ub(&u, &IntegralU64Validator::bottomChanged);
    QSignalSpy ut(&u, &IntegralU64Validator::topChanged);
    QSignalSpy uc(&u, &QValidator::changed);
    u.setRangeT();
    QCOMPARE(ub.count(), 1);
    QCOMPARE(ut.count(), 1);
    QCOMPARE(uc.count(), 1);
    QCOMPARE(u.topStr(), QStringLiteral("ffffffffffffffff"));
    u.setRangeT(); // nothing changed: nothing emitted
    QCOMPARE(uc.count(), 1);
    u.setBottom(7);
    u.setRangeT(); // only the bottom changes back
    QCOMPARE(ub.count(), 3);
    QCOMPARE(ut.count(), 1);
    QCOMPARE(uc.count(), 3);
}

QTEST_GUILESS_MAIN(tst_Validators)
#include "tst_validators.moc"
