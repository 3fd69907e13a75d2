#ifndef XTABLEFILTERMENU_H
#define XTABLEFILTERMENU_H

#include "platform/xpopup.h"

#include <QString>
#include <QVariantList>

/**
 * The menu a header title opens while the table's sort and filter menus are on
 * ("list/QmlTableFilterMenu.qml", whose root is this popup): "Ascend" and
 * "Descend" (checkable; touching the checked one unchecks it, back to
 * ORDER_NONE), "Clear" and the filter submenu titled by the column's kind
 * ("Text Filter", "Num Filter" or "Date Filter") listing the operators, each
 * opening the filter dialog with that operator chosen. "Clear" and the
 * submenu are disabled for a column whose values have no filter.
 *
 * Choosing an order sends 519 (View_EvtListSort) with the table's id; "Clear"
 * sends 518 with both texts empty and every other member but the column 0.
 * Every choice closes the menu.
 */
class XTableFilterMenu : public XPopup {
    Q_OBJECT
    Q_PROPERTY(quint32 widgetId READ widgetId WRITE setWidgetId NOTIFY widgetIdChanged)
    Q_PROPERTY(int column READ column NOTIFY columnChanged)
    Q_PROPERTY(int dataType READ dataType NOTIFY columnChanged)
    Q_PROPERTY(bool filterDisabled READ filterDisabled NOTIFY columnChanged)
    Q_PROPERTY(QString filterTitle READ getFitterTypeStr NOTIFY columnChanged)
    Q_PROPERTY(QVariantList operators READ operators NOTIFY columnChanged)
    Q_PROPERTY(int order READ order NOTIFY orderChanged)

public:
    /** Sort orders, sent as a 2-bit value with event 519. */
    enum OrderType { ORDER_ASCEND, ORDER_NONE, ORDER_DESCEND };
    Q_ENUM(OrderType)

    explicit XTableFilterMenu(QQuickItem* parent = nullptr);
    ~XTableFilterMenu() override;

    quint32 widgetId() const { return m_id; }
    void setWidgetId(quint32 id);

    /** Prepares the menu for \a column with type code \a dataTypeCode whose order is now \a order. */
    void setup(int column, int dataTypeCode, int order);
    int column() const { return m_column; }
    /** The column's kind of filter (DataType), -1 without one. */
    int dataType() const { return m_kind; }
    bool filterDisabled() const { return m_kind < 0; }
    /** The untranslated submenu title for the column's kind; "" without one. */
    QString getFitterTypeStr() const;
    /** The ExpressOperator values of the submenu. */
    QVariantList operators() const;
    /** The order checked for the column. */
    int order() const { return m_order; }

    /** "Ascend" or "Descend" touched: \a checked is the action's new state. Sends 519 and closes. */
    Q_INVOKABLE void chooseOrder(int order, bool checked);
    /** "Clear": sends the cleared filter (518) and closes; nothing while disabled. */
    Q_INVOKABLE void clearFilter();
    /** An entry of the submenu: asks for the filter dialog with \a op chosen, and closes. */
    Q_INVOKABLE void openFilter(int op);
    /** The untranslated name of an operator (for the submenu entries). */
    Q_INVOKABLE QString operatorName(int op) const;

Q_SIGNALS:
    void widgetIdChanged();
    void columnChanged();
    void orderChanged();
    /** An order was chosen for \a column (OrderType). */
    void orderChosen(int column, int order);
    /** The filter of \a column was cleared. */
    void filterCleared(int column);
    /** The filter dialog is wanted for \a column with \a op as the first operator. */
    void filterRequested(int column, int op);

private:
    quint32 m_id = 0;
    int m_column = -1;
    int m_kind = -1;
    int m_order = ORDER_NONE;
};

#endif // XTABLEFILTERMENU_H
