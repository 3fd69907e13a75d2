#include "xcomponents/qquick/xtableviewcontrol.h"

#include "platform/logiclayercaller.h"
#include "platform/xoverlay.h"
#include "xcomponents/qquick/xcommontableview.h"
#include "xcomponents/qquick/xqmlcomponentmanage.h"
#include "xcomponents/qquick/xquickheadermodel.h"
#include "xcomponents/qquick/xsettingtoolcontrol.h"
#include "xcomponents/qquick/xtablefilterdlg.h"
#include "xcomponents/qquick/xtablefiltermenu.h"
#include "xcomponents/qquick/xtableheader.h"
#include "xcomponents/qquick/xtablemodel.h"

#include <QtQuickTemplates2/private/qquickscrollbar_p.h>

#include <QFontMetrics>
#include <QtMath>
#include <QMouseEvent>
#include <QQmlEngine>
#include <QTouchEvent>

#include <qgui/events.h>

namespace {
constexpr int kMaxColumns = 1024;
const char* const kCellUrl = "qrc:/list/QmlTableCell.qml";
const char* const kHeaderCellUrl = "qrc:/list/QmlTableHeaderCell.qml";
const char* const kToolBarUrl = "qrc:/list/QmlSettingToolDlg.qml";
const char* const kScrollBarUrl = "qrc:/list/QmlTableScrollBar.qml";
const char* const kFilterMenuUrl = "qrc:/list/QmlTableFilterMenu.qml";
const char* const kFilterDlgUrl = "qrc:/list/QmlTableFilterDlg.qml";
} // namespace

XTableViewControl::XTableViewControl(QQuickItem* parent)
    : XBaseControl(parent)
    , m_model(new XTableModel(this))
{
    setFiltersChildMouseEvents(true);
    setAcceptTouchEvents(false); // touches arrive as synthesized mouse events, watched like them
    setClip(true);
}

XTableViewControl::~XTableViewControl() = default;

