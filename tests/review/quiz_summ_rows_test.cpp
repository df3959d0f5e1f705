#include "review/quiz_summ_rows.h"

#include "tests/reports/card_records.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

TEST(QuizSummRows, RowsAndTotalsFillEachColumnToItsWidth) {
    ReviewTestRecord plain = CardRecord(4, "11-21-2026", 1.0F, 4, {0});
    plain.Scrambled = 0;
    plain.TriesRatio = 0.5F;
    plain.MinutesUsed = 0.25F;
    const auto rows = LoadCardRows({CardRecord(3, "11-20-2026", 0.75F, 1, {0, 2, 1, 3}), plain});
    EXPECT_EQ(CardRowText(rows[0]),
              "All Items      11-20-2026   75.0%      4        2      1.25     Yes     1:05:30");
    EXPECT_EQ(CardRowText(rows[1]),
              "Retake Wild    11-21-2026  100.0%      1        0       .50      No     0:00:15");
    // Seconds that round to 60 carry into the minutes.
    for (const auto& [minutes, text] :
         {std::pair{0.0F, "0:00:00"}, std::pair{600.0F, "10:00:00"}, std::pair{59.999F, "1:00:00"}})
        EXPECT_EQ(FormatTimeUsed(minutes), text);

    EXPECT_EQ(CardTotalsText({}), "Total:");
    // 1 of 4 right and 8 of 8 right: 9 of 12 is 75%, not the mean of 25% and 100%.
    ReviewTestRecord a = CardRecord(1, "11-20-2026", 0.25F, 1, {1, 2, 3, 0});
    ReviewTestRecord b = CardRecord(2, "11-21-2026", 1.0F, 2, {0, 0, 0, 0, 0, 0, 0, 0});
    a.TriesRatio = 2.0F;
    b.TriesRatio = 1.0F;
    EXPECT_EQ(CardTotalsText(LoadCardRows({a, b})),
              " Total:      75.0%     12        2      1.33             2:11:00");
}

TEST(QuizSummRows, SortsOrderByTheirKeyAndLeaveTiesWhereTheGapsPutThem) {
    // The dates compare as month-day-year text, so 01-05-2027 is the earliest.
    const auto loaded = LoadCardRows({CardRecord(5, "12-20-2026", 0.50F, 1, {2, 0}),
                                      CardRecord(2, "01-05-2027", 0.90F, 1, {2, 2}),
                                      CardRecord(9, "11-02-2026", 0.50F, 1, {0, 0, 0, 2}),
                                      CardRecord(2, "03-15-2026", 0.10F, 2, {0, 2, 2, 0}),
                                      CardRecord(7, "12-01-2026", 1.00F, 3, {0})});
    EXPECT_EQ(SortedKeys(loaded,
                         {CardSort::EarliestDate, CardSort::LatestDate, CardSort::PercentCorrect,
                          CardSort::TopicSequence, CardSort::PercentWild},
                         SortCardRows, &CardRow::key),
              "24351 15342 52134 24153 21435");
}

TEST(QuizSummRows, IncludeChoicesFollowTheRowAndTheDrills) {
    const struct {
        float score;
        std::vector<uint8_t> misses;
        int takeCount;
        std::array<bool, 3> offered;
    } cases[] = {
        {1.0F, {0, 0, 0, 0}, 0, {true, false, false}},
        {1.0F, {0, 0, 0, 0}, 3, {false, false, false}},
        {0.75F, {1, 0, 0, 0}, 0, {true, true, false}},
        {0.5F, {2, 1, 0}, 3, {true, true, true}}, // part of the topic
        {0.0F, {1, 1, 1, 1}, 3, {false, false, false}},
        {0.0F, {2, 2, 2, 2}, 3, {false, false, false}},
        {0.0F, {2, 2, 2, 2}, 2, {true, true, true}},
    };
    for (const auto& c : cases) {
        ReviewTestRecord record = CardRecord(1, "01-01-2026", c.score, 1, {});
        record.ItemCount = static_cast<int16_t>(c.misses.size());
        std::copy(c.misses.begin(), c.misses.end(), record.Misses.begin() + 1);
        // The topic has 4 items.
        EXPECT_EQ(OfferedRetakes(LoadCardRows({record})[0], c.takeCount, 4), c.offered)
            << c.score << " after " << c.takeCount << " takes";
    }
}

} // namespace
} // namespace tessera
