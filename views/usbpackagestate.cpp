#include "views/usbpackagestate.h"

#include "config/projectmanage.h"
#include "platform/logiclayercaller.h"
#include "platform/nlogger.h"
#include "platform/xoverlay.h"
#include "views/qmlwindowmanage.h"
#include "xcomponents/qquick/xqmlcomponentmanage.h"
#include "xcomponents/qquick/xusbpackagedialog.h"

#include <qgui/events.h>
#include <qgui/ids.h>

#include <QDir>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QStorageInfo>

#include <sys/mount.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace {

const QUrl kUrls[] = { QUrl(QStringLiteral("qrc:/usb/QmlExtDevPlugin.qml")),
    QUrl(QStringLiteral("qrc:/usb/QmlPkgDownloadCfm.qml")), QUrl(QStringLiteral("qrc:/usb/QmlPkgFileExplorer.qml")) };

QString storageFolder(int storeNo)
{
    // without the trailing '/': the disk folder is its parent
    return storeNo >= 1 && storeNo <= 4 ? QDir::cleanPath(ProjectManage::getInstance()->getStorePath(unsigned(storeNo)))
                                        : QString();
}

} // namespace

UsbPackageState::UsbPackageState(QmlWindowManage* windows, QObject* parent)
    : QObject(parent)
    , m_windows(windows)
    , m_watcher(new QFileSystemWatcher(this))
{
    connect(m_watcher, &QFileSystemWatcher::directoryChanged, this, &UsbPackageState::mediaChanged);
}

UsbPackageState::~UsbPackageState() = default;

QString UsbPackageState::storageLabel(int storeNo)
{
    static const char* const labels[] = { "hmi", "sd", "usb1", "usb2" };
    return storeNo >= 1 && storeNo <= 4 ? QString::fromLatin1(labels[storeNo - 1]) : QString();
}

bool UsbPackageState::anyOpen() const
{
    return !dialogs().isEmpty();
}

QList<XUsbPackageDialog*> UsbPackageState::dialogs() const
{
    QList<XUsbPackageDialog*> up;
    for (const QPointer<XUsbPackageDialog>& d : m_dialogs) {
        if (d && d->isOpened())
            up.append(d.data());
    }
    return up;
}

bool UsbPackageState::plugged(unsigned windowId, int storeNo)
{
    if (!m_windows->getWindow(windowId) || storageFolder(storeNo).isEmpty())
        return false;
    if (anyOpen()) { // the dialog up is told by the logic layer, through this event
        View_EvtUsbPackage payload { U32(storeNo), 1 };
        LogicLayerCaller::call(windowId, EVT_USB_PKG_DOWNLOAD, &payload);
        mediaChanged();
        return true;
    }
    return open(XUsbPackageDialog::Plugged, windowId, storeNo) != nullptr;
}

bool UsbPackageState::confirm(unsigned windowId, int storeNo, const QString& path)
{
    const QString folder = storageFolder(storeNo);
    if (!m_windows->getWindow(windowId) || folder.isEmpty() || path.isEmpty())
        return false;
    // the package must be a file inside that storage, links followed
    const QString file = QFileInfo(QDir(folder).absoluteFilePath(path)).canonicalFilePath();
    const QString root = QFileInfo(folder).canonicalFilePath();
    if (file.isEmpty() || root.isEmpty() || !file.startsWith(root + QLatin1Char('/')) || !QFileInfo(file).isFile())
        return false;
    XUsbPackageDialog* dialog = open(XUsbPackageDialog::Confirm, windowId, storeNo);
    if (dialog)
        dialog->setPackage(file);
    return dialog != nullptr;
}

bool UsbPackageState::explore(unsigned windowId, int storeNo)
{
    if (!m_windows->getWindow(windowId) || storageFolder(storeNo).isEmpty())
        return false;
    XUsbPackageDialog* explorer = open(XUsbPackageDialog::Explorer, windowId, storeNo);
    if (!explorer)
        return false;
    connect(explorer, &XUsbPackageDialog::packageChosen, this, [this, explorer, windowId, storeNo](const QString& path) {
        XUsbPackageDialog* check = open(XUsbPackageDialog::Confirm, windowId, storeNo, explorer);
        if (!check)
            return;
        check->setPackage(path);
        connect(check, &XUsbPackageDialog::confirmed, explorer, &XPopup::close);
    });
    return true;
}

int UsbPackageState::eject(int storeNo)
{
    auto log = NLog::NLogger::instance()->logger();
    const QString folder = storeNo >= 2 && storeNo <= 4 ? storageFolder(storeNo) : QString();
    const QString canonical = QFileInfo(folder).canonicalFilePath();
    if (canonical.isEmpty() || !QFileInfo(canonical).isDir())
        return -1;
    for (XUsbPackageDialog* d : dialogs()) {
        if (d->storeNo() == storeNo)
            d->close();
    }
    ::sync(); // what was written to the medium is on it before it goes
    const QStorageInfo storage(canonical);
    if (!storage.isValid() || storage.rootPath() != canonical)
        return 0; // no mount point: nothing more to release
    if (::umount2(QFile::encodeName(canonical).constData(), 0) != 0) {
        log->warn("eject {}: unmount failed: {}", canonical.toStdString(), std::strerror(errno));
        return -1;
    }
    log->info("eject {}: unmounted", canonical.toStdString());
    mediaChanged();
    return 0;
}

XUsbPackageDialog* UsbPackageState::open(int kind, unsigned windowId, int storeNo, XUsbPackageDialog* keep)
{
    XOverlay* overlay = m_windows->getOverlay(GetDeskNoFromWndId(windowId));
    if (!overlay)
        return nullptr;
    closeAll(keep);
    auto* dialog = qobject_cast<XUsbPackageDialog*>(XQmlComponentManage::getInstance()->createItem(kUrls[kind], overlay));
    if (!dialog)
        return nullptr;
    dialog->setUp(XUsbPackageDialog::Kind(kind), windowId, storeNo, storageLabel(storeNo), storageFolder(storeNo));
    dialog->setOverlay(overlay);
    dialog->setZ(QmlWindowManage::kDateTimeZ - 1 + (keep ? 0.5 : 0));
    dialog->setPosition(QPointF(qMax<qreal>(0, (overlay->width() - dialog->width()) / 2),
        qMax<qreal>(0, (overlay->height() - dialog->height()) / 2)));
    connect(dialog, &XPopup::closed, dialog, &QObject::deleteLater);
    m_dialogs.append(dialog);
    watchStorage();
    dialog->open();
    return dialog;
}

void UsbPackageState::closeAll(XUsbPackageDialog* except)
{
    for (XUsbPackageDialog* d : dialogs()) {
        if (d != except)
            d->close();
    }
    m_dialogs.removeAll(nullptr);
}

void UsbPackageState::watchStorage()
{
    // the disk folder sees a storage folder appear; each storage folder sees a medium's files
    QStringList paths;
    const QString disk = QFileInfo(storageFolder(1)).absolutePath();
    if (QFileInfo(disk).isDir())
        paths.append(disk);
    for (int n = 1; n <= 4; ++n) {
        const QString folder = storageFolder(n);
        if (QFileInfo(folder).isDir())
            paths.append(folder);
    }
    const QStringList watched = m_watcher->directories();
    for (const QString& p : paths) {
        if (!watched.contains(p))
            m_watcher->addPath(p);
    }
}

void UsbPackageState::mediaChanged()
{
    watchStorage(); // a storage folder that appeared is watched from now on
    for (XUsbPackageDialog* d : dialogs())
        d->refreshMedium();
}