bool XTableViewControl::initialze(const Setup& setup, QQmlEngine* engine)
{
    m_setup = setup;
    if (m_setup.columns.size() > kMaxColumns)
        m_setup.columns.resize(kMaxColumns);
    const int columns = m_setup.columns.size();

    m_model->setColumnCount(columns);
    m_model->setDefaultFont(m_setup.contentFont, m_setup.contentColor);
    m_model->setBackColor(m_setup.backColor);
    m_model->setAltBackColor(m_setup.altBackColor);
    m_model->setHighlightColor(m_setup.highlightColor);
    for (int c = 0; c < columns; ++c) {
        const Column& col = m_setup.columns.at(c);
        m_model->setColumnAlignment(c, col.align);
        if (col.hasFont)
            m_model->setColumnFont(c, col.font, col.color);
    }

    // the views are made outside the scene and put in once complete
    m_view = new XCommonTableView;
    m_view->setTableModel(m_model);
    m_view->setSingleLine(m_setup.singleLine);
    m_view->setGridColor(m_setup.gridColor);
    m_view->setGridWidth(m_setup.gridWidth);
    m_view->setRowHeight(rowHeight());
    const bool bodyMade = m_view->start(engine, m_model, QUrl(QString::fromLatin1(kCellUrl)));
    m_view->setParent(this);
    m_view->setParentItem(this);
    if (!bodyMade)
        return false;
    m_view->setWidgetId(getId());
    connect(this, &XBaseControl::widgetIdChanged, m_view.data(), [this] { m_view->setWidgetId(getId()); });
    connect(m_view.data(), &QQuickFlickable::movingChanged, this, [this] { setIsMoving(m_view->isMoving()); });

    m_header = new XTableHeader;
    XQuickHeaderModel* hm = m_header->headerModel();
    hm->setColumnCount(columns);
    QStringList titles;
    for (const Column& col : m_setup.columns)
        titles << col.title;
    hm->setTitles(titles);
    hm->setHeaderHeight(headerHeight());
    hm->setBackgroundColor(m_setup.headerColor);
    hm->setFont(m_setup.headerFont, m_setup.headerTextColor);
    m_header->setGridColor(m_setup.gridColor);
    m_header->setGridWidth(m_setup.gridWidth);
    m_header->setRowHeight(headerHeight());
    m_header->setFilterEnabled(m_setup.filter);
    m_header->setVisible(!m_setup.hideHeader);
    const bool headerMade = m_header->start(engine, hm, QUrl(QString::fromLatin1(kHeaderCellUrl)));
    m_header->setParent(this);
    m_header->setParentItem(this);
    if (!headerMade)
        return false;
    m_header->setSyncView(m_view);
    m_header->setSyncDirection(Qt::Horizontal);
    connect(m_view.data(), &XCommonTableView::hideKeyboardRequested, this, [this] {
        if (m_keyboardUse == KeyboardUse::Cell)
            Q_EMIT keyboardHideRequested();
    });

    if (m_setup.scrollBar) {
        // attached to the body as QML's ScrollBar.vertical: it follows and moves the body
        auto* bar = qobject_cast<QQuickScrollBar*>(
            XQmlComponentManage::getInstance()->createItem(QUrl(QString::fromLatin1(kScrollBarUrl)), m_view));
        auto* attached
            = qobject_cast<QQuickScrollBarAttached*>(qmlAttachedPropertiesObject<QQuickScrollBar>(m_view, true));
        if (bar && attached) {
            bar->setParent(m_view); // deleted with the body it scrolls
            attached->setVertical(bar);
            m_scrollBar = bar;
            // shown only when there are more rows of the page than fit (not for the empty rows)
            auto policy = [this, bar] {
                const bool more = m_view && qreal(m_model->actualRowCount()) * rowHeight() > m_view->height();
                bar->setPolicy(more ? QQuickScrollBar::AsNeeded : QQuickScrollBar::AlwaysOff);
            };
            connect(m_model, &XTableModel::actualRowCountChanged, bar, policy);
            connect(m_view.data(), &QQuickItem::heightChanged, bar, policy);
            policy();
        } else {
            delete bar;
        }
    }
    if (m_setup.toolbar) {
        m_toolBar = qobject_cast<XSettingToolControl*>(
            XQmlComponentManage::getInstance()->createItem(QUrl(QString::fromLatin1(kToolBarUrl)), this));
        if (m_toolBar) {
            m_toolBar->setParent(this); // deleted with the table
            m_toolBar->setWidgetId(getId());
            m_toolBar->setHindControlBtn(m_setup.hidePageButtons);
            m_toolBar->setHindPageNum(m_setup.hidePageNum);
            m_toolBar->setHindTotalNum(m_setup.hideTotalNum);
            connect(this, &XBaseControl::widgetIdChanged, m_toolBar.data(), [this] { m_toolBar->setWidgetId(getId()); });
            connect(m_toolBar.data(), &XSettingToolControl::pageEntryRequested, this, [this](const QString& page) {
                m_keyboardUse = KeyboardUse::PageEntry;
                Q_EMIT keyboardRequested(0, 7, page); // decimal keys, a 32-bit number
            });
        }
    }
    layoutParts();
    return true;
}

int XTableViewControl::rowHeight() const
{
    if (m_setup.rowHeight > 0)
        return m_setup.rowHeight;
    int h = QFontMetrics(m_setup.contentFont).height();
    for (const Column& c : m_setup.columns) {
        if (c.hasFont)
            h = qMax(h, QFontMetrics(c.font).height());
    }
    return h + 12;
}

int XTableViewControl::headerHeight() const
{
    if (m_setup.hideHeader)
        return 0;
    return m_setup.headerHeight > 0 ? m_setup.headerHeight : QFontMetrics(m_setup.headerFont).height() + 12;
}

QVector<qreal> XTableViewControl::columnWidths(const QVector<Column>& columns, qreal width)
{
    qreal fixed = 0;
    int shared = 0;
    for (const Column& c : columns) {
        if (c.hidden)
            continue;
        if (c.width > 0)
            fixed += c.width;
        else
            ++shared;
    }
    const qreal share = shared ? qMax<qreal>(0, (width - fixed) / shared) : 0;
    QVector<qreal> widths(columns.size(), 0);
    for (int i = 0; i < columns.size(); ++i) {
        const Column& c = columns.at(i);
        widths[i] = c.hidden ? 0 : (c.width > 0 ? c.width : share);
    }
    return widths;
}

void XTableViewControl::calcColumnWidth()
{
    const QVector<qreal> widths = columnWidths(m_setup.columns, width());
    if (m_view)
        m_view->setColumnWidths(widths);
    if (m_header)
        m_header->setColumnWidths(widths);
}

QVector<qreal> XTableViewControl::getActualColumnWidth() const
{
    return m_view ? m_view->columnWidths() : QVector<qreal>();
}

