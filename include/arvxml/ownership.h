#pragma once

#include <QtCore/QList>

#include <memory>
#include <type_traits>
#include <utility>

/// \file
/// How an element holds its children. A child that is always present is a plain member of its own
/// type; the two kinds below bring the copy rules for children that may be absent or repeated. With
/// them, copying, assigning and destroying an element is the compiler's work. When memory runs out, a setter
/// leaves what was held.

namespace ArvXml {

/// A child that may be absent.
///
/// Copying copies the child. Assignment assigns into the child held if both sides hold one, removes
/// it if the source holds none, and makes a copy if only the source holds one.
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

    /// Assigns into the child held, removes it, or makes a copy, as the other side has it.
    OptionalChild& operator=(const OptionalChild& other)
    {
        if (other.isPresent())
            set(*other.m_child);
        else
            clear();
        return *this;
    }
    /// Moves into the child held if both sides hold one; otherwise takes what the other side has.
    OptionalChild& operator=(OptionalChild&& other) noexcept(std::is_nothrow_move_assignable_v<T>)
    {
        if (isPresent() && other.isPresent())
            *m_child = std::move(*other.m_child); // the object held stays, as in every assignment
        else
            m_child = std::move(other.m_child);
        return *this;
    }

    /// Whether there is a child.
    bool isPresent() const { return m_child != nullptr; }

    /// The child, or null when absent.
    const T* get() const { return m_child.get(); }
    T* get() { return m_child.get(); }

    /// Assigns into the child held, or makes a copy when absent. \a value may be the child itself.
    void set(const T& value)
    {
        if (isPresent())
            *m_child = value;
        else
            m_child = std::make_unique<T>(value);
    }

    /// The child held, made with its defaults when absent.
    T& obtain() { return isPresent() ? *m_child : renew(); }

    /// A new child made of \a arguments, none for its defaults, in place of the one held, if any.
    template <typename... Arguments>
    T& renew(Arguments&&... arguments)
    {
        m_child = std::make_unique<T>(std::forward<Arguments>(arguments)...);
        return *m_child;
    }

    /// Destroys the child, if there is one.
    void clear() { m_child.reset(); }

    /// Gives the child held up to the caller without destroying it; the child is then absent.
    T* release() { return m_child.release(); }

private:
    std::unique_ptr<T> m_child;
};

/// Children that are repeated. \a Pointers is the container that getters hand out.
///
/// Copying copies every item. The items belong to this list, whoever else holds their pointers.
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

    /// Replaces the items held by a copy of each of the other side's.
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

    /// The items, in order; they stay the list's.
    const Pointers& items() const { return m_items; }
    /// Whether there are none.
    bool isEmpty() const { return m_items.isEmpty(); }
    /// How many items there are.
    int size() const { return static_cast<int>(m_items.size()); }

    /// Replaces the items held by a copy of each given one, null pointers left out. \a items may be
    /// the list held or hold items of it.
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
