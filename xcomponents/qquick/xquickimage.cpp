#include "xcomponents/qquick/xquickimage.h"

#include "xcomponents/qquick/xqmlcomponentmanage.h"

#include <QQmlContext>
#include <QQmlEngine>

XQuickImage::XQuickImage(QQuickItem* parent)
    : QQuickImage(parent)
{
    setFillMode(QQuickImage::Stretch);
}

XQuickImage::~XQuickImage() = default;

bool XQuickImage::ensureContext(const QObject* from)
{
    if (qmlContext(this))
        return true;
    QQmlContext* ctx = from ? qmlContext(from) : nullptr;
    if (!ctx) {
        if (QQmlEngine* engine = XQmlComponentManage::getInstance()->engine())
            ctx = engine->rootContext();
    }
    if (!ctx)
        return false;
    QQmlEngine::setContextForObject(this, ctx);
    return true;
}
