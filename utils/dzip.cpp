#include "utils/dzip.h"

#include "platform/nlogger.h"

#include <QFileInfo>
#include <QProcess>

QStringList DZip::compressArguments(
    const QString& source, const QString& archive, const QString& password, bool deleteSource)
{
    QStringList args { QStringLiteral("a") };
    if (!password.isEmpty())
        args << QStringLiteral("-p") + password;
    if (deleteSource)
        args << QStringLiteral("-sdel");
    args << archive << source;
    return args;
}

QStringList DZip::unCompressArguments(
    const QString& archive, const QString& password, const QString& outFolder)
{
    // -bse1: error messages ("Wrong password") go to the output that is read back.
    QStringList args { QStringLiteral("e"), QStringLiteral("-y"), QStringLiteral("-bse1") };
    if (!password.isEmpty())
        args << QStringLiteral("-p") + password;
    if (!outFolder.isEmpty())
        args << QStringLiteral("-o") + outFolder;
    args << archive;
    return args;
}

bool DZip::run(const QStringList& arguments, QByteArray* output)
{
    QProcess p;
    p.setProcessChannelMode(QProcess::MergedChannels);
    p.setStandardInputFile(QProcess::nullDevice()); // a password prompt gets end-of-file
    // File names are UTF-8 whatever the panel's locale; the messages stay in English.
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    p.setProcessEnvironment(env);
    if (!output)
        p.setStandardOutputFile(QProcess::nullDevice());
    p.start(program(), arguments, QIODevice::ReadOnly);
    if (!p.waitForStarted(-1)) {
        NLog::NLogger::instance()->logger()->error(
            "{} cannot be started: {}", program().toStdString(), p.errorString().toStdString());
        return false;
    }
    p.waitForFinished(-1);
    if (output)
        *output = p.readAll();
    return true;
}

int DZip::compress(const QString& source, const QString& archive, const QString& password, bool deleteSource)
{
    if (source.isEmpty() || archive.isEmpty())
        return 1;
    // The packer would write an empty archive for a missing source. Wildcards are its own.
    if (!source.contains(QLatin1Char('*')) && !source.contains(QLatin1Char('?'))
        && !QFileInfo::exists(source))
        return 1;
    run(compressArguments(source, archive, password, deleteSource), nullptr);
    return QFileInfo::exists(archive) ? 0 : 1;
}

int DZip::unCompress(const QString& archive, const QString& password, const QString& outFolder)
{
    if (!archive.contains(QLatin1String(".zip")))
        return 2;
    QByteArray output;
    if (!run(unCompressArguments(archive, password, outFolder), &output))
        return 2;
    const QString text = QString::fromUtf8(output);
    // An encrypted archive and no password: the packer asked for one and met end-of-file.
    if (password.isEmpty() && text.contains(QLatin1String("Enter password")))
        return 1;
    return checkResult(text);
}

int DZip::checkResult(const QString& output)
{
    if (output.contains(QLatin1String("Everything is Ok")))
        return 0;
    if (output.contains(QLatin1String("Wrong password")))
        return 1;
    return 2;
}
