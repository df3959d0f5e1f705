// A new exam: the builder's values (captions by take counter, the pool and its guards, custom
// values kept), then the draw (the pool, the whole-range shuffle, the head of the pool, GapSort).

#include "core/gap_sort.h"
#include "exam/draw_exam.h"
#include "exam/exam_set_form.h"
#include "tests/support/study_fixture.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tessera {
namespace {

class ExamSetFormTest : public ::testing::Test {
protected:
    void SetUp() override {
        // Topic 1 has 90 items, topic 2 only 12; the exams 150 and 140.
        FillSmallCourse(state, {90, 12, 100, 100, 100, 100, 100, 100, 94}, {150, 140});
    }
    SessionState state;
};

TEST_F(ExamSetFormTest, FirstOpeningInARunShowsExamIWithTheDefaults) {
    ExamSetForm form(state);
    EXPECT_EQ(form.selectedExam(), 0);
    EXPECT_EQ(form.examCaption(0), "Exam I - Author Prepared - 1st Drill");
    EXPECT_FALSE(form.listsEnabled());
    EXPECT_FALSE(form.topicsEnabled());
    EXPECT_TRUE(form.topicChecked(8));
    EXPECT_EQ(form.timeRow(), AuthorExamTimeRow);
    EXPECT_EQ(form.itemRow(), 149);
    EXPECT_EQ(form.poolText(), "Items Available in Pool:  796");
    EXPECT_TRUE(form.scrambled());
    EXPECT_FALSE(form.structured());
    EXPECT_EQ(BuilderRowText(5), "   5");
    EXPECT_EQ(BuilderRowText(255), " 255");
    EXPECT_EQ(TopicCaption(state, 2), " 2   Preliminary Evaluation");
}

TEST_F(ExamSetFormTest, TakeCountersGiveSuffixesAndAFinishedExamIsPassedOver) {
    state.TakeCounts[10] = 3;
    state.TakeCounts[11] = 2;
    state.TakeCounts[12] = 1;
    ExamSetForm form(state);
    EXPECT_EQ(form.examCaption(0), "Exam I - Author Prepared - Finished");
    EXPECT_FALSE(form.examEnabled(0));
    EXPECT_EQ(form.examCaption(1), "Exam II - Author Prepared - Last Drill");
    EXPECT_EQ(form.examCaption(2), "Custom Built by You - 2nd Drill");
    EXPECT_EQ(form.selectedExam(), 1);
    EXPECT_EQ(form.itemRow(), 139);
}

TEST_F(ExamSetFormTest, PoolGuardsAndCustomValuesKeptWhileAnAuthorExamIsSelected) {
    state.TakeCounts[10] = state.TakeCounts[11] = 3;
    state.ExamKind = 3;
    state.ExamItemCount = 40;
    state.ExamMinutes = 255;
    ExamSetForm form(state);
    ASSERT_EQ(form.selectedExam(), 2);
    EXPECT_EQ(form.timeRow(), 50);
    EXPECT_EQ(form.itemRow(), 39);

    // 300 questions, then a single topic of 12: the number is pulled down to the pool.
    form.selectItemRow(299);
    for (int i = 0; i < TopicCount; ++i) {
        form.setTopic(i, i == 1);
    }
    EXPECT_EQ(form.pool(), 12);
    EXPECT_EQ(form.itemRow(), 11);
    form.setTopic(1, false);
    EXPECT_EQ(form.poolText(), "Items Available in Pool:    0");
    EXPECT_FALSE(form.takeEnabled());

    // To an author-prepared exam and back: items and time return, topics from ExamTopics.
    form.selectTimeRow(0);
    form.selectExam(0);
    EXPECT_TRUE(form.takeEnabled());
    EXPECT_EQ(form.timeRow(), AuthorExamTimeRow);
    form.selectExam(2);
    EXPECT_EQ(form.timeRow(), 0);
    EXPECT_EQ(form.itemRow(), 11);
    EXPECT_TRUE(form.topicChecked(0));
    EXPECT_EQ(form.pool(), 796);
}

TEST_F(ExamSetFormTest, TakeLeavesTheChoiceInTheSession) {
    state.ExamMinutes = 5;
    ExamSetForm form(state);
    form.selectExam(2);
    EXPECT_EQ(form.timeRow(), 0); // 5 minutes selects the first row
    form.selectItemRow(24);
    form.setTopic(4, false);
    form.setStructured(true);
    form.setScrambled(false);
    form.take();
    EXPECT_EQ(state.ExamKind, 3);
    EXPECT_EQ(state.ExamType, 3);
    EXPECT_EQ(state.ExamMinutes, 5);
    EXPECT_EQ(state.ExamItemCount, 25);
    EXPECT_FALSE(state.ExamTopics[5]);
    EXPECT_TRUE(state.ExamTopics[6]);
    EXPECT_EQ(state.ExamStructured, 1);
    EXPECT_FALSE(state.ExamScrambled);
}

std::vector<int> Items(const SessionState& s) {
    return {s.ExamItems.begin() + 1, s.ExamItems.begin() + 1 + s.ExamItemCount};
}

TEST(GapSort, SortsRowsOneToNAndMovesParallelTables) {
    for (int n : {0, 1, 2, 7, 64, 300}) {
        std::vector<int> keys(n + 1), twin(n + 1);
        for (int i = 1; i <= n; ++i) {
            keys[i] = (i * 7919) % 1009; // distinct, scattered
            twin[i] = -keys[i];
        }
        GapSort(
            n, [&](int i, int j) { return keys[i] > keys[j]; },
            [&](int i, int j) {
                std::swap(keys[i], keys[j]);
                std::swap(twin[i], twin[j]);
            });
        EXPECT_TRUE(std::is_sorted(keys.begin() + 1, keys.end())) << n;
        for (int i = 1; i <= n; ++i) {
            EXPECT_EQ(twin[i], -keys[i]);
        }
        EXPECT_EQ(keys[0], 0); // row 0 is never touched
    }
}

class DrawExamTest : public ::testing::Test, protected StudyFixture {};

TEST_F(DrawExamTest, UnscrambledCustomExamOfTheWholePoolIsInRunningOrder) {
    state.ExamKind = 3;
    state.ExamScrambled = false;
    state.ExamTopics.fill(false);
    state.ExamTopics[2] = state.ExamTopics[4] = state.ExamTopics[9] = true;
    state.ExamItemCount = 8; // 3 + 2 + 3
    random.script({0.9, 0.1, 0.6, 0.3, 0.75, 0.2, 0.4, 0.8});
    state.ExamAnswers[5] = 2; // a draw clears the answers of an earlier exam
    DrawExam(state, random, clock);
    // Topic 2 holds running numbers 5..7, topic 4 13..14, topic 9 23..25.
    EXPECT_EQ(Items(state), (std::vector<int>{5, 6, 7, 13, 14, 23, 24, 25}));
    EXPECT_EQ(state.ExamAnswers[5], 0);
}

TEST_F(DrawExamTest, CustomExamIsTheHeadOfAWholeRangeShuffle) {
    state.ExamKind = 3;
    state.ExamScrambled = true;
    state.ExamTopics.fill(false);
    state.ExamTopics[2] = true; // pool 5, 6, 7
    state.ExamItemCount = 2;
    // i=1: r=3 -> 7 6 5; i=2: r=1 -> 6 7 5; i=3: r=3 (the last still draws) -> 6 7 5
    random.script({0.9, 0.1, 0.7});
    DrawExam(state, random, clock);
    EXPECT_EQ(Items(state), (std::vector<int>{6, 7}));
    EXPECT_EQ(state.ExamPool[3], 5);
    EXPECT_EQ(random.calls(), 3);
    EXPECT_EQ(random.seeds().size(), 1u); // seeded from the system's timer
}

TEST_F(DrawExamTest, AuthorExamsFollowTheContentOrderUnlessScrambled) {
    state.ExamScrambled = false;
    state.ExamKind = 2;
    state.ExamItemCount = 5;
    DrawExam(state, random, clock);
    // Exam II starts with the item after exam I's last.
    EXPECT_EQ(Items(state), (std::vector<int>{7, 8, 9, 10, 11}));
    EXPECT_EQ(random.calls(), 0);

    state.ExamScrambled = true;
    state.ExamKind = 1;
    state.ExamItemCount = 6;
    random.script({0.99, 0.0, 0.99, 0.0, 0.99, 0.0});
    DrawExam(state, random, clock);
    // Draws alternate 6 and 1: 6 2 3 4 5 1, 2 6 3 4 5 1, 2 6 1 4 5 3, 4 6 1 2 5 3, ...
    EXPECT_EQ(Items(state), (std::vector<int>{5, 6, 1, 2, 3, 4}));
}

} // namespace
} // namespace tessera
