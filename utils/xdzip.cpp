#include <qgui/xdzip.h>

#include "platform/nlogger.h"
#include "utils/dzip.h"

namespace XDZip {

namespace {
QString text(const char* s)
{
    return s ? QString::fromUtf8(s) : QString();
}
} // namespace

int compress(const char* source, const char* archive, const char* password, bool deleteSource)
{
    const int r = DZip::compress(text(source), text(archive), text(password), deleteSource);
    NLog::NLogger::instance()->logger()->info(
        "XDZip::compress {} -> {}: {}", source ? source : "(null)", archive ? archive : "(null)", r);
    return r;
}

int unCompress(const char* archive, const char* password, const char* outFolder)
{
    const int r = DZip::unCompress(text(archive), text(password), text(outFolder));
    NLog::NLogger::instance()->logger()->info(
        "XDZip::unCompress {} -> {}: {}", archive ? archive : "(null)", outFolder ? outFolder : "(null)", r);
    return r;
}

int checkResult(const char* output)
{
    return output ? DZip::checkResult(QString::fromUtf8(output)) : 2;
}

} // namespace XDZip
