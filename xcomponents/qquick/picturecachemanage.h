#ifndef PICTURECACHEMANAGE_H
#define PICTURECACHEMANAGE_H

#include <QCache>
#include <QHash>
#include <QImage>
#include <QMutex>
#include <QSize>
#include <QString>
#include <QUrl>

class QQmlEngine;

/**
 * The project's pictures: maps an image path of the project to a URL that the
 * image items load, and keeps decoded pictures so that many widgets showing the
 * same picture decode it once.
 *
 * URLs are "image://xpicture/<n>", one number per picture file, served by an
 * image provider that attach() adds to an engine. Raster pictures (PNG, JPEG,
 * BMP, ...) are decoded once at their own size and scaled for each requested
 * size; SVG documents are parsed once and rendered at the requested size.
 * The decoded pictures are kept up to a budget of 64 MB, least used first out.
 */
class PictureCacheManage {
public:
    static PictureCacheManage* getInstance();

    /**
     * The URL of the project picture \a path: a path relative to the project's image
     * folder, an absolute path, or a resource path (":/..." or "qrc:/..."). An invalid URL
     * when \a path is empty or names no file.
     */
    QUrl getUrl(const QString& path);
    /** The file \a path names (not checked). */
    static QString resolvePath(const QString& path);
    /** Adds the "xpicture" provider to \a engine unless it has one. */
    static void attach(QQmlEngine* engine);

    /** The picture of URL number \a key at \a requested (its own size when invalid); a null image
     *  when the file cannot be decoded. */
    QImage image(const QString& key, QSize* size, const QSize& requested);
    /** How many files have been decoded (or parsed) since start or clear(). */
    int decodeCount() const;
    void clear();

private:
    PictureCacheManage();

    mutable QMutex m_mutex;
    QHash<QString, int> m_numbers; // file -> URL number
    QHash<int, QString> m_files; // URL number -> file
    QCache<QString, QImage> m_decoded; // raster pictures at their own size, cost in KB
    QCache<QString, QByteArray> m_vectors; // SVG documents
    int m_decodeCount = 0;
};

#endif // PICTURECACHEMANAGE_H
