#pragma once

#include "support/samples.h"

#include <QtCore/QByteArray>

#include <cstddef>

/// \file
/// What is done with every input of the fuzz targets.

namespace Fuzz {

/// Inputs beyond this are left out: they take long and show nothing new.
constexpr std::size_t maxSize = 64 * 1024;

/// The row of the table of classes; the first one where a class has several.
const Samples::ElementClass& classNamed(const char* name);

/// Reads \a document into an element of the class, whatever it holds, and goes on with what came of it: judges,
/// explains, writes, copies, assigns, resets and reads again. Aborts when something that always holds does not.
void exercise(const Samples::ElementClass& elementClass, const QByteArray& document);

} // namespace Fuzz
