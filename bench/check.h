#pragma once

class QTextStream;

namespace Bench {

/// Whether what is to be measured is comparable: documents of each kind, small ones, are read and valid,
/// the hand-written loops read the same values, and the writing floor writes the same bytes. Tells on
/// \a out what was found.
bool check(QTextStream& out);

} // namespace Bench
