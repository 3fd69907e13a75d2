#ifndef XQUICKIMAGE_H
#define XQUICKIMAGE_H

#include <QtQuick/private/qquickimage_p.h>

class QQuickControl;

/**
 * The image item of the library's widgets (the Qt Quick image item with its
 * source and sourceSize). It stretches its picture to its box by default.
 *
 * An item made from C++ has no QML context; ensureContext() gives it the root context
 * of \a from's engine (or the library's) so that it can load "image://" URLs.
 */
class XQuickImage : public QQuickImage {
    Q_OBJECT

public:
    explicit XQuickImage(QQuickItem* parent = nullptr);
    ~XQuickImage() override;

    /** Gives the item a QML context when it has none: the root context of \a from's engine, else the
     *  library engine's. False when no engine is known. */
    bool ensureContext(const QObject* from);
    /** Decodes the picture at \a size, but never larger than what can be seen (the window, see
     *  XBasePaintedItem::cappedTextureSize): a huge item is stretched from a bounded picture. */
    void setVisibleSourceSize(const QSizeF& size);

    /** The picture behind \a control: \a image, or when null a new one filling the control and set
     *  as its background; then loads \a url (through the picture cache). Returns the image. */
    static XQuickImage* showBackground(QQuickControl* control, XQuickImage* image, const QUrl& url);
    /** Sizes \a image (null: nothing) and its decoded picture to \a size. */
    static void fit(XQuickImage* image, const QSizeF& size);
};

#endif // XQUICKIMAGE_H
