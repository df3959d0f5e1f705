// The monitor spreadsheet's rules: the log folded into rows and cell texts, the sizes of the
// grid, and the chart of a row.

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

struct FoldCase {
    const char* name;
    std::vector<Slot> slots;
    int row;
    std::array<std::string, 5> cells; // columns 1 to 5
};

class Fold : public ::testing::TestWithParam<FoldCase> {};

TEST_P(Fold, GivesTheRowsCells) {
    const FoldCase& c = GetParam();
    const MonitorRows rows = FoldProgressLog(HeaderWith(c.slots));
    const auto cells = MonitorCells(rows[c.row], "Title");
    EXPECT_EQ(cells[0], "Title");
    for (int column = 1; column < MonitorColumnCount; ++column)
        EXPECT_EQ(cells[column], c.cells[column - 1]) << "column " << column;
}

INSTANTIATE_TEST_SUITE_P(
    Log, Fold,
    ::testing::Values(
        FoldCase{"EmptyLog", {}, 1, {"", "", " 0", "", ""}},
        FoldCase{"BestOfThreeTakesDatedByTheLaterEqualScore",
                 {{"09-01-2026", 3, 0.70F}, {"09-08-2026", 3, 0.85F}, {"09-15-2026", 3, 0.85F}},
                 3,
                 {"09-01-2026", "70.0%", " 3", "85.0%", "09-15-2026"}},
        FoldCase{"AFallingScoreKeepsTheFirstDate",
                 {{"10-01-2026", 10, 0.80F}, {"10-20-2026", 10, 0.60F}},
                 10,
                 {"10-01-2026", "80.0%", " 2", "80.0%", "10-01-2026"}},
        FoldCase{"AFirstScoreOfZeroStillShows",
                 {{"11-02-2026", 12, 0.0F}},
                 12,
                 {"11-02-2026", "0.0%", " 1", "0.0%", "11-02-2026"}},
        FoldCase{"OtherRowsDoNotMix",
                 {{"09-01-2026", 2, 0.9F}, {"09-02-2026", 11, 0.5F}},
                 11,
                 {"09-02-2026", "50.0%", " 1", "50.0%", "09-02-2026"}},
        FoldCase{
            "AFreeSlotEndsTheLog",
            {{"09-01-2026", 4, 0.5F}, {std::string(10, '\0'), 4, 0.9F}, {"09-03-2026", 4, 0.95F}},
            4,
            {"09-01-2026", "50.0%", " 1", "50.0%", "09-01-2026"}},
        FoldCase{"ACodeOutsideTheTableIsPassedOver",
                 {{"09-01-2026", 13, 0.5F}, {"09-02-2026", 0, 0.6F}, {"09-03-2026", 5, 0.75F}},
                 5,
                 {"09-03-2026", "75.0%", " 1", "75.0%", "09-03-2026"}},
        FoldCase{"AllThirtySixSlotsReadToTheLast",
                 AllSlots(),
                 12,
                 {"10-12-2026", "60.0%", " 3", "80.0%", "10-36-2026"}}),
    [](const ::testing::TestParamInfo<FoldCase>& info) { return std::string(info.param.name); });

TEST(MonitorTable, SizesFollowTheGrid) {
    const MonitorGridSizes loaded = LoadedGridSizes(1000);
    EXPECT_EQ(loaded.columnWidths, (std::array<int, 6>{430, 110, 110, 110, 110, 110}));
    EXPECT_EQ(loaded.bodyHeight, 20);
    const MonitorGridSizes resized = ResizedGridSizes(1000, 450);
    EXPECT_EQ(resized.columnWidths, (std::array<int, 6>{430, 130, 100, 100, 100, 100}));
    EXPECT_EQ(resized.bodyHeight, 30);
    EXPECT_EQ(resized.headHeight, 60);
}

TEST(MonitorChart, TakesInOrderAgainstThePassingGrade) {
    const MonitorRows rows = FoldProgressLog(HeaderWith({{"09-01-2026", 3, 0.69F},
                                                         {"09-02-2026", 1, 0.9F},
                                                         {"09-08-2026", 3, 0.70F},
                                                         {"09-15-2026", 3, 0.85F}}));
    const ProgressChartData chart = ChartOfRow(rows[3], "Real Property", 70);
    ASSERT_EQ(chart.points.size(), 3U);
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_DOUBLE_EQ(chart.points[i].x, 0.5 * static_cast<double>(i));
    EXPECT_EQ(chart.points[1].date, "09-08-2026");
    EXPECT_EQ(chart.points[1].score, "70.0%");
    EXPECT_FALSE(chart.points[0].passing);
    EXPECT_TRUE(chart.points[1].passing); // the grade itself passes
    EXPECT_DOUBLE_EQ(chart.passingShare, 0.7);
    EXPECT_EQ(chart.passingLabel, "Passing grade 70%");
    EXPECT_EQ(chart.description, "Real Property: 3 full takes, 69.0% on 09-01-2026, 70.0% on "
                                 "09-08-2026, 85.0% on 09-15-2026, passing grade 70%.");

    const ProgressChartData single = ChartOfRow(rows[1], "Definitions", 85);
    ASSERT_EQ(single.points.size(), 1U);
    EXPECT_DOUBLE_EQ(single.points[0].x, 0.5);
    EXPECT_TRUE(single.points[0].passing);
    EXPECT_EQ(ChartOfRow(rows[2], "Preliminary Evaluation", 70).description,
              "Preliminary Evaluation: no full takes yet.");
}

} // namespace
} // namespace tessera
