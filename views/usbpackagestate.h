#ifndef USBPACKAGESTATE_H
#define USBPACKAGESTATE_H

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>

class QFileSystemWatcher;
class QmlWindowManage;
class XUsbPackageDialog;

/**
 * What the package family keeps between calls: the package dialogs that are
 * up, and a watcher on the storage folders.
 *
 * One package dialog is up at a time, except that a package chosen in the
 * explorer asks for its confirmation in a dialog above it (cancelling that
 * one goes back to the explorer, confirming closes both). A new dialog
 * replaces the ones up.
 *
 * The watcher follows the project's "disk" folder and the storage folders:
 * a medium appearing (a folder becoming non-empty, a mount point appearing)
 * or going only refreshes what the dialogs show; no event is sent for it.
 */
class UsbPackageState : public QObject {
    Q_OBJECT

public:
    explicit UsbPackageState(QmlWindowManage* windows, QObject* parent = nullptr);
    ~UsbPackageState() override;

    /** The label of storage \a storeNo ("hmi", "sd", "usb1", "usb2"); "" for a number that names none. */
    static QString storageLabel(int storeNo);
    /** True while a package dialog is up. */
    bool anyOpen() const;
    /** The dialogs up, lowest first. */
    QList<XUsbPackageDialog*> dialogs() const;

    /** A medium in storage \a storeNo, for window \a windowId: 2305 (storeNo, 1) when a dialog is up,
     *  else the "plugged" dialog. False for an unknown window or storage. */
    bool plugged(unsigned windowId, int storeNo);
    /** The confirmation for the package at \a path (absolute, or relative to the storage folder);
     *  false for an unknown window or storage, or a path that is no file inside that storage. */
    bool confirm(unsigned windowId, int storeNo, const QString& path);
    /** The package explorer on storage \a storeNo; false for an unknown window or storage. */
    bool explore(unsigned windowId, int storeNo);
    /**
     * Releases removable storage \a storeNo (sd, usb1, usb2): the dialogs on it close, file data
     * is written out, and a mount point there is unmounted. 0 when released (a folder that is no
     * mount point has nothing more to release); -1 for another number, a storage folder that does
     * not exist, or an unmount that failed (busy, not permitted), with a log line.
     */
    int eject(int storeNo);

private:
    /** Makes, places and opens a dialog; \a keep is left up under it (the explorer under its confirmation). */
    XUsbPackageDialog* open(int kind, unsigned windowId, int storeNo, XUsbPackageDialog* keep = nullptr);
    void closeAll(XUsbPackageDialog* except = nullptr);
    void watchStorage();
    void mediaChanged();

    QmlWindowManage* m_windows;
    QFileSystemWatcher* m_watcher;
    QList<QPointer<XUsbPackageDialog>> m_dialogs;
};

#endif // USBPACKAGESTATE_H
