#ifndef XQUICKCOMBOBOX_H
#define XQUICKCOMBOBOX_H

#include "xcomponents/qquick/xbasecontrol.h"

#include <QColor>
#include <QFont>
#include <QPointer>
#include <QUrl>

class XPopup;

/**
 * The drop-down box of a menu ("qrc:/QmlCombox.qml" draws it): the display
 * text, the arrow strip and a pop-up (XPopup, modal, as wide as the box,
 * closing on a press outside, z 2) that holds the content view (the flat list
 * or the tree, the box's "view").
 *
 * The box does not open itself. While the pop-up is closed a press on the box
 * is reported as event 2 and the release as event 3 (open(true) / open(false):
 * the code is 3 minus the flag), and the logic layer opens the pop-up with
 * View_MenuPopupDropdownBox. While the pop-up is open a press on the box
 * reports nothing and the release closes the pop-up. A click on an entry of
 * the content (itemClicked) closes the pop-up after the content has reported
 * it.
 */
class XQuickComboBox : public XBaseControl {
    Q_OBJECT
    Q_PROPERTY(XPopup* popup READ popup CONSTANT)
    Q_PROPERTY(int popHeight READ popHeight WRITE setPopHeight NOTIFY popHeightChanged)
    Q_PROPERTY(QColor fontColor READ fontColor WRITE setFontColor NOTIFY styleChanged)
    Q_PROPERTY(QColor boxColor READ boxColor WRITE setBoxColor NOTIFY styleChanged)
    Q_PROPERTY(int borderWidth READ borderWidth WRITE setBorderWidth NOTIFY styleChanged)
    Q_PROPERTY(QQuickItem* view READ view WRITE setView NOTIFY viewChanged)
    Q_PROPERTY(QString displayText READ displayText WRITE setDisplayText NOTIFY displayTextChanged)
    Q_PROPERTY(QUrl displayImage READ displayImage WRITE setDisplayImage NOTIFY displayImageChanged)
    Q_PROPERTY(QFont displayFont READ displayFont WRITE setDisplayTextFont NOTIFY styleChanged)
    Q_PROPERTY(int displayHAlign READ displayHAlign NOTIFY styleChanged)
    Q_PROPERTY(int displayVAlign READ displayVAlign NOTIFY styleChanged)
    Q_PROPERTY(int displayMargin READ displayMargin NOTIFY styleChanged)

public:
    explicit XQuickComboBox(QQuickItem* parent = nullptr);
    ~XQuickComboBox() override;

    /** The registry's item type number of a drop-down menu. */
    enum { TypeComboBox = 41 };
    /* inherits documentation from base class */
    int getItemType() const override { return TypeComboBox; }

    XPopup* popup() const { return m_popup; }
    int popHeight() const { return m_popHeight; }
    /** Height of the pop-up in pixels (at least 1). */
    void setPopHeight(int height);
    /** True when the pop-up's height follows the number of entries (set by the creator). */
    bool fitsEntries() const { return m_fitsEntries; }
    void setFitsEntries(bool fits) { m_fitsEntries = fits; }
    QColor fontColor() const { return m_fontColor; }
    Q_INVOKABLE void setFontColor(const QColor& color);
    QColor boxColor() const { return m_boxColor; }
    void setBoxColor(const QColor& color);
    int borderWidth() const { return m_borderWidth; }
    void setBorderWidth(int width);

    QQuickItem* view() const { return m_view.data(); }
    /** Puts \a view into the pop-up, filling it; its itemClicked closes the pop-up. The box owns it. */
    void setView(QQuickItem* view);

    QString displayText() const { return m_displayText; }
    Q_INVOKABLE void setDisplayText(const QString& text);
    QUrl displayImage() const { return m_displayImage; }
    /** The picture shown before the display text (the chosen entry's); an empty URL shows none. */
    Q_INVOKABLE void setDisplayImage(const QUrl& url);
    QFont displayFont() const { return m_displayFont; }
    void setDisplayTextFont(const QFont& font);
    /** Alignment of the display text (QGuiAlign bits) and its margin from an aligned edge. */
    void setDisplayTextAlign(unsigned align, int margin);
    int displayHAlign() const { return m_hAlign; }
    int displayVAlign() const { return m_vAlign; }
    int displayMargin() const { return m_margin; }

    /** Places the pop-up under the box: the box's bottom-left corner, truncated to whole pixels,
     *  mapped into the pop-up's overlay. */
    Q_INVOKABLE void placePopup();
    /** Opens the pop-up under the box; false when there is no overlay to show it on. */
    Q_INVOKABLE bool openPopup();
    Q_INVOKABLE bool isPopupOpen() const;

    /** The colour wanted with setItemBrush is the box colour. */
    Q_INVOKABLE void setItemBrush(const QBrush& brush) override;

Q_SIGNALS:
    void popHeightChanged();
    void styleChanged();
    void viewChanged();
    void displayTextChanged();
    void displayImageChanged();

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void touchEvent(QTouchEvent* event) override;
    /** A box hidden or taken out of its window (window closed, widget deleted) closes its pop-up. */
    void itemChange(ItemChange change, const ItemChangeData& data) override;

private:
    /** Press (true) or release (false) on the box while the pop-up is closed: event 3 - flag. */
    void open(bool opened);
    void pressed();
    void released();

    XPopup* m_popup = nullptr; // object child; shown on the overlay of the box's desktop
    QPointer<QQuickItem> m_view;
    int m_popHeight = 120;
    QColor m_fontColor = Qt::black;
    QColor m_boxColor = Qt::white;
    int m_borderWidth = 1;
    QString m_displayText;
    QUrl m_displayImage;
    QFont m_displayFont;
    int m_hAlign = Qt::AlignLeft;
    int m_vAlign = Qt::AlignVCenter;
    int m_margin = 4;
    bool m_fitsEntries = false;
    bool m_pressedWhileOpen = false;
    bool m_pressed = false;
};

#endif // XQUICKCOMBOBOX_H
