#include "xcomponents/qquick/xquicktableview.h"

#include "platform/nlogger.h"

#include <QAbstractItemModel>
#include <QJSEngine>
#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>

XQuickTableView::XQuickTableView(QQuickItem* parent)
    : QQuickTableView(parent)
{
    setClip(true);
    setReuseItems(true);
    setBoundsBehavior(QQuickFlickable::StopAtBounds);
}

XQuickTableView::~XQuickTableView() = default;

bool XQuickTableView::start(QQmlEngine* engine, QAbstractItemModel* model, const QUrl& cellComponent)
{
    if (!engine)
        return false;
    // made as a QML document would make it: in the engine's context, completed after its settings
    QQmlEngine::setContextForObject(this, engine->rootContext());
    classBegin();
    m_cell = new QQmlComponent(engine, cellComponent, this);
    if (m_cell->isError()) {
        NLog::NLogger::instance()->logger()->error(
            "table cell not made: {}", m_cell->errorString().toStdString());
        componentComplete();
        return false;
    }
    setDelegate(m_cell);
    setModel(QVariant::fromValue<QObject*>(model));
    installProviders(engine);
    componentComplete();
    return true;
}

void XQuickTableView::installProviders(QQmlEngine* engine)
{
    QJSValue self = engine->newQObject(this);
    QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership);
    QJSValue make = engine->evaluate(QStringLiteral(
        "(function (v) { return [function (c) { return v.columnWidthAt(c) },"
        " function (r) { return v.rowHeightAt(r) }] })"));
    QJSValue pair = make.call({ self });
    setColumnWidthProvider(pair.property(0));
    setRowHeightProvider(pair.property(1));
}

void XQuickTableView::setColumnWidths(const QVector<qreal>& widths)
{
    if (widths == m_widths)
        return;
    m_widths = widths;
    if (m_cell && isComponentComplete())
        forceLayout();
}

qreal XQuickTableView::columnWidthAt(int column) const
{
    return column >= 0 && column < m_widths.size() ? qMax<qreal>(0, m_widths.at(column)) : 0;
}

void XQuickTableView::setRowHeight(qreal height)
{
    height = qMax<qreal>(1, height);
    if (qFuzzyCompare(height, m_rowHeight))
        return;
    m_rowHeight = height;
    if (m_cell && isComponentComplete())
        forceLayout();
}

qreal XQuickTableView::rowHeightAt(int) const
{
    return m_rowHeight;
}

qreal XQuickTableView::columnX(int column) const
{
    qreal x = 0;
    for (int c = 0; c < column && c < m_widths.size(); ++c)
        x += columnWidthAt(c);
    return x;
}

QPoint XQuickTableView::cellAt(const QPointF& pos) const
{
    const QAbstractItemModel* m = qobject_cast<QAbstractItemModel*>(model().value<QObject*>());
    if (!m || pos.x() < 0 || pos.y() < 0 || pos.x() >= width() || pos.y() >= height())
        return QPoint(-1, -1);
    const qreal cx = pos.x() + contentX() - originX();
    const qreal cy = pos.y() + contentY() - originY();
    const int row = int(cy / m_rowHeight);
    if (row < 0 || row >= m->rowCount())
        return QPoint(-1, -1);
    qreal x = 0;
    for (int c = 0; c < m_widths.size() && c < m->columnCount(); ++c) {
        const qreal w = columnWidthAt(c);
        if (w > 0 && cx >= x && cx < x + w)
            return QPoint(c, row);
        x += w;
    }
    return QPoint(-1, -1);
}

void XQuickTableView::setGridColor(const QColor& color)
{
    if (color == m_gridColor)
        return;
    m_gridColor = color;
    Q_EMIT gridChanged();
}

void XQuickTableView::setGridWidth(int width)
{
    width = qBound(0, width, 16);
    if (width == m_gridWidth)
        return;
    m_gridWidth = width;
    Q_EMIT gridChanged();
}

void XQuickTableView::setSingleLine(bool on)
{
    if (on == m_singleLine)
        return;
    m_singleLine = on;
    Q_EMIT singleLineChanged();
}
