// The builder's values: captions by take counter, the pool and its guards, custom values kept.

#include "exam/exam_set_form.h"
#include "tests/support/small_course.h"

#include <gtest/gtest.h>

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

} // namespace
} // namespace tessera
