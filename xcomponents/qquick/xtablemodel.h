#ifndef XTABLEMODEL_H
#define XTABLEMODEL_H

#include <QAbstractTableModel>
#include <QColor>
#include <QFont>
#include <QSet>
#include <QString>
#include <QVector>

/** One cell as the views layer converts it from the interface record. */
struct XTableCell {
    QString text;
    QString image; /**< URL of the picture, "" for none */
    QColor textColor; /**< invalid: the column's */
    QColor backColor; /**< invalid: the row's */
    QFont font;
    bool hasFont = false;
};

/**
 * The cells of a table control. The logic layer keeps the data and sends whole
 * pages (updateData); the model holds what is on the page:
 * - a minimum row count: an empty or short page still shows that many empty rows;
 * - per cell a text, an optional image, a text colour and a background colour
 *   (0 = the row's: the background colour, or on every second row the
 *   alternate colour);
 * - per row whether its texts are shown (setDataVisible; a hidden row is a
 *   "slash row": it keeps its texts and shows none).
 *
 * Replacing a page of the same size tells the view only which cells changed, so
 * that one alarm changing every cycle redraws one cell.
 */
class XTableModel : public QAbstractTableModel {
    Q_OBJECT
    Q_PROPERTY(int minimumRowCount READ minimumRowCount WRITE setMinimumRowCount NOTIFY minimumRowCountChanged)
    Q_PROPERTY(int actualRowCount READ actualRowCount NOTIFY actualRowCountChanged)

public:
    enum Role {
        TextColorRole = Qt::UserRole + 1, /**< QColor of the text */
        BackColorRole, /**< QColor of the cell background */
        ImageRole, /**< image path, "" for none */
        TextVisibleRole, /**< false on a slash row */
        FontRole, /**< QFont of the cell */
        AlignRole, /**< Qt::Alignment of the column */
        HighlightRole /**< true on the highlighted cell or row */
    };

    /** One cell as the logic layer sends it. */
    struct Cell {
        QString text;
        QString image;
        QRgb textColor = 0; /**< 0: the column's font colour */
        QRgb backColor = 0; /**< 0: the row's colour */
        int font = -1; /**< index into the cell fonts, -1: the column's */
    };

    explicit XTableModel(QObject* parent = nullptr);
    ~XTableModel() override;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    QHash<int, QByteArray> roleNames() const override;

    /** Rows shown at least (filled with empty rows); negative counts as 0. */
    int minimumRowCount() const { return m_minimumRows; }
    void setMinimumRowCount(int rows);
    /** The rows the logic layer sent. */
    int actualRowCount() const { return m_rows.size(); }

    /** The columns; cells beyond them are dropped, missing cells are empty. */
    void setColumnCount(int columns);
    /** Replaces the page. Rows longer than the column count are cut, shorter ones filled. */
    void updateData(QVector<QVector<Cell>> rows);
    /** Replaces the page with cells as the views layer converts them (fonts are added as cell fonts). */
    void setPage(const QVector<QVector<XTableCell>>& rows);
    /** The text of a cell of the page, empty outside it. */
    QString cellText(int row, int column) const;

    void setBackColor(const QColor& color);
    void setAltBackColor(const QColor& color);
    QColor backColor() const { return m_backColor; }
    QColor altBackColor() const { return m_altBackColor; }
    void setHighlightColor(const QColor& color);

    /** Per column font, colour and alignment; a column without one uses the default. */
    void setColumnFont(int column, const QFont& font, const QColor& color);
    void setDefaultFont(const QFont& font, const QColor& color);
    void setColumnAlignment(int column, Qt::Alignment align);
    /** Fonts a cell can name by index (Cell::font). */
    int addCellFont(const QFont& font);

    /** Shows or hides the texts of \a row (a hidden row is a slash row). */
    void setDataVisible(int row, bool visible);
    bool isDataVisible(int row) const { return !m_slashRows.contains(row); }
    void removeSlashRow(int row) { setDataVisible(row, true); }
    void clearAllSlash();

    /** The highlighted row (whole row) or cell; -1 for none. */
    void setHighlight(int row, int column, bool wholeRow);

Q_SIGNALS:
    void minimumRowCountChanged();
    void actualRowCountChanged();

private:
    const Cell* cell(int row, int column) const;
    QColor rowColor(int row) const;
    void emitAllChanged(const QVector<int>& roles);

    QVector<QVector<Cell>> m_rows;
    int m_columns = 0;
    int m_minimumRows = 0;
    QColor m_backColor { Qt::white };
    QColor m_altBackColor { Qt::white };
    QColor m_highlightColor { 0x6E, 0xA2, 0xE2 };
    QFont m_defaultFont;
    QColor m_defaultColor { Qt::black };
    QVector<QFont> m_columnFonts;
    QVector<QColor> m_columnColors;
    QVector<bool> m_columnHasFont;
    QVector<Qt::Alignment> m_columnAlign;
    QVector<QFont> m_cellFonts;
    QSet<int> m_slashRows;
    int m_highlightRow = -1;
    int m_highlightColumn = -1;
    bool m_highlightWholeRow = false;
};

#endif // XTABLEMODEL_H
