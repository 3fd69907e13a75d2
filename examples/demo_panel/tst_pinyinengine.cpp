// The demo's Pinyin engine on the system dictionary: common spellings give the
// expected words among the first candidates, and bad input gives none.
#include "pinyinengine.h"

#include <QtTest>

class tst_PinyinEngine : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void spelling_gives_the_word_among_the_first_candidates_data();
    void spelling_gives_the_word_among_the_first_candidates();
    void input_without_letters_gives_nothing();
    void one_engine_is_open_at_a_time();

private:
    PinyinEngine m_engine;
};

void tst_PinyinEngine::initTestCase()
{
    QVERIFY2(m_engine.open(), qPrintable(PinyinEngine::systemDictionary()));
}

void tst_PinyinEngine::spelling_gives_the_word_among_the_first_candidates_data()
{
    QTest::addColumn<QString>("letters");
    QTest::addColumn<QString>("word");
    QTest::newRow("zhongguo") << "zhongguo" << QStringLiteral("中国");
    QTest::newRow("upper case and noise") << "Zhong-Guo" << QStringLiteral("中国");
    QTest::newRow("syllable separator") << "xi'an" << QStringLiteral("西安");
    QTest::newRow("one syllable") << "ren" << QStringLiteral("人");
}

void tst_PinyinEngine::spelling_gives_the_word_among_the_first_candidates()
{
    QFETCH(QString, letters);
    QFETCH(QString, word);
    const QStringList c = m_engine.candidates(letters, 5);
    QVERIFY(c.size() <= 5);
    QVERIFY2(c.contains(word), qPrintable(c.join(' ')));
}

void tst_PinyinEngine::input_without_letters_gives_nothing()
{
    QVERIFY(m_engine.candidates(QString()).isEmpty());
    QVERIFY(m_engine.candidates(QStringLiteral("123 !")).isEmpty());
    QVERIFY(m_engine.candidates(QStringLiteral("zhongguo"), 0).isEmpty());
    // a runaway input is cut to what the decoder takes
    QVERIFY(m_engine.candidates(QString(100000, QLatin1Char('a')), 3).size() <= 3);
    QVERIFY(m_engine.candidates(QString(27, QLatin1Char('a')), 3).size() <= 3);
    QVERIFY(m_engine.candidates(QStringLiteral("x'").repeated(20), 3).size() <= 3);
}

void tst_PinyinEngine::one_engine_is_open_at_a_time()
{
    PinyinEngine second;
    QVERIFY(!second.open());
    QVERIFY(!m_engine.candidates(QStringLiteral("zhongguo")).isEmpty());
}

QTEST_GUILESS_MAIN(tst_PinyinEngine)
#include "tst_pinyinengine.moc"
