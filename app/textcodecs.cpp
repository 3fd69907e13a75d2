#include "app/textcodecs.h"

#include <QTextCodec>

#include <qgui/ids.h>

const char* TextCodecs::codecName(int code)
{
    switch (code) {
    case 0:
        return "GB2312";
    case 1:
        return "UTF-16LE";
    case 2:
        return "UTF-8";
    case 3:
        return "ISO-8859-1";
    default:
        return nullptr;
    }
}

QTextCodec* TextCodecs::codec(int code)
{
    const char* name = codecName(code);
    return name ? QTextCodec::codecForName(name) : nullptr;
}

bool TextCodecs::convert(int from, int to, const QByteArray& src, QByteArray& out)
{
    if (!IsValidStrEncode(from) && !IsValidStrEncode(to))
        return false;
    if (from == to) {
        out = src;
        return true;
    }
    QTextCodec* in = codec(from);
    QTextCodec* utf8 = QTextCodec::codecForName("UTF-8");
    const QString text = (in ? in : utf8)->toUnicode(src);
    if (to == 1) {
        // UTF-16LE: the code units as they are, little-endian, without a byte-order mark
        out.resize(text.size() * 2);
        for (int i = 0; i < text.size(); ++i) {
            const ushort u = text.at(i).unicode();
            out[2 * i] = char(u & 0xFF);
            out[2 * i + 1] = char(u >> 8);
        }
        return true;
    }
    QTextCodec* target = codec(to);
    out = (target ? target : utf8)->fromUnicode(text);
    return true;
}

int TextCodecs::boundedLength(int code, const char* bytes, int length, int max)
{
    if (length <= max)
        return length;
    if (max <= 0)
        return 0;
    const auto* b = reinterpret_cast<const unsigned char*>(bytes);
    switch (code) {
    case 1: { // UTF-16LE: whole code units, and never half of a surrogate pair
        int n = max & ~1;
        if (n >= 2) {
            const ushort last = ushort(b[n - 2] | (b[n - 1] << 8));
            if (last >= 0xD800 && last <= 0xDBFF)
                n -= 2;
        }
        return n;
    }
    case 0: { // GB2312: a byte >= 0x80 starts a two-byte character
        int i = 0;
        while (i < max) {
            int step = b[i] >= 0x80 ? 2 : 1;
            if (i + step > max)
                break;
            i += step;
        }
        return i;
    }
    case 3:
        return max;
    default: { // UTF-8 (and unknown codes, written as UTF-8): back up to a character start
        int n = max;
        while (n > 0 && (b[n] & 0xC0) == 0x80)
            --n;
        return n;
    }
    }
}
