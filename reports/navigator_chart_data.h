#pragma once
// What the progress chart beside the monitor spreadsheet draws for the selected row: each take
// from the log in the order of writing, its date and score, and the passing grade across.

#include "reports/navigator_table.h"

#include <string>
#include <vector>

namespace tessera {

struct ChartPoint {
    double x = 0;      // 0 to 1 along the time axis, takes spaced evenly in their order
    double y = 0;      // the score, 0 to 1
    std::string date;  // under the point
    std::string score; // over the point, in the form "##0.0%"
    bool passing = false;
};

struct ProgressChartData {
    std::string title;
    std::vector<ChartPoint> points;
    double passingShare = 0; // height of the passing line, 0 to 1
    std::string passingLabel;
    std::string description; // the whole chart in one sentence, for a screen reader
};

// The chart of one row: its title, its takes and the candidate's passing grade in percent.
ProgressChartData ChartOfRow(const MonitorRow& row, const std::string& title, int passingGrade);

} // namespace tessera
