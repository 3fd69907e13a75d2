#include "xcomponents/qquick/xqmlcomponentmanage.h"

#include "platform/nlogger.h"
#include "xcomponents/qquick/picturecachemanage.h"

#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickItem>

XQmlComponentManage* XQmlComponentManage::getInstance()
{
    static XQmlComponentManage* instance = new XQmlComponentManage; // lives as long as the process
    return instance;
}

XQmlComponentManage::XQmlComponentManage(QObject* parent)
    : QObject(parent)
{
}

void XQmlComponentManage::setEngine(QQmlEngine* engine)
{
    if (m_engine == engine)
        return;
    clear(); // components belong to the engine that compiled them
    m_engine = engine;
    PictureCacheManage::attach(engine); // project pictures (buttons, cells, menu boxes) load from the start
}

void XQmlComponentManage::clear()
{
    qDeleteAll(m_cache);
    m_cache.clear();
}

QQmlComponent* XQmlComponentManage::component(const QUrl& url)
{
    if (!m_engine)
        return nullptr;
    auto it = m_cache.constFind(url);
    if (it != m_cache.constEnd())
        return it.value();
    auto* c = new QQmlComponent(m_engine, url, QQmlComponent::PreferSynchronous, this);
    if (c->isError()) {
        NLog::NLogger::instance()->logger()->error(
            "QML component {}: {}", url.toString().toStdString(), c->errorString().toStdString());
        delete c;
        return nullptr;
    }
    m_cache.insert(url, c);
    return c;
}

QQuickItem* XQmlComponentManage::createItem(
    const QUrl& url, QQuickItem* parent, const QVariantMap& properties)
{
    QQmlComponent* c = component(url);
    if (!c)
        return nullptr;
    // Every item is made in the engine's root context: a component file sees the context properties set there,
    // never the ids of whatever item it is placed under. (Asking an item made from QML for its context would
    // also give that context a public object that lives as long as the context, i.e. past the item.)
    QObject* obj = c->beginCreate(m_engine->rootContext());
    auto* item = qobject_cast<QQuickItem*>(obj);
    if (!item) {
        delete obj;
        return nullptr;
    }
    for (auto it = properties.constBegin(); it != properties.constEnd(); ++it)
        item->setProperty(it.key().toUtf8().constData(), it.value());
    if (parent)
        item->setParentItem(parent);
    c->completeCreate();
    QQmlEngine::setObjectOwnership(item, QQmlEngine::CppOwnership);
    return item;
}

QQuickItem* XQmlComponentManage::createDisEnableIcon(QQuickItem* parent)
{
    QQuickItem* icon = createItem(QUrl(QStringLiteral("qrc:/QmlDisEnableIcon.qml")), parent);
    if (icon)
        icon->setParent(parent); // deleted with its widget
    return icon;
}

QQuickItem* XQmlComponentManage::createBusyIcon(QQuickItem* parent)
{
    QQuickItem* icon = createItem(QUrl(QStringLiteral("qrc:/QmlBusyIcon.qml")), parent);
    if (icon)
        icon->setParent(parent); // deleted with its widget
    return icon;
}
