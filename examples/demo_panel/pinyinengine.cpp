#include "pinyinengine.h"

#include <QFileInfo>

// the decoder's functions are declared inside a namespace with C linkage
#include <googlepinyin/pinyinime.h>

namespace {
bool g_decoderOpen = false; // the decoder is one per process
constexpr size_t kMaxCandidateChars = 64; // longest candidate read back, UTF-16 units
} // namespace

QString PinyinEngine::systemDictionary()
{
    return QStringLiteral(QGUI_PINYIN_DICT);
}

PinyinEngine::PinyinEngine() = default;

PinyinEngine::~PinyinEngine()
{
    if (m_open) {
        ime_pinyin::im_close_decoder();
        g_decoderOpen = false;
    }
}

bool PinyinEngine::open()
{
    if (m_open)
        return true;
    if (g_decoderOpen || !m_userDir.isValid() || !QFileInfo::exists(systemDictionary()))
        return false;
    const QByteArray sys = QFile::encodeName(systemDictionary());
    const QByteArray user = QFile::encodeName(m_userDir.filePath(QStringLiteral("user_dict.dat")));
    if (!ime_pinyin::im_open_decoder(sys.constData(), user.constData()))
        return false;
    m_open = g_decoderOpen = true;
    return true;
}

QStringList PinyinEngine::candidates(const QString& letters, int max)
{
    QStringList out;
    if (!m_open || max <= 0)
        return out;
    QByteArray spelling;
    for (const QChar c : letters) {
        const char l = c.toLower().toLatin1();
        if ((l >= 'a' && l <= 'z') || l == '\'')
            spelling.append(l);
        if (spelling.size() == kMaxLetters)
            break;
    }
    ime_pinyin::im_reset_search();
    if (spelling.isEmpty())
        return out;
    const size_t found = ime_pinyin::im_search(spelling.constData(), size_t(spelling.size()));
    ime_pinyin::char16 buf[kMaxCandidateChars + 1];
    for (size_t i = 0; i < found && out.size() < max; ++i) {
        if (!ime_pinyin::im_get_candidate(i, buf, kMaxCandidateChars))
            continue;
        buf[kMaxCandidateChars] = 0;
        out << QString::fromUtf16(buf);
    }
    return out;
}
