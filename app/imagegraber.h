#ifndef IMAGEGRABER_H
#define IMAGEGRABER_H

#include <QObject>
#include <QRect>
#include <QString>

#include <functional>

class QQuickItem;

/**
 * Screenshots of the panel or of a window. A grab is asynchronous: the item is
 * rendered by the scene graph, cropped, written to the file, and the result
 * goes to the logic layer as event 2051 with the requesting id. Reading an
 * image back (loadImage) answers with the pixels in the same event.
 */
class ImageGraber : public QObject {
    Q_OBJECT

public:
    static ImageGraber* getInstance();

    /** The panel (windowId 0) or the window object with that id; null when unknown. */
    QQuickItem* itemFor(unsigned windowId) const;

    /** Starts grabbing \a item (its part \a rect in item pixels; an empty rect is all of it) into
     *  \a path. The whole panel is taken from the window, with what lies over it (the on-screen
     *  keyboard). Returns false when nothing can be started (null item, empty path, item not in a
     *  shown window); then no event follows. */
    bool grabImageOf(unsigned id, QQuickItem* item, const QRect& rect, int quality, const QString& path);
    /** Reads \a path, converts it to 32-bit ARGB and sends event 2051 with its pixels. Returns
     *  false (and sends the event with result -1) when the file is no image. */
    bool loadImage(unsigned id, const QString& path);

    int pendingGrabs() const { return m_pending; }

private:
    explicit ImageGraber(QObject* parent = nullptr);
    void report(unsigned id, int result, const QString& path);
    /** Writes \a img to \a path and reports the result. */
    void save(unsigned id, const QImage& img, int quality, const QString& path);

    int m_pending = 0;
};

#endif // IMAGEGRABER_H
