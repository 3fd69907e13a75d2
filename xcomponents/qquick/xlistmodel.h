#ifndef XLISTMODEL_H
#define XLISTMODEL_H

#include <QAbstractListModel>
#include <QStringList>

/**
 * The entries of a flat list (a menu's list content): one text per row and the
 * current row. Replacing the entries with as many new ones announces only the
 * rows whose text changed; another number of entries resets the list.
 */
class XListModel : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    enum Role {
        CurrentRole = Qt::UserRole + 1 /**< true on the current row */
    };

    explicit XListModel(QObject* parent = nullptr);
    ~XListModel() override;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

    int count() const { return m_entries.size(); }
    QStringList entries() const { return m_entries; }
    void setEntries(const QStringList& entries);
    int currentIndex() const { return m_current; }
    /** The current row; any number without a row makes none current. */
    void setCurrentIndex(int index);

Q_SIGNALS:
    void countChanged();

private:
    QStringList m_entries;
    int m_current = -1;
};

#endif // XLISTMODEL_H
