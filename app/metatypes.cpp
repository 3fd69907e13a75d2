#include "app/metatypes.h"

namespace QGuiMetaTypes {

void registerAll()
{
    qRegisterMetaType<std::vector<std::string>>("std::vector<std::string>");
    qRegisterMetaType<std::vector<U32>>("std::vector<U32>");
    qRegisterMetaType<std::vector<std::vector<double>>>("std::vector<std::vector<double>>");
    qRegisterMetaType<QList<QVector<double>>>("QList<QVector<double>>");
}

} // namespace QGuiMetaTypes
