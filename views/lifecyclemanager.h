#ifndef LIFECYCLEMANAGER_H
#define LIFECYCLEMANAGER_H

#include <QHash>
#include <QList>
#include <QPair>

#include <unordered_map>

class QQuickItem;

/**
 * The widget registry's two caches, by widget id: the visible map holds items
 * placed in the scene (they have a parent item), the invisible map items kept
 * alive out of the scene. An item is in at most one of them. Items are owned by
 * the registry: registering clears their object parent, and only destroyItem
 * deletes them (deferred to the event loop, so an item deleted from inside one
 * of its own handlers stays valid until the handler returns).
 */
class LifeCycleManager {
public:
    using ItemPair = QPair<unsigned, QQuickItem*>;

    LifeCycleManager();
    ~LifeCycleManager();

    QQuickItem* findItemMaybeVisible(unsigned id) const;
    QQuickItem* findItemMaybeInvisible(unsigned id) const;
    /** Finds the item (invisible map first) and sets its parent item to \a parent. */
    QQuickItem* showItem(unsigned id, QQuickItem* parent);
    /** Finds the item (invisible map first) and makes it invisible. */
    QQuickItem* hideItem(unsigned id);
    /** Schedules the item's deletion and forgets it; false when the id is unknown. */
    bool destroyItem(unsigned id);
    void removeItemParent(const ItemPair& pair);
    void removeItemsParent(const QList<ItemPair>& pairs);
    static void removeItemParentItem(QQuickItem* item);
    /** Inserts into the visible map when the item has a parent item, else the invisible map. */
    void saveItem(const ItemPair& pair);
    /** Re-sorts every entry by whether its item has a parent item now. */
    void swapCache();
    /** Takes the widgets out of a closing window: each child of \a windowContent (and the
     *  the members of group items) is made invisible, unparented and removed from \a hash;
     *  members stay inside their group, and all items stay in the caches. */
    void hideWindow(QQuickItem* windowContent, QHash<unsigned, QQuickItem*>& hash);
    /** The registered widgets inside group item \a group, at any depth of groups. */
    QList<unsigned> membersOf(QQuickItem* group) const;

    int visibleCount() const { return int(m_visible.size()); }
    int invisibleCount() const { return int(m_invisible.size()); }
    bool isVisibleEntry(unsigned id) const { return m_visible.count(id) != 0; }
    bool isInvisibleEntry(unsigned id) const { return m_invisible.count(id) != 0; }
    /** Every item of both maps. */
    QList<QQuickItem*> allItems() const;

private:
    std::unordered_map<unsigned, QQuickItem*> m_visible;
    std::unordered_map<unsigned, QQuickItem*> m_invisible;
};

#endif // LIFECYCLEMANAGER_H
