#pragma once

#include "results.h"
#include "rows.h"

namespace Bench {

/// How often each task is repeated, below and from 100 MB on.
struct Repetitions {
    int small;
    int great;
};

/// Measures everything in seconds of processor time. All that is compared with each other is measured in
/// one go, in a random order that changes between the repetitions.
Results measureTimes(const Coverage& coverage, const Repetitions& repetitions);

} // namespace Bench
