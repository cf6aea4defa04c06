#pragma once

#include "results.h"

#include <QtCore/QString>

#include <optional>
#include <vector>

class QTextStream;

namespace Bench {

/// What is compared with a limit, and drawn together.
struct Ratio {
    QString title;   ///< what is compared: "reading / floor"
    QString subject; ///< of what: "devices 10 MB"
    double value;
    std::optional<double> limit; ///< none for what is told for comparison only
};

/// A line of the table.
struct Row {
    QString subject;
    QString figure;
    QString measured; ///< the median, empty where the line above tells it
    QString spread;
    std::optional<Ratio> ratio;
    QString reference; ///< what the ratio is against
};

/// What a run covered.
struct Coverage {
    std::vector<Kind> kinds;
    std::vector<int> megabytes;
    int polygonVertices;
};

std::vector<Row> makeRows(const Results& results, const Coverage& coverage);
void printTable(const std::vector<Row>& rows, QTextStream& out);

} // namespace Bench
