#pragma once

#include <new>
#include <type_traits>
#include <utility>

namespace ArvXml {

/// A constant that is never destroyed, for tables created on first use. Elements can be used by destructors of globals,
/// by threads that outlive main(), and by thread exit handlers, when a table with a destructor would be gone.
template <typename T>
class NeverDestroyed {
public:
    NeverDestroyed(T value) { ::new (m_memory) T(std::move(value)); }
    NeverDestroyed(const NeverDestroyed&) = delete;
    NeverDestroyed& operator=(const NeverDestroyed&) = delete;

    operator const T&() const
    {
        static_assert(std::is_trivially_destructible_v<NeverDestroyed>);
        return *std::launder(reinterpret_cast<const T*>(m_memory));
    }

private:
    alignas(T) unsigned char m_memory[sizeof(T)];
};

} // namespace ArvXml
