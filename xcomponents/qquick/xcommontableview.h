#ifndef XCOMMONTABLEVIEW_H
#define XCOMMONTABLEVIEW_H

#include "xcomponents/qquick/xquicktableview.h"

#include <QString>
#include <QVector>

class XTableModel;

/**
 * The body of a table control: the cells, the highlighted row or cell, and the
 * edit state. Pending edits are kept in the order in which cells were first
 * edited, each cell once with its latest text; switching edit mode on sends
 * them to the logic layer (event 520) and empties the list.
 */
class XCommonTableView : public XQuickTableView {
    Q_OBJECT
    Q_PROPERTY(int editMode READ editMode NOTIFY isEditModeChanged)

public:
    /** One pending edit. */
    struct Edit {
        int row;
        int column;
        QString text;
    };

    explicit XCommonTableView(QQuickItem* parent = nullptr);
    ~XCommonTableView() override;

    void setTableModel(XTableModel* model) { m_model = model; }
    XTableModel* tableModel() const { return m_model; }
    /** The widget id the edit events are sent with. */
    void setWidgetId(quint32 id) { m_widgetId = id; }

    int editMode() const { return m_editMode; }
    /**
     * 0: with no cell open the keyboard is hidden and the mode stored (isEditModeChanged when it
     * changes); with a cell open, that cell is forgotten and the keyboard hidden.
     * 1: the pending edits, if any, are sent (event 520) and emptied, and the mode is on.
     */
    void setEditMode(int mode);
    /** Sets the cell's text at once and records the edit (see the class). */
    void saveEditText(int row, int column, const QString& text);
    const QVector<Edit>& pendingEdits() const { return m_pending; }

    /** The cell open for editing, (-1, -1) for none. */
    QPoint editingCell() const { return m_editing; }
    void setEditingCell(const QPoint& cell) { m_editing = cell; }

    /** Keyboard layout for a column's data type code (0 for codes outside the table). */
    static int dataTypeToVtkType(int dataType);
    /** Validator kind for a column's data type code (0, which keeps the keyboard's, outside). */
    static int dataTypeToValidator(int dataType);

    int highlightRow() const { return m_highlightRow; }
    QPoint highlightCell() const { return m_highlightCell; }
    /** Highlights (see XTableViewControl::changeSelectRow). */
    void setHighlight(int row, const QPoint& cell, bool wholeRow);
    /** True when \a row is wholly in view. */
    bool isLocaltedRow(int row) const;
    /** Scrolls so that \a row is the top row (or as near as the content allows). */
    void jumpToRow(int row);

Q_SIGNALS:
    void isEditModeChanged();
    /** The keyboard should hide (the open cell was forgotten or the mode went off). */
    void hideKeyboardRequested();

private:
    XTableModel* m_model = nullptr;
    quint32 m_widgetId = 0;
    int m_editMode = 0;
    QVector<Edit> m_pending;
    QPoint m_editing { -1, -1 };
    int m_highlightRow = -1;
    QPoint m_highlightCell { -1, -1 };
};

#endif // XCOMMONTABLEVIEW_H
