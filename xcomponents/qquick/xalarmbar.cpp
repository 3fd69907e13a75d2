#include "xcomponents/qquick/xalarmbar.h"

#include "xcomponents/qquick/xalarmbarmodel.h"
#include "xcomponents/qquick/xalarmtablebarheadermodel.h"

#include <QFontMetrics>

#include <cmath>

XAlarmBar::XAlarmBar(QQuickItem* parent)
    : XBaseControl(parent)
    , m_model(new XAlarmBarModel(this))
    , m_headerModel(new XAlarmTableBarHeaderModel(this))
{
    setClip(true);
}

XAlarmBar::~XAlarmBar() = default;

bool XAlarmBar::initialze(const Setup& setup, int direction, int colSpace, QQmlEngine* engine)
{
    m_setup = setup;
    m_direction = qBound(0, direction, 3);
    m_colSpace = qBound(0, colSpace, 200);
    const int columns = m_setup.columns.size();
    m_model->setColumnCount(columns);
    m_model->setDefaultFont(m_setup.contentFont, m_setup.contentColor);
    m_model->setBackColor(m_setup.backColor);
    m_model->setAltBackColor(m_setup.altBackColor);
    for (int c = 0; c < columns; ++c) {
        const XTableViewControl::Column& col = m_setup.columns.at(c);
        m_model->setColumnAlignment(c, col.align);
        if (col.hasFont)
            m_model->setColumnFont(c, col.font, col.color);
    }
    QStringList titles;
    for (const XTableViewControl::Column& col : qAsConst(m_setup.columns))
        titles << col.title;
    m_headerModel->setColumnCount(columns);
    m_headerModel->setTitles(titles);
    m_headerModel->setHeaderHeight(headerHeight());
    m_headerModel->setBackgroundColor(m_setup.headerColor);
    m_headerModel->setFont(m_setup.headerFont, m_setup.headerTextColor);
    m_model->setMinimumRowCount(getMinRowCount());
    Q_EMIT orientationChanged();
    m_built = build(engine);
    if (m_built)
        relayout();
    return m_built;
}

int XAlarmBar::rowHeight() const
{
    if (m_setup.rowHeight > 0)
        return m_setup.rowHeight;
    int h = QFontMetrics(m_setup.contentFont).height();
    for (const XTableViewControl::Column& c : m_setup.columns) {
        if (c.hasFont)
            h = qMax(h, QFontMetrics(c.font).height());
    }
    return h + 8;
}

int XAlarmBar::headerHeight() const
{
    if (m_setup.hideHeader)
        return 0;
    return m_setup.headerHeight > 0 ? m_setup.headerHeight : QFontMetrics(m_setup.headerFont).height() + 8;
}

int XAlarmBar::getMinRowCount() const
{
    return int(std::ceil(height() / qMax(1, rowHeight())));
}

void XAlarmBar::updateHeader(const QStringList& titles)
{
    for (int c = 0; c < m_setup.columns.size(); ++c)
        m_setup.columns[c].title = titles.value(c);
    m_headerModel->setTitles(titles);
    if (m_built)
        relayout();
}

void XAlarmBar::updateData(const QVector<QVector<XTableCell>>& rows)
{
    m_model->setPage(rows);
    if (m_built)
        relayout();
}

void XAlarmBar::setTableColVisible(int column, bool visible)
{
    if (column < 0 || column >= m_setup.columns.size() || m_setup.columns.at(column).hidden == !visible)
        return;
    m_setup.columns[column].hidden = !visible;
    if (m_built)
        relayout();
}

void XAlarmBar::geometryChanged(const QRectF& newGeometry, const QRectF& oldGeometry)
{
    XBaseControl::geometryChanged(newGeometry, oldGeometry);
    if (newGeometry.size() == oldGeometry.size())
        return;
    m_model->setMinimumRowCount(getMinRowCount());
    if (m_built)
        relayout();
}