void XTableViewControl::layoutParts()
{
    if (!m_view || !m_header)
        return;
    const qreal top = headerHeight();
    const qreal bar = toolBarHeight();
    m_header->setPosition(QPointF(0, 0));
    m_header->setSize(QSizeF(width(), top));
    m_view->setPosition(QPointF(0, top));
    m_view->setSize(QSizeF(width(), qMax<qreal>(0, height() - top - bar)));
    if (m_toolBar) {
        m_toolBar->setPosition(QPointF(0, qMax<qreal>(top, height() - bar)));
        m_toolBar->setWidth(width());
    }
    calcColumnWidth();
    updateMinimumRows();
}

void XTableViewControl::updateMinimumRows()
{
    if (!m_view)
        return;
    // an empty or short page still fills the body with empty rows
    m_model->setMinimumRowCount(int(std::ceil(m_view->height() / qMax(1, rowHeight()))));
}

int XTableViewControl::toolBarHeight() const
{
    return m_toolBar ? int(m_toolBar->height()) : 0;
}

void XTableViewControl::setBrowseBoxParams(unsigned total, unsigned page, unsigned pages)
{
    if (m_toolBar)
        m_toolBar->setNumbers(total, page, pages);
}

void XTableViewControl::openCell(const QPoint& cell)
{
    // in edit mode a press on an editable cell opens the keyboard for it
    if (!m_view || m_view->editMode() != 1 || cell.x() < 0 || cell.y() < 0
        || cell.x() >= m_setup.columns.size() || !m_setup.columns.at(cell.x()).editable)
        return;
    const int type = m_setup.columns.at(cell.x()).dataType;
    m_view->setEditingCell(cell);
    m_keyboardUse = KeyboardUse::Cell;
    Q_EMIT keyboardRequested(XCommonTableView::dataTypeToVtkType(type),
        XCommonTableView::dataTypeToValidator(type), m_model->cellText(cell.y(), cell.x()));
}

void XTableViewControl::acceptKeyboardText(const QString& text)
{
    const KeyboardUse use = m_keyboardUse;
    m_keyboardUse = KeyboardUse::None;
    if (use == KeyboardUse::PageEntry && m_toolBar) {
        m_toolBar->goToPage(text);
    } else if ((use == KeyboardUse::FilterValue1 || use == KeyboardUse::FilterValue2) && m_filterDlg
        && m_filterDlg->isOpened()) {
        m_filterDlg->setValue(use == KeyboardUse::FilterValue1 ? 0 : 1, text);
    } else if (use == KeyboardUse::Cell && m_view && m_view->editingCell().x() >= 0) {
        const QPoint cell = m_view->editingCell();
        m_view->setEditingCell(QPoint(-1, -1));
        m_view->saveEditText(cell.y(), cell.x(), text);
    }
}

void XTableViewControl::keyboardClosed()
{
    m_keyboardUse = KeyboardUse::None;
    if (m_view)
        m_view->setEditingCell(QPoint(-1, -1));
}

void XTableViewControl::geometryChanged(const QRectF& newGeometry, const QRectF& oldGeometry)
{
    XBaseControl::geometryChanged(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size())
        layoutParts();
}

void XTableViewControl::updateHeader(const QStringList& titles)
{
    if (m_header)
        m_header->headerModel()->setTitles(titles);
}

void XTableViewControl::updateData(const QVector<QVector<XTableCell>>& rows)
{
    m_model->setPage(rows);
}

void XTableViewControl::changeListCtrlFont(const QVector<QPair<QFont, QColor>>& fonts)
{
    for (int c = 0; c < fonts.size() && c < m_setup.columns.size(); ++c) {
        m_setup.columns[c].font = fonts.at(c).first;
        m_setup.columns[c].color = fonts.at(c).second;
        m_setup.columns[c].hasFont = true;
        m_model->setColumnFont(c, fonts.at(c).first, fonts.at(c).second);
    }
    if (m_view && m_setup.rowHeight <= 0) {
        m_view->setRowHeight(rowHeight());
        updateMinimumRows();
    }
}

void XTableViewControl::setTableColVisible(int column, bool visible)
{
    if (column < 0 || column >= m_setup.columns.size() || m_setup.columns.at(column).hidden == !visible)
        return;
    m_setup.columns[column].hidden = !visible;
    calcColumnWidth();
}

void XTableViewControl::setRowTextVisible(int row, bool visible)
{
    m_model->setDataVisible(row, visible);
}

