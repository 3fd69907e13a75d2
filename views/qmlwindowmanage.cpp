#include "views/qmlwindowmanage.h"

#include "platform/guiqtadaptcore.h"
#include "platform/logiclayercaller.h"
#include "platform/nlogger.h"
#include "platform/xoverlay.h"
#include "views/lifecyclemanager.h"
#include "views/panelhost.h"
#include "views/presswatcher.h"
#include "xcomponents/qquick/keyboardwindowtitile.h"
#include "xcomponents/qquick/lighterpopup.h"
#include "config/projectmanage.h"
#include "xcomponents/qquick/xlumodialog.h"
#include "xcomponents/qquick/xquickfiledialog.h"
#include "xcomponents/qquick/xusbselectfiledata.h"
#include "xcomponents/qquick/xqmlcomponentmanage.h"
#include "xcomponents/qquick/xwindow.h"
#include "xcomponents/qquick/xwindowbackground.h"

#include <QDateTime>
#include <QGuiApplication>
#include <QQmlEngine>
#include <QQuickView>
#include <QQuickWindow>
#include <QScreen>

#include <qgui/events.h>
#include <qgui/ids.h>

namespace {
const QUrl kDesktopUrl(QStringLiteral("qrc:/QmlDesktop.qml"));
const QUrl kLighterUrl(QStringLiteral("qrc:/QmlLighterPopup.qml"));
const QUrl kMessageUrl(QStringLiteral("qrc:/QmlMessageBox.qml"));
const QUrl kBusyUrl(QStringLiteral("qrc:/QmlBusyBar.qml"));
const QUrl kDateTimeUrl(QStringLiteral("qrc:/datetimeset/XDateTimeSet.qml"));
const QUrl kFileDialogUrl(QStringLiteral("qrc:/QmlFileDialog.qml"));
const char kDateTimeFormat[] = "yyyy-MM-dd hh:mm:ss";
constexpr int kDefaultTitleHeight = 40;

template <typename T> void prune(QList<QPointer<T>>& list)
{
    list.erase(std::remove_if(list.begin(), list.end(), [](const QPointer<T>& p) { return p.isNull(); }),
        list.end());
}
} // namespace

QmlWindowManage::QmlWindowManage(LifeCycleManager* lifeCycle, QObject* parent)
    : QObject(parent)
    , m_lifeCycle(lifeCycle)
    , m_pressWatcher(new PressWatcher(this))
{
    XWindowLocator::install(this);
}

QmlWindowManage::~QmlWindowManage()
{
    XWindowLocator::uninstall(this);
    for (const auto& d : qAsConst(m_dialogs))
        delete d.data();
    for (const auto& w : qAsConst(m_windows))
        delete w.data();
    delete m_msgBox.data();
    delete m_busyBar.data();
    delete m_dateTime.data();
    delete m_fileDialog.data();
    for (const auto& l : qAsConst(m_lighters))
        delete l.data();
    for (const auto& d : qAsConst(m_desktops))
        delete d.data();
    for (const auto& o : qAsConst(m_overlays))
        delete o.data();
}

QQuickItem* QmlWindowManage::panel() const
{
    PanelHost* host = PanelHost::getInstance();
    return host ? host->getGuiContent() : nullptr;
}

QQmlEngine* QmlWindowManage::getEngine() const
{
    if (QQmlEngine* e = XQmlComponentManage::getInstance()->engine())
        return e;
    PanelHost* host = PanelHost::getInstance();
    QQuickItem* panel = host ? host->getGuiRect() : nullptr;
    return panel ? qmlEngine(panel) : nullptr;
}

// ---- desktops

