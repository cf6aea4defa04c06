#pragma once

#include <cstdio>

/// \file
/// What programs know of a class when they are compiled: how large its objects are, how they are aligned, and where the
/// members end. (What is behind that up to the size is padding, where a class derived puts its own.)

namespace Sizes {

template <typename T, std::size_t size>
struct WithTail : T {
    char tail[size];
};

/// The first number of bytes behind \a T that does not fit into its padding.
template <typename T, std::size_t size = 1>
constexpr std::size_t firstTooLarge()
{
    if constexpr (sizeof(WithTail<T, size>) > sizeof(T))
        return size;
    else
        return firstTooLarge<T, size + 1>();
}

/// Prints a line of the list, whose sizes are those of machines with pointers of 64 bits.
template <typename T>
void show(const char* name)
{
    if (sizeof(void*) != 8)
        return;
    std::printf("size of ArvXml::%s: %zu, aligned to %zu, members end at %zu\n", name, sizeof(T), alignof(T),
                sizeof(T) + 1 - firstTooLarge<T>());
}

} // namespace Sizes
