#ifndef XTABLEVIEWCONTROL_H
#define XTABLEVIEWCONTROL_H

#include "xcomponents/qquick/xbasecontrol.h"
#include "xcomponents/qquick/xcommontableview.h"
#include "xcomponents/qquick/xlistcontent.h"
#include "xcomponents/qquick/xsettingtoolcontrol.h"
#include "xcomponents/qquick/xtableheader.h"
#include "xcomponents/qquick/xtablemodel.h"

#include <QColor>
#include <QFont>
#include <QPointer>
#include <QStringList>
#include <QVector>

class QQmlEngine;
class XOverlay;
class XTableFilterDlg;
class XTableFilterMenu;


/**
 * A table: the header row, the body of cells the logic layer fills page by
 * page, highlighting and the edit state. Every list kind of the panel is one of
 * these, set up from its record.
 *
 * A press and a release anywhere on the control are sent as events 2 and 3 with
 * the cell under the finger (View_EvtCell; -1 outside the cells), the release
 * naming the cell where the finger left. The body's scrolling is sent as 522
 * (started moving) and 521 (stopped).
 *
 * While the sort and filter menus are on, a tap on a header title opens the
 * column's XTableFilterMenu on the control's overlay; its filter entries open
 * the XTableFilterDlg, whose values are typed on the keyboard. Both are made
 * on first use and closed when the control is hidden or leaves its window.
 */
class XTableViewControl : public XBaseControl, public XListContent {
    Q_OBJECT

public:
    /** One column as set up. */
    struct Column {
        QString title;
        int width = 0; /**< <= 0: shares what the fixed columns leave */
        Qt::Alignment align = Qt::AlignCenter;
        int dataType = 12; /**< ColDataType code */
        QFont font;
        QColor color { Qt::black };
        bool hasFont = false;
        bool hidden = false;
        bool editable = false;
    };
    /** The whole set-up, converted from the interface record. */
    struct Setup {
        QVector<Column> columns;
        bool hideHeader = false;
        bool filter = false;
        bool singleLine = false;
        bool selectRow = false;
        bool toolbar = false; /**< the paging bar under the body */
        bool scrollBar = true; /**< the vertical scroll bar of the body */
        bool hidePageButtons = false;
        bool hidePageNum = false;
        bool hideTotalNum = false;
        int headerHeight = 0; /**< <= 0: from the header font */
        int rowHeight = 0; /**< <= 0: from the content font */
        QFont headerFont;
        QColor headerTextColor { Qt::white };
        QFont contentFont;
        QColor contentColor { Qt::black };
        QColor headerColor { 0x53, 0x7B, 0xAD };
        QColor backColor { Qt::white };
        QColor altBackColor { Qt::white };
        QColor highlightColor { 0x6E, 0xA2, 0xE2 };
        QColor gridColor { 0xC8, 0xCC, 0xD2 };
        int gridWidth = 1;
        QColor borderColor { Qt::transparent };
        int borderWidth = 0;
    };

    explicit XTableViewControl(QQuickItem* parent = nullptr);
    ~XTableViewControl() override;

    /** Builds the header and the body in \a engine; false when the QML parts cannot be made. */
    bool initialze(const Setup& setup, QQmlEngine* engine);

    XTableHeader* header() const { return m_header; }
    XCommonTableView* view() const { return m_view; }
    XTableModel* model() const { return m_model; }
    /** The paging bar, or null without one. */
    XSettingToolControl* toolBar() const { return m_toolBar; }
    /** The body's vertical scroll bar, or null without one. */
    QQuickItem* scrollBar() const { return m_scrollBar; }
    /** The layer the sort/filter menu and the filter dialog open on (that of the control's desktop). */
    void setOverlay(XOverlay* overlay);
    /** Opens the sort/filter menu of \a column under its title; false when the menus are off, the
     *  column is unknown or there is no overlay. */
    Q_INVOKABLE bool openFilterMenu(int column);
    /** Opens the filter dialog of \a column with \a op as its first operator; false as openFilterMenu. */
    bool openFilterDlg(int column, int op = -1);
    /** The sort/filter menu, or null before its first use. */
    XTableFilterMenu* filterMenu() const;
    /** The filter dialog, or null before its first use. */
    XTableFilterDlg* filterDialog() const;
    /** The paging bar's numbers: total records, current page, total pages. */
    void setBrowseBoxParams(unsigned total, unsigned page, unsigned pages);

