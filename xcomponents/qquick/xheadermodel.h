#ifndef XHEADERMODEL_H
#define XHEADERMODEL_H

#include <QAbstractListModel>
#include <QStringList>
#include <QVector>

/**
 * The header of a list-style table: one row per column, each with its title,
 * width and left edge, for a header drawn as a horizontal ListView or a
 * Repeater over a list (the table control's own header uses the table-shaped
 * XQuickHeaderModel instead).
 *
 * Titles and widths are set apart; a column without a width of its own takes
 * the default width, and negative widths count as 0. Changing titles or
 * widths of the same number of columns announces only the rows that changed.
 */
class XHeaderModel : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(QStringList titles READ titles WRITE setTitles NOTIFY titlesChanged)
    Q_PROPERTY(QVariantList widths READ widthList WRITE setWidthList NOTIFY widthsChanged)
    Q_PROPERTY(int defaultWidth READ defaultWidth WRITE setDefaultWidth NOTIFY widthsChanged)
    Q_PROPERTY(int totalWidth READ totalWidth NOTIFY widthsChanged)
    Q_PROPERTY(int count READ rowCount NOTIFY titlesChanged)

public:
    enum Role {
        WidthRole = Qt::UserRole + 1, /**< width of the column, pixels */
        LeftRole /**< left edge of the column: the widths of the columns before it */
    };

    explicit XHeaderModel(QObject* parent = nullptr);
    ~XHeaderModel() override;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

    QStringList titles() const { return m_titles; }
    /** Replaces the titles; their number is the number of columns. */
    void setTitles(const QStringList& titles);
    QVector<int> widths() const { return m_widths; }
    /** Replaces the widths of the first columns; the others take the default width. */
    void setWidths(const QVector<int>& widths);
    int defaultWidth() const { return m_defaultWidth; }
    void setDefaultWidth(int width);
    /** Width of \a column, 0 for a column that does not exist. */
    int width(int column) const;
    /** Left edge of \a column (0 for the first), the total width past the last. */
    int left(int column) const;
    int totalWidth() const { return left(m_titles.size()); }
    /** The column under \a x (header coordinates), -1 outside the columns. */
    int columnAt(int x) const;

Q_SIGNALS:
    void titlesChanged();
    void widthsChanged();

private:
    QVariantList widthList() const;
    void setWidthList(const QVariantList& widths);
    void announceWidths(const QVector<int>& before, int oldDefault);

    QStringList m_titles;
    QVector<int> m_widths;
    int m_defaultWidth = 100;
};

#endif // XHEADERMODEL_H
