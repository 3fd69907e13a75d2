#ifndef XTUMBLERTIMEMODEL_H
#define XTUMBLERTIMEMODEL_H

#include <QAbstractListModel>

/**
 * The rows of one tumbler column of the date/time picker: row r shows the
 * plain decimal number r, without a leading zero. The picker's columns have
 * 24 (hours), 60 (minutes) and 60 (seconds) rows.
 */
class XTumblerTimeModel : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(int size READ size WRITE setSize NOTIFY sizeChanged)

public:
    explicit XTumblerTimeModel(QObject* parent = nullptr);
    ~XTumblerTimeModel() override;

    /** Number of rows; negative values count as 0. The default is 0. */
    int size() const { return m_size; }
    void setSize(int size);
    /** The text of row \a row ("7", "23"); empty outside 0..size-1. */
    Q_INVOKABLE QString getText(int row) const;

    /* inherits documentation from base class */
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

Q_SIGNALS:
    void sizeChanged();

private:
    int m_size = 0;
};

#endif // XTUMBLERTIMEMODEL_H
