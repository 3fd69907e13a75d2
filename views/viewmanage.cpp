#include "views/viewmanage.h"

#include "app/imagegraber.h"
#include "platform/gid.h"
#include "platform/guiqtadaptcore.h"
#include "views/curvesamplecharttimemodecontroller.h"
#include "views/lifecyclemanager.h"
#include "views/qmlwindowmanage.h"
#include "views/widgetpropertymanage.h"
#include "views/xqmlcomponentmanage.h"
#include "xcomponents/qquick/xinvalidfeature.h"

#include <QQuickItem>

namespace {
ViewManage* g_instance = nullptr;
}

ViewManage* ViewManage::getInstance()
{
    if (!g_instance)
        g_instance = new ViewManage;
    return g_instance;
}

void ViewManage::destroyInstance()
{
    delete g_instance;
    g_instance = nullptr;
}

ViewManage::ViewManage()
    : m_lifeCycle(std::make_unique<LifeCycleManager>())
    , m_propertyManage(std::make_unique<WidgetPropertyManage>())
    , m_windowManage(std::make_unique<QmlWindowManage>(m_lifeCycle.get()))
    , m_timeMode(std::make_unique<CurveSampleChartTimeModeController>())
{
    XQmlComponentManage::getInstance()->setWindowManage(m_windowManage.get());
    // screenshots of a window find it here
    QmlWindowManage* wm = m_windowManage.get();
    ImageGraber::instance()->setWindowResolver([wm](unsigned windowId) { return wm->getWindowObj(windowId); });
}

ViewManage::~ViewManage()
{
    // the registry owns its items: delete them now, while the scene and engine still exist
    ImageGraber::instance()->setWindowResolver(nullptr);
    const QList<QQuickItem*> items = m_lifeCycle->allItems();
    m_idHash.clear();
    qDeleteAll(items);
    m_windowManage.reset();
    XQmlComponentManage::getInstance()->setWindowManage(nullptr);
    m_lifeCycle.reset();
    m_propertyManage.reset();
}

XQmlComponentManage* ViewManage::getComponentManage() const
{
    return XQmlComponentManage::getInstance();
}

QQmlEngine* ViewManage::getQmlEngine() const
{
    return m_windowManage->getEngine();
}

QQuickItem* ViewManage::getDeskTop(unsigned n) const
{
    return m_windowManage->getDeskTop(n);
}

void ViewManage::setCurveSampleChartTimeModeController(std::unique_ptr<CurveSampleChartTimeModeController> c)
{
    m_timeMode = std::move(c);
}

void ViewManage::appendItem(unsigned id, QQuickItem* item)
{
    if (!item)
        return;
    if (QQuickItem* old = m_lifeCycle->findItemMaybeVisible(id); old && old != item) {
        // an id created again replaces its previous widget, which is deleted
        m_lifeCycle->destroyItem(id);
        m_propertyManage->remove(id);
    }
    m_lifeCycle->removeItemParent({id, item});
    m_idHash.insert(id, item);
}

QQuickItem* ViewManage::getItemById(unsigned id) const
{
    return m_lifeCycle->findItemMaybeVisible(id);
}

QQuickItem* ViewManage::newUnsupportFeatureImage(QQuickItem* parent, QPoint pos, QSize size, unsigned id,
                                                 unsigned windowId)
{
    // made without an object parent: the registry owns it, so there is none to clear later
    auto* item = new XInvalidFeature;
    item->setParentItem(parent);
    item->setPosition(pos);
    item->setSize(QSizeF(qMax(0, size.width()), qMax(0, size.height())));
    GId::setId(item, id);
    GId::setWId(item, windowId);
    appendItem(id, item);
    return item;
}

int ViewManage::createPlaceholder(unsigned header, const Rect& rect, unsigned id, unsigned windowId,
                                  const QString& name)
{
    QQuickItem* parent = m_windowManage->getWindow(windowId);
    if (!parent)
        return -1;
    const QRect r = GuiQtAdapt::Core::toQRect(rect);
    QQuickItem* item = newUnsupportFeatureImage(parent, r.topLeft(), r.size(), id, windowId);
    if (auto* placeholder = qobject_cast<XInvalidFeature*>(item))
        placeholder->setFeatureName(name + QStringLiteral(" (") + XInvalidFeature::tr("not available") + QLatin1Char(')'));
    WidgetPropertyManage::applyHeader(item, header);
    return 0;
}
