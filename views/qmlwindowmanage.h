#ifndef QMLWINDOWMANAGE_H
#define QMLWINDOWMANAGE_H

#include <QColor>
#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>

#include "platform/xpopup.h"
#include "xcomponents/qquick/xquickfiledialog.h"
#include "xcomponents/qquick/xwindowlocator.h"

#include <qgui/records_window.h>

class QQmlEngine;
class QQuickItem;
class XLumoDialog;
class XOverlay;
class XPopup;
class XWindow;
class PressWatcher;
class LifeCycleManager;

/**
 * The panel's screens: desktops (one overlay per desktop number on the shell's
 * panel control), the windows shown on a desktop, the popup windows above them,
 * and the panel-wide layers: the message box, the busy bar and the dimming
 * layer. Stacking, bottom to top: desktop and its windows; popup windows at
 * their own z; the message box at 2147483645; the dimming layer at 2147483647.
 * While it exists it is the window locator of the items (XWindowLocator).
 */
class QmlWindowManage : public QObject, public XWindowLocator {
    Q_OBJECT

public:
    static constexpr double kLighterZ = 2147483647.0;
    static constexpr double kMessageZ = 2147483645.0;
    static constexpr double kBusyZ = 2147483646.0;
    static constexpr double kDateTimeZ = 2147483644.0;

    explicit QmlWindowManage(LifeCycleManager* lifeCycle, QObject* parent = nullptr);
    ~QmlWindowManage() override;

    // desktops
    /** Sizes the view, makes the desktop's overlay, dimming layer and item; false when there is
     *  no shell to place it in. */
    bool addDeskTop(const Size& size, unsigned n);
    QQuickItem* getDeskTop() const;
    QQuickItem* getDeskTop(unsigned n) const;
    XOverlay* getOverlay(unsigned n) const;
    bool showDesktop(unsigned n, bool show);
    /** Closes the desktop's popups (their widgets go to the caches and leave \a idHash), its
     *  windows, overlay and dimming layer. */
    bool closeDesktop(unsigned n, QHash<unsigned, QQuickItem*>& idHash);
    unsigned currentDesktop() const { return m_currentDesk; }

    // windows and popup windows
    /** Creates and shows a window from \a rec; null when its desktop does not exist. */
    XWindow* addWindow(const View_Window* rec);
    XLumoDialog* popupWindow(const View_Window* rec, unsigned windowId, const View_Popup* popup, int flags);
    /** The content item of the window or popup window \a windowId (windows first); null if none. */
    QQuickItem* getWindow(unsigned windowId) const;
    /** The window or popup window object itself. */
    QQuickItem* getWindowObj(unsigned windowId) const override;
    XWindow* findWindow(unsigned windowId) const;
    XLumoDialog* findDialog(unsigned windowId) const;
    /** Detaches a window (deleted later) or closes a popup window (deleted later). */
    bool removeWindow(unsigned windowId);
    /** Closes a popup window (its widgets go to the caches and leave \a idHash) or removes a
     *  window. */
    bool closeWindow(unsigned windowId, QHash<unsigned, QQuickItem*>& idHash);
    QQuickItem* currentWindow() const;
    QList<XWindow*> windows() const;
    QList<XLumoDialog*> dialogs() const;

    // panel-wide layers
    void popMsg(const QString& text, unsigned life);
    QQuickItem* messageBox() const { return m_msgBox.data(); }
    void setLight(int percent);
    XPopup* lighter(unsigned desk) const;
    PressWatcher* pressWatcher() const { return m_pressWatcher; }
    void startBarAnimation(unsigned id, bool modal);
    void stopBarAnimation();
    QQuickItem* busyBar() const { return m_busyBar.data(); }

    // date/time popup
    /**
     * Opens the date/time popup for \a widget on the current desktop, preset from \a text
     * ("yyyy-MM-dd hh:mm:ss"; any other text presets the current date and time). The popup's
     * onOkClicked(QString) goes to the widget's onOkButtonClicked(QString) until the popup
     * closes. A popup already open is closed first: there is never more than one. Null, and
     * nothing opens, when \a widget has no such slot or there is no desktop.
     */
    XPopup* popupDateTimeWindow(QQuickItem* widget, const QString& text);
    XPopup* dateTimeWindow() const { return m_dateTime.data(); }
    /**
     * The file dialog for window \a windowId (on its desktop), rooted in the project's storage folders
     * and started at \a path (see XQuickFileDialog::start); its 770 carries \a windowId. A dialog still
     * open is cancelled first. Null for an unknown window.
     */
    XQuickFileDialog* popupFileDialog(unsigned windowId, const QString& path);
    XQuickFileDialog* fileDialog() const { return m_fileDialog.data(); }

    QQmlEngine* getEngine() const;
    /** The item desktops are placed in (the shell's panel content), or null without a shell. */
    QQuickItem* panel() const;

Q_SIGNALS:
    /** The dimming colour changed (transparent at full brightness); the keyboard's layer follows it. */
    void lightChanged(const QColor& color);

private:
    QQuickItem* createBackground(QQuickItem* parent, const View_Window* rec);
    QQuickItem* createTitleBar(XLumoDialog* dlg, const View_Window* rec, const View_Popup* popup, int flags);

    LifeCycleManager* m_lifeCycle; // not owned
    QHash<unsigned, QPointer<XOverlay>> m_overlays;
    QHash<unsigned, QPointer<QQuickItem>> m_desktops;
    QHash<unsigned, QPointer<XPopup>> m_lighters;
    QList<QPointer<XWindow>> m_windows;
    QList<QPointer<XLumoDialog>> m_dialogs;
    QPointer<XPopup> m_msgBox;
    QPointer<QQuickItem> m_busyBar;
    QPointer<XPopup> m_dateTime;
    QPointer<XQuickFileDialog> m_fileDialog;
    PressWatcher* m_pressWatcher = nullptr; // owned (child)
    unsigned m_currentDesk = 0;
    bool m_hasDesk = false;
};

#endif // QMLWINDOWMANAGE_H
