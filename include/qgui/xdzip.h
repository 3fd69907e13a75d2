/*
 * qgui services: archives, packed and unpacked by the system's 7-Zip program ("7z",
 * found on the search path). Arguments are passed to the program directly, without
 * a shell, so paths and passwords may hold blanks and quotes. The program's input is
 * closed, so it never waits for an answer. All paths are UTF-8.
 */
#ifndef QGUI_XDZIP_H
#define QGUI_XDZIP_H

#include <qgui/types.h>

namespace XDZip {

/**
 * Packs \a source (a file or folder) into \a archive; the archive type follows the
 * archive's extension (".zip", ".7z", ...). \a password may be null or empty (none).
 * \a deleteSource removes the source files once they are packed. Waits until the packer
 * has finished. Returns 0 if the archive exists afterwards, else 1 (also for a null path,
 * a source that does not exist, or when the packer is not installed).
 */
QGUI_EXPORT int compress(const char* source, const char* archive, const char* password, bool deleteSource);

/**
 * Unpacks every file of \a archive, without its folders, into \a outFolder (null or empty:
 * the current folder), overwriting files of the same name. Returns 0 on success, 1 for a
 * wrong password (or none for an encrypted archive), 2 for anything else: a path without ".zip" (the packer
 * is not run), a null path, a missing archive, a packer that is not installed.
 */
QGUI_EXPORT int unCompress(const char* archive, const char* password, const char* outFolder);

/** The verdict on the packer's printed \a output: 0 if it holds "Everything is Ok",
 *  else 1 if it holds "Wrong password", else 2 (also for null). */
QGUI_EXPORT int checkResult(const char* output);

} // namespace XDZip

#endif /* QGUI_XDZIP_H */
