// The monitor spreadsheet's rules: the log folded into rows and cell texts, and the chart of a
// row.

#include "core/session_state.h"
#include "reports/navigator_chart_data.h"
#include "reports/navigator_table.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

namespace tessera {
namespace {

struct Slot {
    std::string date;
    int code;
    float score;
};

ProgressHeader HeaderWith(const std::vector<Slot>& slots) {
    ProgressHeader header;
    for (std::size_t i = 0; i < slots.size(); ++i) {
        header.LogDates[i + 1] = slots[i].date;
        header.LogCodes[i + 1] = static_cast<uint8_t>(slots[i].code);
        header.LogScores[i + 1] = slots[i].score;
    }
    return header;
}

// Every slot filled: each row three takes, rising by a tenth, on dates in slot order.
std::vector<Slot> AllSlots() {
    std::vector<Slot> slots;
    for (int i = 1; i <= LogSlotCount; ++i) {
        const int row = (i - 1) % MonitorRowCount + 1;
        const int take = (i - 1) / MonitorRowCount;
        slots.push_back({"10-" + std::string(i < 10 ? "0" : "") + std::to_string(i) + "-2026", row,
                         0.6F + 0.1F * static_cast<float>(take)});
    }
    return slots;
}

TEST(MonitorTable, TheLogFoldsIntoTheRowsCells) {
    const struct {
        const char* name;
        std::vector<Slot> slots;
        int row;
        std::string cells; // all six, joined by '|'
    } cases[] = {
        {"empty log", {}, 1, "Title||| 0||"},
        {"best of three takes, dated by the later equal score",
         {{"09-01-2026", 3, 0.70F}, {"09-08-2026", 3, 0.85F}, {"09-15-2026", 3, 0.85F}},
         3,
         "Title|09-01-2026|70.0%| 3|85.0%|09-15-2026"},
        {"a falling score keeps the first date",
         {{"10-01-2026", 10, 0.80F}, {"10-20-2026", 10, 0.60F}},
         10,
         "Title|10-01-2026|80.0%| 2|80.0%|10-01-2026"},
        {"a first score of zero still shows",
         {{"11-02-2026", 12, 0.0F}},
         12,
         "Title|11-02-2026|0.0%| 1|0.0%|11-02-2026"},
        {"other rows do not mix",
         {{"09-01-2026", 2, 0.9F}, {"09-02-2026", 11, 0.5F}},
         11,
         "Title|09-02-2026|50.0%| 1|50.0%|09-02-2026"},
        {"a free slot ends the log",
         {{"09-01-2026", 4, 0.5F}, {std::string(10, '\0'), 4, 0.9F}, {"09-03-2026", 4, 0.95F}},
         4,
         "Title|09-01-2026|50.0%| 1|50.0%|09-01-2026"},
        {"a code outside the table is passed over",
         {{"09-01-2026", 13, 0.5F}, {"09-02-2026", 0, 0.6F}, {"09-03-2026", 5, 0.75F}},
         5,
         "Title|09-03-2026|75.0%| 1|75.0%|09-03-2026"},
        {"all 36 slots are read to the last", AllSlots(), 12,
         "Title|10-12-2026|60.0%| 3|80.0%|10-36-2026"},
    };
    for (const auto& c : cases) {
        const auto cells = MonitorCells(FoldProgressLog(HeaderWith(c.slots))[c.row], "Title");
        std::string joined = cells[0];
        for (std::size_t column = 1; column < cells.size(); ++column)
            joined += "|" + cells[column];
        EXPECT_EQ(joined, c.cells) << c.name;
    }
}

TEST(MonitorChart, TakesInOrderAgainstThePassingGrade) {
    const MonitorRows rows = FoldProgressLog(HeaderWith({{"09-01-2026", 3, 0.69F},
                                                         {"09-02-2026", 1, 0.9F},
                                                         {"09-08-2026", 3, 0.70F},
                                                         {"09-15-2026", 3, 0.85F}}));
    const auto points = [](const ProgressChartData& chart) {
        std::string shown;
        for (const ChartPoint& point : chart.points)
            shown += std::to_string(point.x).substr(0, 3) + (point.passing ? "+ " : "- ");
        return shown;
    };
    // The grade itself passes; a single take stands in the middle.
    const ProgressChartData chart = ChartOfRow(rows[3], "Real Property", 70);
    EXPECT_EQ(points(chart), "0.0- 0.5+ 1.0+ ");
    EXPECT_EQ(chart.points[1].date + " " + chart.points[1].score, "09-08-2026 70.0%");
    EXPECT_DOUBLE_EQ(chart.passingShare, 0.7);
    EXPECT_EQ(chart.passingLabel, "Passing grade 70%");
    EXPECT_EQ(chart.description, "Real Property: 3 full takes, 69.0% on 09-01-2026, 70.0% on "
                                 "09-08-2026, 85.0% on 09-15-2026, passing grade 70%.");
    EXPECT_EQ(points(ChartOfRow(rows[1], "Definitions", 85)), "0.5+ ");
    EXPECT_EQ(ChartOfRow(rows[2], "Preliminary Evaluation", 70).description,
              "Preliminary Evaluation: no full takes yet.");
}

} // namespace
} // namespace tessera
