#ifndef XWINDOWLOCATOR_H
#define XWINDOWLOCATOR_H

class QQuickItem;

/**
 * How an item finds the window object that holds it (an XWindow or an
 * XLumoDialog), for instance a button handing its press over to its window. The
 * window manager, a layer above the items, implements it and installs itself
 * while it exists; without one, no window is found.
 */
class XWindowLocator {
public:
    virtual ~XWindowLocator() = default;
    /** The window or popup window object \a windowId; null when there is none. */
    virtual QQuickItem* getWindowObj(unsigned windowId) const = 0;

    /** The installed locator, or null. */
    static XWindowLocator* getInstance();
    /** Installs \a locator (null removes the current one). */
    static void install(XWindowLocator* locator);
    /** Removes \a locator if it is the installed one. */
    static void uninstall(XWindowLocator* locator);
};

#endif // XWINDOWLOCATOR_H