bool QmlWindowManage::addDeskTop(const Size& size, unsigned n)
{
    QQuickItem* host = panel();
    if (!host)
        return false;
    if (!XQmlComponentManage::getInstance()->engine())
        XQmlComponentManage::getInstance()->setEngine(getEngine());
    const QSize panelSize(qBound(1, size.width, 16384), qBound(1, size.height, 16384));

    // the panel control takes the desktop's size; the view fits it on the primary screen
    if (PanelHost* h = PanelHost::getInstance(); h && h->getGuiRect())
        h->getGuiRect()->setSize(panelSize);
    if (auto* view = qobject_cast<QQuickView*>(host->window())) {
        QRect avail = QGuiApplication::primaryScreen() ? QGuiApplication::primaryScreen()->availableGeometry()
                                                       : QRect(0, 0, panelSize.width(), panelSize.height());
        const QSize viewSize = panelSize.boundedTo(avail.size());
        view->resize(viewSize);
        view->setPosition(avail.topLeft()
            + QPoint((avail.width() - viewSize.width()) / 2, (avail.height() - viewSize.height()) / 2));
    }
    if (m_desktops.value(n))
        return true; // made once per number

    auto* desk = XQmlComponentManage::getInstance()->createItem(kDesktopUrl, host);
    if (!desk)
        return false;
    desk->setSize(panelSize);
    desk->setProperty("id", n);
    desk->setProperty("deskNo", int(n));
    m_desktops.insert(n, desk);

    auto* overlay = new XOverlay(host);
    overlay->setZ(1);
    overlay->setObjectName(QStringLiteral("overlay_%1").arg(n));
    m_overlays.insert(n, overlay);

    auto* lighter
        = qobject_cast<XPopup*>(XQmlComponentManage::getInstance()->createItem(kLighterUrl, overlay));
    if (lighter) {
        lighter->setOverlay(overlay);
        lighter->setZ(kLighterZ);
        m_lighters.insert(n, lighter);
    }
    if (!m_hasDesk && host->window()) {
        host->window()->installEventFilter(m_pressWatcher);
    }
    m_hasDesk = true;
    m_currentDesk = n;
    return true;
}

QQuickItem* QmlWindowManage::getDeskTop() const
{
    return m_desktops.value(m_currentDesk).data();
}

QQuickItem* QmlWindowManage::getDeskTop(unsigned n) const
{
    return m_desktops.value(n).data();
}

XOverlay* QmlWindowManage::getOverlay(unsigned n) const
{
    return m_overlays.value(n).data();
}

XPopup* QmlWindowManage::lighter(unsigned desk) const
{
    return m_lighters.value(desk).data();
}

bool QmlWindowManage::showDesktop(unsigned n, bool show)
{
    QQuickItem* desk = getDeskTop(n);
    if (!desk)
        return false;
    desk->setVisible(show);
    if (XOverlay* o = getOverlay(n))
        o->setVisible(show);
    if (show) {
        m_currentDesk = n;
        desk->setZ(0.5); // above the other desktops, below the overlays
        for (auto it = m_desktops.cbegin(); it != m_desktops.cend(); ++it) {
            if (it.key() != n && it.value())
                it.value()->setZ(0);
        }
    }
    return true;
}

bool QmlWindowManage::closeDesktop(unsigned n, QHash<unsigned, QQuickItem*>& idHash)
{
    if (!m_desktops.contains(n))
        return false;
    for (XLumoDialog* d : dialogs()) {
        if (GetDeskNoFromWndId(d->getWindowId()) == n)
            closeWindow(d->getWindowId(), idHash);
    }
    for (XWindow* w : windows()) {
        if (GetDeskNoFromWndId(w->getWindowId()) == n)
            closeWindow(w->getWindowId(), idHash);
    }
    if (auto l = m_lighters.take(n))
        l->deleteLater();
    if (auto o = m_overlays.take(n))
        o->deleteLater();
    if (auto d = m_desktops.take(n)) {
        d->setVisible(false);
        d->deleteLater();
    }
    if (m_currentDesk == n && !m_desktops.isEmpty())
        m_currentDesk = m_desktops.cbegin().key();
    return true;
}

// ---- windows

QQuickItem* QmlWindowManage::createBackground(QQuickItem* parent, const View_Window* rec)
{
    auto* bg = new XWindowBackground(parent);
    const QString image = GuiQtAdapt::Core::fromString(rec->image);
    if (image.isEmpty() || !bg->setImagePath(image))
        bg->setBrushRecord(rec->background);
    return bg;
}

XWindow* QmlWindowManage::addWindow(const View_Window* rec)
{
    if (!rec)
        return nullptr;
    QQuickItem* desk = getDeskTop(GetDeskNoFromWndId(rec->id));
    if (!desk)
        return nullptr;
    if (XWindow* existing = findWindow(rec->id)) {
        // switching to a window that is open brings it to the front
        qreal top = 0;
        for (XWindow* w : windows())
            top = qMax(top, w->z());
        existing->setZ(top + 1);
        existing->setVisible(true);
        return existing;
    }
    auto* win = new XWindow(desk);
    win->setId(rec->id);
    win->setWindowId(rec->id);
    const QRect r = GuiQtAdapt::Core::toQRect(rec->rect);
    win->setSize(r.size());
    win->setPosition(r.topLeft());
    win->setOpacity(GuiQtAdapt::Core::toOpacity(rec->header));
    qreal top = 0;
    for (XWindow* w : windows())
        top = qMax(top, w->z() + 1);
    win->setZ(top);
    m_windows.append(win);
    win->setBackgroundItem(createBackground(win, rec));
    win->setVisible(true);
    return win;
}

