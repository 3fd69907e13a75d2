#ifndef QVKBPLUGINLOADER_H
#define QVKBPLUGINLOADER_H

#include <memory>

#include <QString>
#include <QStringList>

class XDefaultVkb;
class XVkbInterface;

/**
 * Gives the process's on-screen keyboard: a keyboard plug-in when one is
 * installed, else the built-in keyboard (XDefaultVkb).
 *
 * Plug-ins are looked for once, on the first call of vkb(), in the folder named
 * by the environment variable QGUI_VKB_PLUGIN_PATH; the first library there
 * whose interface id is XVkbInterface_iid and whose root object implements
 * XVkbInterface is used. Libraries that fail to load are logged and skipped.
 */
class QVkbPluginLoader {
public:
    static QVkbPluginLoader* instance();

    /** The keyboard; never null. */
    XVkbInterface* vkb();

    /** The plug-in file in use; empty for the built-in keyboard (or before vkb()). */
    QString pluginFile() const { return m_file; }
    /** What went wrong while looking for plug-ins, one line per library. */
    QStringList errors() const { return m_errors; }

    static constexpr const char* pathVariable = "QGUI_VKB_PLUGIN_PATH";

private:
    QVkbPluginLoader();
    ~QVkbPluginLoader();
    void load();

    XVkbInterface* m_vkb = nullptr;
    std::unique_ptr<XDefaultVkb> m_builtIn;
    QString m_file;
    QStringList m_errors;
};

#endif // QVKBPLUGINLOADER_H
