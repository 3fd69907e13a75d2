#ifndef QGUI_DZIP_H
#define QGUI_DZIP_H

#include <QString>
#include <QStringList>

/**
 * Archive packing through the system's 7-Zip program. The program is run with
 * QProcess, arguments handed over one by one (no shell, so blanks and quotes in
 * paths are safe), standard input closed, and waited for without a time limit:
 * packing a large folder takes as long as it takes.
 */
class DZip {
public:
    /** Name of the packer, looked up on the search path. */
    static QString program() { return QStringLiteral("7z"); }

    static int compress(
        const QString& source, const QString& archive, const QString& password, bool deleteSource);
    static int unCompress(const QString& archive, const QString& password, const QString& outFolder);
    static int checkResult(const QString& output);

    /** Arguments of the two commands (kept apart so that their form can be checked). */
    static QStringList compressArguments(
        const QString& source, const QString& archive, const QString& password, bool deleteSource);
    static QStringList unCompressArguments(
        const QString& archive, const QString& password, const QString& outFolder);

private:
    /** Runs the packer; its output (errors included) when \a output is given. false when it
     *  could not be started. */
    static bool run(const QStringList& arguments, QByteArray* output);
};

#endif // QGUI_DZIP_H
