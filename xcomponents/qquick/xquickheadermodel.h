#ifndef XQUICKHEADERMODEL_H
#define XQUICKHEADERMODEL_H

#include <QAbstractTableModel>
#include <QColor>
#include <QFont>
#include <QLocale>
#include <QSet>
#include <QStringList>

/**
 * The header row of a table control: one row, a title per column, the header's
 * font, text colour and background colour.
 */
class XQuickHeaderModel : public QAbstractTableModel {
    Q_OBJECT
    Q_PROPERTY(int headerHeight READ headerHeight WRITE setHeaderHeight NOTIFY headerHeightChanged)
    Q_PROPERTY(QColor backgroundColor READ backgroundColor WRITE setBackgroundColor NOTIFY backgroundColorChanged)

public:
    enum Role {
        TextColorRole = Qt::UserRole + 1, /**< QColor of the titles */
        BackColorRole, /**< QColor of the header */
        FontRole, /**< QFont of the titles */
        CheckedRole, /**< the column whose sort order is chosen */
        OrderRole, /**< the chosen OrderType of the checked column (ORDER_NONE elsewhere) */
        FilteredRole /**< a filter is set on the column */
    };

    explicit XQuickHeaderModel(QObject* parent = nullptr);
    ~XQuickHeaderModel() override;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

    void setColumnCount(int columns);
    /** Replaces the titles; missing titles are empty, extra ones dropped. */
    void setTitles(const QStringList& titles);
    QString title(int column) const { return m_titles.value(column); }

    int headerHeight() const { return m_height; }
    void setHeaderHeight(int height);
    QColor backgroundColor() const { return m_back; }
    void setBackgroundColor(const QColor& color);
    void setFont(const QFont& font, const QColor& color);
    QLocale locale() const { return m_locale; }
    void setLocale(const QLocale& locale) { m_locale = locale; }
    /** The column shown as sorted, -1 for none, and its order (OrderType). */
    void setCheckedColumn(int column, int order = 0);
    int checkedColumn() const { return m_checked; }
    /** Marks \a column as filtered or not; unknown columns are ignored. */
    void setColumnFiltered(int column, bool filtered);
    bool isColumnFiltered(int column) const { return m_filtered.contains(column); }

Q_SIGNALS:
    void headerHeightChanged();
    void backgroundColorChanged();

private:
    void emitAll(const QVector<int>& roles);

    QStringList m_titles;
    int m_height = 32;
    QColor m_back { 0x53, 0x7B, 0xAD };
    QColor m_textColor { Qt::white };
    QFont m_font;
    QLocale m_locale;
    int m_checked = -1;
    int m_order = 1;
    QSet<int> m_filtered;
};

#endif // XQUICKHEADERMODEL_H
