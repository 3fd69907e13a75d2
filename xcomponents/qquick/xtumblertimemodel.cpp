#include "xcomponents/qquick/xtumblertimemodel.h"

XTumblerTimeModel::XTumblerTimeModel(QObject* parent)
    : QAbstractListModel(parent)
{
}

XTumblerTimeModel::~XTumblerTimeModel() = default;

void XTumblerTimeModel::setSize(int size)
{
    size = qMax(0, size);
    if (m_size == size)
        return;
    beginResetModel();
    m_size = size;
    endResetModel();
    Q_EMIT sizeChanged();
}

QString XTumblerTimeModel::getText(int row) const
{
    return row >= 0 && row < m_size ? QString::number(row) : QString();
}

int XTumblerTimeModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_size;
}

QVariant XTumblerTimeModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_size || (role != Qt::DisplayRole && role != Qt::UserRole))
        return QVariant();
    return getText(index.row());
}

QHash<int, QByteArray> XTumblerTimeModel::roleNames() const
{
    // "modelData"-like access from a delegate: display and "text" give the same string
    return { { Qt::DisplayRole, QByteArrayLiteral("display") }, { Qt::UserRole, QByteArrayLiteral("text") } };
}
