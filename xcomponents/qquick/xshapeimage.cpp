#include "xcomponents/qquick/xshapeimage.h"

#include "xcomponents/qquick/xquickimage.h"

XShapeImage::XShapeImage(QQuickItem* parent)
    : XBaseControl(parent)
{
}

XShapeImage::~XShapeImage() = default;

void XShapeImage::setSource(const QUrl& url)
{
    if (url == m_source && m_image)
        return;
    m_source = url;
    if (!m_image && url.isEmpty())
        return;
    m_image = XQuickImage::showBackground(this, m_image.data(), url);
    m_image->setVisible(m_imageVisible);
    applyFillMode();
    Q_EMIT sourceChanged();
}

void XShapeImage::setFillMode(int mode)
{
    mode = mode >= Stretch && mode <= Original ? mode : Stretch;
    if (mode == m_fillMode)
        return;
    m_fillMode = mode;
    applyFillMode();
    Q_EMIT fillModeChanged();
}

void XShapeImage::setImageVisible(bool visible)
{
    m_imageVisible = visible;
    if (m_image)
        m_image->setVisible(visible);
}

void XShapeImage::setGrayFlag(bool on)
{
    XBaseControl::setGrayFlag(on);
    if (m_image)
        m_image->setOpacity(on ? 0.4 : 1.0);
}

void XShapeImage::geometryChanged(const QRectF& newGeometry, const QRectF& oldGeometry)
{
    XBaseControl::geometryChanged(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        applyFillMode();
}

void XShapeImage::applyFillMode()
{
    if (!m_image)
        return;
    static const QQuickImage::FillMode modes[] = { QQuickImage::Stretch, QQuickImage::PreserveAspectFit,
        QQuickImage::PreserveAspectCrop, QQuickImage::Tile, QQuickImage::Pad };
    m_image->setFillMode(modes[m_fillMode]);
    m_image->setSize(size());
    // a stretched picture is decoded at the box's size; the others keep their own proportions
    if (m_fillMode == Stretch)
        m_image->setVisibleSourceSize(size());
    else
        m_image->setSourceSize(QSize());
    m_image->setOpacity(grayFlag() ? 0.4 : 1.0);
}