void XTableViewControl::changeSelectRow(int row, int column)
{
    if (!m_view || m_view->editingCell().x() >= 0)
        return;
    if (row < 0 || column < 0) {
        m_view->setHighlight(row, QPoint(-1, -1), m_setup.selectRow);
        return;
    }
    m_view->setHighlight(row, QPoint(column, row), m_setup.selectRow);
    if (!m_view->isLocaltedRow(row))
        m_view->jumpToRow(row);
}

void XTableViewControl::setFilter(bool on)
{
    m_setup.filter = on;
    if (m_header)
        m_header->setFilterEnabled(on);
    if (!on)
        closeFilterPopups();
}

void XTableViewControl::setOverlay(XOverlay* overlay)
{
    if (overlay == m_overlay)
        return;
    closeFilterPopups();
    m_overlay = overlay;
    if (m_filterMenu)
        m_filterMenu->setOverlay(overlay);
    if (m_filterDlg)
        m_filterDlg->setOverlay(overlay);
}

bool XTableViewControl::openFilterMenu(int column)
{
    if (!m_overlay || !m_header || !m_header->filterEnabled() || column < 0 || column >= m_setup.columns.size()
        || m_setup.columns.at(column).hidden)
        return false;
    if (!m_filterMenu) {
        m_filterMenu = qobject_cast<XTableFilterMenu*>(
            XQmlComponentManage::getInstance()->createItem(QUrl(QString::fromLatin1(kFilterMenuUrl)), m_overlay));
        if (!m_filterMenu)
            return false;
        m_filterMenu->setParent(this); // deleted with the table; shown on the overlay
        m_filterMenu->setOverlay(m_overlay);
        connect(m_filterMenu.data(), &XTableFilterMenu::orderChosen, this, [this](int col, int order) {
            if (m_header)
                m_header->setActionCheckedCol(col, order);
        });
        connect(m_filterMenu.data(), &XTableFilterMenu::filterCleared, this, [this](int col) {
            if (m_header)
                m_header->headerModel()->setColumnFiltered(col, false);
        });
        connect(m_filterMenu.data(), &XTableFilterMenu::filterRequested, this,
            [this](int col, int op) { openFilterDlg(col, op); });
    }
    closeFilterPopups();
    m_filterMenu->setWidgetId(getId());
    const int order = m_header->checkedColumn() == column ? m_header->checkedOrder() : XTableFilterMenu::ORDER_NONE;
    m_filterMenu->setup(column, m_setup.columns.at(column).dataType, order);

    // under the title, kept inside the overlay
    qreal left = 0;
    const QVector<qreal> widths = getActualColumnWidth();
    for (int c = 0; c < column && c < widths.size(); ++c)
        left += widths.at(c);
    left -= m_view ? m_view->contentX() : 0;
    QPointF at = m_overlay->mapFromItem(this, QPointF(left, headerHeight()));
    at.setX(qBound<qreal>(0, at.x(), qMax<qreal>(0, m_overlay->width() - m_filterMenu->width())));
    at.setY(qBound<qreal>(0, at.y(), qMax<qreal>(0, m_overlay->height() - m_filterMenu->height())));
    m_filterMenu->setPosition(QPointF(qFloor(at.x()), qFloor(at.y())));
    m_filterMenu->open();
    return true;
}

bool XTableViewControl::openFilterDlg(int column, int op)
{
    if (!m_overlay || !m_header || !m_header->filterEnabled() || column < 0 || column >= m_setup.columns.size()
        || XTableFilterDlg::filterKind(m_setup.columns.at(column).dataType) < 0)
        return false;
    if (!m_filterDlg) {
        m_filterDlg = qobject_cast<XTableFilterDlg*>(
            XQmlComponentManage::getInstance()->createItem(QUrl(QString::fromLatin1(kFilterDlgUrl)), m_overlay));
        if (!m_filterDlg)
            return false;
        m_filterDlg->setParent(this);
        m_filterDlg->setOverlay(m_overlay);
        connect(m_filterDlg.data(), &XTableFilterDlg::filterCommitted, this, [this](int col) {
            if (m_header)
                m_header->headerModel()->setColumnFiltered(col, true);
        });
        connect(m_filterDlg.data(), &XTableFilterDlg::valueEntryRequested, this, [this](int which, const QString& text) {
            if (!m_filterDlg)
                return;
            const int type = m_filterDlg->dataTypeCode();
            m_keyboardUse = which == 0 ? KeyboardUse::FilterValue1 : KeyboardUse::FilterValue2;
            Q_EMIT keyboardRequested(XCommonTableView::dataTypeToVtkType(type),
                XCommonTableView::dataTypeToValidator(type), text);
        });
        connect(m_filterDlg.data(), &XPopup::closed, this, [this] {
            if (m_keyboardUse == KeyboardUse::FilterValue1 || m_keyboardUse == KeyboardUse::FilterValue2)
                Q_EMIT keyboardHideRequested();
        });
    }
    if (m_filterMenu)
        m_filterMenu->close();
    m_filterDlg->close();
    m_filterDlg->setWidgetId(getId());
    const QString title = m_header->headerModel()->title(column);
    m_filterDlg->setup(column, m_setup.columns.at(column).dataType, title, op);
    m_filterDlg->setPosition(QPointF(qFloor(qMax<qreal>(0, (m_overlay->width() - m_filterDlg->width()) / 2)),
        qFloor(qMax<qreal>(0, (m_overlay->height() - m_filterDlg->height()) / 3))));
    m_filterDlg->open();
    return true;
}