QQuickItem* QmlWindowManage::createTitleBar(
    XLumoDialog* dlg, const View_Window* rec, const View_Popup* popup, int flags)
{
    WindowTitile* title
        = (flags & POPUP_FLAG_KEYBOARD) ? new KeyBoardWindowTitile(dlg) : new WindowTitile(dlg);
    title->setTitle(GuiQtAdapt::Core::fromUtf8(rec->title));
    if (rec->titleFont) {
        title->setTitleFont(GuiQtAdapt::Core::toQFont(rec->titleFont));
        title->setTitleColor(GuiQtAdapt::Core::toQColor(rec->titleFont->color));
    }
    if (popup) {
        title->setButtons(popup->buttons);
        if (popup->titleBrush.style != BRUSH_NONE)
            title->setBackground(
                GuiQtAdapt::Core::toQBrush(popup->titleBrush, QRectF(0, 0, rec->rect.width, 40)));
        if (popup->titleLayout)
            title->setAlignment(GuiQtAdapt::Core::toQAlignment(popup->titleLayout->align));
    }
    const unsigned id = dlg->getWindowId();
    connect(title, &WindowTitile::closeClicked, dlg,
        [id]() { LogicLayerCaller::call(id, EVT_POPUP_CLOSE, nullptr); });
    connect(title, &WindowTitile::titlePressed, dlg,
        [id]() { LogicLayerCaller::call(id, EVT_POPUP_TITLE_PRESS, nullptr); });
    connect(
        title, &WindowTitile::upClicked, dlg, [id]() { LogicLayerCaller::call(id, EVT_POPUP_UP, nullptr); });
    connect(title, &WindowTitile::downClicked, dlg,
        [id]() { LogicLayerCaller::call(id, EVT_POPUP_DOWN, nullptr); });
    connect(title, &WindowTitile::moveOffset, dlg, &XLumoDialog::moveBy);
    return title;
}

XLumoDialog* QmlWindowManage::popupWindow(
    const View_Window* rec, unsigned windowId, const View_Popup* popup, int flags)
{
    if (!rec)
        return nullptr;
    XOverlay* overlay = getOverlay(GetDeskNoFromWndId(windowId));
    if (!overlay)
        return nullptr;
    if (XLumoDialog* existing = findDialog(windowId)) {
        existing->open();
        return existing;
    }
    auto* dlg = new XLumoDialog;
    dlg->setOverlay(overlay);
    const int z = popup ? popup->z : 0;
    if (double(z) >= kLighterZ)
        NLog::NLogger::instance()->logger()->warn("popup Z >= lighter");
    dlg->setZ(z);
    dlg->setId(rec->id);
    dlg->setWindowId(windowId);
    dlg->setParentItem(overlay);
    m_dialogs.append(dlg);

    const QRect r = GuiQtAdapt::Core::toQRect(rec->rect);
    dlg->setPosition(r.topLeft());
    dlg->setSize(r.size());
    dlg->setOpacity(GuiQtAdapt::Core::toOpacity(rec->header));
    dlg->setBackgroundItem(createBackground(dlg, rec));
    auto* border = new XWindowBackground(dlg);
    border->setPen(GuiQtAdapt::Core::toQPen(rec->border));
    dlg->setBorderItem(border);

    if (!popup || !popup->hideTitle) {
        dlg->setHeader(createTitleBar(dlg, rec, popup, flags));
        dlg->setTitleHeight(popup && popup->titleHeight > 0 ? qMin(popup->titleHeight, r.height())
                                                            : qMin(kDefaultTitleHeight, r.height()));
    }
    dlg->setMovable(popup && popup->movable);
    if (popup && popup->modal)
        dlg->setModal(true);
    dlg->open();
    return dlg;
}

XWindow* QmlWindowManage::findWindow(unsigned windowId) const
{
    for (const auto& w : m_windows) {
        if (w && w->getWindowId() == windowId)
            return w.data();
    }
    return nullptr;
}

XLumoDialog* QmlWindowManage::findDialog(unsigned windowId) const
{
    for (const auto& d : m_dialogs) {
        if (d && d->getWindowId() == windowId)
            return d.data();
    }
    return nullptr;
}

QQuickItem* QmlWindowManage::getWindow(unsigned windowId) const
{
    if (windowId == 0)
        return nullptr;
    if (XWindow* w = findWindow(windowId))
        return w->windowContent();
    if (XLumoDialog* d = findDialog(windowId))
        return d->contentItem();
    return nullptr;
}

