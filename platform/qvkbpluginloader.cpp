#include "qvkbpluginloader.h"

#include "platform/nlogger.h"
#include "platform/npluginhelper.h"
#include "platform/xdefaultvkb.h"

QVkbPluginLoader::QVkbPluginLoader() = default;
QVkbPluginLoader::~QVkbPluginLoader() = default;

QVkbPluginLoader* QVkbPluginLoader::instance()
{
    // Never destroyed: the keyboard's item lives in a scene that Qt tears down
    // before static destructors run.
    static QVkbPluginLoader* loader = new QVkbPluginLoader;
    return loader;
}

XVkbInterface* QVkbPluginLoader::vkb()
{
    if (!m_vkb)
        load();
    return m_vkb;
}

void QVkbPluginLoader::load()
{
    auto* log = NLog::NLogger::instance()->logger();
    const QString folder = qEnvironmentVariable(pathVariable);
    if (!folder.isEmpty()) {
        const NPluginHelper::LoadResult found
            = NPluginHelper::loadPlugins(folder, QStringLiteral(XVkbInterface_iid));
        m_errors = found.errors;
        for (const QString& error : found.errors)
            log->warn("keyboard plug-in skipped: {}", error.toStdString());
        for (int i = 0; i < found.instances.size() && !m_vkb; ++i) {
            m_vkb = qobject_cast<XVkbInterface*>(found.instances.at(i));
            if (m_vkb) {
                m_file = found.files.at(i);
            } else {
                m_errors << QStringLiteral("%1: root object does not implement the keyboard interface")
                                .arg(found.files.at(i));
                log->warn("keyboard plug-in skipped: {}", m_errors.constLast().toStdString());
            }
        }
    }
    if (m_vkb) {
        log->info("on-screen keyboard: plug-in {}", m_file.toStdString());
        return;
    }
    m_builtIn = std::make_unique<XDefaultVkb>();
    m_vkb = m_builtIn.get();
    log->info("on-screen keyboard: built-in");
}
