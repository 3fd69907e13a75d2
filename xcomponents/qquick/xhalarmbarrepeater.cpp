#include "xcomponents/qquick/xhalarmbarrepeater.h"

#include <QQmlComponent>
#include <QQmlContext>
#include <QQmlEngine>

XHAlarmBarRepeater::XHAlarmBarRepeater(QQuickItem* parent)
    : QQuickItem(parent)
{
}

XHAlarmBarRepeater::~XHAlarmBarRepeater() = default;

void XHAlarmBarRepeater::setDelegate(QQmlComponent* delegate)
{
    if (delegate == m_delegate)
        return;
    m_delegate = delegate;
    qDeleteAll(m_cells);
    m_cells.clear();
    setCells(m_values);
    Q_EMIT delegateChanged();
}

void XHAlarmBarRepeater::setCreationContext(QQmlContext* context)
{
    m_context = context;
}

QQuickItem* XHAlarmBarRepeater::loadCell(int index)
{
    if (!m_delegate || !m_delegate->isReady())
        return nullptr;
    QQmlContext* context = m_delegate->creationContext();
    if (!context)
        context = m_context;
    if (!context)
        return nullptr;
    QObject* object = m_delegate->beginCreate(context);
    auto* cell = qobject_cast<QQuickItem*>(object);
    if (!cell) {
        delete object;
        return nullptr;
    }
    cell->setParentItem(this);
    cell->setParent(this);
    for (auto it = m_values.at(index).cbegin(); it != m_values.at(index).cend(); ++it)
        cell->setProperty(it.key().toLatin1().constData(), it.value());
    m_delegate->completeCreate();
    return cell;
}

void XHAlarmBarRepeater::setCells(const QVector<QVariantMap>& values)
{
    const int before = m_values.size();
    m_values = values;
    while (m_cells.size() > m_values.size())
        delete m_cells.takeLast();
    for (int i = 0; i < m_cells.size(); ++i) {
        for (auto it = m_values.at(i).cbegin(); it != m_values.at(i).cend(); ++it)
            m_cells.at(i)->setProperty(it.key().toLatin1().constData(), it.value());
    }
    while (m_cells.size() < m_values.size()) {
        QQuickItem* cell = loadCell(m_cells.size());
        if (!cell)
            break;
        m_cells.append(cell);
    }
    if (before != m_values.size())
        Q_EMIT modelChanged();
    forceLayout();
}

QQuickItem* XHAlarmBarRepeater::cellAt(int index) const
{
    return m_cells.value(index, nullptr);
}

void XHAlarmBarRepeater::forceLayout()
{
    qreal x = 0;
    qreal h = 0;
    for (int i = 0; i < m_cells.size(); ++i) {
        QQuickItem* cell = m_cells.at(i);
        cell->setPosition(QPointF(x, 0));
        cell->setWidth(m_values.at(i).value(QStringLiteral("cellWidth")).toReal());
        x += cell->width();
        h = qMax(h, cell->height());
    }
    m_totalWidth = x;
    setSize(QSizeF(x, h));
    Q_EMIT layoutChanged();
}
