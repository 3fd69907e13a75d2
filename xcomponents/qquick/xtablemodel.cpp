#include "xcomponents/qquick/xtablemodel.h"

XTableModel::XTableModel(QObject* parent)
    : QAbstractTableModel(parent)
{
}

XTableModel::~XTableModel() = default;

int XTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : qMax(m_rows.size(), m_minimumRows);
}

int XTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_columns;
}

const XTableModel::Cell* XTableModel::cell(int row, int column) const
{
    if (row < 0 || row >= m_rows.size() || column < 0 || column >= m_rows.at(row).size())
        return nullptr;
    return &m_rows.at(row).at(column);
}

QColor XTableModel::rowColor(int row) const
{
    return (row % 2) ? m_altBackColor : m_backColor;
}

QVariant XTableModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.column() >= m_columns)
        return QVariant();
    const int row = index.row();
    const int column = index.column();
    const Cell* c = cell(row, column);
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return c ? c->text : QString();
    case TextColorRole:
        if (c && c->textColor)
            return QColor::fromRgba(c->textColor);
        return column < m_columnHasFont.size() && m_columnHasFont.at(column) ? m_columnColors.at(column)
                                                                            : m_defaultColor;
    case BackColorRole:
        if ((m_highlightRow == row && (m_highlightWholeRow || m_highlightColumn == column)) && row >= 0)
            return m_highlightColor;
        if (c && c->backColor)
            return QColor::fromRgba(c->backColor);
        return rowColor(row);
    case ImageRole:
        return c ? c->image : QString();
    case TextVisibleRole:
        return !m_slashRows.contains(row);
    case FontRole:
        if (c && c->font >= 0 && c->font < m_cellFonts.size())
            return m_cellFonts.at(c->font);
        return column < m_columnHasFont.size() && m_columnHasFont.at(column) ? m_columnFonts.at(column)
                                                                            : m_defaultFont;
    case AlignRole:
        return int(column < m_columnAlign.size() ? m_columnAlign.at(column) : Qt::AlignCenter);
    case HighlightRole:
        return m_highlightRow == row && row >= 0 && (m_highlightWholeRow || m_highlightColumn == column);
    default:
        return QVariant();
    }
}

bool XTableModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    // only the text of a cell is edited (a confirmed entry of the edit mode)
    if (!index.isValid() || index.column() >= m_columns || (role != Qt::EditRole && role != Qt::DisplayRole))
        return false;
    const int row = index.row();
    if (row >= m_rows.size()) {
        if (row >= rowCount())
            return false;
        m_rows.resize(row + 1); // an edited empty row becomes a row of the page
        for (auto& r : m_rows)
            r.resize(m_columns);
        Q_EMIT actualRowCountChanged();
    }
    m_rows[row][index.column()].text = value.toString();
    Q_EMIT dataChanged(index, index, { Qt::DisplayRole, Qt::EditRole });
    return true;
}

QHash<int, QByteArray> XTableModel::roleNames() const
{
    return {
        { Qt::DisplayRole, "display" },
        { TextColorRole, "textColor" },
        { BackColorRole, "backColor" },
        { ImageRole, "image" },
        { TextVisibleRole, "textVisible" },
        { FontRole, "cellFont" },
        { AlignRole, "cellAlign" },
        { HighlightRole, "highlighted" },
    };
}

void XTableModel::setMinimumRowCount(int rows)
{
    rows = qMax(0, rows);
    if (rows == m_minimumRows)
        return;
    const int before = rowCount();
    m_minimumRows = rows;
    const int after = rowCount();
    if (after > before) {
        beginInsertRows(QModelIndex(), before, after - 1);
        endInsertRows();
    } else if (after < before) {
        beginRemoveRows(QModelIndex(), after, before - 1);
        endRemoveRows();
    }
    Q_EMIT minimumRowCountChanged();
}

void XTableModel::setColumnCount(int columns)
{
    columns = qMax(0, columns);
    if (columns == m_columns)
        return;
    beginResetModel();
    m_columns = columns;
    for (auto& r : m_rows)
        r.resize(columns);
    endResetModel();
}

