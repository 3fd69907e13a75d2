#include "views/viewmanage.h"

#include "config/globalconfig.h"
#include "platform/guiqtadaptcore.h"
#include "views/curvesamplecharttimemodecontroller.h"
#include "views/lifecyclemanager.h"
#include "views/liststate.h"
#include "views/pdfwriterstate.h"
#include "views/presswatcher.h"
#include "views/pinyinstate.h"
#include "views/qmlwindowmanage.h"
#include "views/usbpackagestate.h"
#include "views/virtualkeyboardmanager.h"
#include "views/vkbstate.h"
#include "views/widgetpropertymanage.h"
#include "xcomponents/qquick/xinvalidfeature.h"
#include "xcomponents/qquick/xqmlcomponentmanage.h"

#include <QQmlEngine>
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
    , m_timeMode(std::make_unique<CurveSampleChartTimeModeController>(m_windowManage.get()))
    , m_vkb(std::make_unique<VkbState>())
    , m_pinyin(std::make_unique<PinyinState>())
    , m_list(std::make_unique<ListState>(m_vkb.get()))
    , m_pdfWriters(std::make_unique<PdfWriterState>())
    , m_usbPackages(std::make_unique<UsbPackageState>(m_windowManage.get()))
{
    XQmlComponentManage::getInstance()->setWindowManage(m_windowManage.get());
    // the keyboard's layer takes the panel's dimming colour and stays usable on a dimmed panel
    VirtualKeyboardManager* keyboard = VirtualKeyboardManager::instance();
    connect(m_windowManage.get(), &QmlWindowManage::lightChanged, keyboard, &VirtualKeyboardManager::setLight);
    m_windowManage->pressWatcher()->setPassThrough(
        [keyboard](const QPointF& pos) { return keyboard->containsScenePoint(pos); });
    // a language change shows at once on everything open (buttons and titles of the dialogs)
    connect(GlobalConfig::getInstance(), &GlobalConfig::langTokenChanged, this, [this] {
        if (QQmlEngine* engine = getQmlEngine())
            engine->retranslate();
    });
}

ViewManage::~ViewManage()
{
    // the registry owns its items: delete them now, while the scene and engine still exist
    const QList<QQuickItem*> items = m_lifeCycle->allItems();
    m_idHash.clear();
    qDeleteAll(items);
    m_list.reset();
    m_vkb.reset();
    m_pinyin.reset(); // its popup lives on an overlay of the window manager
    m_usbPackages.reset(); // and so do the package dialogs
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
    }
    m_lifeCycle->removeItemParent({ id, item });
    m_idHash.insert(id, item);
}

QQuickItem* ViewManage::getItemById(unsigned id) const
{
    return m_lifeCycle->findItemMaybeVisible(id);
}

QQuickItem* ViewManage::creationParent(const void* rec, unsigned windowId) const
{
    return rec ? m_windowManage->getWindow(windowId) : nullptr;
}

void ViewManage::placeWidget(
    QQuickItem* item, unsigned id, unsigned windowId, const Rect& rect, unsigned header)
{
    const QRect box = GuiQtAdapt::Core::toQRect(rect);
    item->setPosition(box.topLeft());
    item->setSize(QSizeF(qMax(0, box.width()), qMax(0, box.height())));
    WidgetPropertyManage::applyHeader(item, header);
    WidgetPropertyManage::setIds(item, id, windowId);
    appendItem(id, item);
}

QQuickItem* ViewManage::newUnsupportFeatureImage(
    QQuickItem* parent, QPoint pos, QSize size, unsigned id, unsigned windowId, unsigned header)
{
    // made without an object parent: the registry owns it, so there is none to clear later
    auto* item = new XInvalidFeature;
    item->setParentItem(parent);
    placeWidget(item, id, windowId, Rect { pos.x(), pos.y(), size.width(), size.height() }, header);
    return item;
}

int ViewManage::createPlaceholder(
    unsigned header, const Rect& rect, unsigned id, unsigned windowId, const char* name)
{
    QQuickItem* parent = m_windowManage->getWindow(windowId);
    if (!parent)
        return -1;
    const QRect r = GuiQtAdapt::Core::toQRect(rect);
    auto* item = static_cast<XInvalidFeature*>(
        newUnsupportFeatureImage(parent, r.topLeft(), r.size(), id, windowId, header));
    item->setFeatureName(QString::fromUtf8(name) + QStringLiteral(" (") + XInvalidFeature::tr("not available")
        + QLatin1Char(')'));
    return 0;
}
