#ifndef PANELFIXTURE_H
#define PANELFIXTURE_H

#include <QPoint>
#include <QStringList>
#include <QSize>

#include <memory>

#include <qgui/qgui.h>

class QQuickItem;
class QTouchDevice;
class XQuickView;

/**
 * A running panel for tests: the top-level view with the shell scene, the
 * registry and window manager wired to it, and desktop 1 created, as after
 * View_MainThreadLoop's start-up (without its event loop: tests drive events).
 * Presses are sent as real mouse and touch events to the view.
 */
class PanelFixture {
public:
    PanelFixture();
    ~PanelFixture();

    /** Shows the panel and creates desktop 1 of \a size; false when the scene did not load. */
    bool start(QSize size = QSize(800, 480));
    /** Destroys the registry (and every widget) and the view. */
    void stop();

    XQuickView* view() const { return m_view.get(); }
    static unsigned wid(unsigned desk, unsigned n) { return (desk << 16) | n; }

    /** View_SwitchWindow with a plain coloured window. */
    int switchWindow(unsigned windowId, const Rect& rect, unsigned color = 0xFFE0E0E0u);
    /** View_PopupWindow with a title bar and its buttons. */
    int popup(unsigned windowId, const Rect& rect, int z = 10, bool modal = false, unsigned buttons = 0x7,
        const char* title = "popup");

    /** A plain registered control (it reports its own presses as events 2 and 3) placed in the
     *  window \a windowId at \a pos, 80 x 50. */
    static class XBaseControl* control(unsigned id, unsigned windowId, QPointF pos = QPointF(50, 50));

    /** The scene position of a point of \a item, as the view receives it. */
    QPoint scenePoint(const QQuickItem* item, QPointF local) const;
    QPoint sceneCenter(const QQuickItem* item) const;
    void click(QPoint scenePos);
    /** Clicks the on-screen keyboard's keys by name ("4", "q", "clear", "enter"); false when one is not shown. */
    bool typeOnKeyboard(const QStringList& keys);
    void touch(QPoint scenePos);
    /** The fixture's touch screen, for gestures of several fingers. */
    QTouchDevice* touchDevice() const { return m_touch; }
    void press(QPoint scenePos);
    void release(QPoint scenePos);
    /** Lets queued calls and deferred deletions run. */
    static void settle();

private:
    std::unique_ptr<XQuickView> m_view;
    QTouchDevice* m_touch = nullptr;
};

#endif // PANELFIXTURE_H
