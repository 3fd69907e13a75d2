#ifndef XLISTVIEWCONTROL_H
#define XLISTVIEWCONTROL_H

#include "xcomponents/qquick/xbasecontrol.h"

#include <QColor>
#include <QFont>
#include <QStringList>
#include <QUrl>

class XListModel;

/**
 * Flat list content of a menu ("qrc:/list/QmlListView.qml" draws it): one
 * entry per row, the current entry highlighted. The list does not choose
 * anything itself: a press on an entry is reported as event 2 and its release
 * as event 3, both with the entry's index (int32) and the widget id (in a
 * drop-down menu, the box's id); after the release itemClicked(index) is
 * emitted. A press below the last entry reports nothing. Dragging scrolls the
 * entries; the release still closes the press with event 3.
 *
 * The rows are hit-tested here, not by the QML list, so that the list in the
 * QML file stays a passive drawing of entries, rowHeight and contentY.
 */
class XListViewControl : public XBaseControl {
    Q_OBJECT
    Q_PROPERTY(QStringList entries READ entries WRITE setEntries NOTIFY entriesChanged)
    Q_PROPERTY(XListModel* listModel READ listModel CONSTANT)
    Q_PROPERTY(int currentIndex READ currentIndex WRITE setCurrentIndex NOTIFY currentIndexChanged)
    Q_PROPERTY(int rowHeight READ rowHeight WRITE setRowHeight NOTIFY styleChanged)
    Q_PROPERTY(qreal contentY READ contentY WRITE setContentY NOTIFY contentYChanged)
    Q_PROPERTY(QFont entryFont READ entryFont WRITE setEntryFont NOTIFY styleChanged)
    Q_PROPERTY(QColor fontColor READ fontColor WRITE setFontColor NOTIFY styleChanged)
    Q_PROPERTY(QColor backColor READ backColor WRITE setBackColor NOTIFY styleChanged)
    Q_PROPERTY(QColor highlightColor READ highlightColor WRITE setHighlightColor NOTIFY styleChanged)
    Q_PROPERTY(QColor frameColor READ frameColor WRITE setFrameColor NOTIFY styleChanged)
    Q_PROPERTY(int borderWidth READ borderWidth WRITE setBorderWidth NOTIFY styleChanged)
    Q_PROPERTY(QUrl bgImage READ bgImage WRITE setBgImage NOTIFY styleChanged)

public:
    explicit XListViewControl(QQuickItem* parent = nullptr);
    ~XListViewControl() override;

    /** The registry's item type number of a menu's flat list. */
    enum { TypeMenuList = 40 };
    /* inherits documentation from base class */
    int getItemType() const override { return TypeMenuList; }

    QStringList entries() const { return m_entries; }
    /** The entries and the current one as a model, for the list drawn in the QML file. */
    XListModel* listModel() const { return m_model; }
    /** Replaces the entries; the list scrolls back to the top and keeps the current index. */
    Q_INVOKABLE void setEntries(const QStringList& entries);
    int count() const { return m_entries.size(); }
    int currentIndex() const { return m_currentIndex; }
    /** The highlighted entry; -1 (or any index without an entry) highlights none. */
    Q_INVOKABLE void setCurrentIndex(int index);
    int rowHeight() const { return m_rowHeight; }
    /** Height of one entry; values below 1 are taken as 1. */
    void setRowHeight(int height);
    qreal contentY() const { return m_contentY; }
    /** Scroll offset of the entries, clamped to what the entries need. */
    void setContentY(qreal y);
    QFont entryFont() const { return m_font; }
    void setEntryFont(const QFont& font);
    QColor fontColor() const { return m_fontColor; }
    void setFontColor(const QColor& color);
    QColor backColor() const { return m_backColor; }
    void setBackColor(const QColor& color);
    QColor highlightColor() const { return m_highlightColor; }
    void setHighlightColor(const QColor& color);
    QColor frameColor() const { return m_frameColor; }
    void setFrameColor(const QColor& color);
    int borderWidth() const { return m_borderWidth; }
    /** Border width in pixels, clamped to 0..32. */
    void setBorderWidth(int width);
    QUrl bgImage() const { return m_bgImage; }
    Q_INVOKABLE void setBgImage(const QUrl& url);

    /** The entry under \a pos (item coordinates), or -1. */
    Q_INVOKABLE int indexAt(const QPointF& pos) const;

Q_SIGNALS:
    void entriesChanged();
    void currentIndexChanged();
    void contentYChanged();
    void styleChanged();
    /** An entry was pressed and released (after event 3). */
    void itemClicked(int index);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseUngrabEvent() override;
    void touchEvent(QTouchEvent* event) override;

private:
    void pressAt(const QPointF& pos);
    void dragTo(const QPointF& pos);
    void releaseAt();
    qreal maxContentY() const;

    XListModel* m_model; // object child
    QStringList m_entries;
    int m_currentIndex = -1;
    int m_rowHeight = 24;
    qreal m_contentY = 0;
    QFont m_font;
    QColor m_fontColor = Qt::black;
    QColor m_backColor = Qt::white;
    QColor m_highlightColor = QColor(0x33, 0x99, 0xFF);
    QColor m_frameColor = Qt::black;
    int m_borderWidth = 1;
    QUrl m_bgImage;

    int m_pressedIndex = -1; // entry whose press was reported, -1 when none
    bool m_pressing = false;
    bool m_dragging = false;
    qreal m_pressY = 0;
    qreal m_pressContentY = 0;
};

#endif // XLISTVIEWCONTROL_H
