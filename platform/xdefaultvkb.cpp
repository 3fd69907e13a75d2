#include "xdefaultvkb.h"

#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>

#include "platform/nlogger.h"
#include "platform/xvkbkeyemitter.h"

XDefaultVkb::XDefaultVkb(QObject* parent)
    : QObject(parent)
    , m_emitter(std::make_unique<XVkbKeyEmitter>())
{
}

XDefaultVkb::~XDefaultVkb()
{
    // The item refers to the emitter; it goes first. When its scene was destroyed
    // before the keyboard, the QPointer is already null.
    delete m_item.data();
}

QQuickItem* XDefaultVkb::createItem(QQmlEngine* engine, QQuickItem* parent)
{
    if (m_item)
        return m_item;
    if (!engine) {
        m_error = QStringLiteral("no QML engine");
        return nullptr;
    }

    QQmlComponent component(engine, QUrl(QString::fromLatin1(qmlUrl)));
    QObject* object = component.beginCreate(engine->rootContext());
    auto* item = qobject_cast<QQuickItem*>(object);
    if (!item) {
        delete object;
        m_error = component.errorString();
        NLog::NLogger::instance()->logger()->error(
            "on-screen keyboard not created: {}", m_error.toStdString());
        return nullptr;
    }
    m_error.clear();
    item->setProperty("emitter", QVariant::fromValue<QObject*>(m_emitter.get()));
    item->setProperty("layoutType", m_layoutType);
    item->setProperty("dragBarVisible", m_dragBar);
    item->setVisible(m_visible);
    QQmlEngine::setObjectOwnership(item, QQmlEngine::CppOwnership);
    item->setParent(parent);
    item->setParentItem(parent);
    component.completeCreate();

    m_item = item;
    m_emitter->setKeyboardItem(item);

    // Keep the docked place (or the operator's place) right when the keyboard's size
    // changes with its layout, or the parent's with the screen.
    connect(item, &QQuickItem::widthChanged, this, &XDefaultVkb::dock);
    connect(item, &QQuickItem::heightChanged, this, &XDefaultVkb::dock);
    if (parent) {
        connect(parent, &QQuickItem::widthChanged, this, &XDefaultVkb::dock);
        connect(parent, &QQuickItem::heightChanged, this, &XDefaultVkb::dock);
    }
    connect(item, &QQuickItem::xChanged, this, &XDefaultVkb::onItemMoved);
    connect(item, &QQuickItem::yChanged, this, &XDefaultVkb::onItemMoved);
    dock();
    return item;
}

QQuickItem* XDefaultVkb::item() const
{
    return m_item;
}

void XDefaultVkb::show()
{
    m_visible = true;
    if (m_item)
        m_item->setVisible(true);
}

void XDefaultVkb::hide()
{
    m_visible = false;
    if (m_item)
        m_item->setVisible(false);
}

bool XDefaultVkb::isVisible() const
{
    return m_item ? m_item->isVisible() : m_visible;
}

QRectF XDefaultVkb::rect() const
{
    if (!m_item)
        return QRectF(m_pos, QSizeF(0, 0));
    return QRectF(m_item->position(), m_item->size());
}

void XDefaultVkb::move(const QPointF& pos)
{
    m_placed = true;
    m_pos = pos;
    dock();
}

void XDefaultVkb::showDragBar(bool show)
{
    m_dragBar = show;
    if (m_item)
        m_item->setProperty("dragBarVisible", show);
}

bool XDefaultVkb::isDragBarVisible() const
{
    return m_dragBar;
}

void XDefaultVkb::setLayoutType(int type)
{
    m_layoutType = type;
    if (m_item)
        m_item->setProperty("layoutType", type);
}

int XDefaultVkb::layoutType() const
{
    return m_layoutType;
}

QString XDefaultVkb::glyphs() const
{
    return m_item ? m_item->property("glyphs").toString() : QString();
}

QPointF XDefaultVkb::bounded(const QPointF& pos) const
{
    const QQuickItem* parent = m_item ? m_item->parentItem() : nullptr;
    if (!parent || parent->width() <= 0 || parent->height() <= 0)
        return pos;
    // A keyboard wider than its parent keeps its left (top) edge visible.
    const qreal x = qMax<qreal>(0, qMin(pos.x(), parent->width() - m_item->width()));
    const qreal y = qMax<qreal>(0, qMin(pos.y(), parent->height() - m_item->height()));
    return QPointF(x, y);
}

/* Puts the item where it belongs: the bottom centre of the parent until it has been
   placed, else the remembered place, kept inside the parent. */
void XDefaultVkb::dock()
{
    if (!m_item)
        return;
    QPointF pos = m_pos;
    const QQuickItem* parent = m_item->parentItem();
    if (!m_placed && parent)
        pos = QPointF((parent->width() - m_item->width()) / 2, parent->height() - m_item->height());
    m_moving = true;
    m_item->setPosition(bounded(pos));
    m_moving = false;
    if (m_placed)
        m_pos = m_item->position();
}

void XDefaultVkb::onItemMoved()
{
    if (m_moving || !m_item)
        return;
    // Dragged by the operator: the keyboard stays where it was put.
    m_placed = true;
    m_pos = m_item->position();
}
