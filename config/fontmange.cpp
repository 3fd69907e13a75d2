#include "config/fontmange.h"

#include "config/globalconfig.h"
#include "config/projectmanage.h"
#include "platform/nlogger.h"

#include <QDirIterator>
#include <QFontDatabase>
#include <QGuiApplication>

FontMange* FontMange::getInstance()
{
    static FontMange instance;
    return &instance;
}

void FontMange::loadDefaultFont()
{
    const QString folder = ProjectManage::getInstance()->getDefaultFontPath();
    QList<int> ids;
    QDirIterator it(folder, { "*.ttf", "*.otf", "*.ttc", "*.TTF", "*.OTF" }, QDir::Files);
    while (it.hasNext()) {
        int id = QFontDatabase::addApplicationFont(it.next());
        if (id >= 0)
            ids.append(id);
    }
    // the default family must show Chinese as well as Latin text
    QFontDatabase db;
    const QStringList preferred = { QStringLiteral("Noto Sans CJK SC"), QStringLiteral("WenQuanYi Micro Hei"),
        QStringLiteral("Noto Sans"), QStringLiteral("DejaVu Sans") };
    const QStringList families = db.families();
    for (const QString& f : preferred) {
        if (families.contains(f)) {
            QFont font = QGuiApplication::font();
            font.setFamily(f);
            QGuiApplication::setFont(font);
            QFont def = GlobalConfig::getInstance()->defaultFont();
            def.setFamily(f);
            GlobalConfig::getInstance()->setDefaultFont(def);
            break;
        }
    }
    NLog::NLogger::instance()->logger()->info("default fonts: {} file(s) from {}, family {}", ids.size(),
        folder.toStdString(), QGuiApplication::font().family().toStdString());
}

int FontMange::loadFontFile()
{
    return loadFontFilesFrom(ProjectManage::getInstance()->getFontPath(), true);
}

int FontMange::loadFontFilesFrom(const QString& folder, bool recursive)
{
    if (folder.isEmpty())
        return 0;
    int loaded = 0;
    QDirIterator it(folder, { "*.ttf", "*.otf", "*.ttc", "*.TTF", "*.OTF", "*.TTC" }, QDir::Files,
        recursive ? QDirIterator::Subdirectories : QDirIterator::NoIteratorFlags);
    while (it.hasNext()) {
        const QString file = it.next();
        int id = QFontDatabase::addApplicationFont(file);
        if (id < 0) {
            NLog::NLogger::instance()->logger()->warn("font file not loaded: {}", file.toStdString());
            continue;
        }
        m_fontIds.append(id);
        m_families.append(QFontDatabase::applicationFontFamilies(id));
        ++loaded;
    }
    return loaded;
}

void FontMange::unloadFontFile()
{
    for (int id : qAsConst(m_fontIds))
        QFontDatabase::removeApplicationFont(id);
    m_fontIds.clear();
    m_families.clear();
}
