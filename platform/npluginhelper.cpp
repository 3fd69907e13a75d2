#include "npluginhelper.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonObject>
#include <QLibrary>
#include <QPluginLoader>

QStringList NPluginHelper::pluginFiles(const QString& folder)
{
    QStringList files;
    if (folder.isEmpty())
        return files;
    const QDir dir(folder);
    const QFileInfoList entries
        = dir.entryInfoList(QDir::Files | QDir::Readable | QDir::NoDotAndDotDot, QDir::Name);
    for (const QFileInfo& entry : entries) {
        const QString path = entry.absoluteFilePath();
        if (!QLibrary::isLibrary(path))
            continue;
        // "libx.so.1.0" is normally a link to the same library as "libx.so": list it
        // once, under the unversioned name, so that it is not loaded twice.
        const QString name = entry.fileName();
        const int versioned = name.lastIndexOf(QLatin1String(".so."));
        if (versioned > 0 && dir.exists(name.left(versioned + 3)))
            continue;
        files << path;
    }
    return files;
}

QString NPluginHelper::pluginIid(const QString& file)
{
    const QPluginLoader loader(file);
    return loader.metaData().value(QLatin1String("IID")).toString();
}

NPluginHelper::LoadResult NPluginHelper::loadPlugins(const QString& folder, const QString& iid)
{
    LoadResult result;
    const QStringList files = pluginFiles(folder);
    for (const QString& file : files) {
        QPluginLoader loader(file);
        const QJsonObject meta = loader.metaData();
        if (meta.isEmpty()) {
            // A library that is not a Qt plug-in, or one that cannot be read: no interface
            // to match, but worth reporting, since this folder is meant for plug-ins only.
            result.errors << QStringLiteral("%1: %2").arg(file, loader.errorString());
            continue;
        }
        if (meta.value(QLatin1String("IID")).toString() != iid)
            continue;
        QObject* root = loader.instance();
        if (!root) {
            result.errors << QStringLiteral("%1: %2").arg(file, loader.errorString());
            continue;
        }
        result.instances << root;
        result.files << file;
    }
    return result;
}
