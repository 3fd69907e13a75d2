#ifndef VIRTUALKEYBOARDMANAGER_H
#define VIRTUALKEYBOARDMANAGER_H

#include <QColor>
#include <QObject>
#include <QPointer>
#include <QRectF>
#include <QString>
#include <QValidator>

#include <optional>

class QQuickWindow;

#include <qgui/records_input.h>

#include <QQuickItem>

class XVkbInterface;

/**
 * The on-screen keyboard around its keys: the entry line ("PopupTextFiled.qml",
 * object "_popupInput", its line "_innerInput") shown above the keyboard, the
 * mask, validator and input hints of each layout type, the allowed range shown
 * as the line's placeholder, moving the panel out of the keyboard's way, and the
 * confirmation (vkbEntered) or hiding (vkbHid) that the registry turns into
 * events for the widget that asked for the keyboard.
 *
 * The keys come from the keyboard of QVkbPluginLoader; they type into the entry
 * line, which has the focus while the keyboard is shown. The line and the
 * keyboard sit in a layer of their own above the panel (and above its dimming,
 * whose colour the layer takes through setLight), so the panel can be moved
 * under them.
 *
 * One manager per process (instance()), made on first use; everything it shows
 * is made again when the panel it was shown on is gone.
 */
class VirtualKeyboardManager : public QObject {
    Q_OBJECT

public:
    static VirtualKeyboardManager* instance();

    /** Makes (once per panel) the keyboard layer, the entry line and the keyboard item over the
     *  window of \a root; \a root is the panel item moved by updateGuiRect. */
    void init(QQuickItem* root);
    bool isInitialised() const;

    /**
     * Opens the keyboard: type \a type sets mask, validator, hints and backspace behaviour,
     * \a text goes into the entry line (all selected; for the date and time types, empty
     * means now, and the cursor goes to 0). \a target, when given, receives the confirmed
     * text (its "text" property, else its setText method). \a anchor (panel y of the edited
     * field, 0 for none) is kept while the keyboard stays open.
     */
    void popupVirtualKeyBord(VkbLayoutType type, QObject* target, const QString& text, int anchor);
    /** Opens the keyboard of \a type without touching the entry line's text. */
    void popupRawVKB(VkbLayoutType type);
    void showVkb(bool show);
    void hideVkb();
    /** True while the keyboard is open (not while it is only being prepared). */
    bool isShown() const { return m_shown; }
    bool isVisible() const;
    /** The keyboard's rectangle in the layer (window coordinates); empty before init. */
    QRectF getVkbRect() const;
    void setVKBPos(const QPointF& pos);
    void showVKBDragBar(bool show);
    /** Colour laid over the entry line and the keyboard (transparent: none). Input still works. */
    void setLight(const QColor& color);
    QColor light() const { return m_light; }

    void setInputPanelType(VkbLayoutType type, QString text);
    void changeValidator(TextValidator kind);
    /** Range of the installed signed validator, shown as "[ min , max ]" in its base. */
    void setRangeI(qint64 min, qint64 max);
    /** Range of the installed unsigned validator, shown as "[ min , max ]" in its base. */
    void setRangeU(quint64 min, quint64 max);
    /** Range of the installed double validator, shown with 6 significant digits. */
    void setRangeD(double min, double max);
    /** Shows "[ min , max ]" as the placeholder when \a show, else empties it. */
    void setDisplayRange(bool show, const QString& min, const QString& max);
    void setInputMethodHints(VkbLayoutType type);
    void setBackspaceBehavior(VkbLayoutType type);
    /** \a object receives the next confirmed text; forgotten when destroyed (the keyboard hides). */
    void setActiveText(QObject* object);
    QObject* activeText() const { return m_activeText; }
    /**
     * Moves the panel vertically so that a field at \a anchor stays visible (see the README).
     * With a shell whose panel has a "keyboardShift" property, that property carries the move
     * and the shell keeps placing the panel (centred in a resized or rotated window).
     */
    void updateGuiRect(int anchor);

    /** The entry line and its popup; null before init. */
    QQuickItem* inputLine() const { return m_input.data(); }
    QQuickItem* popup() const { return m_popup.data(); }
    QQuickItem* keyboardItem() const;
    QQuickItem* guiRoot() const { return m_root.data(); }
    QValidator* validator() const { return m_validator.data(); }
    int anchor() const { return m_anchor; }
    qreal baseY() const { return m_baseY; }
    /** True when \a scenePos lies on the keyboard or its entry line while they are shown. */
    bool containsScenePoint(const QPointF& scenePos) const;
    /** True during the first frames after start, while the keyboard is drawn almost transparent. */
    bool isWarmingUp() const { return m_warming; }

    static constexpr const char* popupUrl = "qrc:/vkb/PopupTextFiled.qml";

public Q_SLOTS:
    /** The confirmation: writes the active text object, emits vkbEntered, hides the keyboard. */
    void onVkbEditFinished(const QString& text);

Q_SIGNALS:
    void vkbEntered(const QString& text);
    void vkbHid();

private:
    VirtualKeyboardManager();
    XVkbInterface* vkb() const;
    void placePopup();
    void warmUp(QQuickWindow* window);
    void showGlyphSample(bool latinSupplement);
    void shiftPanel(qreal dy);
    void endWarmUp();
    void installValidator(QValidator* validator);
    void onActiveTextDestroyed();

    QPointer<QQuickItem> m_root;
    QPointer<QQuickItem> m_layer;
    QPointer<QQuickItem> m_popup;
    QPointer<QQuickItem> m_input;
    QPointer<QQuickItem> m_lightCover; // over the keyboard
    QPointer<QQuickItem> m_glyphSample; // every character the keys and the line show, while warming up
    std::optional<QString> m_placeholder; // the range hint, kept while warming up
    QPointer<QValidator> m_validator;
    QPointer<QObject> m_activeText;
    QMetaObject::Connection m_activeConnection;
    QColor m_light { Qt::transparent };
    qreal m_baseY = 0;
    int m_anchor = 0;
    bool m_shown = false;
    bool m_warming = false;
};

#endif // VIRTUALKEYBOARDMANAGER_H
