#include "config/projectmanage.h"

#include <QDir>

#include <QCoreApplication>

ProjectManage* ProjectManage::getInstance()
{
    static ProjectManage instance;
    return &instance;
}

void ProjectManage::setPrjPath(const QString& path)
{
    m_prjPath = path;
}

QString ProjectManage::getDefaultFontPath() const
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/DefaultFont");
}

const char* ProjectManage::storeFolder(unsigned storeNo)
{
    static const char* const folders[kStoreCount] = { "disk/tmp/", "disk/hmi/", "disk/sd/", "disk/usb1/",
        "disk/usb2/" };
    return storeNo < kStoreCount ? folders[storeNo] : "";
}

QString ProjectManage::getStorePath(unsigned storeNo) const
{
    if (storeNo >= kStoreCount || m_prjPath.isEmpty())
        return QString();
    return QDir(m_prjPath).absoluteFilePath(QString::fromLatin1(storeFolder(storeNo)));
}
