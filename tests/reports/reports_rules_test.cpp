// The reports without their screens. The screening exam report card: the rows, their order, the
// "Include" choices, what a retake or the results take from a row, and the printed card. The
// monitor spreadsheet: the log folded into rows and cell texts, and the chart of a row.

#include "platform/card_print.h"
#include "reports/navigator_chart_data.h"
#include "reports/navigator_table.h"
#include "reports/scoring_print.h"
#include "reports/scoring_rows.h"
#include "tests/reports/card_records.h"
#include "tests/support/recording_printer.h"

#include <gtest/gtest.h>

#include <sstream>

using namespace Qt::StringLiterals;

namespace tessera {
namespace {

std::string Blanks(size_t n) {
    return std::string(n, ' ');
}

// The rows by the order they were loaded in, a digit each.
std::string Loaded(const std::vector<ScoringRow>& rows) {
    std::string loaded;
    for (const ScoringRow& row : rows)
        loaded += std::to_string(row.loaded);
    return loaded;
}

// An exam of `asked` items, all answered, `unsure` of them marked unsure.
ExamRecord Sized(const char* date, float score, int asked, int unsure) {
    ExamRecord r = CardExam(10, 1, date, score, {});
    r.ItemCount = r.AnsweredCount = static_cast<int16_t>(asked);
    r.UnsureCount = static_cast<int16_t>(unsure);
    return r;
}

TEST(ScoringRows, RowTextFillsEachColumnToItsWidth) {
    ExamRecord custom = CardExam(12, 3, "01-05-2027", 0.5F, {1, 6});
    custom.TimeLimit = 0; // no allotted time: an empty field
    custom.Scrambled = 0;
    custom.MinutesUsed = 1.5F;
    const std::pair<ExamRecord, std::string> cases[] = {
        {CardExam(10, 1, "12-20-2026", 0.875F, {1, 2, 3, 4, 1, 2, 3, 9}),
         "Exam I        12-20-2026  87.5%      8        8        0      Yes     195   1:30:30"},
        {custom, "Custom        01-05-2027  50.0%      2        2        0       No" + Blanks(8) +
                     "   0:01:30"},
        {CardExam(11, 5, "02-01-2027", 1.0F, {64}),
         "Retake Missed 02-01-2027 100.0%      1        1        1      Yes     195   1:30:30"},
        {CardExam(11, 6, "02-02-2027", 0.0F, {}),
         "Retake Unsure 02-02-2027   0.0%      0        0        0      Yes     195   1:30:30"},
        {CardExam(10, 4, "02-03-2027", 0.25F, {0}),
         "Retake All    02-03-2027  25.0%      1        0        0      Yes     195   1:30:30"},
        {CardExam(11, 2, "02-04-2027", 0.25F, {0}),
         "Exam II       02-04-2027  25.0%      1        0        0      Yes     195   1:30:30"},
    };
    for (const auto& [record, text] : cases)
        EXPECT_EQ(ScoringRowText(LoadScoringRows({record}).at(0)), text);
}

TEST(ScoringRows, TotalsStandUnderTheColumnsAndRoundTheCorrectCountRowByRow) {
    EXPECT_EQ(ScoringTotalsText({}), "Total:");
    // Each row's 2.5 right answers round to the even neighbour as they are added: 2, then 4.
    // Two times 12.5 hours used read as a time of day: 01:00:00.
    ExamRecord a = Sized("01-01-2027", 0.5F, 5, 0);
    ExamRecord b = Sized("01-02-2027", 0.5F, 5, 0);
    a.TimeLimit = b.TimeLimit = 0;
    a.MinutesUsed = b.MinutesUsed = 750;
    b.AnsweredCount = 4;
    EXPECT_EQ(ScoringTotalsText(LoadScoringRows({a, b})),
              "Total:" + Blanks(7) + "40.0%" + Blanks(5) + "10" + Blanks(8) + "9" + Blanks(8) +
                  "0" + Blanks(8) + Blanks(8) + "0" + "  01:00:00");
    EXPECT_EQ(ScoringTotalsText(LoadScoringRows({Sized("01-01-2027", 0.004F, 300, 3)})),
              "Total:" + Blanks(9) + ".3%" + "    300      300        3" + Blanks(8) + "      195" +
                  "  01:30:30");
}

TEST(ScoringRows, LoadingKeepsExamsOnlyWithinThe300Positions) {
    ExamRecord big = CardExam(11, 2, "03-03-2027", 0.5F, {1, 1, 1});
    big.ItemCount = 400;
    ExamRecord partial = CardExam(10, 1, "03-04-2027", 0.5F, {1, 1, 1});
    partial.ItemCount = 2; // position 3 stands past the exam's end and is not loaded
    const auto rows = LoadScoringRows({big, CardExam(13, 1, "03-05-2027", 0.5F, {1}), partial});
    ASSERT_EQ(Loaded(rows), "12");
    EXPECT_NE(ScoringRowText(rows[0]).find("    300 "), std::string::npos);
    EXPECT_EQ(rows[1].record.Items[3] + rows[1].record.AnswerCodes[3], 0);
}

TEST(ScoringRows, SortsOrderByTheirKeyAndLeaveTiesWhereTheGapsPutThem) {
    // Dates compare as month-day-year text: the January exam sorts before the Decembers.
    const auto loaded =
        LoadScoringRows({Sized("12-20-2026", 0.50F, 40, 4), Sized("01-05-2027", 0.90F, 20, 4),
                         Sized("11-02-2026", 0.50F, 150, 15), Sized("03-15-2026", 0.30F, 40, 0),
                         Sized("12-01-2026", 1.00F, 12, 6)});
    EXPECT_EQ(
        SortedKeys(loaded,
                   {ScoringSort::EarliestDate, ScoringSort::LatestDate, ScoringSort::PercentCorrect,
                    ScoringSort::QuestionsAsked, ScoringSort::PercentUnsure},
                   SortScoringRows, &ScoringRow::loaded),
        "24351 15342 52134 34125 52134");
}

TEST(ScoringRows, ErasingSelectsTheRowAboveOrTheNewFirst) {
    const auto three =
        LoadScoringRows({Sized("01-01-2027", 0.5F, 4, 0), Sized("01-02-2027", 0.5F, 4, 0),
                         Sized("01-03-2027", 0.5F, 4, 0)});
    // Each row erased in turn: the row selected after, then the rows left.
    std::string shown;
    for (int erased : {1, 2, 3}) {
        auto rows = three;
        const int selected = EraseScoringRow(rows, erased);
        shown += std::to_string(selected) + ":" + Loaded(rows) + " ";
    }
    auto one = LoadScoringRows({Sized("01-01-2027", 0.5F, 4, 0)});
    const int selected = EraseScoringRow(one, 1);
    shown += std::to_string(selected) + ":" + Loaded(one);
    EXPECT_EQ(shown, "1:23 1:13 2:12 0:");
    // The rows kept are written back with each topic flag exactly one, and none for topic 0.
    one = three;
    one[0].record.Topics = {3, 1, 0, 0, 0, 0, 0, 2, 0, 0};
    EXPECT_EQ(KeptExamRecords(one)[0].Topics,
              (std::array<uint8_t, TopicCount + 1>{0, 1, 0, 0, 0, 0, 0, 1, 0, 0}));
}

TEST(ScoringRows, IncludeChoicesFollowTheRuleOfThreeCompleteDrills) {
    const struct {
        float score;
        int asked;
        int unsure;
        int takeCount;
        int fullLength;
        std::array<bool, 3> offered;
    } cases[] = {
        {1.0F, 20, 0, 0, 150, {true, false, false}},  // nothing missed, nothing unsure
        {0.8F, 20, 3, 2, 150, {true, true, true}},    // under three takes anything goes
        {0.8F, 150, 20, 3, 150, {false, true, true}}, // all of a full exam again: no
        {0.8F, 12, 12, 3, 150, {true, true, false}},  // every item unsure
        {0.8F, 120, 100, 3, 100, {false, true, false}},
        {0.8F, 150, 5, 3, 0, {true, true, true}}, // a custom exam has no full length
    };
    for (const auto& c : cases) {
        const ScoringRow row{Sized("01-01-2027", c.score, c.asked, c.unsure), 1};
        EXPECT_EQ(OfferedExamRetakes(row, c.takeCount, c.fullLength), c.offered)
            << c.asked << " asked, " << c.unsure << " unsure";
    }
}

// Codes: right, wrong, no answer, right and unsure, wrong and unsure, outside the table.
ScoringRow MixedRow() {
    ExamRecord r = CardExam(11, 2, "04-01-2027", 0.4F, {1, 7, 0, 64, 70, 200}, 101);
    r.TimeLimit = 90;
    r.Structured = 1;
    r.Topics[2] = 1;
    r.Topics[7] = 1;
    return LoadScoringRows({r})[0];
}

TEST(ScoringRows, ARetakeAsksTheChosenPositionsInTheirOrderAsANewExam) {
    // The items chosen, then the rest of the table cleared.
    const std::tuple<ExamRetake, int, std::vector<int16_t>> cases[] = {
        {ExamRetake::AllQuestions, 4, {101, 102, 103, 104, 105, 106, 0}},
        {ExamRetake::MissedQuestions, 5, {102, 103, 105, 106, 0}},
        {ExamRetake::UnsureQuestions, 6, {104, 105, 0}},
    };
    std::array<bool, TopicCount + 1> topics{};
    topics[2] = topics[7] = true;
    for (const auto& [choice, type, items] : cases) {
        SessionState state;
        state.SuspendedExamRecord = 7;
        state.ExamPosition = 3;
        state.ExamItems.fill(555);
        state.ExamTopics.fill(true);
        BuildExamRetake(state, MixedRow(), choice);
        EXPECT_EQ(state.ExamType, type);
        EXPECT_EQ(state.ExamItemCount + 1, static_cast<int>(items.size()));
        EXPECT_TRUE(std::equal(items.begin(), items.end(), state.ExamItems.begin() + 1));
        const std::array<int, 6> kept = {
            state.ExamKind,       state.ExamMinutes,         state.ExamScrambled,
            state.ExamStructured, state.SuspendedExamRecord, state.ExamPosition};
        EXPECT_EQ(kept, (std::array<int, 6>{2, 90, 1, 1, 0, 0}));
        EXPECT_EQ(state.ExamTopics, topics);
    }
}

TEST(ScoringRows, AStoredExamComesBackForResultsWithItsAnswersAndMarks) {
    SessionState state;
    state.ExamScrambled = true;
    state.ExamAnswers.fill(4);
    state.ExamUnsure.fill(63);
    LoadStoredExam(state, MixedRow());
    EXPECT_EQ(std::pair(int(state.ExamItemCount), int(state.ExamKind)), std::pair(6, 2));
    EXPECT_DOUBLE_EQ(state.ExamElapsed, 90.5 / 1440.0);
    EXPECT_FLOAT_EQ(state.ExamScore, 0.4F);
    EXPECT_TRUE(state.ExamScrambled); // not stored on the card
    EXPECT_EQ(std::vector<int16_t>(state.ExamAnswers.begin(), state.ExamAnswers.begin() + 8),
              (std::vector<int16_t>{0, 1, 2, 0, 1, 2, 0, 0}));
    EXPECT_EQ(std::vector<int16_t>(state.ExamUnsure.begin(), state.ExamUnsure.begin() + 8),
              (std::vector<int16_t>{0, 0, 0, 0, 63, 63, 0, 0}));
    EXPECT_EQ(state.ExamItems[6], 106);
}

// 53 rows bring the page to line 60 and the custom exam's three lines past line 61: the last row
// and the totals go on after the heading "(cont.)".
TEST(ScoringPrint, APageEndsOnceARowPassesLine61) {
    const ScoringRow plain{CardExam(10, 1, "12-20-2026", 0.5F, {1, 6}), 1};
    ScoringRow custom{CardExam(12, 3, "01-05-2027", 0.5F, {1, 6}), 2};
    custom.record.Topics[2] = 1;
    std::vector<ScoringRow> rows(53, plain);
    rows.insert(rows.end(), {custom, plain});
    RecordingPrinter printer;
    PrintCard(printer, ScoringPaper(rows, ""));
    const std::vector<QString> second = printer.pageText(2);
    EXPECT_EQ(printer.pageText(1).size(), 6U + 53U + 3U);
    EXPECT_EQ((second[1] + u'|' + second[3].left(6)).toStdString(),
              "Screening Exam Report Card (cont.)|Exam I");
    EXPECT_EQ(second.size(), 4U + 2U);
}

// The log from "date code percent" entries, from slot 1; a date of "free" leaves a slot free.
ProgressHeader Logged(const std::string& entries) {
    ProgressHeader header;
    std::istringstream in(entries);
    std::string date;
    int code = 0;
    float percent = 0;
    for (size_t slot = 1; in >> date >> code >> percent; ++slot) {
        header.LogDates[slot] = date == "free" ? std::string(10, '\0') : date;
        header.LogCodes[slot] = static_cast<uint8_t>(code);
        header.LogScores[slot] = percent / 100;
    }
    return header;
}

// Every slot filled: each row three takes, rising by a tenth, on dates in slot order.
std::string AllSlots() {
    std::string entries;
    for (int i = 1; i <= LogSlotCount; ++i)
        entries += "10-" + std::string(i < 10 ? "0" : "") + std::to_string(i) + "-2026 " +
                   std::to_string((i - 1) % MonitorRowCount + 1) + " " +
                   std::to_string(60 + 10 * ((i - 1) / MonitorRowCount)) + " ";
    return entries;
}

TEST(MonitorTable, TheLogFoldsIntoTheRowsCells) {
    const struct {
        const char* name;
        std::string slots;
        int row;
        std::string cells; // all six, joined by '|'
    } cases[] = {
        {"empty log", "", 1, "Title||| 0||"},
        {"best of three takes, dated by the later equal score",
         "09-01-2026 3 70 09-08-2026 3 85 09-15-2026 3 85", 3,
         "Title|09-01-2026|70.0%| 3|85.0%|09-15-2026"},
        {"a falling score keeps the first date", "10-01-2026 10 80 10-20-2026 10 60", 10,
         "Title|10-01-2026|80.0%| 2|80.0%|10-01-2026"},
        {"a first score of zero still shows", "11-02-2026 12 0", 12,
         "Title|11-02-2026|0.0%| 1|0.0%|11-02-2026"},
        {"other rows do not mix", "09-01-2026 2 90 09-02-2026 11 50", 11,
         "Title|09-02-2026|50.0%| 1|50.0%|09-02-2026"},
        {"a free slot ends the log", "09-01-2026 4 50 free 4 90 09-03-2026 4 95", 4,
         "Title|09-01-2026|50.0%| 1|50.0%|09-01-2026"},
        {"a code outside the table is passed over",
         "09-01-2026 13 50 09-02-2026 0 60 09-03-2026 5 75", 5,
         "Title|09-03-2026|75.0%| 1|75.0%|09-03-2026"},
        {"all 36 slots are read to the last", AllSlots(), 12,
         "Title|10-12-2026|60.0%| 3|80.0%|10-36-2026"},
    };
    for (const auto& c : cases) {
        const auto cells = MonitorCells(FoldProgressLog(Logged(c.slots))[c.row], "Title");
        std::string joined = cells[0];
        for (std::size_t column = 1; column < cells.size(); ++column)
            joined += "|" + cells[column];
        EXPECT_EQ(joined, c.cells) << c.name;
    }
}

TEST(MonitorChart, TakesInOrderAgainstThePassingGrade) {
    const MonitorRows rows =
        FoldProgressLog(Logged("09-01-2026 3 69 09-02-2026 1 90 09-08-2026 3 70 09-15-2026 3 85"));
    const auto points = [](const ProgressChartData& chart) {
        std::string shown;
        for (const ChartPoint& point : chart.points)
            shown += std::to_string(point.x).substr(0, 3) + (point.passing ? "+ " : "- ");
        return shown;
    };
    // The grade itself passes; a single take stands in the middle.
    const ProgressChartData chart = ChartOfRow(rows[3], "Real Property", 70);
    EXPECT_EQ(points(chart) + chart.passingLabel, "0.0- 0.5+ 1.0+ Passing grade 70%");
    EXPECT_EQ(points(ChartOfRow(rows[1], "Definitions", 85)), "0.5+ ");
}

} // namespace
} // namespace tessera
