#ifndef FONTMANGE_H
#define FONTMANGE_H

#include <QList>
#include <QString>
#include <QStringList>

/**
 * Loads fonts into the application's font database: the fonts shipped beside
 * the application (at start), the project's fonts (at device initialisation),
 * and any folder on request. Project fonts can be unloaded again when another
 * project is taken into use.
 */
class FontMange {
public:
    static FontMange* getInstance();

    /** Loads "<application dir>/DefaultFont" and picks a default family that covers CJK text. */
    void loadDefaultFont();
    /** Loads the project's fonts (ProjectManage::getFontPath()). Returns the number of files loaded. */
    int loadFontFile();
    /** Loads every .ttf/.otf/.ttc file of \a folder (with sub-folders when \a recursive). */
    int loadFontFilesFrom(const QString& folder, bool recursive);
    /** Removes the project fonts loaded by loadFontFile / loadFontFilesFrom. */
    void unloadFontFile();

    QStringList loadedFamilies() const { return m_families; }

private:
    FontMange() = default;

    QList<int> m_fontIds;
    QStringList m_families;
};

#endif // FONTMANGE_H
