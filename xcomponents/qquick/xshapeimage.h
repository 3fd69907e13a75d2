#ifndef XSHAPEIMAGE_H
#define XSHAPEIMAGE_H

#include "xcomponents/qquick/xbasecontrol.h"
#include "xcomponents/qquick/xquickimage.h"

#include <QPointer>
#include <QUrl>


/**
 * The image widget: a project picture (PNG, JPEG, BMP, SVG, through the
 * picture cache) shown in the widget's box, stretched, fitted or cropped with
 * its aspect ratio kept, tiled, or at its own size. As every control it
 * reports presses (events 2/3), shows the disabled and busy icons; greyed out
 * the picture is drawn faint, and "hide with slash" (setImageVisible(false))
 * hides the picture while the widget stays.
 */
class XShapeImage : public XBaseControl {
    Q_OBJECT
    Q_PROPERTY(QUrl source READ source WRITE setSource NOTIFY sourceChanged)
    Q_PROPERTY(int fillMode READ fillMode WRITE setFillMode NOTIFY fillModeChanged)

public:
    /** How the picture fills the box (the interface's image fill modes). */
    enum FillMode {
        Stretch = 0, /**< stretched to the box */
        Fit = 1, /**< inside the box, aspect ratio kept */
        Crop = 2, /**< covering the box, aspect ratio kept, the overflow cut */
        Tile = 3, /**< repeated at its own size */
        Original = 4 /**< at its own size, centred */
    };
    Q_ENUM(FillMode)

    explicit XShapeImage(QQuickItem* parent = nullptr);
    ~XShapeImage() override;

    QUrl source() const { return m_source; }
    /** Shows the picture of \a url; an empty URL shows nothing. */
    void setSource(const QUrl& url);
    int fillMode() const { return m_fillMode; }
    /** One of FillMode; other numbers stretch. */
    void setFillMode(int mode);
    /** The image item showing the picture; null before the first picture. */
    XQuickImage* imageItem() const { return m_image.data(); }

    Q_INVOKABLE void setImageVisible(bool visible) override;
    Q_INVOKABLE void setGrayFlag(bool on) override;

Q_SIGNALS:
    void sourceChanged();
    void fillModeChanged();

protected:
    /* inherits documentation from base class */
    void geometryChanged(const QRectF& newGeometry, const QRectF& oldGeometry) override;

private:
    void applyFillMode();

    QPointer<XQuickImage> m_image;
    QUrl m_source;
    int m_fillMode = Stretch;
    bool m_imageVisible = true;
};

#endif // XSHAPEIMAGE_H
