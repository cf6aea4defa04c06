#pragma once

#include "rows.h"

#include <vector>

class QIODevice;

namespace Bench {

/// Draws the ratios that have a limit, as an SVG document: a panel for each limit, a bar for each subject,
/// a line where the bars must end.
void drawPicture(const std::vector<Row>& rows, QIODevice& device);

} // namespace Bench