    /** The text the keyboard confirmed for what asked it (the page entry or the open cell). */
    Q_INVOKABLE void acceptKeyboardText(const QString& text);
    /** The keyboard hid: an open cell is forgotten. */
    Q_INVOKABLE void keyboardClosed();
    int columnCount() const override { return m_setup.columns.size(); }
    const Column& column(int c) const { return m_setup.columns.at(c); }

    /** New titles, one per column (missing ones empty). */
    void updateHeader(const QStringList& titles) override;
    /** Replaces the page. */
    void updateData(const QVector<QVector<XTableCell>>& rows) override;
    /** Fonts per column, in column order. */
    void changeListCtrlFont(const QVector<QPair<QFont, QColor>>& fonts);
    /** Shows or hides a column; unknown columns are ignored. */
    void setTableColVisible(int column, bool visible) override;
    /** Shows or hides the text of \a row. */
    void setRowTextVisible(int row, bool visible);
    /**
     * Ignored while a cell is being edited. A negative row or column clears the highlighted cell
     * and sets the highlighted row to \a row (nothing more for a negative row); otherwise the
     * cell (column, row) is highlighted and scrolled into view when it is not.
     */
    void changeSelectRow(int row, int column);
    /** Shows or hides the header's sort and filter menus. */
    Q_INVOKABLE void setFilter(bool on);
    bool isMoving() const { return m_moving; }
    /** Sends 522 when \a moving, 521 when not, on every change. */
    void setIsMoving(bool moving);

Q_SIGNALS:
    /** The table needs the keyboard (page entry, or a cell in edit mode). */
    void keyboardRequested(int layout, int validator, const QString& text);
    /** The keyboard opened for this table should go. */
    void keyboardHideRequested();

public:
    /** Widths of \a columns in \a width: fixed widths kept, the others sharing what is left; hidden ones 0. */
    static QVector<qreal> columnWidths(const QVector<Column>& columns, qreal width);
    /** Column widths as laid out now (0 for hidden columns). */
    QVector<qreal> getActualColumnWidth() const;
    int rowHeight() const;
    int headerHeight() const;

protected:
    void geometryChanged(const QRectF& newGeometry, const QRectF& oldGeometry) override;
    bool childMouseEventFilter(QQuickItem* item, QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void touchEvent(QTouchEvent* event) override;
    /** Hidden, or taken out of its window: the menu and the dialog close. */
    void itemChange(ItemChange change, const ItemChangeData& data) override;

private:
    void calcColumnWidth();
    void layoutParts();
    void updateMinimumRows();
    void sendCell(int code, const QPointF& scenePos, ulong timestamp);
    void openCell(const QPoint& cell);
    void watchHeader(int code, const QPointF& scenePos);
    void closeFilterPopups();
    int toolBarHeight() const;

    enum class KeyboardUse { None, PageEntry, Cell, FilterValue1, FilterValue2 };

    /** The press or release sent last. */
    struct SentPress {
        int code = 0;
        QPointF pos;
        ulong timestamp = 0;
    };

    Setup m_setup;
    XTableModel* m_model;
    QPointer<XTableHeader> m_header;
    QPointer<XCommonTableView> m_view;
    bool m_moving = false;
    SentPress m_lastSent;
    QPointer<XSettingToolControl> m_toolBar;
    QPointer<QQuickItem> m_scrollBar;
    KeyboardUse m_keyboardUse = KeyboardUse::None;
    QPointer<XOverlay> m_overlay;
    QPointer<XTableFilterMenu> m_filterMenu;
    QPointer<XTableFilterDlg> m_filterDlg;
    int m_headerPressColumn = -1; /**< the header title under the finger's press, -1 for none */
};

#endif // XTABLEVIEWCONTROL_H
