#ifndef QGUI_UTILS_H
#define QGUI_UTILS_H

#include <QString>

namespace Utils {

/**
 * Reports a failed internal condition without aborting: writes
 * "\"<condition>\" in file <file>, line <line>" as an error to the process log
 * and keeps the last record for inspection (lastAssertLocation). The caller then
 * returns its failure result.
 */
void writeAssertLocation(const char* msg);

/** The last record written by writeAssertLocation (empty when none). */
QString lastAssertLocation();
/** How many records have been written since start (or since resetAssertCount). */
int assertCount();
void resetAssertCount();

} // namespace Utils

/** Reports \a cond when it is false; evaluates to the condition. \a file is the source path as
 *  logged, for instance "qgui/views/ViewManage". */
#define QGUI_CHECK_AT(cond, file)                                                                            \
    ((cond) ? true                                                                                           \
            : (::Utils::writeAssertLocation(                                                                 \
                   "\"" #cond "\" in file " file ", line " QGUI_STRINGIFY(__LINE__)),                        \
                false))
#define QGUI_STRINGIFY2(x) #x
#define QGUI_STRINGIFY(x) QGUI_STRINGIFY2(x)

#endif // QGUI_UTILS_H
