#include "reports/navigator_chart_data.h"

#include "core/text_masks.h"

#include <algorithm>

namespace tessera {

ProgressChartData ChartOfRow(const MonitorRow& row, const std::string& title, int passingGrade) {
    ProgressChartData chart;
    chart.title = title;
    const int grade = std::clamp(passingGrade, 0, 100);
    chart.passingShare = grade / 100.0;
    chart.passingLabel = "Passing grade " + std::to_string(grade) + "%";
    const std::size_t count = row.takes.size();
    for (std::size_t i = 0; i < count; ++i) {
        const MonitorTake& take = row.takes[i];
        ChartPoint point;
        // A single take stands in the middle.
        point.x = count == 1 ? 0.5 : static_cast<double>(i) / static_cast<double>(count - 1);
        point.y = std::clamp(static_cast<double>(take.score), 0.0, 1.0);
        point.date = take.date;
        point.score = ShareText(take.score);
        // As everywhere, the Single product of the share and 100 passes at the grade itself.
        point.passing = take.score * 100.0F >= static_cast<float>(grade);
        chart.points.push_back(point);
    }
    if (count == 0) {
        chart.description = title + ": no full takes yet.";
    } else {
        chart.description = title + ": " + std::to_string(count) +
                            (count == 1 ? " full take" : " full takes") + ",";
        for (const ChartPoint& point : chart.points)
            chart.description += " " + point.score + " on " + point.date + ",";
        chart.description += " passing grade " + std::to_string(grade) + "%.";
    }
    return chart;
}

} // namespace tessera
