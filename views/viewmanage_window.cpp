// Desktops, windows, popup windows, message box, brightness, busy bar, and the
// process-wide settings.
#include "views/viewmanage.h"

#include "config/globalconfig.h"
#include "platform/globalinfo.h"
#include "platform/guiqtadaptcore.h"
#include "views/lifecyclemanager.h"
#include "views/panelhost.h"
#include "views/qmlwindowmanage.h"
#include "views/virtualkeyboardmanager.h"
#include "xcomponents/qquick/xlumodialog.h"
#include "xcomponents/qquick/xwindow.h"
#include "xcomponents/qquick/xwindowtitile.h"

#include <QQmlContext>
#include <QQmlEngine>
#include <QQuickItem>
#include <QPointer>
#include <QTimer>

namespace {
/** How long after a desktop is created the hidden keyboard is made. */
constexpr int kKeyboardPrepareMs = 300;
} // namespace

int ViewManage::View_CreateDesktop(const Size& size, unsigned int desktopNo)
{
    m_windowManage->addDeskTop(size, desktopNo);
    if (QQmlEngine* engine = m_windowManage->getEngine()) {
        // set once: each setting of a context property to an object connects to that object again
        QQmlContext* context = engine->rootContext();
        auto setOnce = [context](const QString& name, QObject* object) {
            if (context->contextProperty(name).value<QObject*>() != object)
                context->setContextProperty(name, object);
        };
        setOnce(QStringLiteral("$GlobalConfig"), GlobalConfig::getInstance());
        setOnce(QStringLiteral("$GlobalInfo"), GlobalInfo::instance());
    }
    // the keyboard is made (hidden) while the panel is idle, so that the operator's first touch on a
    // field opens it at once instead of compiling it then
    // (once: desktops made in quick succession share the one preparation, which goes with this object)
    static QPointer<QTimer> preparing;
    if (!preparing && !VirtualKeyboardManager::instance()->isInitialised()) {
        auto* timer = new QTimer(this);
        timer->setSingleShot(true);
        preparing = timer;
        connect(timer, &QTimer::timeout, this, [timer] {
            timer->deleteLater();
            PanelHost* host = PanelHost::getInstance();
            if (QQuickItem* root = host ? host->getGuiRect() : nullptr)
                VirtualKeyboardManager::instance()->init(root);
        });
        timer->start(kKeyboardPrepareMs);
    }
    return 0;
}

int ViewManage::View_ShowDesktop(unsigned int desktopNo)
{
    m_windowManage->showDesktop(desktopNo, true);
    return 0;
}

int ViewManage::View_HideDesktop(unsigned int desktopNo)
{
    m_windowManage->showDesktop(desktopNo, false);
    return 0;
}

int ViewManage::View_CloseDesktop(unsigned int desktopNo)
{
    m_windowManage->closeDesktop(desktopNo, m_idHash);
    return 0;
}

int ViewManage::View_SwitchWindow(View_Window* window)
{
    m_lifeCycle->swapCache();
    return m_windowManage->addWindow(window) ? 0 : -1;
}

int ViewManage::View_PopupWindow(View_Window* window, unsigned int windowId, View_Popup* popup, int flags)
{
    m_windowManage->popupWindow(window, windowId, popup, flags);
    return 0;
}

int ViewManage::View_CloseWindow(unsigned int windowId)
{
    return m_windowManage->closeWindow(windowId, m_idHash) ? 0 : -1;
}

int ViewManage::View_ShowWindow(unsigned int windowId, bool show)
{
    if (XLumoDialog* d = m_windowManage->findDialog(windowId)) {
        show ? d->open() : d->close();
        return 0;
    }
    QQuickItem* obj = m_windowManage->getWindowObj(windowId);
    if (!obj)
        return -1;
    obj->setVisible(show);
    return 0;
}

int ViewManage::View_WindowShowAndMove(unsigned int windowId, int x, int y)
{
    QQuickItem* obj = m_windowManage->getWindowObj(windowId);
    if (!obj)
        return -1;
    obj->setPosition(QPointF(x, y));
    return View_ShowWindow(windowId, true);
}

int ViewManage::View_ChangeWindowTitle(unsigned int windowId, const char* title)
{
    QQuickItem* obj = m_windowManage->getWindowObj(windowId);
    if (!obj)
        return -1;
    if (auto* d = qobject_cast<XLumoDialog*>(obj)) {
        if (auto* bar = qobject_cast<WindowTitile*>(d->header()))
            bar->setTitle(GuiQtAdapt::Core::fromUtf8(title));
    }
    return 0;
}

int ViewManage::View_GetTitleBarHeight(unsigned int windowId, int& height)
{
    QQuickItem* obj = m_windowManage->getWindowObj(windowId);
    if (!obj)
        return -1;
    auto* d = qobject_cast<XLumoDialog*>(obj);
    height = d && d->header() ? d->titleHeight() : 0;
    return 0;
}

int ViewManage::View_GetWindowRect(unsigned int windowId, Rect& rect)
{
    QQuickItem* obj = m_windowManage->getWindowObj(windowId);
    if (!obj)
        return -1;
    rect.x = obj->property("x").toInt();
    rect.y = obj->property("y").toInt();
    rect.width = obj->property("width").toInt();
    rect.height = obj->property("height").toInt();
    return 0;
}

int ViewManage::View_SetWindowParent(unsigned int windowId, unsigned int parentId)
{
    QQuickItem* obj = m_windowManage->getWindowObj(windowId);
    QQuickItem* parent = m_windowManage->getWindow(parentId);
    if (!obj || !parent || obj == m_windowManage->getWindowObj(parentId))
        return -1;
    obj->setParentItem(parent);
    return 0;
}

int ViewManage::View_SetDialogMoveControl(unsigned int windowId, bool movable)
{
    XLumoDialog* d = m_windowManage->findDialog(windowId);
    if (!d)
        return -1;
    d->setMovable(movable);
    return 0;
}

int ViewManage::View_PopupMsg(const char* text, unsigned int life)
{
    // may be called from any thread: the text is copied now and shown on the GUI thread;
    // a message longer than a screen can show is cut, so laying it out never stalls the panel
    using GuiQtAdapt::Core;
    const QString message = Core::cutText(Core::fromUtf8(text), Core::kMaxShownText);
    QmlWindowManage* wm = m_windowManage.get();
    QMetaObject::invokeMethod(
        wm, [wm, message, life]() { wm->popMsg(message, life); }, Qt::QueuedConnection);
    return 0;
}

int ViewManage::View_SetLight(int percent)
{
    m_windowManage->setLight(percent);
    return 0;
}

int ViewManage::View_ShowProcess(unsigned int id, unsigned int modal, unsigned int reserved)
{
    Q_UNUSED(reserved)
    m_windowManage->startBarAnimation(id, modal != 0);
    return 0;
}

int ViewManage::View_HideProcess(unsigned int id)
{
    Q_UNUSED(id)
    m_windowManage->stopBarAnimation();
    return 0;
}