void XTableModel::updateData(QVector<QVector<Cell>> next)
{
    const int oldRows = m_rows.size();
    const int oldCount = rowCount();
    for (auto& r : next)
        r.resize(m_columns);

    // the same number of rows: only the changed cells are announced
    if (next.size() == oldRows) {
        int top = -1;
        int bottom = -1;
        int left = m_columns;
        int right = -1;
        bool text = false, image = false, colors = false, font = false;
        for (int r = 0; r < oldRows; ++r) {
            const QVector<Cell>& a = m_rows.at(r);
            const QVector<Cell>& b = next.at(r);
            for (int c = 0; c < m_columns; ++c) {
                const Cell& x = a.at(c);
                const Cell& y = b.at(c);
                const bool newText = x.text != y.text;
                const bool newImage = x.image != y.image;
                const bool newColors = x.textColor != y.textColor || x.backColor != y.backColor;
                const bool newFont = x.font != y.font;
                if (!(newText || newImage || newColors || newFont))
                    continue;
                text |= newText;
                image |= newImage;
                colors |= newColors;
                font |= newFont;
                top = top < 0 ? r : top;
                bottom = r;
                left = qMin(left, c);
                right = qMax(right, c);
            }
        }
        m_rows = std::move(next);
        if (top < 0)
            return;
        // only the roles that changed: the cells re-evaluate no more than that
        QVector<int> roles;
        if (text)
            roles << Qt::DisplayRole << Qt::EditRole;
        if (image)
            roles << ImageRole;
        if (colors)
            roles << TextColorRole << BackColorRole;
        if (font)
            roles << FontRole;
        Q_EMIT dataChanged(index(top, left), index(bottom, right), roles);
        return;
    }

    m_rows = std::move(next);
    const int newCount = rowCount();
    if (newCount > oldCount) {
        beginInsertRows(QModelIndex(), oldCount, newCount - 1);
        endInsertRows();
    } else if (newCount < oldCount) {
        beginRemoveRows(QModelIndex(), newCount, oldCount - 1);
        endRemoveRows();
    }
    const int shared = qMin(oldCount, newCount);
    if (shared > 0 && m_columns > 0)
        Q_EMIT dataChanged(index(0, 0), index(shared - 1, m_columns - 1));
    Q_EMIT actualRowCountChanged();
}

void XTableModel::setPage(const QVector<QVector<XTableCell>>& rows)
{
    QVector<QVector<Cell>> page;
    page.reserve(rows.size());
    for (const QVector<XTableCell>& row : rows) {
        QVector<Cell> r;
        r.reserve(qMin(row.size(), m_columns));
        for (int c = 0; c < row.size() && c < m_columns; ++c) {
            const XTableCell& in = row.at(c);
            Cell cell;
            cell.text = in.text;
            cell.image = in.image;
            cell.textColor = in.textColor.isValid() ? in.textColor.rgba() : 0;
            cell.backColor = in.backColor.isValid() ? in.backColor.rgba() : 0;
            cell.font = in.hasFont ? addCellFont(in.font) : -1;
            r.append(std::move(cell));
        }
        page.append(std::move(r));
    }
    updateData(std::move(page)); // the page is built here once, never copied
}

QString XTableModel::cellText(int row, int column) const
{
    const Cell* c = cell(row, column);
    return c ? c->text : QString();
}

void XTableModel::emitAllChanged(const QVector<int>& roles)
{
    if (rowCount() > 0 && m_columns > 0)
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, m_columns - 1), roles);
}

void XTableModel::setBackColor(const QColor& color)
{
    if (color == m_backColor)
        return;
    m_backColor = color;
    emitAllChanged({ BackColorRole });
}

void XTableModel::setAltBackColor(const QColor& color)
{
    if (color == m_altBackColor)
        return;
    m_altBackColor = color;
    emitAllChanged({ BackColorRole });
}

void XTableModel::setHighlightColor(const QColor& color)
{
    if (color == m_highlightColor)
        return;
    m_highlightColor = color;
    emitAllChanged({ BackColorRole });
}

void XTableModel::setColumnFont(int column, const QFont& font, const QColor& color)
{
    if (column < 0 || column >= 4096)
        return;
    if (column >= m_columnFonts.size()) {
        m_columnFonts.resize(column + 1);
        m_columnColors.resize(column + 1);
        m_columnHasFont.resize(column + 1);
    }
    m_columnFonts[column] = font;
    m_columnColors[column] = color;
    m_columnHasFont[column] = true;
    emitAllChanged({ FontRole, TextColorRole });
}

void XTableModel::setDefaultFont(const QFont& font, const QColor& color)
{
    m_defaultFont = font;
    m_defaultColor = color;
    emitAllChanged({ FontRole, TextColorRole });
}

void XTableModel::setColumnAlignment(int column, Qt::Alignment align)
{
    if (column < 0 || column >= 4096)
        return;
    while (column >= m_columnAlign.size())
        m_columnAlign.append(Qt::AlignCenter);
    m_columnAlign[column] = align;
    emitAllChanged({ AlignRole });
}

int XTableModel::addCellFont(const QFont& font)
{
    const int at = m_cellFonts.indexOf(font);
    if (at >= 0)
        return at;
    m_cellFonts.append(font);
    return m_cellFonts.size() - 1;
}

void XTableModel::setDataVisible(int row, bool visible)
{
    if (row < 0 || visible == !m_slashRows.contains(row))
        return;
    if (visible)
        m_slashRows.remove(row);
    else
        m_slashRows.insert(row);
    if (row < rowCount() && m_columns > 0)
        Q_EMIT dataChanged(index(row, 0), index(row, m_columns - 1), { TextVisibleRole });
}

void XTableModel::clearAllSlash()
{
    if (m_slashRows.isEmpty())
        return;
    m_slashRows.clear();
    emitAllChanged({ TextVisibleRole });
}

void XTableModel::setHighlight(int row, int column, bool wholeRow)
{
    const int oldRow = m_highlightRow;
    m_highlightRow = row;
    m_highlightColumn = column;
    m_highlightWholeRow = wholeRow;
    for (int r : { oldRow, row }) {
        if (r >= 0 && r < rowCount() && m_columns > 0)
            Q_EMIT dataChanged(index(r, 0), index(r, m_columns - 1), { BackColorRole, HighlightRole });
    }
}
