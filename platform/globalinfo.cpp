#include "platform/globalinfo.h"

GlobalInfo* GlobalInfo::instance()
{
    static GlobalInfo* info = new GlobalInfo; // lives as long as the process
    return info;
}

GlobalInfo::GlobalInfo(QObject* parent)
    : QObject(parent)
{
}

void GlobalInfo::setLocale(const QLocale& locale)
{
    if (locale == m_locale)
        return;
    m_locale = locale;
    Q_EMIT localeChanged();
}
