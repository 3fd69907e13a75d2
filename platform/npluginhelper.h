#ifndef NPLUGINHELPER_H
#define NPLUGINHELPER_H

#include <QList>
#include <QString>
#include <QStringList>

class QObject;

/**
 * Finds and loads Qt plug-ins (shared libraries built with Q_PLUGIN_METADATA)
 * of one interface from one folder.
 *
 * A plug-in's interface id is read from its metadata before the library is
 * loaded, so libraries of other interfaces in the same folder are never
 * loaded. Loaded libraries stay loaded for the life of the process, and their
 * root instances belong to Qt's plug-in loader: callers must not delete them.
 */
class NPluginHelper {
public:
    struct LoadResult {
        /** Root instances of the plug-ins that loaded, in file-name order. */
        QList<QObject*> instances;
        /** The files of those plug-ins, parallel to instances. */
        QStringList files;
        /**
         * One line per failure, "<file>: <reason>": a library that is not a readable
         * plug-in, or a plug-in of \a iid that did not load.
         */
        QStringList errors;
    };

    /**
     * The shared libraries directly in \a folder (not in sub-folders), as
     * absolute paths sorted by file name. Empty when the folder does not exist.
     */
    static QStringList pluginFiles(const QString& folder);

    /** The interface id ("IID") in the metadata of \a file; empty when it has none or is not a plug-in. */
    static QString pluginIid(const QString& file);

    /** Loads every plug-in in \a folder whose interface id is \a iid. */
    static LoadResult loadPlugins(const QString& folder, const QString& iid);
};

#endif // NPLUGINHELPER_H
