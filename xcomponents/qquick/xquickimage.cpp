#include "xcomponents/qquick/xquickimage.h"

#include "xcomponents/qquick/picturecachemanage.h"
#include "xcomponents/qquick/xbasepainteditem.h"
#include "xcomponents/qquick/xqmlcomponentmanage.h"

#include <QQmlContext>
#include <QtQml/private/qqmldata_p.h>
#include <QQmlEngine>
#include <QQuickWindow>
#include <QtQuickTemplates2/private/qquickcontrol_p.h>

XQuickImage::XQuickImage(QQuickItem* parent)
    : QQuickImage(parent)
{
    setFillMode(QQuickImage::Stretch);
}

XQuickImage::~XQuickImage() = default;

void XQuickImage::setVisibleSourceSize(const QSizeF& size)
{
    if (size.isEmpty()) {
        setSourceSize(QSize()); // the picture's own size until the item has one
        return;
    }
    const QQuickWindow* w = window();
    setSourceSize(XBasePaintedItem::cappedTextureSize(size, 1.0, w ? w->size() : QSize()));
}

bool XQuickImage::ensureContext(const QObject* from)
{
    // Looked up without qmlContext(): asking an item made from QML for its context gives that context a
    // public object that outlives the item.
    if (const QQmlData* own = QQmlData::get(this); own && own->context)
        return true;
    QQmlEngine* engine = from ? qmlEngine(from) : nullptr;
    if (!engine)
        engine = XQmlComponentManage::getInstance()->engine();
    if (!engine)
        return false;
    QQmlEngine::setContextForObject(this, engine->rootContext());
    return true;
}

XQuickImage* XQuickImage::showBackground(QQuickControl* control, XQuickImage* image, const QUrl& url)
{
    if (!image) {
        image = new XQuickImage(control);
        image->ensureContext(control);
        fit(image, control->size());
        control->setBackground(image);
    }
    if (QQmlEngine* engine = qmlEngine(image))
        PictureCacheManage::attach(engine);
    image->setSource(url);
    return image;
}

void XQuickImage::fit(XQuickImage* image, const QSizeF& size)
{
    if (!image)
        return;
    image->setSize(size);
    image->setVisibleSourceSize(size);
}
