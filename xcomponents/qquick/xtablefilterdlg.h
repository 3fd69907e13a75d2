#ifndef XTABLEFILTERDLG_H
#define XTABLEFILTERDLG_H

#include "platform/xpopup.h"

#include <QString>
#include <QStringList>
#include <QVector>

/**
 * The filter dialog of one table column ("list/QmlTableFilterDlg.qml", whose
 * root is this popup): two conditions, each an operator chosen in a drop-down
 * box and a value typed through the on-screen keyboard, joined by "And" or "Or".
 *
 * The operators offered follow the column's kind of values (operatorsFor()).
 * "Commit" sends event 518 (View_EvtListFilter) with the table's id through
 * startFilter() and closes the dialog; "Cancel" only closes it. A second
 * condition without a value is left out of the record (its operator and the
 * join are 0). The operator names are translated and rebuilt whenever the
 * language changes; the chosen operators stay chosen.
 */
class XTableFilterDlg : public XPopup {
    Q_OBJECT
    Q_PROPERTY(quint32 widgetId READ widgetId WRITE setWidgetId NOTIFY widgetIdChanged)
    Q_PROPERTY(int column READ column NOTIFY columnChanged)
    Q_PROPERTY(int dataType READ dataType NOTIFY columnChanged)
    Q_PROPERTY(QString columnTitle READ columnTitle NOTIFY columnChanged)
    Q_PROPERTY(QStringList operatorNames READ operatorNames NOTIFY operatorsChanged)
    Q_PROPERTY(int operator1Index READ operator1Index WRITE setOperator1Index NOTIFY selectionChanged)
    Q_PROPERTY(int operator2Index READ operator2Index WRITE setOperator2Index NOTIFY selectionChanged)
    Q_PROPERTY(QString value1 READ value1 NOTIFY valuesChanged)
    Q_PROPERTY(QString value2 READ value2 NOTIFY valuesChanged)
    Q_PROPERTY(bool joinOr READ joinOr WRITE setJoinOr NOTIFY selectionChanged)

public:
    explicit XTableFilterDlg(QQuickItem* parent = nullptr);
    ~XTableFilterDlg() override;

    /** The kind of filter (DataType) of a column's type code, -1 for a code without filter. */
    static int filterKind(int dataTypeCode);
    /** The ExpressOperator values offered for a DataType, in the order shown; empty for others. */
    static QVector<int> operatorsFor(int dataType);
    /** The untranslated name of an ExpressOperator ("Equals", "Like", ...); "" for others. */
    static QString operatorSource(int op);

    quint32 widgetId() const { return m_id; }
    void setWidgetId(quint32 id);

    /**
     * Prepares the dialog for \a column with type code \a dataTypeCode, titled \a title: empty
     * values, "And", and \a firstOperator as the first condition's operator when the column
     * offers it (otherwise the first one offered).
     */
    void setup(int column, int dataTypeCode, const QString& title, int firstOperator = -1);
    int column() const { return m_column; }
    int dataType() const { return m_kind; }
    int dataTypeCode() const { return m_code; }
    QString columnTitle() const { return m_title; }

    QStringList operatorNames() const { return m_names; }
    int operator1Index() const { return m_operators.indexOf(m_op1); }
    void setOperator1Index(int index);
    int operator2Index() const { return m_operators.indexOf(m_op2); }
    void setOperator2Index(int index);
    /** The ExpressOperator of the first (\a which 0) or second condition. */
    int operatorOf(int which) const { return which == 0 ? m_op1 : m_op2; }

    QString value1() const { return m_value1; }
    QString value2() const { return m_value2; }
    /** The value of the first (\a which 0) or second condition, as typed. */
    void setValue(int which, const QString& text);
    bool joinOr() const { return m_joinOr; }
    void setJoinOr(bool orJoin);

    /** A value box was touched: asks for the keyboard (valueEntryRequested). */
    Q_INVOKABLE void requestValue(int which);
    /** "Commit": startFilter with what is chosen, then closes. Ignored while the first value is empty. */
    Q_INVOKABLE void commit();
    /** "Cancel": closes without sending. */
    Q_INVOKABLE void cancel();
    /** Sends 518 for the column with these conditions and the chosen join. */
    void startFilter(const QString& value1, int operator1, const QString& value2, int operator2);

Q_SIGNALS:
    void widgetIdChanged();
    void columnChanged();
    void operatorsChanged();
    void selectionChanged();
    void valuesChanged();
    /** The keyboard is wanted for the value of condition \a which, starting from \a text. */
    void valueEntryRequested(int which, const QString& text);
    /** A filter was sent for \a column. */
    void filterCommitted(int column);

private:
    void rebuildOperators();

    quint32 m_id = 0;
    int m_column = -1;
    int m_code = -1;
    int m_kind = -1;
    QString m_title;
    QVector<int> m_operators;
    QStringList m_names;
    int m_op1 = 0;
    int m_op2 = 0;
    QString m_value1;
    QString m_value2;
    bool m_joinOr = false;
};

#endif // XTABLEFILTERDLG_H
