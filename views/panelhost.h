#ifndef PANELHOST_H
#define PANELHOST_H

class QQuickItem;

/**
 * The item that hosts the panel: its panel control (which desktops, overlays,
 * screenshots and the message box are placed on) and the content item inside
 * it that receives the desktops. The shell, a layer above the window manager,
 * implements it and installs itself when it is constructed; the last one
 * installed is the host.
 */
class PanelHost {
public:
    virtual ~PanelHost() = default;
    /** The panel control, or null before the shell scene is complete. */
    virtual QQuickItem* getGuiRect() const = 0;
    /** The item inside the panel control that receives desktops, or null. */
    virtual QQuickItem* getGuiContent() const = 0;

    /** The installed host, or null (no shell: nothing can be shown). */
    static PanelHost* getInstance();
    static void install(PanelHost* host);
    /** Removes \a host if it is the installed one. */
    static void uninstall(PanelHost* host);
};

#endif // PANELHOST_H
