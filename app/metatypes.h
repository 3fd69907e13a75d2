#ifndef QGUI_METATYPES_H
#define QGUI_METATYPES_H

#include <QList>
#include <QMetaType>
#include <QVector>

#include <string>
#include <vector>

#include <qgui/types.h>

// Types that travel through queued signals of the chart and list code.
Q_DECLARE_METATYPE(std::vector<std::string>)
Q_DECLARE_METATYPE(std::vector<U32>)
Q_DECLARE_METATYPE(std::vector<std::vector<double>>)

namespace QGuiMetaTypes {
/** Registers the queued-signal types under their C++ spellings. Safe to call more than once. */
void registerAll();
} // namespace QGuiMetaTypes

#endif // QGUI_METATYPES_H
