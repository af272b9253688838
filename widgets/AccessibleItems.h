#pragma once

#include <QAccessible>
#include <QHash>

#include <memory>

/// The accessible items that stand for the parts of something, each by the key of its part: made
/// when it is first asked for, the same ever after, and gone when it is removed or this is.
///
/// Qt's register of accessible objects holds the items; they are known here by their numbers in it.
template <typename Key, typename Item>
class AccessibleItems
{
public:
    AccessibleItems() = default;
    Q_DISABLE_COPY_MOVE(AccessibleItems)
    ~AccessibleItems()
    {
        for (const auto id : m_ids) {
            QAccessible::deleteAccessibleInterface(id);
        }
    }

    /// Null while it was not made.
    Item* find(const Key& key) const { return itemWithID(m_ids.value(key)); }

    /// `make` answers a std::unique_ptr<Item>.
    template <typename Make>
    Item& findOrMake(const Key& key, Make make)
    {
        if (auto* const item = find(key)) {
            return *item;
        }
        auto* const item = make().release();
        m_ids.insert(key, QAccessible::registerAccessibleInterface(item));
        return *item;
    }

    /// Visits the items there are now, whatever the visits make of them.
    template <typename Visit>
    void forEach(Visit visit) const
    {
        const auto ids = m_ids;
        for (const auto id : ids) {
            if (auto* const item = itemWithID(id)) {
                visit(*item);
            }
        }
    }

    template <typename Predicate>
    void removeIf(Predicate predicate)
    {
        m_ids.removeIf([&predicate](const auto entry) {
            const auto* const item = itemWithID(entry.value());
            const bool isToGo = !item || predicate(*item);
            if (isToGo) {
                QAccessible::deleteAccessibleInterface(entry.value());
            }
            return isToGo;
        });
    }

private:
    static Item* itemWithID(QAccessible::Id id)
    {
        return static_cast<Item*>(QAccessible::accessibleInterface(id));
    }

    QHash<Key, QAccessible::Id> m_ids;
};
