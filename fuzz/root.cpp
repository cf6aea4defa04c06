#include "exercise.h"

#include <cstddef>
#include <cstdint>

/// \file
/// A fuzz target for one document root; the build tells which.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const Samples::ElementClass& root = Fuzz::classNamed(FUZZ_CLASS);
    if (size > Fuzz::maxSize)
        return -1;
    Fuzz::exercise(root, QByteArray(reinterpret_cast<const char*>(data), static_cast<int>(size)));
    return 0;
}
