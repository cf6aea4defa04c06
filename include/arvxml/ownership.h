#pragma once

#include <QtCore/QList>

#include <memory>
#include <type_traits>
#include <utility>

/// \file
/// How an element holds its children: as plain members if always present, otherwise in the classes below, whose copy
/// rules let the compiler copy, assign and destroy elements. If memory runs out, a setter keeps the existing content.

namespace ArvXml {

/// A child that may be absent. Copying copies the child. Assignment assigns to the existing child if both sides have
/// one, removes it if the source has none, and copies it if only the source has one.
template <typename T>
class OptionalChild {
public:
    /// No child.
    OptionalChild() = default;
    /// A copy of the child, if there is one.
    OptionalChild(const OptionalChild& other)
        : m_child(other.isPresent() ? std::make_unique<T>(*other.m_child) : nullptr)
    {
    }
    /// Takes the child itself.
    OptionalChild(OptionalChild&&) noexcept = default;
    ~OptionalChild() = default;

    /// Assigns to the existing child, removes it or copies it, depending on the other side.
    OptionalChild& operator=(const OptionalChild& other)
    {
        if (other.isPresent())
            set(*other.m_child);
        else
            clear();
        return *this;
    }
    /// Moves into the existing child if both sides have one; otherwise takes what the other side has.
    OptionalChild& operator=(OptionalChild&& other) noexcept(std::is_nothrow_move_assignable_v<T>)
    {
        if (isPresent() && other.isPresent())
            *m_child = std::move(*other.m_child); // the existing object stays, as in every assignment
        else
            m_child = std::move(other.m_child);
        return *this;
    }

    /// Whether there is a child.
    bool isPresent() const { return m_child != nullptr; }

    /// The child, or null when absent.
    const T* get() const { return m_child.get(); }
    T* get() { return m_child.get(); }

    /// Assigns to the existing child, or makes a copy when absent. \a value may be the child itself.
    void set(const T& value)
    {
        if (isPresent())
            *m_child = value;
        else
            m_child = std::make_unique<T>(value);
    }

    /// The child, constructed with its defaults when absent.
    T& obtain() { return isPresent() ? *m_child : renew(); }

    /// Replaces the child, if any, with a new one constructed from \a arguments (none for its defaults).
    template <typename... Arguments>
    T& renew(Arguments&&... arguments)
    {
        m_child = std::make_unique<T>(std::forward<Arguments>(arguments)...);
        return *m_child;
    }

    /// Destroys the child, if there is one.
    void clear() { m_child.reset(); }

    /// Releases the child to the caller without destroying it; it is then absent.
    T* release() { return m_child.release(); }

private:
    std::unique_ptr<T> m_child;
};

/// Repeated children, owned by the list. \a Pointers is the container that getters return. Copying copies every item.
template <typename T, typename Pointers = QList<T*>>
class OwnedList {
public:
    /// No items.
    OwnedList() = default;
    /// A copy of each item.
    OwnedList(const OwnedList& other) { set(other.m_items); }
    /// Takes the items themselves.
    OwnedList(OwnedList&& other) noexcept { m_items.swap(other.m_items); }
    ~OwnedList() { qDeleteAll(m_items); }

    /// Replaces the items with copies of those of the other side.
    OwnedList& operator=(const OwnedList& other)
    {
        if (this != &other)
            set(other.m_items);
        return *this;
    }
    /// Exchanges the items of both sides.
    OwnedList& operator=(OwnedList&& other) noexcept
    {
        m_items.swap(other.m_items);
        return *this;
    }

    /// The items in order, owned by the list.
    const Pointers& items() const { return m_items; }
    /// Whether there are no items.
    bool isEmpty() const { return m_items.isEmpty(); }
    /// The number of items.
    int size() const { return static_cast<int>(m_items.size()); }

    /// Replaces the items with copies, leaving out null pointers. \a items may be this list or contain its items.
    void set(const Pointers& items)
    {
        OwnedList copies;
        copies.m_items.reserve(items.size());
        for (const T* item : items) {
            if (item)
                copies.append(*item);
        }
        m_items.swap(copies.m_items);
    }

    /// Appends a new item with its defaults.
    T& append() { return adopt(std::make_unique<T>()); }
    /// Appends a copy of \a item, which may be an item of this list.
    T& append(const T& item) { return adopt(std::make_unique<T>(item)); }

    /// Destroys all items.
    void clear()
    {
        Pointers items;
        m_items.swap(items);
        qDeleteAll(items);
    }

    /// The pointers themselves, for reordering; the set of items must stay the same.
    Pointers& order() { return m_items; }

private:
    T& adopt(std::unique_ptr<T> item)
    {
        m_items.append(item.get());
        return *item.release();
    }

    Pointers m_items;
};

} // namespace ArvXml
