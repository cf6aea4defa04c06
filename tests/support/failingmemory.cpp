#include "support/failingmemory.h"

#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <new>

// Of LeakSanitizer, where a program is built with it.
extern "C" {
__attribute__((weak)) void __lsan_disable();
__attribute__((weak)) void __lsan_enable();
}

namespace {

std::atomic<long> heldAllocations = 0;
std::atomic<long> allowedAllocations = -1;

} // namespace

long FailingMemory::held()
{
    return heldAllocations;
}

void FailingMemory::setAllowed(long allocations)
{
    // What Qt loses when its own constructors fail is not to be told; what the library loses is counted by held().
    const bool wasLimited = allowedAllocations >= 0;
    const bool isLimited = allocations >= 0;
    if (__lsan_disable && isLimited && !wasLimited)
        __lsan_disable();
    else if (__lsan_enable && !isLimited && wasLimited)
        __lsan_enable();
    allowedAllocations = allocations;
}

void* operator new(std::size_t size)
{
    if (allowedAllocations == 0)
        throw std::bad_alloc();
    void* const memory = std::malloc(size == 0 ? 1 : size);
    if (!memory)
        throw std::bad_alloc();
    if (allowedAllocations > 0)
        --allowedAllocations;
    ++heldAllocations;
    return memory;
}

void* operator new(std::size_t size, const std::nothrow_t&) noexcept
{
    try {
        return operator new(size);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

void operator delete(void* memory) noexcept
{
    if (memory)
        --heldAllocations;
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    operator delete(memory);
}
