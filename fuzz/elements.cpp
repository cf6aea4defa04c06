#include "exercise.h"

#include <cstddef>
#include <cstdint>

/// \file
/// A fuzz target for all classes: the first byte picks one out of the table, the rest is the document.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0 || size > Fuzz::maxSize)
        return -1;
    const auto& classes = Samples::classes();
    const QByteArray document(reinterpret_cast<const char*>(data) + 1, static_cast<int>(size) - 1);
    Fuzz::exercise(classes.at(data[0] % classes.size()), document);
    return 0;
}
