#include "xcomponents/qquick/xalarmbarcontrol.h"

#include "xcomponents/qquick/xalarmbarmodel.h"
#include "xcomponents/qquick/xquickheadermodel.h"
#include "xcomponents/qquick/xalarmtablebarheader.h"

#include <QtMath>

#include <cmath>

namespace {
const char* const kContentUrl = "qrc:/list/QmlAlarmBarContent.qml";
const char* const kHeaderUrl = "qrc:/list/QmlTableHeaderCell.qml";
} // namespace

XAlarmBarControl::XAlarmBarControl(QQuickItem* parent)
    : XAlarmBar(parent)
{
}

XAlarmBarControl::~XAlarmBarControl() = default;

XAlarmTableBar* XAlarmBarControl::table() const
{
    return m_lead.data();
}

XAlarmTableBar* XAlarmBarControl::secondTable() const
{
    return m_follow.data();
}

XAlarmTableBarHeader* XAlarmBarControl::tableHeader() const
{
    return m_leadHeader.data();
}

XAlarmTableBarHeader* XAlarmBarControl::secondTableHeader() const
{
    return m_followHeader.data();
}

bool XAlarmBarControl::start(XAlarmTableBar* view, QQmlEngine* engine, bool header)
{
    // made outside the scene and put in once complete, as the tables' views are
    view->setGridColor(m_setup.gridColor);
    view->setGridWidth(m_setup.gridWidth);
    view->setSingleLine(true);
    view->setRowHeight(header ? headerHeight() : rowHeight());
    const bool made = header ? view->start(engine, m_headerModel, QUrl(QString::fromLatin1(kHeaderUrl)))
                             : view->start(engine, m_model, QUrl(QString::fromLatin1(kContentUrl)));
    view->setParent(this);
    view->setParentItem(this);
    return made;
}

bool XAlarmBarControl::build(QQmlEngine* engine)
{
    m_lead = new XAlarmTableBar;
    m_follow = new XAlarmTableBar;
    m_leadHeader = new XAlarmTableBarHeader;
    m_followHeader = new XAlarmTableBarHeader;
    if (!start(m_lead, engine, false) || !start(m_follow, engine, false) || !start(m_leadHeader, engine, true)
        || !start(m_followHeader, engine, true))
        return false;
    connect(m_model, &XTableModel::modelReset, this, &XAlarmBarControl::relayout);
    return true;
}

void XAlarmBarControl::relayout()
{
    if (!m_lead || !m_follow)
        return;
    // the columns: fixed widths kept, the others share what is left of the bar
    const QVector<qreal> widths = XTableViewControl::columnWidths(m_setup.columns, width());
    qreal total = 0;
    for (qreal w : widths)
        total += w;
    const qreal w = qFloor(total);
    const qreal h = qreal(qMax(m_model->rowCount(), 1)) * rowHeight(); // as reals: a zoomed bar overflows ints
    for (XAlarmTableBar* v : { m_lead.data(), m_follow.data(), static_cast<XAlarmTableBar*>(m_leadHeader.data()),
             static_cast<XAlarmTableBar*>(m_followHeader.data()) }) {
        v->setColumnWidths(widths);
        v->setWidth(w);
    }
    m_lead->setHeight(h);
    m_follow->setHeight(h);
    m_leadHeader->setHeight(headerHeight());
    m_followHeader->setHeight(headerHeight());
    if (w != m_contentWidth || h != m_contentHeight) {
        m_contentWidth = w;
        m_contentHeight = h;
        // a copy of another size starts the band again
        const qreal size = orientation() == Qt::Vertical ? h : w;
        if (qAbs(m_offset) >= size)
            m_offset = 0;
        Q_EMIT contentSizeChanged();
    }
    setDir();
}

void XAlarmBarControl::setDir()
{
    const qreal header = headerHeight();
    const bool vertical = orientation() == Qt::Vertical;
    m_leadHeader->setVisible(header > 0);
    m_followHeader->setVisible(header > 0 && !vertical);
    if (vertical) {
        m_leadHeader->setPosition(QPointF(0, 0));
        m_lead->setPosition(QPointF(0, qFloor(header + m_offset)));
    } else {
        // titles and rows together, centred in the bar
        const qreal top = qFloor((height() - header - m_contentHeight) / 2);
        m_lead->setPosition(QPointF(qFloor(m_offset), top + header));
    }
    resetPosition();
}

void XAlarmBarControl::resetPosition()
{
    const QPointF first = m_lead->position();
    switch (m_direction) {
    case DirLeft:
        m_follow->setPosition(QPointF(first.x() + m_contentWidth, first.y()));
        break;
    case DirRight:
        m_follow->setPosition(QPointF(first.x() - m_contentWidth, first.y()));
        break;
    case DirTop:
        m_follow->setPosition(QPointF(first.x(), first.y() + m_contentHeight));
        break;
    case DirBottom:
    default:
        m_follow->setPosition(QPointF(first.x(), first.y() - m_contentHeight));
        break;
    }
    if (orientation() == Qt::Horizontal) {
        const qreal header = headerHeight();
        m_leadHeader->setPosition(QPointF(m_lead->x(), m_lead->y() - header));
        m_followHeader->setPosition(QPointF(m_follow->x(), m_follow->y() - header));
    }
}

void XAlarmBarControl::setCarouse(const QPoint& step)
{
    if (!m_built || !m_lead)
        return;
    const bool vertical = orientation() == Qt::Vertical;
    const qreal move = vertical ? step.y() : step.x();
    const qreal size = vertical ? m_contentHeight : m_contentWidth;
    if (move == 0 || size <= 0)
        return;
    m_offset += move;
    if (m_offset >= size || m_offset <= -size) {
        // the leading copy is one whole copy away: the following one, which stood one copy
        // behind it, leads from where it stands now (a step of several copies swaps once per copy)
        const qreal copies = std::floor(std::abs(m_offset) / size);
        if (std::fmod(copies, 2.0) != 0) {
            std::swap(m_lead, m_follow);
            std::swap(m_leadHeader, m_followHeader);
        }
        m_offset -= std::copysign(copies * size, m_offset);
    }
    setDir();
}
