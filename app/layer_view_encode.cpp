// Exports: encoding conversion, unique numbers, files and the device name.
#include "app/layerlog.h"
#include "app/textcodecs.h"

#include <QByteArray>
#include <QFile>
#include <QHash>
#include <QSysInfo>
#include <QTextCodec>
#include <QUuid>

#include <climits>
#include <cstring>

#include <qgui/ids.h>
#include <qgui/view.h>

namespace {
/** Copies \a n bytes and a terminator when there is room for it. */
int writeOut(const QByteArray& bytes, int n, char* dst, unsigned dstSize)
{
    if (n > 0)
        std::memcpy(dst, bytes.constData(), size_t(n));
    if (unsigned(n) < dstSize)
        dst[n] = '\0';
    return n;
}
} // namespace

int View_CvtEncode(int from, int to, const void* src, unsigned srcLen, char* dst, unsigned dstSize)
{
    QGUI_LAYER_TRACE("from {} to {} len {}", from, to, srcLen);
    // lenient on purpose: one known code is enough to attempt the conversion
    if (!IsValidStrEncode(from) && !IsValidStrEncode(to))
        return -1;
    if ((!src && srcLen > 0) || (!dst && dstSize > 0))
        return -1;
    if (dstSize == 0)
        return 0;
    const int len = int(qMin<unsigned>(srcLen, unsigned(INT_MAX)));
    if (from == to) {
        const int n = int(qMin<unsigned>(unsigned(len), dstSize));
        std::memcpy(dst, src, size_t(n));
        if (unsigned(n) < dstSize)
            dst[n] = '\0';
        return n;
    }
    QByteArray out;
    TextCodecs::convert(from, to, QByteArray::fromRawData(static_cast<const char*>(src), len), out);
    const int n = TextCodecs::boundedLength(
        to, out.constData(), out.size(), int(qMin<unsigned>(dstSize, unsigned(INT_MAX))));
    return writeOut(out, n, dst, dstSize);
}

std::string View_CvtEncode2(int from, int to, const std::string& src)
{
    QGUI_LAYER_TRACE("from {} to {} len {}", from, to, src.size());
    QByteArray out;
    if (!TextCodecs::convert(
            from, to, QByteArray::fromRawData(src.data(), int(qMin<size_t>(src.size(), INT_MAX))), out))
        return std::string();
    return std::string(out.constData(), size_t(out.size()));
}

int View_CvtUtf82Local(const char* utf8, char* dst)
{
    QGUI_LAYER_TRACE("");
    if (!utf8 || !*utf8 || !dst)
        return -1;
    const QByteArray local = QTextCodec::codecForLocale()->fromUnicode(QString::fromUtf8(utf8));
    std::memcpy(dst, local.constData(), size_t(local.size()) + 1);
    return local.size();
}

int View_CvtLocal2Utf8(const char* local, char* dst)
{
    QGUI_LAYER_TRACE("");
    if (!local || !dst)
        return -1;
    const QByteArray utf8 = QTextCodec::codecForLocale()->toUnicode(local).toUtf8();
    std::memcpy(dst, utf8.constData(), size_t(utf8.size()) + 1);
    return utf8.size();
}

unsigned View_MakeUUID(unsigned seed)
{
    QGUI_LAYER_TRACE("seed {}", seed);
    return qHash(QUuid::createUuid(), seed);
}

std::string View_FileReadBytes(const char* path)
{
    QGUI_LAYER_LOG("{}", path ? path : "(null)");
    if (!path || !*path)
        return std::string();
    QFile f(QString::fromUtf8(path));
    if (!f.open(QIODevice::ReadOnly))
        return std::string();
    const QByteArray data = f.readAll();
    return std::string(data.constData(), size_t(data.size()));
}

std::string View_GetLocalDevName()
{
    QGUI_LAYER_LOG("");
    return QSysInfo::machineHostName().toStdString();
}