XTableFilterMenu* XTableViewControl::filterMenu() const
{
    return m_filterMenu.data();
}

XTableFilterDlg* XTableViewControl::filterDialog() const
{
    return m_filterDlg.data();
}

void XTableViewControl::closeFilterPopups()
{
    if (m_filterMenu)
        m_filterMenu->close();
    if (m_filterDlg)
        m_filterDlg->close();
}

void XTableViewControl::watchHeader(int code, const QPointF& scenePos)
{
    // a tap on a title (press and release on the same one) opens its menu
    int column = -1;
    if (m_header && m_header->isVisible() && m_header->filterEnabled()) {
        const QPointF local = m_header->mapFromScene(scenePos);
        if (local.y() >= 0 && local.y() < m_header->height())
            column = m_header->cellAt(local).x();
    }
    if (code == EVT_WIDGET_PRESS) {
        m_headerPressColumn = column;
        return;
    }
    const bool tapped = column >= 0 && column == m_headerPressColumn;
    m_headerPressColumn = -1;
    if (tapped)
        openFilterMenu(column);
}

void XTableViewControl::itemChange(ItemChange change, const ItemChangeData& data)
{
    XBaseControl::itemChange(change, data);
    if ((change == ItemVisibleHasChanged && !data.boolValue) || (change == ItemParentHasChanged && !data.item)
        || (change == ItemSceneChange && !data.window))
        closeFilterPopups();
}

void XTableViewControl::setIsMoving(bool moving)
{
    if (moving == m_moving)
        return;
    m_moving = moving;
    LogicLayerCaller::call(getId(), moving ? EVT_LIST_MOVE_START : EVT_LIST_MOVE_END, nullptr);
}

void XTableViewControl::sendCell(int code, const QPointF& scenePos, ulong timestamp)
{
    const SentPress sent { code, scenePos, timestamp };
    if (sent.code == m_lastSent.code && sent.pos == m_lastSent.pos && sent.timestamp == m_lastSent.timestamp)
        return;
    m_lastSent = sent;
    View_EvtCell cell { -1, -1 };
    if (m_view) {
        const QPoint at = m_view->cellAt(m_view->mapFromScene(scenePos));
        cell.row = at.y();
        cell.column = at.x();
    }
    LogicLayerCaller::call(getId(), code, &cell);
    if (code == EVT_WIDGET_PRESS)
        openCell(QPoint(cell.column, cell.row));
    watchHeader(code, scenePos);
}

bool XTableViewControl::childMouseEventFilter(QQuickItem* item, QEvent* event)
{
    // the body flicks with the finger; the press and the release are only watched
    // (each item the event is offered to comes here: one press is sent once)
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonRelease) {
        auto* me = static_cast<QMouseEvent*>(event);
        if (me->button() == Qt::LeftButton)
            sendCell(event->type() == QEvent::MouseButtonPress ? EVT_WIDGET_PRESS : EVT_WIDGET_RELEASE,
                me->windowPos(), me->timestamp());
    }
    return XBaseControl::childMouseEventFilter(item, event);
}

void XTableViewControl::mousePressEvent(QMouseEvent* event)
{
    sendCell(EVT_WIDGET_PRESS, event->windowPos(), event->timestamp());
    event->accept();
}

void XTableViewControl::mouseReleaseEvent(QMouseEvent* event)
{
    sendCell(EVT_WIDGET_RELEASE, event->windowPos(), event->timestamp());
    event->accept();
}

void XTableViewControl::touchEvent(QTouchEvent* event)
{
    // presses come as mouse events synthesized from the touch
    event->ignore();
}
