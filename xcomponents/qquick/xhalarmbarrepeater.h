#ifndef XHALARMBARREPEATER_H
#define XHALARMBARREPEATER_H

#include <QPointer>
#include <QQuickItem>
#include <QVariantMap>
#include <QVector>

class QQmlComponent;
class QQmlContext;

/**
 * One run of a marquee alarm bar's cells, laid out left to right: a cell item
 * per entry, made from the delegate component and given its values as
 * properties (each entry's "cellWidth" is its width). Cells are reused when
 * the values change; only a change of their number makes or removes cells.
 */
class XHAlarmBarRepeater : public QQuickItem {
    Q_OBJECT
    Q_PROPERTY(QQmlComponent* delegate READ delegate WRITE setDelegate NOTIFY delegateChanged)
    Q_PROPERTY(int model READ model NOTIFY modelChanged)
    Q_PROPERTY(qreal totalWidth READ totalWidth NOTIFY layoutChanged)
    Q_PROPERTY(bool allLoaded READ allLoaded NOTIFY layoutChanged)

public:
    explicit XHAlarmBarRepeater(QQuickItem* parent = nullptr);
    ~XHAlarmBarRepeater() override;

    QQmlComponent* delegate() const { return m_delegate; }
    void setDelegate(QQmlComponent* delegate);
    /** Number of cells. */
    int model() const { return m_values.size(); }
    qreal totalWidth() const { return m_totalWidth; }
    /** Every cell was made. */
    bool allLoaded() const { return m_cells.size() == m_values.size(); }

    /** The context cells are made in (the engine's root context when the delegate has none). */
    void setCreationContext(QQmlContext* context);
    /** The cells' values, one map of properties per cell; makes or removes cells as needed. */
    void setCells(const QVector<QVariantMap>& values);
    /** The cell item \a index, or null. */
    QQuickItem* cellAt(int index) const;
    /** Places the cells one after the other; the run's size follows. */
    void forceLayout();

Q_SIGNALS:
    void delegateChanged();
    void modelChanged();
    void layoutChanged();

private:
    QQuickItem* loadCell(int index);

    QPointer<QQmlComponent> m_delegate;
    QPointer<QQmlContext> m_context;
    QVector<QVariantMap> m_values;
    QVector<QQuickItem*> m_cells; // child items, deleted with the run
    qreal m_totalWidth = 0;
};

#endif // XHALARMBARREPEATER_H
