#include "xcomponents/qquick/xhalarmbarcontrol.h"

#include "xcomponents/qquick/xalarmbarmodel.h"
#include "xcomponents/qquick/xhalarmbarrepeater.h"

#include <QFontMetricsF>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QtMath>

#include <cmath>

namespace {
const char* const kCellUrl = "qrc:/list/QmlHAlarmBarComp.qml";
constexpr qreal kImageWidth = 20;
} // namespace

XHAlarmBarControl::XHAlarmBarControl(QQuickItem* parent)
    : XAlarmBar(parent)
{
}

XHAlarmBarControl::~XHAlarmBarControl() = default;

void XHAlarmBarControl::setDirectionLeftToRight(bool on)
{
    if (on == m_leftToRight)
        return;
    m_leftToRight = on;
    m_direction = on ? DirRight : DirLeft;
    Q_EMIT directionLeftToRightChanged();
    if (m_built)
        resetPosition();
}

XHAlarmBarRepeater* XHAlarmBarControl::table() const
{
    return m_lead.data();
}

XHAlarmBarRepeater* XHAlarmBarControl::secondTable() const
{
    return m_follow.data();
}

qreal XHAlarmBarControl::contentWidth() const
{
    return m_lead ? m_lead->width() : 0;
}

qreal XHAlarmBarControl::contentHeight() const
{
    return m_lead ? m_lead->height() : 0;
}

bool XHAlarmBarControl::build(QQmlEngine* engine)
{
    m_cellComponent = new QQmlComponent(engine, QUrl(QString::fromLatin1(kCellUrl)), QQmlComponent::PreferSynchronous, this);
    if (!m_cellComponent->isReady())
        return false;
    m_lead = new XHAlarmBarRepeater(this);
    m_follow = new XHAlarmBarRepeater(this);
    m_lead->setCreationContext(engine->rootContext());
    m_follow->setCreationContext(engine->rootContext());
    m_lead->setDelegate(m_cellComponent);
    m_follow->setDelegate(m_cellComponent);
    return true;
}

QVariant XHAlarmBarControl::getValue(int column, int type) const
{
    return cellValue(0, column, type);
}

QVariant XHAlarmBarControl::cellValue(int row, int column, int type) const
{
    if (column < 0 || column >= m_setup.columns.size())
        return QVariant();
    const XTableViewControl::Column& col = m_setup.columns.at(column);
    switch (type) {
    case TitleText:
        return col.title;
    case MinHeaderWidthRole:
        return qMax(0, col.width);
    case TitleColor:
        return m_setup.headerTextColor;
    case TitleFont:
        return m_setup.headerFont;
    default:
        break;
    }
    if (row < 0 || row >= m_model->getActualRowCount())
        return QVariant();
    const QModelIndex at = m_model->index(row, column);
    switch (type) {
    case ContentFont:
        return m_model->data(at, XTableModel::FontRole);
    case ContentText:
        return m_model->data(at, XTableModel::TextVisibleRole).toBool() ? m_model->data(at, Qt::DisplayRole)
                                                                        : QVariant(QString());
    case AlternateBase:
        return m_model->data(at, XTableModel::BackColorRole);
    case ContentTextHAlign:
        return int(m_model->data(at, XTableModel::AlignRole).toInt() & Qt::AlignHorizontal_Mask);
    case ContentTextVAlign:
        return int(m_model->data(at, XTableModel::AlignRole).toInt() & Qt::AlignVertical_Mask);
    case ContentColor:
        return m_model->data(at, XTableModel::TextColorRole);
    case ContentImageUrl:
        return m_model->data(at, XTableModel::ImageRole);
    default:
        return QVariant();
    }
}

qreal XHAlarmBarControl::cellWidth(int row, int column) const
{
    const qreal least = cellValue(row, column, MinHeaderWidthRole).toReal();
    qreal title = 0;
    if (headerIsVisible())
        title = QFontMetricsF(m_setup.headerFont).horizontalAdvance(cellValue(row, column, TitleText).toString())
            + 2 * m_colSpace;
    const QString image = cellValue(row, column, ContentImageUrl).toString();
    const qreal content = (image.isEmpty() ? 0 : kImageWidth + 4)
        + QFontMetricsF(cellValue(row, column, ContentFont).value<QFont>())
              .horizontalAdvance(cellValue(row, column, ContentText).toString())
        + 2 * m_colSpace;
    return qCeil(qMax(least, qMax(title, content)));
}

void XHAlarmBarControl::relayout()
{
    if (!m_lead || !m_follow)
        return;
    const qreal before = contentWidth();
    QVector<QVariantMap> cells;
    const int rows = m_model->getActualRowCount();
    const int header = headerHeight();
    const int row = rowHeight();
    for (int r = 0; r < rows; ++r) {
        for (int c = 0; c < m_setup.columns.size(); ++c) {
            if (m_setup.columns.at(c).hidden)
                continue;
            QVariantMap v;
            v.insert(QStringLiteral("cellWidth"), cellWidth(r, c));
            v.insert(QStringLiteral("height"), header + row);
            v.insert(QStringLiteral("headerHeight"), header);
            v.insert(QStringLiteral("headerColor"), m_setup.headerColor);
            v.insert(QStringLiteral("colSpace"), m_colSpace);
            v.insert(QStringLiteral("titleText"), cellValue(r, c, TitleText));
            v.insert(QStringLiteral("titleColor"), cellValue(r, c, TitleColor));
            v.insert(QStringLiteral("titleFont"), cellValue(r, c, TitleFont));
            v.insert(QStringLiteral("contentText"), cellValue(r, c, ContentText));
            v.insert(QStringLiteral("contentFont"), cellValue(r, c, ContentFont));
            v.insert(QStringLiteral("contentColor"), cellValue(r, c, ContentColor));
            v.insert(QStringLiteral("backColor"), cellValue(r, c, AlternateBase));
            v.insert(QStringLiteral("imageUrl"), cellValue(r, c, ContentImageUrl));
            v.insert(QStringLiteral("hAlign"), cellValue(r, c, ContentTextHAlign));
            v.insert(QStringLiteral("vAlign"), cellValue(r, c, ContentTextVAlign));
            v.insert(QStringLiteral("gridColor"), m_setup.gridColor);
            cells.append(v);
        }
    }
    m_lead->setCells(cells);
    m_follow->setCells(cells);
    if (contentWidth() != before)
        Q_EMIT contentSizeChanged();
    resetPosition();
}

void XHAlarmBarControl::resetPosition()
{
    if (!m_lead || !m_follow)
        return;
    const qreal w = qMax(width(), qMax(m_lead->width(), m_follow->width()));
    m_lead->setPosition(QPointF(qFloor(m_offset), qFloor((height() - m_lead->height()) * 0.5)));
    m_follow->setPosition(QPointF(m_lead->x() + (m_direction == DirRight ? -w : w), m_lead->y()));
}

void XHAlarmBarControl::setCarouse(const QPoint& step)
{
    if (!m_built || !m_lead || (m_direction != DirLeft && m_direction != DirRight) || step.x() == 0)
        return;
    const qreal w = qMax(width(), qMax(m_lead->width(), m_follow->width()));
    if (w <= 0)
        return;
    m_offset += step.x();
    if (m_offset >= w || m_offset <= -w) {
        // the leading run is one whole run away: the following one leads from where it stands
        const qreal runs = std::floor(std::abs(m_offset) / w);
        if (std::fmod(runs, 2.0) != 0)
            std::swap(m_lead, m_follow);
        m_offset -= std::copysign(runs * w, m_offset);
    }
    resetPosition();
}
