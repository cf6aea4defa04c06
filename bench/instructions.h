#pragma once

#include "results.h"
#include "rows.h"

#include <QtCore/QString>

/// \file
/// Counting instructions instead of seconds: they repeat exactly, whatever else the machine does.

namespace Bench {

/// Runs each task once. Under callgrind, told to write its counts after each call of arvxml_bench_measured,
/// this leaves a file of counts for each task, in the order of the tasks.
void runForInstructions(const Coverage& coverage);

/// Collects the counts from the files \a prefix.1, \a prefix.2 and so on.
Results collectInstructions(const Coverage& coverage, const QString& prefix);

} // namespace Bench
