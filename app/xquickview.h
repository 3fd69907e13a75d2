#ifndef XQUICKVIEW_H
#define XQUICKVIEW_H

#include <QQuickView>

#include "config/viewscalesource.h"

class FramePacer;

/**
 * The top-level view of the panel. Besides QQuickView's operations it has
 *  - the resize mode 2 (SizeRootObjectToViewFirst): on every resize the scene's
 *    root is sized to the window before the resize is handled;
 *  - the panel zoom (rootItemScale), following the shell's zoom choice;
 *  - physical keys reported to the logic layer as events 259 (pressed) and
 *    260 (released) with id 0, before they reach the scene. Auto-repeated key
 *    events are dropped entirely; synthesised keys (native scan code 0, such as
 *    those of the on-screen keyboard) reach the scene but are not reported;
 *  - frame pacing (FramePacer): an update request never makes the GUI thread
 *    wait for the frame before it to be rendered.
 */
class XQuickView : public QQuickView, public ViewScaleSource {
    Q_OBJECT
    Q_PROPERTY(double rootItemScale READ rootItemScale WRITE setRootItemScale NOTIFY rootItemScaleChanged)

public:
    enum XResizeMode {
        SizeViewToRootObject = QQuickView::SizeViewToRootObject,
        SizeRootObjectToView = QQuickView::SizeRootObjectToView,
        SizeRootObjectToViewFirst = 2
    };
    Q_ENUM(XResizeMode)

    explicit XQuickView(QWindow* parent = nullptr);
    ~XQuickView() override;

    void setXResizeMode(XResizeMode mode);
    XResizeMode xResizeMode() const { return m_resizeMode; }

    double rootItemScale() const override;
    QObject* scaleNotifier() override { return this; }
    /** Sets the panel control's scale; emits nothing (onChangeZoom does). */
    void setRootItemScale(double scale);
    int zoomIndex() const { return m_zoomIndex; }
    /** The frame pacer, null when QGUI_FRAME_PACING=0. */
    FramePacer* framePacer() const { return m_pacer; }

    /** The key code reported for a key event: the first character of its text in Latin-1 (a
     *  signed byte), or Escape 27, Backspace 8, Return/Enter 13, Delete 127, else the Qt key. */
    static int reportedKeyCode(const QKeyEvent* event);

public Q_SLOTS:
    /** A zoom choice: \a percent is a number as text ("150"); the scale becomes percent / 100. */
    void onChangeZoom(int index, const QString& percent);

Q_SIGNALS:
    void rootItemScaleChanged(double scale);
    void beforeEvent(QEvent* event);

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

private:
    /** True when the key event must go no further. */
    bool reportKey(QKeyEvent* event, int code);

    FramePacer* m_pacer = nullptr;
    XResizeMode m_resizeMode = SizeRootObjectToView;
    int m_zoomIndex = -1;
};

#endif // XQUICKVIEW_H
