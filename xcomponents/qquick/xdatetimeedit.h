#ifndef XDATETIMEEDIT_H
#define XDATETIMEEDIT_H

#include "xcomponents/qquick/xbasecontrol.h"
#include "xcomponents/qquick/xquickimage.h"

#include <QColor>
#include <QPointer>
#include <QUrl>

class QQuickText;

/**
 * The clock field: a date/time text centred vertically in the field, over an
 * optional background picture. The field does not edit its text: a press is
 * reported as events 2 and 3 (XBaseControl), the logic layer opens the
 * date/time popup, the popup's choice comes back to onOkButtonClicked() and is
 * sent on as event EVT_DATETIME_OK; the logic layer then writes the accepted
 * text back with setText.
 *
 * While the grey flag is set the text is drawn "gray"; the configured colour
 * returns when it is cleared. The slash state hides the text.
 */
class XDateTimeEdit : public XBaseControl {
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(QColor fontColor READ fontColor WRITE setFontColor NOTIFY fontColorChanged)
    Q_PROPERTY(int fontAlignment READ fontAlignment WRITE setFontAlignment NOTIFY fontAlignmentChanged)
    Q_PROPERTY(int rowSpace READ rowSpace WRITE setRowSpace NOTIFY rowSpaceChanged)
    Q_PROPERTY(bool inputFlag READ inputFlag WRITE setInputFlag NOTIFY inputFlagChanged)

public:
    explicit XDateTimeEdit(QQuickItem* parent = nullptr);
    ~XDateTimeEdit() override;

    /** The registry's item type number of the clock field. */
    enum { TypeDateTime = 12 };
    /* inherits documentation from base class */
    int getItemType() const override { return TypeDateTime; }

    Q_INVOKABLE QString text() const;
    Q_INVOKABLE void setText(const QString& text);
    QColor fontColor() const { return m_fontColor; }
    Q_INVOKABLE void setFontColor(const QColor& color);
    int fontAlignment() const { return m_fontAlignment; }
    void setFontAlignment(int align);
    int rowSpace() const { return m_rowSpace; }
    void setRowSpace(int space);
    /** Shows the picture at \a url behind the text (the picture item is made on first use). */
    Q_INVOKABLE void setSource(const QUrl& url);
    QUrl source() const;

    bool inputFlag() const { return m_inputFlag; }
    /** Marks the field as the target of the popup's entry (stored; the field looks the same). */
    Q_INVOKABLE void setInputFlag(bool on);
    Q_INVOKABLE void setInputFlag() { setInputFlag(true); }
    Q_INVOKABLE void clearInputFlag() { setInputFlag(false); }
    Q_INVOKABLE void setInputMode(bool on) { setInputFlag(on); }

    Q_INVOKABLE void setGrayFlag(bool on) override;
    Q_INVOKABLE void setImageVisible(bool visible) override;
    Q_INVOKABLE void showSlashItem() override;
    Q_INVOKABLE void hideSlashItem() override;
    /** The colour wanted with setItemBrush is the text colour (View_ChangeFontColor). */
    Q_INVOKABLE void setItemBrush(const QBrush& brush) override;

    QQuickText* textItem() const { return m_text; }
    /** The background picture, null until the first setSource. */
    XQuickImage* imageItem() const { return m_image.data(); }

public Q_SLOTS:
    /**
     * The date/time popup's choice ("yyyy-MM-dd hh:mm:ss"): sent as EVT_DATETIME_OK with the
     * widget id and the NUL-terminated UTF-8 text, valid for the call. The shown text stays.
     */
    void onOkButtonClicked(const QString& text);

Q_SIGNALS:
    void textChanged();
    void fontColorChanged();
    void fontAlignmentChanged();
    void rowSpaceChanged();
    void inputFlagChanged();

protected:
    void geometryChanged(const QRectF& newGeometry, const QRectF& oldGeometry) override;

private:
    void applyColor();
    void applyLineHeight();

    QQuickText* m_text = nullptr; // child item, owned through the item tree
    QPointer<XQuickImage> m_image;
    QColor m_fontColor = Qt::black;
    int m_fontAlignment = Qt::AlignHCenter;
    int m_rowSpace = 0;
    bool m_inputFlag = false;
};

#endif // XDATETIMEEDIT_H