QQuickItem* QmlWindowManage::getWindowObj(unsigned windowId) const
{
    if (windowId == 0)
        return nullptr;
    if (XWindow* w = findWindow(windowId))
        return w;
    return findDialog(windowId);
}

bool QmlWindowManage::removeWindow(unsigned windowId)
{
    if (XWindow* w = findWindow(windowId)) {
        m_windows.removeAll(w);
        w->setParentItem(nullptr);
        w->setVisible(false);
        w->deleteLater();
        return true;
    }
    if (XLumoDialog* d = findDialog(windowId)) {
        m_dialogs.removeAll(d);
        d->close();
        d->deleteLater();
        return true;
    }
    return false;
}

bool QmlWindowManage::closeWindow(unsigned windowId, QHash<unsigned, QQuickItem*>& idHash)
{
    if (XLumoDialog* d = findDialog(windowId)) {
        m_lifeCycle->hideWindow(d->contentItem(), idHash);
        m_dialogs.removeAll(d);
        d->close();
        d->deleteLater();
        return true;
    }
    if (XWindow* w = findWindow(windowId))
        m_lifeCycle->hideWindow(w->windowContent(), idHash); // its widgets stay cached for reuse, as a popup's
    return removeWindow(windowId);
}

QQuickItem* QmlWindowManage::currentWindow() const
{
    XWindow* best = nullptr;
    for (XWindow* w : windows()) {
        if (w->isVisible() && GetDeskNoFromWndId(w->getWindowId()) == m_currentDesk
            && (!best || w->z() >= best->z()))
            best = w;
    }
    return best;
}

QList<XWindow*> QmlWindowManage::windows() const
{
    QList<XWindow*> out;
    for (const auto& w : m_windows) {
        if (w)
            out.append(w.data());
    }
    return out;
}

QList<XLumoDialog*> QmlWindowManage::dialogs() const
{
    QList<XLumoDialog*> out;
    for (const auto& d : m_dialogs) {
        if (d)
            out.append(d.data());
    }
    return out;
}

// ---- message box, brightness, busy bar

void QmlWindowManage::popMsg(const QString& text, unsigned life)
{
    if (m_msgBox && m_msgBox->isOpened()) {
        QMetaObject::invokeMethod(m_msgBox, "addInfoItem", Q_ARG(QVariant, text), Q_ARG(QVariant, life));
        return;
    }
    XOverlay* overlay = getOverlay(m_currentDesk);
    if (!overlay)
        return; // no desktop yet: nowhere to show it
    if (!m_msgBox || m_msgBox->overlay() != overlay) {
        delete m_msgBox.data();
        m_msgBox = qobject_cast<XPopup*>(XQmlComponentManage::getInstance()->createItem(kMessageUrl, overlay,
            { { QStringLiteral("life"), life }, { QStringLiteral("countDown"), true } }));
        if (!m_msgBox)
            return;
        m_msgBox->setOverlay(overlay);
    }
    m_msgBox->setProperty("life", life);
    m_msgBox->setProperty("countDown", true);
    // centred horizontally, in the lower third of the panel
    m_msgBox->setPosition(QPointF((overlay->width() - m_msgBox->width()) / 2,
        qMax<qreal>(0, overlay->height() * 2 / 3 - m_msgBox->height() / 2)));
    m_msgBox->setZ(kMessageZ);
    m_msgBox->setClosePolicy(XPopup::NoAutoClose);
    m_msgBox->open();
    QMetaObject::invokeMethod(m_msgBox, "addInfoItem", Q_ARG(QVariant, text), Q_ARG(QVariant, life));
}

void QmlWindowManage::setLight(int percent)
{
    percent = qBound(0, percent, 100);
    m_pressWatcher->setBlockPress(percent != 100);
    const QColor dim(0, 0, 0, 255 - (percent * 255 / 100));
    for (auto it = m_lighters.cbegin(); it != m_lighters.cend(); ++it) {
        XPopup* l = it.value();
        if (!l)
            continue;
        if (percent == 100) {
            l->close();
        } else {
            l->setProperty("color", dim);
            l->open();
        }
    }
    Q_EMIT lightChanged(percent == 100 ? QColor(Qt::transparent) : dim);
}

