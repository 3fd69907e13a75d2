#ifndef XQMLCOMPONENTMANAGE_H
#define XQMLCOMPONENTMANAGE_H

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QQmlEngine>
#include <QUrl>

class QQmlComponent;
class QQmlEngine;
class QQuickItem;
class QmlWindowManage;

/**
 * Compiled QML components, cached by file: a component is compiled once and
 * every later item of the same file is created from the cache. Items are made
 * in the engine's root context (or a given one) and parented to an item.
 */
class XQmlComponentManage : public QObject {
    Q_OBJECT

public:
    static XQmlComponentManage* getInstance();

    void setEngine(QQmlEngine* engine);
    QQmlEngine* engine() const { return m_engine.data(); }
    void setWindowManage(QmlWindowManage* manage) { m_windowManage = manage; }
    QmlWindowManage* windowManage() const { return m_windowManage; }

    /** The compiled component of \a url, or null when it does not compile (errors are logged). */
    QQmlComponent* component(const QUrl& url);
    /** Creates an item of \a url under \a parent, with \a properties set before completion. */
    QQuickItem* createItem(const QUrl& url, QQuickItem* parent, const QVariantMap& properties = {});
    /** The disabled-state icon of a widget, as a child of \a parent filling it. */
    QQuickItem* createDisEnableIcon(QQuickItem* parent);
    /** The busy animation of a widget, as a child of \a parent centred in it. */
    QQuickItem* createBusyIcon(QQuickItem* parent);
    int cachedCount() const { return m_cache.size(); }
    void clear();

private:
    explicit XQmlComponentManage(QObject* parent = nullptr);

    QPointer<QQmlEngine> m_engine;
    QmlWindowManage* m_windowManage = nullptr;
    QHash<QUrl, QQmlComponent*> m_cache; // owned (children of this object)
};

#endif // XQMLCOMPONENTMANAGE_H
