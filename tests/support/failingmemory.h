#pragma once

#include <new>

/// \file
/// Memory that runs out when a test says so. Whoever links failingmemory.cpp has its operator new, and so has the
/// library under test.

namespace FailingMemory {

/// How many allocations of operator new are not yet given back.
long held();
/// Lets so many allocations succeed, and then fails every one; with -1, none fails.
void setAllowed(long allocations);

/// Runs \a operation with so many allocations; returns false when it ended for want of another.
template <typename Operation>
bool run(long allowed, Operation operation)
{
    setAllowed(allowed);
    try {
        operation();
        setAllowed(-1);
        return true;
    } catch (const std::bad_alloc&) {
        setAllowed(-1);
        return false;
    }
}

} // namespace FailingMemory
