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

    /** Number of storage folders (0 temporary, 1 panel, 2 SD card, 3 and 4 USB sticks). */
    static constexpr unsigned kStoreCount = 5;
    /** The folder of storage \a storeNo relative to the project, ending with '/' ("disk/usb1/");
     *  "" for a number that names none. */
    static const char* storeFolder(unsigned storeNo);
    /** The absolute folder of storage \a storeNo in the project; "" for none or without a project. */
    QString getStorePath(unsigned storeNo) const;

private:
    ProjectManage() = default;

    QString m_prjPath;
};

#endif // PROJECTMANAGE_H
