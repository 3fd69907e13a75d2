#ifndef TEXTCODECS_H
#define TEXTCODECS_H

#include <QByteArray>

class QTextCodec;

/**
 * The panel's four string encodings: 0 "GB2312", 1 "UTF-16LE", 2 "UTF-8",
 * 3 "ISO-8859-1".
 */
class TextCodecs {
public:
    /** The codec name of an encoding code, or null for an unknown code. */
    static const char* codecName(int code);
    /** The codec of an encoding code, or null for an unknown code. */
    static QTextCodec* codec(int code);
    /**
     * Converts \a src from encoding \a from to \a to. One unknown code is tolerated: the
     * unknown side is read or written as UTF-8. Returns false only when both are unknown.
     */
    static bool convert(int from, int to, const QByteArray& src, QByteArray& out);
    /** The longest prefix of \a bytes (in encoding \a code) of at most \a max bytes that does not
     *  end inside a character. */
    static int boundedLength(int code, const char* bytes, int length, int max);
};

#endif // TEXTCODECS_H
