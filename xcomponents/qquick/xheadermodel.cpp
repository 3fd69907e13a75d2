#include "xcomponents/qquick/xheadermodel.h"

XHeaderModel::XHeaderModel(QObject* parent)
    : QAbstractListModel(parent)
{
}

XHeaderModel::~XHeaderModel() = default;

int XHeaderModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_titles.size();
}

QVariant XHeaderModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_titles.size())
        return QVariant();
    switch (role) {
    case Qt::DisplayRole:
        return m_titles.at(index.row());
    case WidthRole:
        return width(index.row());
    case LeftRole:
        return left(index.row());
    default:
        return QVariant();
    }
}

QHash<int, QByteArray> XHeaderModel::roleNames() const
{
    return { { Qt::DisplayRole, "display" }, { WidthRole, "columnWidth" }, { LeftRole, "columnLeft" } };
}

void XHeaderModel::setTitles(const QStringList& titles)
{
    if (titles == m_titles)
        return;
    if (titles.size() != m_titles.size()) {
        beginResetModel();
        m_titles = titles;
        endResetModel();
        Q_EMIT titlesChanged();
        Q_EMIT widthsChanged(); // the total width counts the columns
        return;
    }
    for (int c = 0; c < titles.size(); ++c) {
        if (titles.at(c) == m_titles.at(c))
            continue;
        m_titles[c] = titles.at(c);
        Q_EMIT dataChanged(index(c), index(c), { Qt::DisplayRole });
    }
    Q_EMIT titlesChanged();
}

void XHeaderModel::setWidths(const QVector<int>& widths)
{
    const QVector<int> before = m_widths;
    m_widths.clear();
    m_widths.reserve(widths.size());
    for (int w : widths)
        m_widths.append(qMax(0, w));
    announceWidths(before, m_defaultWidth);
}

void XHeaderModel::setDefaultWidth(int width)
{
    width = qMax(0, width);
    if (width == m_defaultWidth)
        return;
    const int oldDefault = m_defaultWidth;
    m_defaultWidth = width;
    announceWidths(m_widths, oldDefault);
}

int XHeaderModel::width(int column) const
{
    if (column < 0 || column >= m_titles.size())
        return 0;
    return column < m_widths.size() ? m_widths.at(column) : m_defaultWidth;
}

int XHeaderModel::left(int column) const
{
    qint64 x = 0;
    const int last = qBound(0, column, int(m_titles.size()));
    for (int c = 0; c < last; ++c)
        x += width(c);
    return int(qMin<qint64>(x, INT_MAX));
}

int XHeaderModel::columnAt(int x) const
{
    if (x < 0)
        return -1;
    qint64 right = 0;
    for (int c = 0; c < m_titles.size(); ++c) {
        right += width(c);
        if (x < right)
            return c;
    }
    return -1;
}

QVariantList XHeaderModel::widthList() const
{
    QVariantList list;
    for (int w : m_widths)
        list.append(w);
    return list;
}

void XHeaderModel::setWidthList(const QVariantList& widths)
{
    QVector<int> list;
    for (const QVariant& w : widths)
        list.append(w.toInt());
    setWidths(list);
}

void XHeaderModel::announceWidths(const QVector<int>& before, int oldDefault)
{
    // a column whose width changed moves every column after it: announce from the first change on
    int first = -1;
    for (int c = 0; c < m_titles.size() && first < 0; ++c) {
        const int old = c < before.size() ? before.at(c) : oldDefault;
        if (old != width(c))
            first = c;
    }
    Q_EMIT widthsChanged();
    if (first >= 0)
        Q_EMIT dataChanged(index(first), index(m_titles.size() - 1), { WidthRole, LeftRole });
}
