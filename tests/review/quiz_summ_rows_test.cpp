#include "review/quiz_summ_rows.h"

#include "quiz_summ_card.h"

#include <gtest/gtest.h>

namespace tessera {
namespace {

std::vector<int> Keys(const std::vector<CardRow>& rows) {
    std::vector<int> keys;
    for (const CardRow& row : rows)
        keys.push_back(row.key);
    return keys;
}

TEST(QuizSummRows, RowTextFillsEachColumnToItsWidth) {
    const auto rows = LoadCardRows({CardRecord(3, "11-20-2026", 0.75F, 1, {0, 2, 1, 3}),
                                    CardRecord(4, "11-21-2026", 1.0F, 3, {0})});
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[0].wild, 2);
    EXPECT_EQ(rows[1].key, 2);
    EXPECT_EQ(CardRowText(rows[0]),
              "All Items      11-20-2026   75.0%      4        2      1.25     Yes     1:05:30");
    ReviewTestRecord plain = CardRecord(4, "11-21-2026", 1.0F, 4, {0});
    plain.Scrambled = 0;
    plain.TriesRatio = 0.5F;
    plain.MinutesUsed = 0.25F;
    EXPECT_EQ(CardRowText(LoadCardRows({plain})[0]),
              "Retake Wild    11-21-2026  100.0%      1        0       .50      No     0:00:15");
}

TEST(QuizSummRows, TimeUsedReadsHoursMinutesSeconds) {
    EXPECT_EQ(FormatTimeUsed(65.5F), "1:05:30");
    EXPECT_EQ(FormatTimeUsed(0.25F), "0:00:15");
    EXPECT_EQ(FormatTimeUsed(0), "0:00:00");
    EXPECT_EQ(FormatTimeUsed(600.0F), "10:00:00");
    // Seconds that round to 60 carry into the minutes.
    EXPECT_EQ(FormatTimeUsed(59.999F), "1:00:00");
}

TEST(QuizSummRows, TotalsAreWeightedByItems) {
    EXPECT_EQ(CardTotalsText({}), "Total:");
    // 1 of 4 right and 8 of 8 right: 9 of 12 is 75%, not the mean of 25% and 100%.
    ReviewTestRecord a = CardRecord(1, "11-20-2026", 0.25F, 1, {1, 2, 3, 0});
    ReviewTestRecord b = CardRecord(2, "11-21-2026", 1.0F, 2, {0, 0, 0, 0, 0, 0, 0, 0});
    a.TriesRatio = 2.0F;
    b.TriesRatio = 1.0F;
    EXPECT_EQ(CardTotalsText(LoadCardRows({a, b})),
              " Total:      75.0%     12        2      1.33             2:11:00");
}

struct SortCase {
    CardSort sort;
    std::vector<int> keys;
};

class QuizSummSort : public testing::TestWithParam<SortCase> {};

TEST_P(QuizSummSort, OrdersByItsKeyAndLeavesTiesWhereTheGapsPutThem) {
    // Keys 1..5: the dates compare as month-day-year text, so 01-05-2027 is the earliest.
    std::vector<CardRow> rows = LoadCardRows({CardRecord(5, "12-20-2026", 0.50F, 1, {2, 0}),
                                              CardRecord(2, "01-05-2027", 0.90F, 1, {2, 2}),
                                              CardRecord(9, "11-02-2026", 0.50F, 1, {0, 0, 0, 2}),
                                              CardRecord(2, "03-15-2026", 0.10F, 2, {0, 2, 2, 0}),
                                              CardRecord(7, "12-01-2026", 1.00F, 3, {0})});
    SortCardRows(rows, GetParam().sort);
    EXPECT_EQ(Keys(rows), GetParam().keys);
    SortCardRows(rows, GetParam().sort);
    EXPECT_EQ(Keys(rows), GetParam().keys);
}

INSTANTIATE_TEST_SUITE_P(FiveWays, QuizSummSort,
                         testing::Values(SortCase{CardSort::EarliestDate, {2, 4, 3, 5, 1}},
                                         SortCase{CardSort::LatestDate, {1, 5, 3, 4, 2}},
                                         SortCase{CardSort::PercentCorrect, {5, 2, 1, 3, 4}},
                                         SortCase{CardSort::TopicSequence, {2, 4, 1, 5, 3}},
                                         SortCase{CardSort::PercentWild, {2, 1, 4, 3, 5}}));

struct OfferCase {
    const char* name;
    float score;
    std::vector<int> misses;
    int takeCount;
    std::array<bool, 3> offered;
};

class QuizSummOffers : public testing::TestWithParam<OfferCase> {};

TEST_P(QuizSummOffers, IncludeChoicesFollowTheRowAndTheDrills) {
    const OfferCase& c = GetParam();
    ReviewTestRecord record = CardRecord(1, "01-01-2026", c.score, 1, {});
    record.ItemCount = static_cast<int16_t>(c.misses.size());
    for (size_t k = 0; k < c.misses.size(); ++k)
        record.Misses[k + 1] = static_cast<uint8_t>(c.misses[k]);
    // The topic has 4 items.
    EXPECT_EQ(OfferedRetakes(LoadCardRows({record})[0], c.takeCount, 4), c.offered) << c.name;
}

INSTANTIATE_TEST_SUITE_P(
    Cases, QuizSummOffers,
    testing::Values(
        OfferCase{"all right", 1.0F, {0, 0, 0, 0}, 0, {true, false, false}},
        OfferCase{"all right, drilled out", 1.0F, {0, 0, 0, 0}, 3, {false, false, false}},
        OfferCase{"one miss, no wild", 0.75F, {1, 0, 0, 0}, 0, {true, true, false}},
        OfferCase{"part of the topic", 0.5F, {2, 1, 0}, 3, {true, true, true}},
        OfferCase{"full test, none right", 0.0F, {1, 1, 1, 1}, 3, {false, false, false}},
        OfferCase{"all wild, drilled out", 0.0F, {2, 2, 2, 2}, 3, {false, false, false}},
        OfferCase{"all wild, drills left", 0.0F, {2, 2, 2, 2}, 2, {true, true, true}}));

} // namespace
} // namespace tessera
