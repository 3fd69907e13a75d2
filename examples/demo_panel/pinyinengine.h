#ifndef PINYINENGINE_H
#define PINYINENGINE_H

#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/**
 * The demo's Chinese input method: turns Pinyin letters into candidate words
 * with the system's Pinyin decoder and its dictionary. What the operator
 * chooses is not learnt across runs: the user dictionary lives in a temporary
 * folder that goes with the engine.
 *
 * The decoder keeps process-wide state: one engine is open at a time (a second
 * open() fails while the first is open).
 */
class PinyinEngine {
public:
    /** The system dictionary used by open(). */
    static QString systemDictionary();
    /** Longest run of letters decoded; longer input is cut (the decoder aborts the process on
     *  some spellings of 27 letters and more, such as 27 times "a"). */
    static constexpr int kMaxLetters = 26;

    PinyinEngine();
    ~PinyinEngine();
    PinyinEngine(const PinyinEngine&) = delete;
    PinyinEngine& operator=(const PinyinEngine&) = delete;

    /** Opens the decoder on the system dictionary and a fresh user dictionary; false when the
     *  dictionary is missing, no temporary folder can be made, or another engine is open. */
    bool open();
    bool isOpen() const { return m_open; }

    /**
     * At most \a max candidates for \a letters, best first: the whole input as
     * one phrase, then words for its beginning. Characters other than a-z
     * (upper case is folded) and the apostrophe separating syllables are
     * ignored. Empty when the engine is not open or nothing matches.
     */
    QStringList candidates(const QString& letters, int max = 50);

private:
    QTemporaryDir m_userDir;
    bool m_open = false;
};

#endif // PINYINENGINE_H