void QmlWindowManage::startBarAnimation(unsigned id, bool modal)
{
    XOverlay* overlay = getOverlay(m_currentDesk);
    if (!overlay)
        return;
    if (!m_busyBar || qobject_cast<XPopup*>(m_busyBar)->overlay() != overlay) {
        delete m_busyBar.data();
        auto* bar = qobject_cast<XPopup*>(XQmlComponentManage::getInstance()->createItem(kBusyUrl, overlay));
        if (!bar)
            return;
        bar->setOverlay(overlay);
        bar->setZ(kBusyZ);
        m_busyBar = bar;
    }
    auto* bar = qobject_cast<XPopup*>(m_busyBar);
    bar->setProperty("requester", id);
    bar->setModal(modal);
    QMetaObject::invokeMethod(bar, "start");
}

void QmlWindowManage::stopBarAnimation()
{
    if (m_busyBar)
        QMetaObject::invokeMethod(m_busyBar, "stop");
}

// ---- date/time popup

XPopup* QmlWindowManage::popupDateTimeWindow(QQuickItem* widget, const QString& text)
{
    if (!widget || widget->metaObject()->indexOfSlot("onOkButtonClicked(QString)") < 0)
        return nullptr;
    XOverlay* overlay = getOverlay(m_currentDesk);
    if (!overlay)
        return nullptr;
    if (XPopup* old = m_dateTime.data()) {
        m_dateTime.clear();
        old->close(); // its closed() handler cuts its connection and deletes it
    }
    QDateTime moment = QDateTime::fromString(text, QLatin1String(kDateTimeFormat));
    if (!moment.isValid())
        moment = QDateTime::currentDateTime();
    auto* popup = qobject_cast<XPopup*>(XQmlComponentManage::getInstance()->createItem(
        kDateTimeUrl, overlay, { { QStringLiteral("dateTime"), moment } }));
    if (!popup)
        return nullptr;
    popup->setOverlay(overlay);
    popup->setZ(kDateTimeZ);
    popup->setPosition(QPointF(qMax<qreal>(0, (overlay->width() - popup->width()) / 2),
        qMax<qreal>(0, (overlay->height() - popup->height()) / 2)));
    const QMetaObject::Connection link
        = connect(popup, SIGNAL(onOkClicked(QString)), widget, SLOT(onOkButtonClicked(QString)));
    // closing (by its buttons, or by a later popup) ends the link: a later popup talks only to its
    // own widget
    connect(popup, &XPopup::closed, this, [this, popup, link]() {
        disconnect(link);
        if (m_dateTime == popup)
            m_dateTime.clear();
        popup->deleteLater();
    });
    // a field that goes out of sight (its window closed or switched away, the field hidden or
    // deleted) takes its popup with it
    auto closeIfGone = [popup, widget = QPointer<QQuickItem>(widget)]() {
        if (!widget || !widget->isVisible() || !widget->window())
            popup->close();
    };
    connect(widget, &QQuickItem::visibleChanged, popup, closeIfGone);
    connect(widget, &QQuickItem::windowChanged, popup, closeIfGone);
    connect(widget, &QObject::destroyed, popup, &XPopup::close);
    m_dateTime = popup;
    popup->open();
    return popup;
}

XQuickFileDialog* QmlWindowManage::popupFileDialog(unsigned windowId, const QString& path)
{
    if (!getWindow(windowId))
        return nullptr;
    XOverlay* overlay = getOverlay(GetDeskNoFromWndId(windowId));
    if (!overlay)
        return nullptr;
    if (XQuickFileDialog* old = m_fileDialog.data()) {
        m_fileDialog.clear();
        old->cancel(); // its 770 with no data, then it goes
    }
    auto* dialog = qobject_cast<XQuickFileDialog*>(XQmlComponentManage::getInstance()->createItem(kFileDialogUrl, overlay));
    if (!dialog)
        return nullptr;
    // the roots: the panel's own storage, the SD card and the two USB sticks
    static const char* const labels[] = { "hmi", "sd", "usb1", "usb2" };
    QVector<QPair<QString, QString>> roots;
    const ProjectManage* project = ProjectManage::getInstance();
    for (unsigned n = 1; n <= 4; ++n)
        roots.append({ QString::fromLatin1(labels[n - 1]), project->getStorePath(n) });
    dialog->files()->setRoots(roots);
    dialog->setDialogId(windowId);
    dialog->start(path, project->getPrjPath());
    dialog->setOverlay(overlay);
    dialog->setZ(kDateTimeZ);
    dialog->setPosition(QPointF(qMax<qreal>(0, (overlay->width() - dialog->width()) / 2),
        qMax<qreal>(0, (overlay->height() - dialog->height()) / 2)));
    connect(dialog, &XPopup::closed, this, [this, dialog]() {
        if (m_fileDialog == dialog)
            m_fileDialog.clear();
        dialog->deleteLater();
    });
    m_fileDialog = dialog;
    dialog->open();
    return dialog;
}
