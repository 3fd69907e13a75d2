#include "views/lifecyclemanager.h"

#include "platform/gid.h"

#include <QMetaObject>
#include <QQuickItem>
#include <QSet>

LifeCycleManager::LifeCycleManager()
{
    m_visible.max_load_factor(1.0f);
    m_invisible.max_load_factor(1.0f);
}

LifeCycleManager::~LifeCycleManager() = default;

QQuickItem* LifeCycleManager::findItemMaybeVisible(unsigned id) const
{
    auto it = m_visible.find(id);
    if (it != m_visible.end())
        return it->second;
    it = m_invisible.find(id);
    return it != m_invisible.end() ? it->second : nullptr;
}

QQuickItem* LifeCycleManager::findItemMaybeInvisible(unsigned id) const
{
    auto it = m_invisible.find(id);
    if (it != m_invisible.end())
        return it->second;
    it = m_visible.find(id);
    return it != m_visible.end() ? it->second : nullptr;
}

QQuickItem* LifeCycleManager::showItem(unsigned id, QQuickItem* parent)
{
    QQuickItem* item = findItemMaybeInvisible(id);
    if (item)
        item->setParentItem(parent);
    return item;
}

QQuickItem* LifeCycleManager::hideItem(unsigned id)
{
    QQuickItem* item = findItemMaybeInvisible(id);
    if (item)
        item->setVisible(false);
    return item;
}

bool LifeCycleManager::destroyItem(unsigned id)
{
    auto it = m_invisible.find(id);
    if (it != m_invisible.end()) {
        it->second->deleteLater();
        m_invisible.erase(it);
        return true;
    }
    it = m_visible.find(id);
    if (it != m_visible.end()) {
        it->second->setVisible(false); // gone from the screen at once, deleted on the event loop
        it->second->deleteLater();
        m_visible.erase(it);
        return true;
    }
    return false;
}

void LifeCycleManager::removeItemParent(const ItemPair& pair)
{
    if (!pair.second)
        return;
    if (pair.second->parent())
        pair.second->setParent(nullptr);
    saveItem(pair);
}

void LifeCycleManager::removeItemsParent(const QList<ItemPair>& pairs)
{
    for (const ItemPair& p : pairs)
        removeItemParent(p);
}

void LifeCycleManager::removeItemParentItem(QQuickItem* item)
{
    if (item)
        item->setParentItem(nullptr);
}

void LifeCycleManager::saveItem(const ItemPair& pair)
{
    if (!pair.second)
        return;
    // one entry per id: a re-registered id replaces its previous item in either map
    m_visible.erase(pair.first);
    m_invisible.erase(pair.first);
    if (pair.second->parentItem())
        m_visible[pair.first] = pair.second;
    else
        m_invisible[pair.first] = pair.second;
}

void LifeCycleManager::swapCache()
{
    std::unordered_map<unsigned, QQuickItem*> visible, invisible;
    visible.max_load_factor(1.0f);
    invisible.max_load_factor(1.0f);
    visible.reserve(m_visible.size() + m_invisible.size());
    for (auto* map : { &m_visible, &m_invisible }) {
        for (const auto& e : *map) {
            if (e.second->parentItem())
                visible[e.first] = e.second;
            else
                invisible[e.first] = e.second;
        }
    }
    m_visible.swap(visible);
    m_invisible.swap(invisible);
}

static unsigned itemId(QQuickItem* item)
{
    return GId::id(item);
}

void LifeCycleManager::hideWindow(QQuickItem* windowContent, QHash<unsigned, QQuickItem*>& hash)
{
    if (!windowContent)
        return;
    const QList<QQuickItem*> children = windowContent->childItems();
    for (QQuickItem* child : children) {
        const unsigned id = itemId(child);
        const bool group = child->property("isGroup").toBool();
        if (id == 0 && !group)
            continue; // decoration of the window, not a widget
        if (group) {
            // the members leave with their group and stay in it
            for (unsigned member : membersOf(child))
                hash.remove(member);
        }
        hash.remove(id);
        child->setVisible(false);
        child->setParentItem(nullptr);
        auto it = m_visible.find(id);
        if (it != m_visible.end() && it->second == child) {
            m_visible.erase(it);
            m_invisible[id] = child;
        }
    }
}

QList<unsigned> LifeCycleManager::membersOf(QQuickItem* group) const
{
    QList<unsigned> ids;
    QList<QQuickItem*> pending = group ? group->childItems() : QList<QQuickItem*>();
    QSet<QQuickItem*> seen;
    while (!pending.isEmpty()) {
        QQuickItem* item = pending.takeLast();
        if (seen.contains(item))
            continue;
        seen.insert(item);
        const unsigned id = itemId(item);
        if (id != 0 && findItemMaybeInvisible(id) == item)
            ids.append(id);
        if (item->property("isGroup").toBool())
            pending += item->childItems();
    }
    return ids;
}

QList<QQuickItem*> LifeCycleManager::allItems() const
{
    QList<QQuickItem*> items;
    for (const auto* map : { &m_visible, &m_invisible }) {
        for (const auto& e : *map)
            items.append(e.second);
    }
    return items;
}
