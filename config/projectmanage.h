#ifndef PROJECTMANAGE_H
#define PROJECTMANAGE_H

#include <QString>

/**
 * Paths of the running project. The project path is set once the command line
 * is read (it ends with "/", or is empty when no project was given); every other
 * path derives from it.
 */
class ProjectManage {
public:
    static ProjectManage* getInstance();

    void setPrjPath(const QString& path);
    QString getPrjPath() const { return m_prjPath; }
    QString getFontPath() const { return m_prjPath + QStringLiteral("fontstring/"); }
    QString getImagePath() const { return m_prjPath + QStringLiteral("tar/image/"); }
    QString getSysImagePath() const { return m_prjPath + QStringLiteral("tar/image/sysimage/"); }
    QString getMediaPath() const { return m_prjPath + QStringLiteral("sound/"); }
    /** The fonts shipped beside the application: "<application dir>/DefaultFont". */
    QString getDefaultFontPath() const;

private:
    ProjectManage() = default;

    QString m_prjPath;
};

#endif // PROJECTMANAGE_H
