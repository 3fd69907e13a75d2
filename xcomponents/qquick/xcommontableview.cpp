#include "xcomponents/qquick/xcommontableview.h"

#include "platform/logiclayercaller.h"
#include "xcomponents/qquick/xtablemodel.h"

#include <qgui/events.h>

XCommonTableView::XCommonTableView(QQuickItem* parent)
    : XQuickTableView(parent)
{
}

XCommonTableView::~XCommonTableView() = default;

int XCommonTableView::dataTypeToVtkType(int dataType)
{
    // free text for strings, the time, date and date-time layouts for those, numbers otherwise
    static const int layouts[19] = { 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 6, 0, 0, 4, 3, 2, 2 };
    return dataType >= 0 && dataType < 19 ? layouts[dataType] : 0;
}

int XCommonTableView::dataTypeToValidator(int dataType)
{
    static const int validators[19] = { 2, 2, 3, 4, 5, 6, 7, 8, 9, 10, 20, 20, 0, 8, 10, 0, 0, 0, 0 };
    return dataType >= 0 && dataType < 19 ? validators[dataType] : 0;
}

void XCommonTableView::setEditMode(int mode)
{
    if (mode == 1 && m_pending.isEmpty()) {
        if (m_editMode != 1) {
            m_editMode = 1;
            Q_EMIT isEditModeChanged();
        }
        return;
    }
    if (mode == 1) {
        // the edits go out in first-edit order; the texts live until the call returns
        std::vector<QByteArray> texts;
        texts.reserve(size_t(m_pending.size()));
        View_EvtListEdits edits;
        edits.reserve(size_t(m_pending.size()));
        for (const Edit& e : m_pending)
            texts.push_back(e.text.toUtf8());
        for (int i = 0; i < m_pending.size(); ++i)
            edits.push_back(View_ListEditItem { m_pending.at(i).row, m_pending.at(i).column, texts[size_t(i)].constData() });
        LogicLayerCaller::call(m_widgetId, EVT_LIST_EDIT_COMMIT, &edits);
        m_pending.clear();
        if (m_editMode != 1) {
            m_editMode = 1;
            Q_EMIT isEditModeChanged();
        }
        return;
    }
    if (mode != 0)
        return; // other modes are not known: nothing changes
    if (m_editing.x() >= 0) {
        m_editing = QPoint(-1, -1);
        Q_EMIT hideKeyboardRequested();
        return;
    }
    Q_EMIT hideKeyboardRequested();
    if (m_editMode == 0)
        return;
    m_editMode = 0;
    Q_EMIT isEditModeChanged();
}

void XCommonTableView::saveEditText(int row, int column, const QString& text)
{
    if (m_model)
        m_model->setData(m_model->index(row, column), text);
    for (Edit& e : m_pending) {
        if (e.row == row && e.column == column) {
            e.text = text;
            return;
        }
    }
    m_pending.append(Edit { row, column, text });
}

void XCommonTableView::setHighlight(int row, const QPoint& cell, bool wholeRow)
{
    m_highlightRow = row;
    m_highlightCell = cell;
    if (m_model)
        m_model->setHighlight(wholeRow ? row : cell.y(), wholeRow ? -1 : cell.x(), wholeRow);
}

bool XCommonTableView::isLocaltedRow(int row) const
{
    const qreal top = qreal(row) * rowHeight();
    const qreal y = contentY() - originY();
    return top >= y && top + rowHeight() <= y + height();
}

void XCommonTableView::jumpToRow(int row)
{
    const qreal maxY = qMax<qreal>(0, contentHeight() - height());
    setContentY(originY() + qBound<qreal>(0, qreal(row) * rowHeight(), maxY));
}
