#include "xcomponents/qquick/treeitem.h"

#include <algorithm>

TreeItem::TreeItem(int columns, TreeItem* parent)
    : m_parent(parent)
    , m_data(qMax(0, columns))
{
}

TreeItem::~TreeItem()
{
    destroyAll(std::move(m_children));
}

void TreeItem::destroyAll(std::vector<TreeItem*> nodes)
{
    // each node hands its children to the stack before it goes, so no destructor recurses
    while (!nodes.empty()) {
        TreeItem* node = nodes.back();
        nodes.pop_back();
        nodes.insert(nodes.end(), node->m_children.begin(), node->m_children.end());
        node->m_children.clear();
        delete node;
    }
}

TreeItem* TreeItem::child(int number) const
{
    return number >= 0 && number < childCount() ? m_children[size_t(number)] : nullptr;
}

int TreeItem::childNumber() const
{
    if (!m_parent)
        return 0;
    const auto& siblings = m_parent->m_children;
    const auto it = std::find(siblings.begin(), siblings.end(), this);
    return it == siblings.end() ? 0 : int(it - siblings.begin());
}

QVariant TreeItem::data(int column, int role) const
{
    if (column < 0 || column >= m_data.size())
        return QVariant();
    for (const auto& entry : m_data[column]) {
        if (entry.first == role)
            return entry.second;
    }
    return QVariant();
}

bool TreeItem::setData(int column, int role, const QVariant& value)
{
    if (column < 0 || column >= m_data.size())
        return false;
    Roles& roles = m_data[column];
    for (auto& entry : roles) {
        if (entry.first == role) {
            entry.second = value;
            return true;
        }
    }
    roles.append(qMakePair(role, value));
    return true;
}

bool TreeItem::insertChildren(int position, int count, int columns)
{
    if (position < 0 || position > childCount() || count < 0)
        return false;
    std::vector<TreeItem*> fresh;
    fresh.reserve(size_t(count));
    for (int i = 0; i < count; ++i)
        fresh.push_back(new TreeItem(columns, this));
    m_children.insert(m_children.begin() + position, fresh.begin(), fresh.end());
    return true;
}

bool TreeItem::removeChildren(int position, int count)
{
    if (position < 0 || count < 0 || position + count > childCount())
        return false;
    std::vector<TreeItem*> gone(m_children.begin() + position, m_children.begin() + position + count);
    m_children.erase(m_children.begin() + position, m_children.begin() + position + count);
    destroyAll(std::move(gone));
    return true;
}

bool TreeItem::insertColumns(int position, int columns)
{
    if (position < 0 || position > m_data.size() || columns < 0)
        return false;
    // every node of the subtree keeps the same number of columns
    std::vector<TreeItem*> todo { this };
    while (!todo.empty()) {
        TreeItem* node = todo.back();
        todo.pop_back();
        node->m_data.insert(position, columns, Roles());
        todo.insert(todo.end(), node->m_children.begin(), node->m_children.end());
    }
    return true;
}

bool TreeItem::removeColumns(int position, int columns)
{
    if (position < 0 || columns < 0 || position + columns > m_data.size())
        return false;
    std::vector<TreeItem*> todo { this };
    while (!todo.empty()) {
        TreeItem* node = todo.back();
        todo.pop_back();
        if (position + columns <= node->m_data.size())
            node->m_data.remove(position, columns);
        todo.insert(todo.end(), node->m_children.begin(), node->m_children.end());
    }
    return true;
}

TreeItem* TreeItem::appendChild()
{
    auto* item = new TreeItem(columnCount(), this);
    m_children.push_back(item);
    return item;
}
