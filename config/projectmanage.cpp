#include "config/projectmanage.h"

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
